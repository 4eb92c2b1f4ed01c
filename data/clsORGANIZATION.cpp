#include "data/clsORGANIZATION.h"

#include "data/modORGANIZATION.h"
#include "data/modPERSON.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

void clsORGANIZATION::SetupProperties() {
    SetupOnce("clsORGANIZATION.SetupProperties", SetupFinished, "ORGANIZATION", ObjectName, [&] {
        SetupProperty_ObjectName();
        SetupProperty_DESCRIPTION();
        SetupProperty_MANAGER();
        SetupProperty_PARENT_ORGANIZATION();
        SetupProperty_RELATED_PERSON();
    });
}

void clsORGANIZATION::SetupProperty_ObjectName() {
    SetupText("clsORGANIZATION.SetupProperty_ObjectName", ObjectName, true, NameKind::objectName,
              ARISObjectDefinition, "ORGANIZATION_ObjectName");
}

void clsORGANIZATION::SetupProperty_DESCRIPTION() {
    SetupText("clsORGANIZATION.SetupProperty_DESCRIPTION", DESCRIPTION, gBlock.gOptUseDescriptionAttr,
              NameKind::description, ARISObjectDefinition, "ORGANIZATION_DESCRIPTION");
}

void clsORGANIZATION::SetupProperty_MANAGER() {
    SetupNeighbour({"clsORGANIZATION.SetupProperty_MANAGER", "ORGANIZATION_MANAGER", NameOfPerson, "MANAGER",
                    "ORGANIZATION"},
                   ARISObjectDefinition, MANAGER, PERSON_Add_ARIS_Mapping);
}

void clsORGANIZATION::SetupProperty_PARENT_ORGANIZATION() {
    SetupNeighbour({"clsORGANIZATION.SetupProperty_PARENT_ORGANIZATION", "ORGANIZATION_PARENT_ORGANIZATION",
                    NameOfOrganization, "PARENT_ORGANIZATION", "ORGANIZATION"},
                   ARISObjectDefinition, PARENT_ORGANIZATION, ORGANIZATION_Add_ARIS_Mapping);
}

void clsORGANIZATION::SetupProperty_RELATED_PERSON() {
    SetupNeighbours(
        {"clsORGANIZATION.SetupProperty_RELATED_PERSON", "ORGANIZATION_RELATED_PERSON", NameOfPerson, {}, {}},
        ARISObjectDefinition, RELATED_PERSON, PERSON_Add_ARIS_Mapping);
}

}  // namespace wxbrg
