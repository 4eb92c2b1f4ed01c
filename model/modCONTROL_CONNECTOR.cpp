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
    "FUNCTION_SENDS_CONTROL_TO_FUNCTION",
    &clsACTIVITY::Col_CONTROL_CONNECTOR_IN,
    &clsACTIVITY::Col_CONTROL_CONNECTOR_OUT,
    &clsPROCESS::Col_CONTROL_CONNECTOR,
    &clsPROCESS::ControlFlow,
    &clsCONTROL_CONNECTOR::IsMemberOfInvalidControlFlowLoop,
    Message::controlConnectorCreated,
    Message::controlFlowLoop};

}  // namespace

void CONTROL_CONNECTOR_Create(clsPROCESS& Process) {
    Procedure("modCONTROL_CONNECTOR.CONTROL_CONNECTOR_Create", [&](Frame&) {
        CONTROL_CONNECTOR_Find_ARIS_Mapping(Process);
        CONTROL_CONNECTOR_SetupProperties(Process);
    });
}

void CONTROL_CONNECTOR_Find_ARIS_Mapping(clsPROCESS& Process) {
    Procedure("modCONTROL_CONNECTOR.CONTROL_CONNECTOR_Find_ARIS_Mapping", [&](Frame&) {
        FindBetweenActivities(controlFlow, gBlock.gOptFindControlFlowLoops, Process, ActivityObjects(Process),
                              [] {
                                  return gBlock.gPool.Create<clsCONTROL_CONNECTOR>();
                              });
    });
}

void CONTROL_CONNECTOR_SetupProperties(const clsPROCESS& Process) {
    SetupBatch("modCONTROL_CONNECTOR.CONTROL_CONNECTOR_SetupProperties", Process.Col_CONTROL_CONNECTOR);
}

}  // namespace wxbrg
