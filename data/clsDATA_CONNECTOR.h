#pragma once

#include <cstdint>
#include <string>

#include "aris/Repository.h"
#include "data/clsDATA_STRUCTURE.h"
#include "mapping/PathCollection.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

class clsPROCESS;

/// What a data connector joins.
enum class DataConnectorKind : std::int32_t {
    undecided = 0,
    activityToActivity = 1,
    processInput = 2,   ///< the input of the process to an activity
    processOutput = 3,  ///< an activity to the output of the process
};

/// How a container flows: between two activities, into the process or out of it. A connector at the boundary
/// of the process is finished by the process, which names it and has its container.
class clsDATA_CONNECTOR {
  public:
    DataConnectorKind ConnectorKind = DataConnectorKind::undecided;
    ARISObjDef FROM_ARISObjectDefinition;         ///< the sending function; empty for process input
    ARISObjDef TO_ARISObjectDefinition;           ///< the receiving function; empty for process output
    Ref<clsPROCESS> PROCESS;                      ///< which holds the connector
    PathCollection ColPath;                       ///< between two activities only
    Collection<ARISObjDef> ColInputDataObjects;   ///< data that enters the process here, by Guid
    Collection<ARISObjDef> ColOutputDataObjects;  ///< data that leaves the process here, by Guid
    std::string Linking;
    Collection<std::string> ColMapping;    ///< the MAP lines
    std::string DESCRIPTION;               ///< printed, with its quotes
    std::string LAYOUT;                    ///< one bend point, or empty; between two activities only
    std::string SOURCE_LAYOUT;             ///< process input only
    std::string SINK_LAYOUT;               ///< process output only
    bool ConnectorPathsAvailable = false;  ///< `ColPath` has been looked for
    bool SetupFinished = false;

    /// The key in all collections: the Guids of the ends, with SOURCE or SINK for an end that is the process.
    std::string Key() const;

    void FindARISObjectDefinitionsOnConnectorPaths();
    void SetupProperties();
    /// `Name` is the generated name of a source or sink; empty between two activities.
    void SetupProperty_Linking(const std::string& Name);
    /// Adds the MAP lines. `Structure` is the container of the process at its boundary; empty between two
    /// activities. Fails with 5 for an end that is no activity of the process, with 91 for an empty
    /// container.
    void SetupProperty_Mapping(const Ref<clsDATA_STRUCTURE>& Structure);
    void SetupProperty_LAYOUT(const std::string& Name);
    void SetupProperty_DESCRIPTION();
    bool IsLoopConnector() const;
    /// Whether the connector closes a circle over other activities with those created before it.
    bool IsMemberOfInvalidDataFlowLoop(clsPROCESS& Process);

  private:
    void AddMapping(const clsDATA_STRUCTURE& source, const clsDATA_STRUCTURE& sink);
};

}  // namespace wxbrg
