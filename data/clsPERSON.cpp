#include "data/clsPERSON.h"

#include "data/modORGANIZATION.h"
#include "data/modPERSON.h"
#include "data/modROLE.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

void clsPERSON::SetupProperties() {
    SetupOnce("clsPERSON.SetupProperties", SetupFinished, "PERSON", PersonName, [&] {
        SetupProperty_PersonName();
        SetupProperty_FIRST_NAME();
        SetupProperty_LAST_NAME();
        SetupProperty_PHONE();
        SetupProperty_SECOND_PHONE();
        SetupProperty_SUBSTITUTE();
        SetupProperty_RELATED_ROLE();
        SetupProperty_RELATED_ORGANIZATION();
        SetupProperty_DESCRIPTION();  // behind the neighbours, whose notes come first
        SetupProperty_OtherSettings();
    });
}

void clsPERSON::SetupProperty_PersonName() {
    Procedure("clsPERSON.SetupProperty_PersonName", [&](Frame&) {
        const std::string name = ConvertARISPersonName(ARISObjectDefinition);
        if (!name.empty()) PersonName = Quoted(name);
    });
}

void clsPERSON::SetupProperty_FIRST_NAME() {
    SetupText("clsPERSON.SetupProperty_FIRST_NAME", FIRST_NAME, true, NameKind::personField,
              ARISObjectDefinition, "PERSON_FIRST_NAME");
}

void clsPERSON::SetupProperty_LAST_NAME() {
    SetupText("clsPERSON.SetupProperty_LAST_NAME", LAST_NAME, true, NameKind::personField,
              ARISObjectDefinition, "PERSON_LAST_NAME");
}

void clsPERSON::SetupProperty_PHONE() {
    SetupText("clsPERSON.SetupProperty_PHONE", PHONE, true, NameKind::personField, ARISObjectDefinition,
              "PERSON_PHONE");
}

void clsPERSON::SetupProperty_SECOND_PHONE() {
    SetupText("clsPERSON.SetupProperty_SECOND_PHONE", SECOND_PHONE, true, NameKind::personField,
              ARISObjectDefinition, "PERSON_SECOND_PHONE");
}

void clsPERSON::SetupProperty_DESCRIPTION() {
    SetupText("clsPERSON.SetupProperty_DESCRIPTION", DESCRIPTION, gBlock.gOptUseDescriptionAttr,
              NameKind::description, ARISObjectDefinition, "PERSON_DESCRIPTION");
}

void clsPERSON::SetupProperty_SUBSTITUTE() {
    SetupNeighbour(
        {"clsPERSON.SetupProperty_SUBSTITUTE", "PERSON_SUBSTITUTE", NameOfPerson, "SUBSTITUTE", "PERSON"},
        ARISObjectDefinition, SUBSTITUTE, PERSON_Add_ARIS_Mapping);
}

void clsPERSON::SetupProperty_RELATED_ROLE() {
    SetupNeighbours({"clsPERSON.SetupProperty_RELATED_ROLE", "PERSON_RELATED_ROLE", NameOfObject, {}, {}},
                    ARISObjectDefinition, RELATED_ROLE, ROLE_Add_ARIS_Mapping);
}

void clsPERSON::SetupProperty_RELATED_ORGANIZATION() {
    SetupNeighbour({"clsPERSON.SetupProperty_RELATED_ORGANIZATION", "PERSON_RELATED_ORGANIZATION",
                    NameOfObject, "RELATED_ORGANIZATION", "PERSON"},
                   ARISObjectDefinition, RELATED_ORGANIZATION, ORGANIZATION_Add_ARIS_Mapping);
}

void clsPERSON::SetupProperty_OtherSettings() {
    SetupSettings("clsPERSON.SetupProperty_OtherSettings", OtherSettings, ARISObjectDefinition,
                  "PERSON_OTHER_SETTINGS");
}

}  // namespace wxbrg
