#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "mapping/PathCollection.h"
#include "model/FlowLoops.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "run/Messages.h"
#include "support/Collection.h"
#include "support/Ref.h"

/// What control connectors and data connectors have in common.
namespace wxbrg {

/// Guid of FROM, "/", Guid of TO.
std::string ConnectorKey(const ARISObjDef& from, const ARISObjDef& to);

/// An object's name as connectors cite it, in single quotes.
std::string CitedName(const ARISObjDef& object);

/// "FROM 'A' TO 'B'".
std::string FromToText(const ARISObjDef& from, const ARISObjDef& to);

/// A note about a connector: type and name of its two ends.
void NoteConnector(MessageWith<4> note, const ARISObjDef& from, const ARISObjDef& to);

/// All paths between the ends of a connector by the rule that found it.
PathCollection ConnectorPaths(const ARISObjDef& from, const ARISObjDef& to, std::string_view rule);

/// Fills a connector's description with the descriptions of all objects on its paths. Both sorts of
/// connectors read the rule of the control connector.
void SetupConnectorDescription(std::string& description, const PathCollection& paths);

/// The test for a circle, which leaves `gFailureContext` as its walk over the met objects does.
bool ClosesLoop(FlowLoops& flow, const ARISObjDef& from, const ARISObjDef& to);

/// The activity of an object in a process; empty where the object is none, or the activities are not
/// complete.
Ref<clsACTIVITY> CompleteActivity(const clsPROCESS& process, const ARISObjDef& object);

/// Where the connectors of one sort between two activities are held.
template <class Connector>
struct BetweenActivities {
    Collection<Ref<Connector>> clsACTIVITY::*entering;
    Collection<Ref<Connector>> clsACTIVITY::*leaving;
    Collection<Ref<Connector>> clsPROCESS::*all;
    FlowLoops clsPROCESS::*flow;
    MessageWith<4> createdNote;
};

/// Completes a new connector between two objects: finds its paths, hangs it on its activities, tests it for a
/// circle with those before it (`reportLoop`) and adds it to its process. Of two with the same ends the first
/// stays.
template <class Connector, class ReportLoop>
void AddBetweenActivities(const BetweenActivities<Connector>& sort, const Ref<Connector>& connector,
                          clsPROCESS& process, const ARISObjDef& from, const ARISObjDef& to,
                          ReportLoop&& reportLoop) {
    connector->FROM_ARISObjectDefinition = from;
    connector->TO_ARISObjectDefinition = to;
    connector->PROCESS = &process;
    connector->FindARISObjectDefinitionsOnConnectorPaths();
    const std::string key = connector->Key();
    if (const Ref<clsACTIVITY> entered = CompleteActivity(process, to))
        ((*entered).*sort.entering).AddNew(connector, key);
    if (const Ref<clsACTIVITY> left = CompleteActivity(process, from))
        ((*left).*sort.leaving).AddNew(connector, key);
    reportLoop();
    if ((process.*sort.all).AddNew(connector, key)) (process.*sort.flow).Add(from->Guid(), to->Guid());
    NoteConnector(sort.createdNote, from, to);
}

}  // namespace wxbrg
