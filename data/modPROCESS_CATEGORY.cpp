#include "data/modPROCESS_CATEGORY.h"

#include "data/clsPROCESS_CATEGORY.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

void PROCESS_CATEGORY_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels) {
    Procedure("modPROCESS_CATEGORY.PROCESS_CATEGORY_Find_ARIS_Mapping", [&](Frame&) {
        for (const ARISGroup& group : PROCESS_CATEGORY_Find_ARIS_Group_In_ModelCollection(ColARISModels)) {
            const Ref<clsPROCESS_CATEGORY> category = gBlock.gPool.Create<clsPROCESS_CATEGORY>();
            category->ARIS_Group = group;
            gBlock.gColPROCESS_CATEGORY.AddNew(category, group->Guid());
            WriteNote(Message::categoryCreated, group->Name(gBlock.gLocale));
        }
    });
}

void PROCESS_CATEGORY_SetupProperties() {
    SetupBatch("modPROCESS_CATEGORY.PROCESS_CATEGORY_SetupProperties", gBlock.gColPROCESS_CATEGORY);
}

void PROCESS_CATEGORY_Create(const Collection<ARISModel>& ColARISModels) {
    Procedure("modPROCESS_CATEGORY.PROCESS_CATEGORY_Create", [&](Frame&) {
        PROCESS_CATEGORY_Find_ARIS_Mapping(ColARISModels);
        PROCESS_CATEGORY_SetupProperties();
    });
}

Collection<ARISGroup> PROCESS_CATEGORY_Find_ARIS_Group_In_ModelCollection(
    const Collection<ARISModel>& ColARISModels) {
    return Procedure("modPROCESS_CATEGORY.PROCESS_CATEGORY_Find_ARIS_Group_In_ModelCollection", [&](Frame&) {
        Collection<ARISGroup> groups;
        for (const ARISModel& model : ColARISModels) {
            const ARISGroup group = model->Group();
            groups.AddNew(group, group->Guid());
        }
        return groups;
    });
}

std::string PROCESS_CATEGORY_Find_ARIS_Group_Attribute(const ARISGroup& group, std::int32_t AttributeNumber) {
    return ItemAttribute("modPROCESS_CATEGORY.PROCESS_CATEGORY_Find_ARIS_Group_Attribute", group,
                         AttributeNumber);
}

std::string PROCESS_CATEGORY_Find_ARIS_Group_Attribute_Using_Mapping_Rule(const ARISGroup& group,
                                                                          std::string_view RuleName) {
    return ItemAttributeUsingRule(
        "modPROCESS_CATEGORY.PROCESS_CATEGORY_Find_ARIS_Group_Attribute_Using_Mapping_Rule",
        "modPROCESS_CATEGORY.PROCESS_CATEGORY_Find_ARIS_Group_Attribute", group, RuleName);
}

}  // namespace wxbrg
