#include "run/RunExport.h"

#include <exception>
#include <utility>

#include "run/Frame.h"
#include "run/modGlobals.h"
#include "run/modMain.h"

namespace wxbrg {

namespace {

/// Runs `Main` on the global block and puts the way it ended into the block's report.
void RunMain() {
    try {
        Main();
    } catch (const RunEnd& end) {
        gRunReport.ending = end.ending;
        gRunReport.number = end.number;
        gRunReport.procedure = gCurrentProcedure;
    } catch (const std::exception& failure) {
        gRunReport.ending = RunEnding::error;
        gRunReport.procedure = gCurrentProcedure;
        gRunReport.error = failure.what();
    }
}

}  // namespace

RunReport RunExport(const RunRequest& request, Platform& platform, aris::Automation& automation) {
    RenewGlobals();
    gPlatform = &platform;
    gAutomation = &automation;
    gRunRequest = &request;
    OnReservedStack(request.stackSize, [](const char* end) {
        gBlock.stackEnd = end;
        RunMain();
    });
    RunReport report = std::move(gRunReport);
    RenewGlobals();
    return report;
}

}  // namespace wxbrg
