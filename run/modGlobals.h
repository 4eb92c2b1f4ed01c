#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "platform/Platform.h"
#include "run/RunExport.h"
#include "support/Collection.h"
#include "support/Pool.h"
#include "support/Ref.h"

namespace wxbrg {

class Frame;
class clsARIS_Interface;
class clsExceptionHandler;
class clsIOHandler;
class clsMappingRule;
class clsMappingRuleToken;
class clsWPX_Export;
class clsWPXWriter;
class frmExportOptions;

class clsDATA_MEMBER;
class clsDATA_STRUCTURE;
class clsORGANIZATION;
class clsPERSON;
class clsPROCESS;
class clsPROCESS_CATEGORY;
class clsPROGRAM;
class clsROLE;
class StructureIndex;

/// Everything that the procedures of a run share. The logic reaches it through the names that begin with a
/// "g" below; each run, and each test, begins with a fresh one (`RenewGlobals`).
struct GlobalBlock {
    // What the front end gave. Set before `Main`, never changed by the logic.
    Platform* platform = nullptr;
    aris::Automation* automation = nullptr;
    const RunRequest* request = nullptr;
    /// What is told of the run when it is over; counted by the logic as it goes.
    RunReport report;
    /// Lowest address of the run's stack; null where the run has no stack of its own, and none is checked.
    const char* stackEnd = nullptr;
    /// Owns all workflow objects, rules and paths.
    Pool pool;

    // Written by `Setup` and what it calls.
    std::unique_ptr<LanguageLibrary> resourceLibrary;  ///< null: not loaded, and texts are empty
    std::string helpFile;                              ///< file name of the language's help
    Ref<clsExceptionHandler> exceptionHandler;
    Ref<clsARIS_Interface> arisInterface;
    Ref<clsIOHandler> ioHandler;
    Ref<clsWPX_Export> wpxExport;
    Ref<clsWPXWriter> wpxWriter;
    std::int32_t locale = 0;  ///< handed to every ARIS name and attribute call

    // The options, written by the options form when it is loaded or saved; nothing before that.
    Ref<frmExportOptions> optionsForm;
    Ref<frmExportOptions> activeForm;     ///< the form in front of the user; null while there is none
    std::optional<FormFont> defaultFont;  ///< the platform's own, from its first use on; never changed
    bool optConvertNames = false;
    bool optRemoveLineBreaks = false;
    bool optUseDocumentationAttr = false;
    bool optUseDescriptionAttr = false;
    bool optUseCtrlConBendPoints = false;
    bool optUseDataConBendPoints = false;
    bool optDynamicStaffAssignment = false;
    bool optDataTypeFromAttribute =
        false;  ///< a member's type from its attribute first, else its domain first
    bool optStartConditions = false;
    bool optExitConditions = false;
    bool optTransitionConditions = false;
    bool optFindControlFlowLoops = false;
    bool optFindDataFlowLoops = false;
    bool optUseOtherSettings = false;
    std::int32_t optFirstSuffixNumber = 0;

    // Written by `clsWPX_Export.Run`; the suffix also by `DATA_STRUCTURE_GenerateName`.
    std::string dataStructureNamePrefix;
    std::int32_t nextDataStructureSuffix = 0;

    // The state of failure handling.
    /// Class or module, a point and the name of the innermost procedure with a frame. Always a literal.
    std::string_view currentProcedure;
    /// The step that is allowed to fail, "failed", or empty. Always a literal.
    std::string_view failureContext;
    std::int32_t relatedSearchDepth = 0;  ///< nesting of the related-object search

    // The rules, read-only once `ParseMappingFile` is done, and the tokens that it walked.
    Collection<Ref<clsMappingRule>> colMappingRule;  ///< by rule name
    Collection<Ref<clsMappingRuleToken>> colProfileTokens;

