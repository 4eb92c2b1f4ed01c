#include "data/modDATA_STRUCTURE.h"

#include "data/StructureIndex.h"
#include "model/ObjectProtocol.h"
#include "support/Numbers.h"

namespace wxbrg {

namespace {

/// The objects that are an object's members.
Collection<ARISObjDef> MembersOf(const ARISObjDef& item) {
    Collection<ARISObjDef> members;
    Find_Related_ARIS_ObjDef_Using_Mapping_Rule(members, item, "DATA_STRUCTURE_MEMBER");
    return members;
}

}  // namespace

void DATA_STRUCTURE_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels) {
    Procedure("modDATA_STRUCTURE.DATA_STRUCTURE_Find_ARIS_Mapping", [&](Frame&) {
        Collection<ARISObjDef> found;
        for (const ARISObjDef& item :
             Find_ARIS_ObjDef_Using_Mapping_Rule(ColARISModels, found, "DATA_OBJECT")) {
            const Collection<ARISObjDef> members = MembersOf(item);
            if (members.IsEmpty() || DATA_STRUCTURE_FindEquivalentStructure(members, item)) continue;
            const Ref<clsDATA_STRUCTURE> structure = gBlock.gPool.Create<clsDATA_STRUCTURE>();
            structure->ARISObjectDefinition = item;
            gBlock.gColDATA_STRUCTURE.AddNew(structure, item->Guid());
            NoteMapped(item, "DATA_STRUCTURE");
        }
    });
}

void DATA_STRUCTURE_SetupProperties() {
    SetupBatch("modDATA_STRUCTURE.DATA_STRUCTURE_SetupProperties", gBlock.gColDATA_STRUCTURE);
}

void DATA_STRUCTURE_Create(const Collection<ARISModel>& ColARISModels) {
    Procedure("modDATA_STRUCTURE.DATA_STRUCTURE_Create", [&](Frame&) {
        DATA_STRUCTURE_Find_ARIS_Mapping(ColARISModels);
        DATA_STRUCTURE_SetupProperties();
    });
}

Ref<clsDATA_STRUCTURE> DATA_STRUCTURE_Add_ARIS_Mapping(const ARISObjDef& item) {
    return AddARISMapping(
        {"modDATA_STRUCTURE.DATA_STRUCTURE_Add_ARIS_Mapping", "DATA_OBJECT", "DATA_STRUCTURE", "DATA_OBJECT"},
        item, gBlock.gColDATA_STRUCTURE);
}

Ref<clsDATA_STRUCTURE> DATA_STRUCTURE_Generate(const Collection<ARISObjDef>& Members) {
    return Procedure("modDATA_STRUCTURE.DATA_STRUCTURE_Generate", [&](Frame&) {
        if (const Ref<clsDATA_STRUCTURE> equal = DATA_STRUCTURE_FindEquivalentStructure(Members, nullptr))
            return equal;
        const Ref<clsDATA_STRUCTURE> structure = gBlock.gPool.Create<clsDATA_STRUCTURE>();
        for (const ARISObjDef& member : Members) structure->ColARISDataMemberObjectDefinition.Add(member);
        structure->IsGenerated = true;
        gBlock.gColDATA_STRUCTURE.Add(structure);
        structure->SetupProperties();
        return structure;
    });
}

Ref<clsDATA_STRUCTURE> DATA_STRUCTURE_FindEquivalentStructure(const Collection<ARISObjDef>& Members,
                                                              const ARISObjDef& ARISObject) {
    return Procedure("modDATA_STRUCTURE.DATA_STRUCTURE_FindEquivalentStructure", [&](Frame&) {
        return gBlock.gStructureIndex->Find(Members, ARISObject);
    });
}

std::string DATA_STRUCTURE_GenerateName() {
    return Procedure("modDATA_STRUCTURE.DATA_STRUCTURE_GenerateName", [&](Frame&) {
        std::string name = gBlock.gDataStructureNamePrefix + std::to_string(gBlock.gNextDataStructureSuffix);
        gBlock.gNextDataStructureSuffix = AddChecked(gBlock.gNextDataStructureSuffix, 1);
        return name;
    });
}

bool DATA_STRUCTURE_Is_DATA_STRUCTURE(const ARISObjDef& item) {
    return Procedure("modDATA_STRUCTURE.DATA_STRUCTURE_Is_DATA_STRUCTURE", [&](Frame&) {
        return ARIS_ObjDef_Conforms_To_Mapping_Rule(item, "DATA_OBJECT") && !MembersOf(item).IsEmpty();
    });
}

}  // namespace wxbrg
