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

/// Everything that the procedures of a run share. Each run, and each test, begins with a fresh one
/// (`RenewGlobals`).
struct GlobalBlock {
    // What the front end gave. Set before `Main`, never changed by the logic.
    Platform* gPlatform = nullptr;
    aris::Automation* gAutomation = nullptr;
    const RunRequest* gRunRequest = nullptr;
    /// The report of the run; counted by the logic as it goes.
    RunReport gRunReport;
    /// Lowest address of the run's stack; null where the run has no stack of its own, and none is checked.
    const char* gStackEnd = nullptr;
    /// Owns all workflow objects, rules and paths.
    Pool gPool;

    // Written by `Setup` and what it calls.
    std::unique_ptr<LanguageLibrary> gResourceLibrary;  ///< null: not loaded, and texts are empty
    std::string gHelpFile;                              ///< file name of the language's help
    Ref<clsExceptionHandler> gExceptionHandler;
    Ref<clsARIS_Interface> gARISInterface;
    Ref<clsIOHandler> gIOHandler;
    Ref<clsWPX_Export> gWPXExport;
    Ref<clsWPXWriter> gWPXWriter;
    std::int32_t gLocale = 0;  ///< handed to every ARIS name and attribute call

    // The options, written by the options form when it is loaded or saved; nothing before that.
    Ref<frmExportOptions> gOptionsForm;
    Ref<frmExportOptions> gActiveForm;     ///< the form in front of the user; null while there is none
    std::optional<FormFont> gDefaultFont;  ///< the platform's own, from its first use on; never changed
    bool gOptConvertNames = false;
    bool gOptRemoveLineBreaks = false;
    bool gOptUseDocumentationAttr = false;
    bool gOptUseDescriptionAttr = false;
    bool gOptUseCtrlConBendPoints = false;
    bool gOptUseDataConBendPoints = false;
    bool gOptDynamicStaffAssignment = false;
    /// A member's type from its attribute first, else from its domain first.
    bool gOptDataTypeFromAttribute = false;
    bool gOptStartConditions = false;
    bool gOptExitConditions = false;
    bool gOptTransitionConditions = false;
    bool gOptFindControlFlowLoops = false;
    bool gOptFindDataFlowLoops = false;
    bool gOptUseOtherSettings = false;
    std::int32_t gOptFirstSuffixNumber = 0;

    // Written by `clsWPX_Export.Run`; the suffix also by `DATA_STRUCTURE_GenerateName`.
    std::string gDataStructureNamePrefix;
    std::int32_t gNextDataStructureSuffix = 0;

    // The state of failure handling.
    /// Class or module, a point and the name of the innermost procedure with a frame. Always a literal.
    std::string_view gCurrentProcedure;
    /// The step that is allowed to fail, "failed", or empty. Always a literal.
    std::string_view gFailureContext;
    std::int32_t gRelatedSearchDepth = 0;  ///< nesting of the related-object search

    // The rules, read-only once `ParseMappingFile` is done, and the tokens that it walked.
    Collection<Ref<clsMappingRule>> gColMappingRule;  ///< by rule name
    Collection<Ref<clsMappingRuleToken>> gColProfileTokens;

    // The registries of workflow objects, each keyed by the Guid of the mapped ARIS item.
    Collection<Ref<clsDATA_MEMBER>> gColDATA_MEMBER;
    Collection<Ref<clsDATA_STRUCTURE>> gColDATA_STRUCTURE;  ///< generated structures have no key
    Ref<StructureIndex> gStructureIndex;                    ///< finds structures by their members
    Collection<Ref<clsORGANIZATION>> gColORGANIZATION;
    Collection<Ref<clsPERSON>> gColPERSON;
    Collection<Ref<clsPROCESS>> gColPROCESS;
    Collection<Ref<clsPROCESS_CATEGORY>> gColPROCESS_CATEGORY;
    Collection<Ref<clsPROGRAM>> gColPROGRAM;
    Collection<Ref<clsROLE>> gColROLE;
};

extern GlobalBlock gBlock;

/// Makes the global block anew.
void RenewGlobals();

/// The decimal separator of the user's numbers.
inline char32_t DecimalSeparator() {
    return gBlock.gPlatform->userLocale.DecimalSeparator();
}

}  // namespace wxbrg
