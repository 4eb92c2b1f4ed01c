#include "data/modDATA_CONNECTOR.h"

#include "data/RelatedObjects.h"
#include "data/clsDATA_CONNECTOR.h"
#include "model/Connectors.h"
#include "model/ObjectProtocol.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "model/modACTIVITY.h"

namespace wxbrg {

namespace {

bool IsInModel(const ARISObjDef& object, const clsPROCESS& process) {
    return object->OccListInModel(process.ARIS_Model).Count() > 0;
}

constexpr BetweenActivities<clsDATA_CONNECTOR> dataFlow{
    &clsACTIVITY::Col_DATA_CONNECTOR_IN, &clsACTIVITY::Col_DATA_CONNECTOR_OUT,
    &clsPROCESS::Col_DATA_CONNECTOR, &clsPROCESS::DataFlow, Message::dataConnectorCreated};

void AddConnector(clsPROCESS& process, const ARISObjDef& from, const ARISObjDef& to) {
    const Ref<clsDATA_CONNECTOR> connector = gBlock.gPool.Create<clsDATA_CONNECTOR>();
    connector->ConnectorKind = DataConnectorKind::activityToActivity;
    AddBetweenActivities(dataFlow, connector, process, from, to, [&] {
        if (gBlock.gOptFindDataFlowLoops && connector->IsMemberOfInvalidDataFlowLoop(process))
            NoteConnector(Message::dataFlowLoop, from, to);
    });
}

void FindConnectorsBetweenActivities(clsPROCESS& process, const Collection<ARISObjDef>& functions) {
    for (const ARISObjDef& from : functions) {
        Collection<ARISObjDef> targets;
        for (const ARISObjDef& to :
             Find_Related_ARIS_ObjDef_Using_Mapping_Rule(targets, from, "FUNCTION_SENDS_DATA_TO_FUNCTION"))
            if (IsInModel(to, process)) AddConnector(process, from, to);
    }
}

/// The data objects of a function that are drawn in the model and that no function of the process touches the
/// other way.
Collection<ARISObjDef> CrossingObjects(const clsPROCESS& process, const ARISObjDef& function,
                                       std::string_view rule, RelatedObjects& otherWay) {
    Collection<ARISObjDef> related;
    Collection<ARISObjDef> crossing;
    for (const ARISObjDef& object : Find_Related_ARIS_ObjDef_Using_Mapping_Rule(related, function, rule))
        if (IsInModel(object, process) && !otherWay.LeadTo(object)) crossing.Add(object, object->Guid());
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
        const Ref<clsDATA_CONNECTOR> connector = gBlock.gPool.Create<clsDATA_CONNECTOR>();
        connector->ConnectorKind = boundary.kind;
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
        FindConnectorsBetweenActivities(Process, functions);
        FindConnectorsAcross(input, Process, functions);
        FindConnectorsAcross(output, Process, functions);
    });
}

void DATA_CONNECTOR_SetupProperties(const clsPROCESS& Process) {
    Procedure("modDATA_CONNECTOR.DATA_CONNECTOR_SetupProperties", [&](Frame&) {
        for (const Ref<clsDATA_CONNECTOR>& connector : Process.Col_DATA_CONNECTOR)
            connector->SetupProperties();
    });
}

}  // namespace wxbrg
