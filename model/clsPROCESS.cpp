#include "model/clsPROCESS.h"

#include "data/Containers.h"
#include "data/clsDATA_CONNECTOR.h"
#include "data/modDATA_CONNECTOR.h"
#include "model/ObjectProtocol.h"
#include "model/WindowLayout.h"
#include "model/clsACTIVITY.h"
#include "model/modACTIVITY.h"
#include "model/modCONTROL_CONNECTOR.h"
#include "model/modPROCESS.h"

namespace wxbrg {

clsPROCESS::clsPROCESS()
    : InputContainer(gBlock.gPool.Create<clsDATA_STRUCTURE>()),
      OutputContainer(gBlock.gPool.Create<clsDATA_STRUCTURE>()) {}

void clsPROCESS::SetupProperties(Collection<ARISModel>& ColNewModels) {
    SetupOnce("clsPROCESS.SetupProperties", SetupFinished, "PROCESS", ProcessName, [&] {
        SetupProperty_ProcessName();
        SetupProperty_ProcessSetting();
        SetupProperty_OtherSettings();
        SetupProperty_Constructs(ColNewModels);
        SetupProperty_InputContainer();
        SetupProperty_OutputContainer();
        SetupPropertiesOfProcessInputConnectors();
        SetupPropertiesOfProcessOutputConnectors();
        SetupProperty_ProcessGraphicsSetting();
    });
}

void clsPROCESS::SetupProperty_ProcessName() {
    SetupText("clsPROCESS.SetupProperty_ProcessName", ProcessName, true, NameKind::processName, [&] {
        return PROCESS_Find_ARIS_Model_Attribute_Using_Mapping_Rule(ARIS_Model, "PROCESS_ProcessName");
    });
}

namespace {

/// The data objects of the process's boundary connectors of one kind, each once.
Collection<ARISObjDef> BoundaryObjects(const clsPROCESS& process, DataConnectorKind kind,
                                       Collection<ARISObjDef> clsDATA_CONNECTOR::*objects) {
    Collection<ARISObjDef> all;
    for (const Ref<clsDATA_CONNECTOR>& connector : process.Col_DATA_CONNECTOR) {
        if (connector->ConnectorKind != kind) continue;
        for (const ARISObjDef& object : (*connector).*objects) all.AddNew(object, object->Guid());
    }
    return all;
}

}  // namespace

void clsPROCESS::SetupProperty_InputContainer() {
    Procedure("clsPROCESS.SetupProperty_InputContainer", [&](Frame&) {
        SetupContainer(InputContainer, BoundaryObjects(*this, DataConnectorKind::processInput,
                                                       &clsDATA_CONNECTOR::ColInputDataObjects));
    });
}

void clsPROCESS::SetupProperty_OutputContainer() {
    Procedure("clsPROCESS.SetupProperty_OutputContainer", [&](Frame&) {
        SetupContainer(OutputContainer, BoundaryObjects(*this, DataConnectorKind::processOutput,
                                                        &clsDATA_CONNECTOR::ColOutputDataObjects));
    });
}

void clsPROCESS::SetupProperty_ProcessSetting() {
    Procedure("clsPROCESS.SetupProperty_ProcessSetting", [&](Frame&) {
        SetupProperty_DESCRIPTION();
        SetupProperty_DOCUMENTATION();
        SetupProperty_CATEGORY();
    });
}

void clsPROCESS::SetupProperty_DESCRIPTION() {
    SetupText("clsPROCESS.SetupProperty_DESCRIPTION", DESCRIPTION, gBlock.gOptUseDescriptionAttr,
              NameKind::description, [&] {
                  return PROCESS_Find_ARIS_Model_Attribute_Using_Mapping_Rule(ARIS_Model,
                                                                              "PROCESS_DESCRIPTION");
              });
}

void clsPROCESS::SetupProperty_DOCUMENTATION() {
    SetupText("clsPROCESS.SetupProperty_DOCUMENTATION", DOCUMENTATION, gBlock.gOptUseDocumentationAttr,
              NameKind::documentation, [&] {
                  return PROCESS_Find_ARIS_Model_Attribute_Using_Mapping_Rule(ARIS_Model,
                                                                              "PROCESS_DOCUMENTATION");
              });
}

void clsPROCESS::SetupProperty_CATEGORY() {
    // No rule and no option plays a part.
    SetupText("clsPROCESS.SetupProperty_CATEGORY", CATEGORY, true, NameKind::objectName, [&] {
        return ARIS_Group->Name(gBlock.gLocale);
    });
}

void clsPROCESS::SetupProperty_OtherSettings() {
    SetupSettings("clsPROCESS.SetupProperty_OtherSettings", OtherSettings, [&] {
        return PROCESS_Find_ARIS_Model_Attribute_Using_Mapping_Rule(ARIS_Model, "PROCESS_OTHER_SETTINGS");
    });
}

void clsPROCESS::SetupProperty_Constructs(Collection<ARISModel>& ColNewModels) {
    Procedure("clsPROCESS.SetupProperty_Constructs", [&](Frame&) {
        ACTIVITY_Create(ColNewModels, *this);
        ConvertARISLayoutToWPXLayout();
        CONTROL_CONNECTOR_Create(*this);
        DATA_CONNECTOR_Create(*this);
        ACTIVITY_SetupDependentProperties(*this);
        PROCESS_SetupProperty_ACTIVITY_LAYOUT();
    });
}

std::string clsPROCESS::GeneratedDataSourceName() {
    return Procedure("clsPROCESS.GeneratedDataSourceName", [&](Frame&) {
        return "SOURCE " + std::to_string(nextSource_++);
    });
}

std::string clsPROCESS::GeneratedDataSinkName() {
    return Procedure("clsPROCESS.GeneratedDataSinkName", [&](Frame&) {
        return "SINK " + std::to_string(nextSink_++);
    });
}

void clsPROCESS::FinishBoundaryConnectors(DataConnectorKind kind, std::string (clsPROCESS::*name)(),
                                          const Ref<clsDATA_STRUCTURE>& container) {
    for (const Ref<clsDATA_CONNECTOR>& connector : Col_DATA_CONNECTOR) {
        if (connector->ConnectorKind != kind) continue;
        const std::string generated = (this->*name)();
        connector->SetupProperty_Linking(generated);
        connector->SetupProperty_Mapping(container);
        connector->SetupProperty_LAYOUT(generated);
        WriteNote(Message::propertiesComplete, "DATA CONNECTOR", connector->Linking);
    }
}

void clsPROCESS::SetupPropertiesOfProcessInputConnectors() {
    Procedure("clsPROCESS.SetupPropertiesOfProcessInputConnectors", [&](Frame&) {
        FinishBoundaryConnectors(DataConnectorKind::processInput, &clsPROCESS::GeneratedDataSourceName,
                                 InputContainer);
    });
}

void clsPROCESS::SetupPropertiesOfProcessOutputConnectors() {
    Procedure("clsPROCESS.SetupPropertiesOfProcessOutputConnectors", [&](Frame&) {
        FinishBoundaryConnectors(DataConnectorKind::processOutput, &clsPROCESS::GeneratedDataSinkName,
                                 OutputContainer);
    });
}

}  // namespace wxbrg
