#include "model/Connectors.h"

#include <optional>

#include "mapping/RelatingPaths.h"
#include "model/ObjectProtocol.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "output/modWPXWriter.h"

namespace wxbrg {

std::string ConnectorKey(const ARISObjDef& from, const ARISObjDef& to) {
    return std::string(from->Guid()).append("/").append(to->Guid());
}

// Reads the object's name and not the rule ACTIVITY_ActivityName, as the activity does: under a profile that
// changes the rule, the two differ.
std::string CitedName(const ARISObjDef& object) {
    return Quoted(ConvertARISName(object->Name(gBlock.gLocale), NameKind::activityName, ""));
}

std::string FromToText(const ARISObjDef& from, const ARISObjDef& to) {
    const std::string first = CitedName(from);
    return "FROM " + first + " TO " + CitedName(to);
}

void NoteConnector(MessageWith<4> note, const ARISObjDef& from, const ARISObjDef& to) {
    WriteNote(note, from->Type(), from->Name(gBlock.gLocale), to->Type(), to->Name(gBlock.gLocale));
}

PathCollection ConnectorPaths(const ARISObjDef& from, const ARISObjDef& to, std::string_view rule) {
    std::optional<PathCollection> paths = Find_Relating_Paths_Using_Mapping_Rule({}, from, to, rule);
    return paths ? std::move(*paths) : PathCollection();
}

std::string PathsDescription(const PathCollection& paths) {
    const std::string text = SetupPrintingOfConnectorAttribute(paths, "CONTROL_CONNECTOR_DESCRIPTION");
    return text.empty() ? std::string() : Quoted(ConvertARISName(text, NameKind::description, ""));
}

bool JoinsWithItself(std::string_view procedure, const ARISObjDef& from, const ARISObjDef& to) {
    return Procedure(procedure, [&](Frame&) {
        return from->Guid() == to->Guid();
    });
}

bool ClosesLoop(FlowLoops& flow, const ARISObjDef& from, const ARISObjDef& to) {
    const bool closes = flow.ClosesLoop(from->Guid(), to->Guid());
    gBlock.gFailureContext = flow.LastTestFound() ? "Retrieve collection member" : "";
    return closes;
}

Ref<clsACTIVITY> CompleteActivity(const clsPROCESS& process, const ARISObjDef& object) {
    if (!process.CreateActivitiesFinished) return nullptr;
    const Ref<clsACTIVITY>* activity = process.Col_ACTIVITY.Find(object->Guid());
    if (activity == nullptr || (*activity)->ARISObjectDefinition->Guid() != object->Guid()) return nullptr;
    return *activity;
}

}  // namespace wxbrg
