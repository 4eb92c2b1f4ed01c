#include "data/clsPROGRAM.h"

#include "data/Containers.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

clsPROGRAM::clsPROGRAM()
    : InputContainer(gBlock.gPool.Create<clsDATA_STRUCTURE>()),
      OutputContainer(gBlock.gPool.Create<clsDATA_STRUCTURE>()) {}

void clsPROGRAM::SetupProperties() {
    SetupOnce("clsPROGRAM.SetupProperties", SetupFinished, "PROGRAM", ObjectName, [&] {
        SetupProperty_ObjectName();
        SetupProperty_ProgramSetting();
        SetupProperty_OtherSettings();
        SetupProperty_InputContainer();
        SetupProperty_OutputContainer();
    });
}

void clsPROGRAM::SetupProperty_ObjectName() {
    SetupText("clsPROGRAM.SetupProperty_ObjectName", ObjectName, true, NameKind::objectName,
              ARISObjectDefinition, "PROGRAM_ObjectName");
}

void clsPROGRAM::SetupProperty_ProgramSetting() {
    Procedure("clsPROGRAM.SetupProperty_ProgramSetting", [&](Frame&) {
        SetupProperty_DESCRIPTION();
        SetupProperty_DOCUMENTATION();
    });
}

void clsPROGRAM::SetupProperty_DESCRIPTION() {
    SetupText("clsPROGRAM.SetupProperty_DESCRIPTION", DESCRIPTION, gBlock.gOptUseDescriptionAttr,
              NameKind::description, ARISObjectDefinition, "PROGRAM_DESCRIPTION");
}

void clsPROGRAM::SetupProperty_DOCUMENTATION() {
    SetupText("clsPROGRAM.SetupProperty_DOCUMENTATION", DOCUMENTATION, gBlock.gOptUseDocumentationAttr,
              NameKind::documentation, ARISObjectDefinition, "PROGRAM_DOCUMENTATION");
}

void clsPROGRAM::SetupProperty_InputContainer() {
    SetupRelatedContainer("clsPROGRAM.SetupProperty_InputContainer", InputContainer, ARISObjectDefinition,
                          "PROGRAM_RECEIVES_DATA");
}

void clsPROGRAM::SetupProperty_OutputContainer() {
    SetupRelatedContainer("clsPROGRAM.SetupProperty_OutputContainer", OutputContainer, ARISObjectDefinition,
                          "PROGRAM_SENDS_DATA");
}

void clsPROGRAM::SetupProperty_OtherSettings() {
    SetupSettings("clsPROGRAM.SetupProperty_OtherSettings", OtherSettings, ARISObjectDefinition,
                  "PROGRAM_OTHER_SETTINGS");
}

}  // namespace wxbrg
