#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "mapping/clsPath.h"
#include "model/FlowLoops.h"
#include "support/Collection.h"
#include "support/Ref.h"

/// What control connectors and data connectors have in common.
namespace wxbrg {

class clsACTIVITY;
class clsPROCESS;

/// Guid of FROM, "/", Guid of TO.
std::string ConnectorKey(const ARISObjDef& from, const ARISObjDef& to);

/// An object's name as connectors cite it, in single quotes.
std::string CitedName(const ARISObjDef& object);

/// "FROM 'A' TO 'B'".
std::string FromToText(const ARISObjDef& from, const ARISObjDef& to);

/// A note about a connector: type and name of its two ends.
void NoteConnector(std::int16_t severity, std::int32_t number, const ARISObjDef& from, const ARISObjDef& to);

/// All paths between the ends of a connector by the rule that found it.
Collection<Ref<clsPath>> ConnectorPaths(const ARISObjDef& from, const ARISObjDef& to, std::string_view rule);

/// Fills a connector's description with the descriptions of all objects on its paths. Both sorts of
/// connectors read the rule of the control connector.
void SetupConnectorDescription(std::string& description, const Collection<Ref<clsPath>>& paths);

/// The test for a circle, which leaves `gFailureContext` as its walk over the met objects does.
bool ClosesLoop(FlowLoops& flow, const ARISObjDef& from, const ARISObjDef& to);

/// The activity of an object in a process; empty where the object is none, or the activities are not
/// complete.
Ref<clsACTIVITY> CompleteActivity(const clsPROCESS& process, const ARISObjDef& object);

}  // namespace wxbrg