    // The registries of workflow objects, each keyed by the Guid of the mapped ARIS item.
    Collection<Ref<clsDATA_MEMBER>> colDATA_MEMBER;
    Collection<Ref<clsDATA_STRUCTURE>> colDATA_STRUCTURE;  ///< generated structures stand without a key
    Ref<StructureIndex> structureIndex;                    ///< finds structures by their members
    Collection<Ref<clsORGANIZATION>> colORGANIZATION;
    Collection<Ref<clsPERSON>> colPERSON;
    Collection<Ref<clsPROCESS>> colPROCESS;
    Collection<Ref<clsPROCESS_CATEGORY>> colPROCESS_CATEGORY;
    Collection<Ref<clsPROGRAM>> colPROGRAM;
    Collection<Ref<clsROLE>> colROLE;
};

extern GlobalBlock gBlock;

/// Makes the global block anew.
void RenewGlobals();

inline constinit Platform*& gPlatform = gBlock.platform;
inline constinit aris::Automation*& gAutomation = gBlock.automation;
inline constinit const RunRequest*& gRunRequest = gBlock.request;
inline constinit RunReport& gRunReport = gBlock.report;
inline constinit Pool& gPool = gBlock.pool;

inline constinit std::unique_ptr<LanguageLibrary>& gResourceLibrary = gBlock.resourceLibrary;
inline constinit std::string& gHelpFile = gBlock.helpFile;
inline constinit Ref<clsExceptionHandler>& gExceptionHandler = gBlock.exceptionHandler;
inline constinit Ref<clsARIS_Interface>& gARISInterface = gBlock.arisInterface;
inline constinit Ref<clsIOHandler>& gIOHandler = gBlock.ioHandler;
inline constinit Ref<clsWPX_Export>& gWPXExport = gBlock.wpxExport;
inline constinit Ref<clsWPXWriter>& gWPXWriter = gBlock.wpxWriter;
inline constinit std::int32_t& gLocale = gBlock.locale;

inline constinit Ref<frmExportOptions>& gOptionsForm = gBlock.optionsForm;
inline constinit Ref<frmExportOptions>& gActiveForm = gBlock.activeForm;
inline constinit std::optional<FormFont>& gDefaultFont = gBlock.defaultFont;
inline constinit bool& gOptConvertNames = gBlock.optConvertNames;
inline constinit bool& gOptRemoveLineBreaks = gBlock.optRemoveLineBreaks;
inline constinit bool& gOptUseDocumentationAttr = gBlock.optUseDocumentationAttr;
inline constinit bool& gOptUseDescriptionAttr = gBlock.optUseDescriptionAttr;
inline constinit bool& gOptUseCtrlConBendPoints = gBlock.optUseCtrlConBendPoints;
inline constinit bool& gOptUseDataConBendPoints = gBlock.optUseDataConBendPoints;
inline constinit bool& gOptDynamicStaffAssignment = gBlock.optDynamicStaffAssignment;
inline constinit bool& gOptDataTypeFromAttribute = gBlock.optDataTypeFromAttribute;
inline constinit bool& gOptStartConditions = gBlock.optStartConditions;
inline constinit bool& gOptExitConditions = gBlock.optExitConditions;
inline constinit bool& gOptTransitionConditions = gBlock.optTransitionConditions;
inline constinit bool& gOptFindControlFlowLoops = gBlock.optFindControlFlowLoops;
inline constinit bool& gOptFindDataFlowLoops = gBlock.optFindDataFlowLoops;
inline constinit bool& gOptUseOtherSettings = gBlock.optUseOtherSettings;
inline constinit std::int32_t& gOptFirstSuffixNumber = gBlock.optFirstSuffixNumber;

inline constinit std::string& gDataStructureNamePrefix = gBlock.dataStructureNamePrefix;
inline constinit std::int32_t& gNextDataStructureSuffix = gBlock.nextDataStructureSuffix;

inline constinit std::string_view& gCurrentProcedure = gBlock.currentProcedure;
inline constinit std::string_view& gFailureContext = gBlock.failureContext;
inline constinit std::int32_t& gRelatedSearchDepth = gBlock.relatedSearchDepth;

inline constinit Collection<Ref<clsMappingRule>>& gColMappingRule = gBlock.colMappingRule;
inline constinit Collection<Ref<clsMappingRuleToken>>& gColProfileTokens = gBlock.colProfileTokens;

inline constinit Collection<Ref<clsDATA_MEMBER>>& gColDATA_MEMBER = gBlock.colDATA_MEMBER;
inline constinit Collection<Ref<clsDATA_STRUCTURE>>& gColDATA_STRUCTURE = gBlock.colDATA_STRUCTURE;
inline constinit Ref<StructureIndex>& gStructureIndex = gBlock.structureIndex;
inline constinit Collection<Ref<clsORGANIZATION>>& gColORGANIZATION = gBlock.colORGANIZATION;
inline constinit Collection<Ref<clsPERSON>>& gColPERSON = gBlock.colPERSON;
inline constinit Collection<Ref<clsPROCESS>>& gColPROCESS = gBlock.colPROCESS;
inline constinit Collection<Ref<clsPROCESS_CATEGORY>>& gColPROCESS_CATEGORY = gBlock.colPROCESS_CATEGORY;
inline constinit Collection<Ref<clsPROGRAM>>& gColPROGRAM = gBlock.colPROGRAM;
inline constinit Collection<Ref<clsROLE>>& gColROLE = gBlock.colROLE;

/// The decimal separator of the user's numbers.
inline char32_t DecimalSeparator() {
    return gPlatform->userLocale.DecimalSeparator();
}

}  // namespace wxbrg
