#include "run/RunExport.h"

#include <exception>
#include <new>
#include <utility>

#include "mapping/clsMappingRule.h"
#include "model/modPROCESS.h"
#include "options/MessageTexts.h"
#include "run/Frame.h"
#include "run/clsExceptionHandler.h"
#include "run/clsIOHandler.h"
#include "run/modGlobals.h"
#include "run/modMain.h"

namespace wxbrg {

namespace {

constexpr std::string_view processRule = "PROCESS";

/// Runs `body` on the global block and puts the way it ended into the block's report.
void RunToItsEnd(void (*body)()) {
    try {
        body();
    } catch (const RunEnd& end) {
        gBlock.gRunReport.ending = end.ending;
        gBlock.gRunReport.number = end.number;
        gBlock.gRunReport.procedure = gBlock.gCurrentProcedure;
    } catch (const std::bad_alloc&) {
        // Not even the box had room.
        gBlock.gRunReport.ending = RunEnding::error;
        gBlock.gRunReport.procedure = gBlock.gCurrentProcedure;
        gBlock.gRunReport.error = "not enough memory in " + gBlock.gRunReport.procedure;
        gBlock.gRunReport.cause = FailureCause::OfMemory();
    } catch (const std::exception& failure) {
        gBlock.gRunReport.ending = RunEnding::error;
        gBlock.gRunReport.procedure = gBlock.gCurrentProcedure;
        gBlock.gRunReport.error = failure.what();
    }
}

void SetupRules() {
    Procedure("modMain.Setup", [](Frame&) {
        if (!LoadLocalizedResources()) throw RunEnd{RunEnding::noLanguageLibrary, 0};
        gBlock.gExceptionHandler = gBlock.gPool.Create<clsExceptionHandler>();
        gBlock.gIOHandler = gBlock.gPool.Create<clsIOHandler>();
        gBlock.gIOHandler->ParseMappingFile();
        // Ends here where the rule is missing.
        PROCESS_Find_ARIS_Model_In_ModelCollection_Using_Mapping_Rule({}, processRule);
    });
}

}  // namespace

RunReport RunExport(const RunRequest& request, Platform& platform, aris::Automation& automation) {
    RenewGlobals();
    gBlock.gPlatform = &platform;
    gBlock.gAutomation = &automation;
    gBlock.gRunRequest = &request;
    OnReservedStack(request.stackSize, [&request](const char* end) {
        gBlock.gStackEnd = end;
        if (request.atBegin) request.atBegin();
        RunToItsEnd(Main);
        if (request.atEnd) request.atEnd(gBlock.gRunReport);
    });
    RunReport report = std::move(gBlock.gRunReport);
    RenewGlobals();
    return report;
}

ProcessTypes ReadProcessTypes(Platform& platform) {
    RenewGlobals();
    gBlock.gPlatform = &platform;
    RunToItsEnd(SetupRules);
    ProcessTypes result{std::move(gBlock.gRunReport), {}};
    if (result.report.ending == RunEnding::normal)
        for (const clsObjectMapping& mapping : gBlock.gColMappingRule.Item(processRule)->ColObjectMapping)
            result.types.push_back(mapping.ObjTypeNum);
    RenewGlobals();
    return result;
}

}  // namespace wxbrg
