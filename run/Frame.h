#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

#include "run/FailurePolicy.h"
#include "run/Messages.h"
#include "run/RunExport.h"
#include "run/modGlobals.h"
#include "support/Failure.h"

/// The one form of failure handling. A procedure that can fail runs its body in a frame:
///
///     void clsROLE::SetupProperty_DESCRIPTION() {
///         Procedure("clsROLE.SetupProperty_DESCRIPTION", [&](Frame& frame) { ... });
///     }
///
/// The frame names the procedure in `gCurrentProcedure` and restores the caller's name at the normal end (a
/// `return` in the body is one). A failure goes to the frame's tail, which asks the exception handler what to
/// do. The name is not restored on a failing way out: the box that comes next shows the innermost name.
namespace wxbrg {

/// Ends the run from wherever it is: everything unwinds, nothing more is written. Only the entry of the
/// run catches it.
struct RunEnd {
    RunEnding ending;
    std::int32_t number;
};

/// The failure of a message's number, described by its text with the arguments.
Failure DescribedFailure(std::int32_t number, const MessageArguments& arguments);

class Frame {
  public:
    explicit Frame(std::string_view name) : caller_(gBlock.gCurrentProcedure) {
        gBlock.gCurrentProcedure = name;
    }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    /// Fails with a message, described by its text with the arguments, and runs the tail at once. It comes
    /// back for a warning; else the procedure or the run ends here.
    template <class... Texts>
    void Raise(MessageWith<sizeof...(Texts)> message, const Texts&... texts) {
        Act(DescribedFailure(message.Number(), {std::string_view(texts)...}));
    }
    /// Likewise for a message out of a table, which knows how many arguments go with it.
    void RaiseOfTable(Message message, const MessageArguments& arguments) {
        Act(DescribedFailure(NumberOf(message), arguments));
    }
    /// Likewise for a number without a description.
    void RaiseBare(std::int32_t number);

    /// Runs one statement that obeys the tail's answer: retry runs it again, proceed passes it over. What the
    /// statement computes must be assigned as its last act, so that a passed-over one leaves no trace.
    template <class Statement>
    void Step(Statement&& statement) {
        for (bool again = true; again;) {
            try {
                statement();
                return;
            } catch (...) {
                again = ActOnCurrentException() == FailureAction::retry;
            }
        }
    }

    /// The procedure's name stays in `gCurrentProcedure` when it ends: on the few ways out that do not
    /// restore the caller's.
    void KeepName() { keepName_ = true; }

    // For `Procedure` alone.

    /// Throws failure 28 when the run's stack is nearly used up.
    static void CheckStack() {
        const auto* const here = static_cast<const char*>(__builtin_frame_address(0));
        if (gBlock.gStackEnd != nullptr && here < gBlock.gStackEnd + stackReserve)
            throw Failure(FailureKind::outOfStackSpace);
    }
    void Restore() const {
        if (!keepName_) gBlock.gCurrentProcedure = caller_;
    }
    /// Called while an exception that left the body is handled: comes back when the procedure is to be left.
    void LeaveByCurrentException();

  private:
    /// What is kept of the stack for reporting to the user.
    static constexpr std::size_t stackReserve = std::size_t{512} * 1024;

    /// Thrown out of the body to leave its procedure; caught by that procedure's own frame.
    struct Leave {
        const Frame* frame;
    };

    /// The tail for a failure: retry and proceed are answered, leave and the ends are thrown.
    FailureAction Act(const Failure& failure);
    /// The same for the exception that is being handled; passes on what is not this frame's.
    FailureAction ActOnCurrentException();
    FailureAction Tail(const Failure& failure);

    std::string_view caller_;
    bool keepName_ = false;
    bool inTail_ = false;  ///< a failure inside the tail belongs to the calling procedure's frame
};

/// Runs `body` as the procedure `name`, a literal. Returns the body's result, or a zero value where a failure
/// left the procedure.
template <class Body>
auto Procedure(std::string_view name, Body&& body) -> std::invoke_result_t<Body, Frame&> {
    using Result = std::invoke_result_t<Body, Frame&>;
    static_assert(!std::is_reference_v<Result>, "a procedure that is left has no object to refer to");
    Frame frame(name);
    try {
        Frame::CheckStack();
        if constexpr (std::is_void_v<Result>) {
            std::forward<Body>(body)(frame);
            frame.Restore();
        } else {
            Result result = std::forward<Body>(body)(frame);
            frame.Restore();
            return result;
        }
    } catch (...) {
        frame.LeaveByCurrentException();
        if constexpr (!std::is_void_v<Result>) return Result();
    }
}

/// A procedure that names itself and has no frame: a failure in it reaches the caller's frame, under its
/// name.
class NamedScope {
  public:
    explicit NamedScope(std::string_view name) : caller_(gBlock.gCurrentProcedure) {
        gBlock.gCurrentProcedure = name;
    }
    NamedScope(const NamedScope&) = delete;
    NamedScope& operator=(const NamedScope&) = delete;

    /// The normal end.
    void End() const { gBlock.gCurrentProcedure = caller_; }

  private:
    std::string_view caller_;
};

/// Fails in a procedure without a frame: throws a message, described by its text with the arguments, to the
/// caller's frame.
template <class... Texts>
[[noreturn]] void Fail(MessageWith<sizeof...(Texts)> message, const Texts&... texts) {
    throw DescribedFailure(message.Number(), {std::string_view(texts)...});
}

}  // namespace wxbrg
