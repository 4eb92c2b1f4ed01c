#include "run/Frame.h"

#include <cstdio>
#include <cstdlib>
#include <limits>
#include <new>
#include <stdexcept>
#include <string>

#include "options/MessageTexts.h"
#include "run/clsExceptionHandler.h"

namespace wxbrg {

namespace {

/// A warning came up where no statement can be passed over: a mistake in the program, not in the model.
void StopInTestBuild([[maybe_unused]] const Failure& failure) {
#ifdef WXBRG_TEST_BUILD
    std::fprintf(stderr, "bug in the program: warning %d reached the frame of %s outside a step\n",
                 static_cast<int>(failure.Number), std::string(gBlock.gCurrentProcedure).c_str());
    std::abort();
#endif
}

Failure OutOfMemory() {
    return Failure(FailureKind::outOfMemory).Because(FailureCause::OfMemory());
}

}  // namespace

FailureAction Frame::Tail(const Failure& failure) {
    inTail_ = true;
    gBlock.gRunReport.cause = failure.Cause;
    if (!gBlock.gExceptionHandler)
        throw std::runtime_error("failure " + std::to_string(failure.Number) + " in " +
                                 std::string(gBlock.gCurrentProcedure) + ": " + failure.Description);
    if (failure.Number < std::numeric_limits<std::int16_t>::min() ||
        failure.Number > std::numeric_limits<std::int16_t>::max())
        throw Failure(FailureKind::overflow);
    const auto number = static_cast<std::int16_t>(failure.Number);
    const FailureAction action = gBlock.gExceptionHandler->AnalyseError(number, failure.Description);
    if (action == FailureAction::unknown)
        gBlock.gExceptionHandler->MercyfulExit(gBlock.gCurrentProcedure, number, failure.Description);
    if (action == FailureAction::endRun) throw RunEnd{RunEnding::endedByFailure, number};
    inTail_ = false;
    return action;
}

FailureAction Frame::Act(const Failure& failure) {
    const FailureAction action = Tail(failure);
    if (action == FailureAction::leave) throw Leave{this};
    return action;
}

FailureAction Frame::ActOnCurrentException() {
    try {
        throw;
    } catch (const Failure& failure) {
        if (inTail_) throw;
        return Act(failure);
    } catch (const std::bad_alloc&) {
        if (inTail_) throw;
        return Act(OutOfMemory());
    }
}

void Frame::LeaveByCurrentException() {
    Failure failure(0);
    try {
        throw;
    } catch (const Leave& leave) {
        if (leave.frame != this) throw;
        Restore();
        return;
    } catch (const Failure& thrown) {
        if (inTail_) throw;
        failure = thrown;
    } catch (const std::bad_alloc&) {
        if (inTail_) throw;
        failure = OutOfMemory();
    }
    if (Tail(failure) != FailureAction::leave) {
        StopInTestBuild(failure);
        gBlock.gExceptionHandler->MercyfulExit(
            gBlock.gCurrentProcedure, static_cast<std::int16_t>(failure.Number), failure.Description);
    }
    Restore();
}

void Frame::RaiseBare(std::int32_t number) {
    Act(Failure::WithDescription(number, std::string()));
}

Failure DescribedFailure(std::int32_t number, const MessageArguments& arguments) {
    return Failure::WithDescription(
        number, GetNLSString(number, arguments[0], arguments[1], arguments[2], arguments[3]));
}

}  // namespace wxbrg
