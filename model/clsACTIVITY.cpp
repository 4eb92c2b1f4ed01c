#include "model/clsACTIVITY.h"

#include "data/Containers.h"
#include "data/modPROGRAM.h"
#include "model/ObjectProtocol.h"
#include "model/WindowLayout.h"
#include "model/modPROCESS.h"

namespace wxbrg {

clsACTIVITY::clsACTIVITY()
    : InputContainer(gBlock.gPool.Create<clsDATA_STRUCTURE>()),
      OutputContainer(gBlock.gPool.Create<clsDATA_STRUCTURE>()) {}

void clsACTIVITY::SetupIndependentProperties(Collection<ARISModel>& ColNewModels) {
    Procedure("clsACTIVITY.SetupIndependentProperties", [&](Frame&) {
        if (SetupIndependentPropertiesFinished) return;
        SetupProperty_ActivityName();
        SetupProperty_ActivitySetting();
        if (Is_PROCESS_ACTIVITY())
            SetupProperty_ProcessActivitySetting(ColNewModels);
        else
            SetupProperty_ProgramActivitySetting();
        WriteNote(Message::propertiesComplete,
                  Is_PROCESS_ACTIVITY() ? "PROCESS_ACTIVITY" : "PROGRAM_ACTIVITY", ActivityName);
        SetupProperty_OtherSettings();
        SetupIndependentPropertiesFinished = true;
    });
}

void clsACTIVITY::SetupProperty_ActivityName() {
    SetupText("clsACTIVITY.SetupProperty_ActivityName", ActivityName, true, NameKind::activityName,
              ARISObjectDefinition, "ACTIVITY_ActivityName");
}

void clsACTIVITY::SetupProperty_ActivitySetting() {
    Procedure("clsACTIVITY.SetupProperty_ActivitySetting", [&](Frame&) {
        SetupProperty_InputContainer();
        SetupProperty_OutputContainer();
        SetupProperty_DESCRIPTION();
        SetupProperty_DOCUMENTATION();
    });
}

void clsACTIVITY::SetupProperty_InputContainer() {
    SetupRelatedContainer("clsACTIVITY.SetupProperty_InputContainer", InputContainer, ARISObjectDefinition,
                          "FUNCTION_RECEIVES_DATA");
}

void clsACTIVITY::SetupProperty_OutputContainer() {
    SetupRelatedContainer("clsACTIVITY.SetupProperty_OutputContainer", OutputContainer, ARISObjectDefinition,
                          "FUNCTION_SENDS_DATA");
}

void clsACTIVITY::SetupProperty_LAYOUT() {
    Procedure("clsACTIVITY.SetupProperty_LAYOUT", [&](Frame& frame) {
        if (LayoutConversionFinished)
            LAYOUT = PositionText(WPX_XPos, WPX_YPos);
        else
            frame.Raise(Message::activityLayoutNotConverted, ARISObjectDefinition->Name(gBlock.gLocale));
    });
}

void clsACTIVITY::SetupProperty_DESCRIPTION() {
    SetupText("clsACTIVITY.SetupProperty_DESCRIPTION", DESCRIPTION, gBlock.gOptUseDescriptionAttr,
              NameKind::description, ARISObjectDefinition, "ACTIVITY_DESCRIPTION");
}

void clsACTIVITY::SetupProperty_DOCUMENTATION() {
    // The one documentation that no option gates.
    SetupText("clsACTIVITY.SetupProperty_DOCUMENTATION", DOCUMENTATION, true, NameKind::documentation,
              ARISObjectDefinition, "ACTIVITY_DOCUMENTATION");
}

void clsACTIVITY::SetupProperty_ProcessActivitySetting(Collection<ARISModel>& ColNewModels) {
    Procedure("clsACTIVITY.SetupProperty_ProcessActivitySetting", [&](Frame&) {
        gBlock.gFailureContext = "Retrieve PROCESS";
        if (gBlock.gColPROCESS.Find(AssignedModel->Guid()) == nullptr) {
            gBlock.gFailureContext = "";
            ColNewModels.AddNew(AssignedModel, AssignedModel->Guid());
        }
        SetupProperty_PROCESS();
    });
}

void clsACTIVITY::SetupProperty_PROCESS() {
    SetupText("clsACTIVITY.SetupProperty_PROCESS", PROCESS, true, NameKind::processName, [&] {
        return PROCESS_Find_ARIS_Model_Attribute_Using_Mapping_Rule(AssignedModel, "PROCESS_ProcessName");
    });
}

void clsACTIVITY::SetupProperty_ProgramActivitySetting() {
    Procedure("clsACTIVITY.SetupProperty_ProgramActivitySetting", [&](Frame&) {
        SetupProperty_PROGRAM();
    });
}

void clsACTIVITY::SetupProperty_PROGRAM() {
    Procedure("clsACTIVITY.SetupProperty_PROGRAM", [&](Frame&) {
        Collection<ARISObjDef> programs;
        Find_Related_ARIS_ObjDef_Using_Mapping_Rule(programs, ARISObjectDefinition, "ACTIVITY_PROGRAM");
        if (programs.IsEmpty()) return;
        const ARISObjDef first = programs.Item(1);
        if (const std::optional<std::string> name = NameOfProgram(first)) {
            PROGRAM = Quoted(*name);
            PROGRAM_Add_ARIS_Mapping(first);
        }
        if (programs.Count() < 2) return;
        WriteNote(Message::severalPrograms, "PROGRAM", "ACTIVITY");
        for (std::int32_t i = 2; i <= programs.Count(); ++i) NoteMapped(programs.Item(i), "SUPPORT_TOOL");
    });
}

void clsACTIVITY::SetupProperty_OtherSettings() {
    SetupSettings("clsACTIVITY.SetupProperty_OtherSettings", OtherSettings, ARISObjectDefinition,
                  "ACTIVITY_OTHER_SETTINGS");
}

}  // namespace wxbrg
