#include "data/clsDATA_STRUCTURE.h"

#include "data/StructureIndex.h"
#include "data/modDATA_MEMBER.h"
#include "data/modDATA_STRUCTURE.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

void clsDATA_STRUCTURE::SetupProperties() {
    SetupOnce("clsDATA_STRUCTURE.SetupProperties", SetupFinished, "DATA_STRUCTURE", ObjectName, [&] {
        SetupProperty_ObjectName();
        SetupProperty_StructureSetting();
        SetupProperty_MemberDeclarations();
    });
}

void clsDATA_STRUCTURE::SetupProperty_ObjectName() {
    const auto name = [&] {
        if (!IsGenerated)
            return Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(ARISObjectDefinition,
                                                                 "DATA_STRUCTURE_ObjectName");
        if (!ColARISDataMemberObjectDefinition.IsEmpty()) return DATA_STRUCTURE_GenerateName();
        return std::string(defaultStructureName);  // quoted once more, but nobody generates an empty one
    };
    SetupText("clsDATA_STRUCTURE.SetupProperty_ObjectName", ObjectName, true,
              IsGenerated ? NameKind::objectName : NameKind::memberName, name);
}

void clsDATA_STRUCTURE::SetupProperty_StructureSetting() {
    Procedure("clsDATA_STRUCTURE.SetupProperty_StructureSetting", [&](Frame&) {
        SetupProperty_DESCRIPTION();
        SetupProperty_DOCUMENTATION();
    });
}

void clsDATA_STRUCTURE::SetupProperty_DESCRIPTION() {
    // This procedure bears the person's name.
    SetupText("clsPERSON.SetupProperty_DESCRIPTION", DESCRIPTION,
              gBlock.gOptUseDescriptionAttr && !IsGenerated, NameKind::description, ARISObjectDefinition,
              "DATA_STRUCTURE_DESCRIPTION");
}

void clsDATA_STRUCTURE::SetupProperty_DOCUMENTATION() {
    SetupText("clsDATA_STRUCTURE.SetupProperty_DOCUMENTATION", DOCUMENTATION,
              gBlock.gOptUseDocumentationAttr && !IsGenerated, NameKind::documentation, ARISObjectDefinition,
              "DATA_STRUCTURE_DOCUMENTATION");
}

void clsDATA_STRUCTURE::SetupProperty_MemberDeclarations() {
    Procedure("clsDATA_STRUCTURE.SetupProperty_MemberDeclarations", [&](Frame&) {
        Collection<ARISObjDef> objects = ColARISDataMemberObjectDefinition;
        if (!IsGenerated) {
            objects = {};
            Find_Related_ARIS_ObjDef_Using_Mapping_Rule(objects, ARISObjectDefinition,
                                                        "DATA_STRUCTURE_MEMBER");
        }
        for (const ARISObjDef& object : objects)
            ColDATA_MEMBER.Add(DATA_MEMBER_Add_ARIS_Mapping(object), object->Guid());
        gBlock.gStructureIndex->AddFilled(*this);
    });
}

}  // namespace wxbrg
