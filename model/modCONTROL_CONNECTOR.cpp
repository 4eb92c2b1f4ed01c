#include "model/modCONTROL_CONNECTOR.h"

#include "model/ConnectorText.h"
#include "model/ObjectProtocol.h"
#include "model/clsACTIVITY.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"
#include "model/modACTIVITY.h"

namespace wxbrg {

namespace {

void AddConnector(clsPROCESS& process, const ARISObjDef& from, const ARISObjDef& to) {
    const Ref<clsCONTROL_CONNECTOR> connector = gPool.Create<clsCONTROL_CONNECTOR>();
    connector->FROM_ARISObjectDefinition = from;
    connector->TO_ARISObjectDefinition = to;
    connector->PROCESS = &process;
    connector->FindARISObjectDefinitionsOnConnectorPaths();
    const std::string key = connector->Key();
    if (const Ref<clsACTIVITY> entered = CompleteActivity(process, to))
        entered->Col_CONTROL_CONNECTOR_IN.AddNew(connector, key);
    if (const Ref<clsACTIVITY> left = CompleteActivity(process, from))
        left->Col_CONTROL_CONNECTOR_OUT.AddNew(connector, key);
    if (gOptFindControlFlowLoops && connector->IsMemberOfInvalidControlFlowLoop(process))
        NoteConnector(Severity::exclamation, 3130, from, to);
    if (process.Col_CONTROL_CONNECTOR.AddNew(connector, key))
        process.ControlFlow.Add(from->Guid(), to->Guid());
    NoteConnector(Severity::information, 3070, from, to);
}

}  // namespace

void CONTROL_CONNECTOR_Create(clsPROCESS& Process) {
    Procedure("modCONTROL_CONNECTOR.CONTROL_CONNECTOR_Create", [&](Frame&) {
        CONTROL_CONNECTOR_Find_ARIS_Mapping(Process);
        CONTROL_CONNECTOR_SetupProperties(Process);
    });
}

void CONTROL_CONNECTOR_Find_ARIS_Mapping(clsPROCESS& Process) {
    Procedure("modCONTROL_CONNECTOR.CONTROL_CONNECTOR_Find_ARIS_Mapping", [&](Frame&) {
        for (const ARISObjDef& from : ActivityObjects(Process)) {
            Collection<ARISObjDef> targets;
            for (const ARISObjDef& to : Find_Related_ARIS_ObjDef_Using_Mapping_Rule(
                     targets, from, "FUNCTION_SENDS_CONTROL_TO_FUNCTION"))
                if (to->OccListInModel(Process.ARIS_Model).Count() > 0) AddConnector(Process, from, to);
        }
    });
}

void CONTROL_CONNECTOR_SetupProperties(const clsPROCESS& Process) {
    Procedure("modCONTROL_CONNECTOR.CONTROL_CONNECTOR_SetupProperties", [&](Frame&) {
        for (const Ref<clsCONTROL_CONNECTOR>& connector : Process.Col_CONTROL_CONNECTOR)
            connector->SetupProperties();
    });
}

}  // namespace wxbrg
