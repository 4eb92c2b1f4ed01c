#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "data/clsDATA_STRUCTURE.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

class clsCONTROL_CONNECTOR;
class clsDATA_CONNECTOR;
class clsPROCESS;

/// An activity of a process: a process activity, which runs the process of its assigned model, or a program
/// activity. It is filled in two phases, for half of its properties are known only once the connectors
/// exist.
class clsACTIVITY {
  public:
    clsACTIVITY();

    ARISObjDef ARISObjectDefinition;
    ARISModel AssignedModel;                                          ///< empty for a program activity
    std::string ActivityName;                                         ///< printed, with its quotes
    Ref<clsDATA_STRUCTURE> InputContainer;                            ///< a default structure at first
    Ref<clsDATA_STRUCTURE> OutputContainer;                           ///< a default structure at first
    Collection<Ref<clsCONTROL_CONNECTOR>> Col_CONTROL_CONNECTOR_IN;   ///< connectors that end here
    Collection<Ref<clsCONTROL_CONNECTOR>> Col_CONTROL_CONNECTOR_OUT;  ///< connectors that start here
    Collection<Ref<clsDATA_CONNECTOR>> Col_DATA_CONNECTOR_IN;
    Collection<Ref<clsDATA_CONNECTOR>> Col_DATA_CONNECTOR_OUT;
    std::string LAYOUT;
    std::string DESCRIPTION;    ///< printed, with its quotes
    std::string DOCUMENTATION;  ///< printed, with its quotes
    std::string PROCESS;        ///< printed name of the process to run
    std::string PROGRAM;        ///< printed name of the program
    /// Printed names of the support tools. Not written: converting them brings the notes 3100 and the warning
    /// 2050.
    std::string SUPPORT_TOOL;
    std::string PERSON;          ///< printed names of the persons
    std::string MEMBER_OF_ROLE;  ///< printed names of the roles
    std::string ORGANIZATION;    ///< printed name of the organization
    std::string StartCondition = "AT_LEAST_ONE CONNECTOR";
    std::string ExitCondition;
    std::string StartMode = "MANUAL";
    std::string ExitMode = "AUTOMATIC";
    std::string OtherSettings;   ///< as read
    std::int32_t ARIS_XPos = 0;  ///< in units of the model, as `ARIS_YPos`, y downward
    std::int32_t ARIS_YPos = 0;
    std::int32_t WPX_XPos = 0;  ///< in window units, as `WPX_YPos`, y upward
    std::int32_t WPX_YPos = 0;
    bool LayoutConversionFinished = false;  ///< the window position is valid
    bool SetupIndependentPropertiesFinished = false;
    bool SetupDependentPropertiesFinished = false;

    /// The first phase: what needs no connectors. The assigned model is added to `ColNewModels` unless it has
    /// a process.
    void SetupIndependentProperties(Collection<ARISModel>& ColNewModels);
    /// The second phase, only after the first.
    void SetupDependentProperties(const clsPROCESS& Process);
    void SetupProperty_ActivityName();
    void SetupProperty_ActivitySetting();
    void SetupProperty_InputContainer();
    void SetupProperty_OutputContainer();
    /// The warning 2070 before the position is converted.
    void SetupProperty_LAYOUT();
    void SetupProperty_DESCRIPTION();
    void SetupProperty_DOCUMENTATION();
    void SetupProperty_ActivityExtensionSetting(const clsPROCESS& Process);
    bool Is_PROCESS_ACTIVITY() const { return static_cast<bool>(AssignedModel); }
    void SetupProperty_ProcessActivitySetting(Collection<ARISModel>& ColNewModels);
    void SetupProperty_PROCESS();
    void SetupProperty_ProgramActivitySetting();
    void SetupProperty_PROGRAM();
    void SetupProperty_SUPPORT_TOOL();
    void SetupProperty_StartCondition(const clsPROCESS& Process);
    void SetupProperty_StartMode();
    void SetupProperty_ExitCondition();
    void SetupProperty_ExitMode();
    void SetupProperty_ExplicitStaffAssignment();
    void SetupProperty_PERSON();
    void SetupProperty_MEMBER_OF_ROLE();
    void SetupProperty_ORGANIZATION();
    void SetupProperty_OtherSettings();
    /// The start condition from one source: the attribute of ACTIVITY_START_CONDITION, or the one rule object
    /// that FUNCTION_RECEIVES_CONTROL_FROM_RULE leads to. Empty where that source says nothing.
    std::string GetProperty_StartCondition(std::string_view RuleName, const clsPROCESS& Process);
    /// The exit condition from one source: the attribute of ACTIVITY_EXIT_CONDITION, or for any other name
    /// the condition of the first connector from the activity to itself.
    std::string GetProperty_ExitCondition(std::string_view RuleName);

  private:
    /// Whether every path of every incoming connector holds the object.
    bool IsOnAllIncomingPaths(const ARISObjDef& ruleObject) const;
};

}  // namespace wxbrg
