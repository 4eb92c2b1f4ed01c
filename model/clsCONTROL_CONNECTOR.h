#pragma once

#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "mapping/PathCollection.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

class clsPROCESS;

/// An edge between two activities of a process: what a chain of events and rule objects collapses into. What
/// these said lives on in the condition, and where they were in the bend point.
class clsCONTROL_CONNECTOR {
  public:
    ARISObjDef FROM_ARISObjectDefinition;
    ARISObjDef TO_ARISObjectDefinition;
    Ref<clsPROCESS> PROCESS;  ///< which holds the connector
    PathCollection ColPath;   ///< all paths from FROM to TO
    std::string Condition;
    std::string Linking;      ///< the two ends as printed; empty for a connector from an activity to itself
    std::string DESCRIPTION;  ///< printed, with its quotes
    std::string LAYOUT;       ///< one bend point, or empty
    bool ConnectorPathsAvailable = false;  ///< `ColPath` has been filled
    bool SetupFinished = false;

    /// Guid of FROM, "/", Guid of TO: the key in all collections.
    std::string Key() const;

    void FindARISObjectDefinitionsOnConnectorPaths();
    void SetupProperties();
    /// The conditions of the objects on each path joined by AND, the paths by OR. Once two paths had a
    /// condition, a further path without one repeats the last. The warning 2080 before the paths are known.
    void SetupProperty_Condition();
    void SetupProperty_DESCRIPTION();
    void SetupProperty_Linking();
    void SetupProperty_LAYOUT();
    bool IsLoopConnector() const;
    /// Whether the connector closes a circle over other activities with those created before it.
    bool IsMemberOfInvalidControlFlowLoop(clsPROCESS& Process);
    /// What one object on a path adds to the condition: the condition typed into ARIS
    /// (CONTROL_CONNECTOR_CONDITION), or its comparison with data (EVENT_IS_COMPARED_WITH_DATA).
    std::string GetProperty_Condition(std::string_view RuleName, const ARISObjDef& object);

  private:
    std::string ConditionOf(const ARISObjDef& object);
};

}  // namespace wxbrg
