#include "model/modCONTROL_CONNECTOR.h"

#include "model/Connectors.h"
#include "model/ObjectProtocol.h"
#include "model/clsACTIVITY.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"
#include "model/modACTIVITY.h"

namespace wxbrg {

namespace {

constexpr BetweenActivities<clsCONTROL_CONNECTOR> controlFlow{
    &clsACTIVITY::Col_CONTROL_CONNECTOR_IN, &clsACTIVITY::Col_CONTROL_CONNECTOR_OUT,
    &clsPROCESS::Col_CONTROL_CONNECTOR, &clsPROCESS::ControlFlow, Message::controlConnectorCreated};

void AddConnector(clsPROCESS& process, const ARISObjDef& from, const ARISObjDef& to) {
    const Ref<clsCONTROL_CONNECTOR> connector = gBlock.gPool.Create<clsCONTROL_CONNECTOR>();
    AddBetweenActivities(controlFlow, connector, process, from, to, [&] {
        if (gBlock.gOptFindControlFlowLoops && connector->IsMemberOfInvalidControlFlowLoop(process))
            NoteConnector(Message::controlFlowLoop, from, to);
    });
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
