#include "data/clsROLE.h"

#include "data/modPERSON.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

void clsROLE::SetupProperties() {
    SetupOnce("clsROLE.SetupProperties", SetupFinished, "ROLE", ObjectName, [&] {
        SetupProperty_ObjectName();
        SetupProperty_DESCRIPTION();
        SetupProperty_COORDINATOR();
        SetupProperty_RELATED_PERSON();
    });
}

void clsROLE::SetupProperty_ObjectName() {
    SetupText("clsROLE.SetupProperty_ObjectName", ObjectName, true, NameKind::objectName,
              ARISObjectDefinition, "ROLE_ObjectName");
}

void clsROLE::SetupProperty_DESCRIPTION() {
    SetupText("clsROLE.SetupProperty_DESCRIPTION", DESCRIPTION, gBlock.gOptUseDescriptionAttr,
              NameKind::description, ARISObjectDefinition, "ROLE_DESCRIPTION");
}

void clsROLE::SetupProperty_COORDINATOR() {
    SetupNeighbour(
        {"clsROLE.SetupProperty_COORDINATOR", "ROLE_COORDINATOR", NameOfPerson, "COORDINATOR", "ROLE"},
        ARISObjectDefinition, COORDINATOR, PERSON_Add_ARIS_Mapping);
}

void clsROLE::SetupProperty_RELATED_PERSON() {
    SetupNeighbours({"clsROLE.SetupProperty_RELATED_PERSON", "ROLE_RELATED_PERSON", NameOfPerson, {}, {}},
                    ARISObjectDefinition, RELATED_PERSON, PERSON_Add_ARIS_Mapping);
}

}  // namespace wxbrg
