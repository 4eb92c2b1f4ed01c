#include "data/modDATA_CONNECTOR.h"

#include "data/RelatedObjects.h"
#include "data/clsDATA_CONNECTOR.h"
#include "mapping/DrawnItems.h"
#include "model/Connectors.h"
#include "model/ObjectProtocol.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "model/modACTIVITY.h"

namespace wxbrg {

namespace {

constexpr BetweenActivities<clsDATA_CONNECTOR> dataFlow{"FUNCTION_SENDS_DATA_TO_FUNCTION",
                                                        &clsACTIVITY::Col_DATA_CONNECTOR_IN,
                                                        &clsACTIVITY::Col_DATA_CONNECTOR_OUT,
                                                        &clsPROCESS::Col_DATA_CONNECTOR,
                                                        &clsPROCESS::DataFlow,
                                                        &clsDATA_CONNECTOR::IsMemberOfInvalidDataFlowLoop,
                                                        Message::dataConnectorCreated,
                                                        Message::dataFlowLoop};

Ref<clsDATA_CONNECTOR> NewConnector(DataConnectorKind kind) {
    const Ref<clsDATA_CONNECTOR> connector = gBlock.gPool.Create<clsDATA_CONNECTOR>();
    connector->ConnectorKind = kind;
    return connector;
}

/// The data objects of a function that are drawn in the model and that no function of the process touches the
/// other way.
Collection<ARISObjDef> CrossingObjects(const clsPROCESS& process, const ARISObjDef& function,
                                       std::string_view rule, RelatedObjects& otherWay) {
    Collection<ARISObjDef> related;
    Collection<ARISObjDef> crossing;
    for (const ARISObjDef& object : Find_Related_ARIS_ObjDef_Using_Mapping_Rule(related, function, rule))
        if (IsDrawnIn(object, process.ARIS_Model) && !otherWay.LeadTo(object))
            crossing.Add(object, object->Guid());
    return crossing;
}

/// One of the two ways across the boundary of a process.
struct Boundary {
    DataConnectorKind kind;
    std::string_view rule;      ///< by which the activity touches the data
    std::string_view otherWay;  ///< by which another activity keeps the data inside
    ARISObjDef clsDATA_CONNECTOR::*end;
    Collection<ARISObjDef> clsDATA_CONNECTOR::*objects;
    Collection<Ref<clsDATA_CONNECTOR>> clsACTIVITY::*heldBy;
};
constexpr Boundary input{DataConnectorKind::processInput,
                         "FUNCTION_RECEIVES_DATA",
                         "FUNCTION_SENDS_DATA",
                         &clsDATA_CONNECTOR::TO_ARISObjectDefinition,
                         &clsDATA_CONNECTOR::ColInputDataObjects,
                         &clsACTIVITY::Col_DATA_CONNECTOR_IN};
constexpr Boundary output{DataConnectorKind::processOutput,
                          "FUNCTION_SENDS_DATA",
                          "FUNCTION_RECEIVES_DATA",
                          &clsDATA_CONNECTOR::FROM_ARISObjectDefinition,
                          &clsDATA_CONNECTOR::ColOutputDataObjects,
                          &clsACTIVITY::Col_DATA_CONNECTOR_OUT};

void FindConnectorsAcross(const Boundary& boundary, clsPROCESS& process,
                          const Collection<ARISObjDef>& functions) {
    RelatedObjects inside(functions, boundary.otherWay);
    for (const ARISObjDef& function : functions) {
        Collection<ARISObjDef> objects = CrossingObjects(process, function, boundary.rule, inside);
        if (objects.IsEmpty()) continue;
        const Ref<clsDATA_CONNECTOR> connector = NewConnector(boundary.kind);
        (*connector).*boundary.end = function;
        connector->PROCESS = &process;
        (*connector).*boundary.objects = std::move(objects);
        if (const Ref<clsACTIVITY> activity = CompleteActivity(process, function))
            ((*activity).*boundary.heldBy).AddNew(connector, connector->Key());
        process.Col_DATA_CONNECTOR.AddNew(connector, connector->Key());
    }
}

}  // namespace

void DATA_CONNECTOR_Create(clsPROCESS& Process) {
    Procedure("modDATA_CONNECTOR.DATA_CONNECTOR_Create", [&](Frame&) {
        DATA_CONNECTOR_Find_ARIS_Mapping(Process);
        DATA_CONNECTOR_SetupProperties(Process);
    });
}

void DATA_CONNECTOR_Find_ARIS_Mapping(clsPROCESS& Process) {
    Procedure("modDATA_CONNECTOR.DATA_CONNECTOR_Find_ARIS_Mapping", [&](Frame&) {
        const Collection<ARISObjDef> functions = ActivityObjects(Process);
        FindBetweenActivities(dataFlow, gBlock.gOptFindDataFlowLoops, Process, functions, [] {
            return NewConnector(DataConnectorKind::activityToActivity);
        });
        FindConnectorsAcross(input, Process, functions);
        FindConnectorsAcross(output, Process, functions);
    });
}

void DATA_CONNECTOR_SetupProperties(const clsPROCESS& Process) {
    SetupBatch("modDATA_CONNECTOR.DATA_CONNECTOR_SetupProperties", Process.Col_DATA_CONNECTOR);
}

}  // namespace wxbrg
