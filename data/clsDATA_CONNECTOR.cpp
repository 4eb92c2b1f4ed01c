#include "data/clsDATA_CONNECTOR.h"

#include <optional>

#include "data/clsDATA_MEMBER.h"
#include "model/Connectors.h"
#include "model/ObjectProtocol.h"
#include "model/WindowLayout.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "model/modPoint.h"

namespace wxbrg {

namespace {

constexpr std::string_view wholeStructure = "'_STRUCT'";

std::string MapLine(std::string_view from, std::string_view to) {
    return std::string("MAP ").append(from).append(" TO ").append(to);
}

/// The member of a structure that stands for an object; null where it has none.
const Ref<clsDATA_MEMBER>* MemberFor(const clsDATA_STRUCTURE& structure, const ARISObjDef& object) {
    gBlock.gFailureContext = "Retrieve collection member";
    return structure.ColDATA_MEMBER.Find(object->Guid());
}

/// "SOURCE 1 XPOS 30 YPOS 200" for the middle of a boundary connector's data objects.
std::string BoundaryLayout(const std::string& name, const Collection<ARISObjDef>& objects,
                           const clsPROCESS& process) {
    const std::optional<clsPoint> point = CalculateGraphicalCenterOfARISObjects(objects, process);
    if (!point) throw Failure(FailureKind::objectNotSet);
    return name + " " + PositionText(point->XPos, point->YPos);
}

}  // namespace

std::string clsDATA_CONNECTOR::Key() const {
    if (ConnectorKind == DataConnectorKind::processInput)
        return std::string("SOURCE/").append(TO_ARISObjectDefinition->Guid());
    if (ConnectorKind == DataConnectorKind::processOutput)
        return std::string(FROM_ARISObjectDefinition->Guid()).append("/SINK");
    return ConnectorKey(FROM_ARISObjectDefinition, TO_ARISObjectDefinition);
}

void clsDATA_CONNECTOR::FindARISObjectDefinitionsOnConnectorPaths() {
    // This procedure bears the control connector's name.
    Procedure("clsCONTROL_CONNECTOR.FindARISObjectDefinitionsOnConnectorPaths", [&](Frame&) {
        if (ConnectorKind != DataConnectorKind::activityToActivity) return;
        FindConnectorPaths(*this, "FUNCTION_SENDS_DATA_TO_FUNCTION");
    });
}

void clsDATA_CONNECTOR::SetupProperties() {
    Procedure("clsDATA_CONNECTOR.SetupProperties", [&](Frame&) {
        if (SetupFinished) return;
        SetupProperty_DESCRIPTION();
        SetupProperty_Linking("");
        SetupProperty_Mapping(nullptr);
        SetupProperty_LAYOUT("");
        // The process notes those at its boundary, when it has completed them.
        if (ConnectorKind == DataConnectorKind::activityToActivity)
            WriteNote(Message::propertiesComplete, "DATA CONNECTOR", Linking);
        SetupFinished = true;
    });
}

void clsDATA_CONNECTOR::SetupProperty_Linking(const std::string& Name) {
    Procedure("clsDATA_CONNECTOR.SetupProperty_Linking", [&](Frame&) {
        if (ConnectorKind == DataConnectorKind::activityToActivity)
            Linking = IsLoopConnector() ? "LOOP " + CitedName(TO_ARISObjectDefinition)
                                        : FromToText(FROM_ARISObjectDefinition, TO_ARISObjectDefinition);
        else if (ConnectorKind == DataConnectorKind::processInput && !Name.empty())
            Linking = "FROM " + Name + " TO " + CitedName(TO_ARISObjectDefinition);
        else if (ConnectorKind == DataConnectorKind::processOutput && !Name.empty())
            Linking = "FROM " + CitedName(FROM_ARISObjectDefinition) + " TO " + Name;
    });
}

void clsDATA_CONNECTOR::SetupProperty_Mapping(const Ref<clsDATA_STRUCTURE>& Structure) {
    Procedure("clsDATA_CONNECTOR.SetupProperty_Mapping", [&](Frame&) {
        const bool fromProcess = ConnectorKind == DataConnectorKind::processInput;
        const bool toProcess = ConnectorKind == DataConnectorKind::processOutput;
        if ((fromProcess || toProcess) && !Structure) return;
        const auto activity = [&](const ARISObjDef& object) {
            return PROCESS->Col_ACTIVITY.Item(object->Guid());
        };
        const Ref<clsDATA_STRUCTURE> source =
            fromProcess ? Structure : activity(FROM_ARISObjectDefinition)->OutputContainer;
        const Ref<clsDATA_STRUCTURE> sink =
            toProcess ? Structure : activity(TO_ARISObjectDefinition)->InputContainer;
        if (source == sink)
            ColMapping.Add(MapLine(wholeStructure, wholeStructure));
        else
            AddMapping(*source, *sink);
        gBlock.gFailureContext = "";
    });
}

void clsDATA_CONNECTOR::AddMapping(const clsDATA_STRUCTURE& source, const clsDATA_STRUCTURE& sink) {
    if (source.ARISObjectDefinition) {
        if (const Ref<clsDATA_MEMBER>* member = MemberFor(sink, source.ARISObjectDefinition))
            ColMapping.Add(MapLine(wholeStructure, (*member)->MemberName));
    } else if (sink.ARISObjectDefinition) {
        if (const Ref<clsDATA_MEMBER>* member = MemberFor(source, sink.ARISObjectDefinition))
            ColMapping.Add(MapLine((*member)->MemberName, wholeStructure));
    } else {
        for (const Ref<clsDATA_MEMBER>& sent : source.ColDATA_MEMBER)
            if (const Ref<clsDATA_MEMBER>* member = MemberFor(sink, sent->ARISObjectDefinition))
                ColMapping.Add(MapLine((*member)->MemberName, (*member)->MemberName));
    }
}

void clsDATA_CONNECTOR::SetupProperty_LAYOUT(const std::string& Name) {
    Procedure("clsDATA_CONNECTOR.SetupProperty_LAYOUT", [&](Frame& frame) {
        if (ConnectorKind == DataConnectorKind::activityToActivity) {
            if (gBlock.gOptUseDataConBendPoints) AddConnectorBendPoint(frame, *this);
        } else if (ConnectorKind == DataConnectorKind::processInput && !Name.empty()) {
            SOURCE_LAYOUT = BoundaryLayout(Name, ColInputDataObjects, *PROCESS);
        } else if (ConnectorKind == DataConnectorKind::processOutput && !Name.empty()) {
            SINK_LAYOUT = BoundaryLayout(Name, ColOutputDataObjects, *PROCESS);
        }
    });
}

void clsDATA_CONNECTOR::SetupProperty_DESCRIPTION() {
    const bool gate = ConnectorKind == DataConnectorKind::activityToActivity && gBlock.gOptUseDescriptionAttr;
    SetupConnectorDescription("clsDATA_CONNECTOR.SetupProperty_DESCRIPTION", *this, gate,
                              Message::connectorPathsNotKnown);
}

bool clsDATA_CONNECTOR::IsLoopConnector() const {
    return JoinsWithItself("clsDATA_CONNECTOR.IsLoopConnector", FROM_ARISObjectDefinition,
                           TO_ARISObjectDefinition);
}

bool clsDATA_CONNECTOR::IsMemberOfInvalidDataFlowLoop(clsPROCESS& Process) {
    return Procedure("clsDATA_CONNECTOR.IsMemberOfInvalidDataFlowLoop", [&](Frame&) {
        if (ConnectorKind != DataConnectorKind::activityToActivity) return false;
        return ClosesLoop(Process.DataFlow, FROM_ARISObjectDefinition, TO_ARISObjectDefinition);
    });
}

}  // namespace wxbrg
