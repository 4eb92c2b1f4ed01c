#include "model/modPROCESS.h"

#include <algorithm>

#include "mapping/RuleTable.h"
#include "model/ObjectProtocol.h"
#include "model/clsPROCESS.h"

namespace wxbrg {

namespace {

/// The models of a list or a collection whose type a rule names.
template <class Models>
Collection<ARISModel> ConformingModels(Frame& frame, const Models& models, std::string_view ruleName) {
    const Ref<const clsMappingRule> rule = FetchRule(frame, ruleName);
    const Collection<clsObjectMapping>& mappings = rule->ColObjectMapping;
    Collection<ARISModel> result;
    for (const ARISModel& model : models)
        if (std::any_of(mappings.begin(), mappings.end(), [&](const clsObjectMapping& mapping) {
                return mapping.ObjTypeNum == model->TypeNum();
            }))
            result.AddNew(model, model->Guid());
    return result;
}

}  // namespace

void PROCESS_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels) {
    Procedure("modPROCESS.PROCESS_Find_ARIS_Mapping", [&](Frame&) {
        for (const ARISModel& model :
             PROCESS_Find_ARIS_Model_In_ModelCollection_Using_Mapping_Rule(ColARISModels, "PROCESS")) {
            const Ref<clsPROCESS> process = gBlock.gPool.Create<clsPROCESS>();
            process->ARIS_Model = model;
            process->ARIS_Group = model->Group();
            gBlock.gColPROCESS.AddNew(process, model->Guid());
            WriteNote(Message::processCreated, model->Name(gBlock.gLocale));
        }
    });
}

Collection<ARISModel> PROCESS_SetupProperties() {
    return Procedure("modPROCESS.PROCESS_SetupProperties", [&](Frame&) {
        Collection<ARISModel> newModels;
        std::uint64_t done = 0;
        for (const Ref<clsPROCESS>& process : gBlock.gColPROCESS) {
            process->SetupProperties(newModels);
            gBlock.gPlatform->progress.Report("building processes", ++done,
                                              static_cast<std::uint64_t>(gBlock.gColPROCESS.Count()));
        }
        return newModels;
    });
}

Collection<ARISModel> PROCESS_Create(const Collection<ARISModel>& ColARISModels) {
    return Procedure("modPROCESS.PROCESS_Create", [&](Frame&) {
        PROCESS_Find_ARIS_Mapping(ColARISModels);
        return PROCESS_SetupProperties();
    });
}

Collection<ARISModel> PROCESS_Find_ARIS_Model_In_ModelCollection_Using_Mapping_Rule(
    const Collection<ARISModel>& ColARISModels, std::string_view RuleName) {
    return Procedure("modPROCESS.PROCESS_Find_ARIS_Model_In_ModelCollection_Using_Mapping_Rule",
                     [&](Frame& frame) {
                         return ConformingModels(frame, ColARISModels, RuleName);
                     });
}

Collection<ARISModel> Find_ARIS_Model_In_ModelList(const ARISModelList& list, std::string_view RuleName) {
    return Procedure("modPROCESS.Find_ARIS_Model_In_ModelList", [&](Frame& frame) {
        return ConformingModels(frame, list, RuleName);
    });
}

std::string PROCESS_Find_ARIS_Model_Attribute(const ARISModel& model, std::int32_t AttributeNumber) {
    return ItemAttribute("modPROCESS.PROCESS_Find_ARIS_Model_Attribute", model, AttributeNumber);
}

std::string PROCESS_Find_ARIS_Model_Attribute_Using_Mapping_Rule(const ARISModel& model,
                                                                 std::string_view RuleName) {
    return ItemAttributeUsingRule("modPROCESS.PROCESS_Find_ARIS_Model_Attribute_Using_Mapping_Rule",
                                  "modPROCESS.PROCESS_Find_ARIS_Model_Attribute", model, RuleName);
}

}  // namespace wxbrg
