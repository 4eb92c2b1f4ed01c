#pragma once

#include <cstdint>
#include <string>

#include "aris/Repository.h"
#include "data/clsDATA_STRUCTURE.h"
#include "model/FlowLoops.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

class Frame;
class clsACTIVITY;
class clsCONTROL_CONNECTOR;
class clsDATA_CONNECTOR;
enum class DataConnectorKind : std::int32_t;

/// What the search for the smallest position of an activity starts from. That for the largest starts from 0,
/// so that a model at negative positions counts as reaching to its origin.
inline constexpr std::int32_t aboveAllPositions = 99999999;

/// A process: one ARIS model of a process type, with the activities and connectors that it owns. Its window
/// has a fixed size, into which the layout of the model is scaled.
class clsPROCESS {
  public:
    clsPROCESS();

    ARISModel ARIS_Model;
    ARISGroup ARIS_Group;
    std::string ProcessName;                 ///< printed, with its quotes
    Ref<clsDATA_STRUCTURE> InputContainer;   ///< data that enters; a default structure at first
    Ref<clsDATA_STRUCTURE> OutputContainer;  ///< data that leaves; a default structure at first
    std::string WINDOW;
    Collection<std::string> Col_SOURCE;         ///< one layout text for each source connector
    Collection<std::string> Col_SINK;           ///< one layout text for each sink connector
    std::string DESCRIPTION;                    ///< printed, with its quotes
    std::string DOCUMENTATION;                  ///< printed, with its quotes
    std::string CATEGORY;                       ///< printed name of the group, with its quotes
    std::string OtherSettings;                  ///< as read
    Collection<Ref<clsACTIVITY>> Col_ACTIVITY;  ///< by Guid of the object
    Collection<Ref<clsCONTROL_CONNECTOR>> Col_CONTROL_CONNECTOR;  ///< by Guid of FROM, "/", Guid of TO
    Collection<Ref<clsDATA_CONNECTOR>> Col_DATA_CONNECTOR;        ///< by `clsDATA_CONNECTOR::Key`

    // The layout. ARIS positions are in the units of the model, y downward.
    double ShrinkFactor = 1.0;  ///< window units for one unit of the model, at most 1
    std::int32_t MaxXPos = 0;   ///< largest position of an activity, at least 0
    std::int32_t MaxYPos = 0;
    std::int32_t MinXPos = aboveAllPositions;  ///< smallest position of an activity
    std::int32_t MinYPos = aboveAllPositions;
    std::int32_t X_ContingencyOffset = 0;  ///< smallest position less the margin
    std::int32_t Y_ContingencyOffset = 0;

    FlowLoops ControlFlow;  ///< the control connectors created so far
    FlowLoops DataFlow;     ///< the data connectors between activities created so far

    bool CreateActivitiesFinished = false;  ///< `Col_ACTIVITY` is filled, its first phase done
    bool LayoutConversionFinished = false;  ///< the activities carry window positions
    bool SetupFinished = false;

    /// Fills the process once, with all that it owns. Models that its activities need as processes of their
    /// own, and that have none yet, are added to `ColNewModels`.
    void SetupProperties(Collection<ARISModel>& ColNewModels);
    void SetupProperty_ProcessName();
    void SetupProperty_InputContainer();
    void SetupProperty_OutputContainer();
    void SetupProperty_ProcessSetting();
    void SetupProperty_DESCRIPTION();
    void SetupProperty_DOCUMENTATION();
    void SetupProperty_CATEGORY();
    void SetupProperty_Constructs(Collection<ARISModel>& ColNewModels);
    void PROCESS_SetupProperty_ACTIVITY_LAYOUT();
    void SetupProperty_ProcessGraphicsSetting();
    /// The warning 2060 before the layout is converted; so the next two.
    void SetupProperty_WINDOW();
    void SetupProperty_SOURCE();
    void SetupProperty_SINK();
    std::string GeneratedDataSourceName();
    std::string GeneratedDataSinkName();
    void SetupPropertiesOfProcessInputConnectors();
    void SetupPropertiesOfProcessOutputConnectors();
    void SetupProperty_OtherSettings();
    /// Gives the activities their positions in the window, scaled down together so that the model fits. Fails
    /// with 6 for positions whose sums leave 32 bits.
    void ConvertARISLayoutToWPXLayout();

    /// A position of the model in window units, before it is made a whole number. Fails with 6 where the sum
    /// of the extremes leaves 32 bits.
    double WindowX(std::int32_t x) const;
    double WindowY(std::int32_t y) const;

  private:
    void FindExtremes();
    void FinishBoundaryConnectors(DataConnectorKind kind, std::string (clsPROCESS::*name)(),
                                  const Ref<clsDATA_STRUCTURE>& container);
    void CollectBoundaryLayouts(Frame& frame, DataConnectorKind kind, std::string clsDATA_CONNECTOR::*layout,
                                Collection<std::string>& layouts);

    std::int32_t nextSource_ = 1;
    std::int32_t nextSink_ = 1;
};

}  // namespace wxbrg
