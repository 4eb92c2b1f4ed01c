#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "aris/Repository.h"
#include "mapping/DrawnItems.h"
#include "mapping/PathCollection.h"
#include "mapping/RelatedObjectSearch.h"
#include "model/FlowLoops.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "model/modPoint.h"
#include "run/Frame.h"
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

/// The descriptions of all objects on some paths, as a connector prints them; empty where there are none.
/// Data connectors too read the rule of the control connector; theirs, DATA_CONNECTOR_DESCRIPTION, is never
/// read.
std::string PathsDescription(const PathCollection& paths);

/// The test for a circle, which leaves `gFailureContext` as its walk over the met objects does.
bool ClosesLoop(FlowLoops& flow, const ARISObjDef& from, const ARISObjDef& to);

/// The activity of an object in a process; empty where the object is none, or the activities are not
/// complete.
Ref<clsACTIVITY> CompleteActivity(const clsPROCESS& process, const ARISObjDef& object);

/// Whether a connector joins an object with itself: the control connector of such a loop is only an exit
/// condition, the data connector is written as LOOP.
bool JoinsWithItself(std::string_view procedure, const ARISObjDef& from, const ARISObjDef& to);

/// Finds the paths between the ends of a connector by the rule that found it.
template <class Connector>
void FindConnectorPaths(Connector& connector, std::string_view rule) {
    connector.ColPath =
        ConnectorPaths(connector.FROM_ARISObjectDefinition, connector.TO_ARISObjectDefinition, rule);
    connector.ConnectorPathsAvailable = true;
}

/// Fills a connector's description with the descriptions of all objects on its paths, with the gate open.
/// Before the paths are known: the warning `withoutPaths`.
template <class Connector>
void SetupConnectorDescription(std::string_view procedure, Connector& connector, bool gate,
                               MessageWith<0> withoutPaths) {
    Procedure(procedure, [&](Frame& frame) {
        if (!gate) return;
        if (!connector.ConnectorPathsAvailable)
            frame.Raise(withoutPaths);
        else if (std::string text = PathsDescription(connector.ColPath); !text.empty())
            connector.DESCRIPTION = std::move(text);
    });
}

/// Gives a connector between two activities its bend point.
template <class Connector>
void AddConnectorBendPoint(Frame& frame, Connector& connector) {
    AddBendPoint(frame, connector.LAYOUT, connector.ColPath, connector.ConnectorPathsAvailable,
                 connector.FROM_ARISObjectDefinition, connector.TO_ARISObjectDefinition, *connector.PROCESS);
}

/// The connectors of one sort between two activities: what finds them, where they are kept, what is noted.
template <class Connector>
struct BetweenActivities {
    std::string_view rule;
    Collection<Ref<Connector>> clsACTIVITY::*entering;
    Collection<Ref<Connector>> clsACTIVITY::*leaving;
    Collection<Ref<Connector>> clsPROCESS::*all;
    FlowLoops clsPROCESS::*flow;
    bool (Connector::*closesLoop)(clsPROCESS&);
    MessageWith<4> createdNote;
    MessageWith<4> loopNote;
};

/// Completes a new connector between two objects: finds its paths, attaches it to its activities, tests it
/// for a circle with those before it and adds it to its process. Of two with the same ends the first stays,
/// but both are noted.
template <class Connector>
void AddBetweenActivities(const BetweenActivities<Connector>& sort, bool testLoops,
                          const Ref<Connector>& connector, clsPROCESS& process, const ARISObjDef& from,
                          const ARISObjDef& to) {
    connector->FROM_ARISObjectDefinition = from;
    connector->TO_ARISObjectDefinition = to;
    connector->PROCESS = &process;
    connector->FindARISObjectDefinitionsOnConnectorPaths();
    const std::string key = connector->Key();
    if (const Ref<clsACTIVITY> entered = CompleteActivity(process, to))
        ((*entered).*sort.entering).AddNew(connector, key);
    if (const Ref<clsACTIVITY> left = CompleteActivity(process, from))
        ((*left).*sort.leaving).AddNew(connector, key);
    if (testLoops && ((*connector).*sort.closesLoop)(process)) NoteConnector(sort.loopNote, from, to);
    if ((process.*sort.all).AddNew(connector, key)) (process.*sort.flow).Add(from->Guid(), to->Guid());
    NoteConnector(sort.createdNote, from, to);
}

/// A connector for each ordered pair of the given functions' that the rule of the sort joins, where the
/// second is drawn in the process's model.
template <class Connector, class Create>
void FindBetweenActivities(const BetweenActivities<Connector>& sort, bool testLoops, clsPROCESS& process,
                           const Collection<ARISObjDef>& functions, Create&& create) {
    for (const ARISObjDef& from : functions) {
        Collection<ARISObjDef> targets;
        for (const ARISObjDef& to : Find_Related_ARIS_ObjDef_Using_Mapping_Rule(targets, from, sort.rule))
            if (IsDrawnIn(to, process.ARIS_Model))
                AddBetweenActivities(sort, testLoops, create(), process, from, to);
    }
}

}  // namespace wxbrg
