#pragma once

#include <cstdint>
#include <optional>

#include "run/Messages.h"

namespace wxbrg {

/// What the tail does after a failure; the numbers are the exception handler's action codes.
enum class FailureAction : std::int16_t {
    retry = 0,    ///< run the failing statement again
    proceed = 1,  ///< go on with the statement behind it
    leave = 2,    ///< return from the procedure, normally
    endRun = 3,   ///< end the run at once
    unknown = 4,  ///< the number is not known: report it to the user and end the run
};

/// Failure numbers that stand for a cancelled dialog, and bring a question.
namespace CancelNumber {
inline constexpr std::int32_t optionsForm = 999;
inline constexpr std::int32_t fileDialog = 32755;
}  // namespace CancelNumber

/// What a box about a failure says.
enum class BoxForm {
    failure,   ///< header 1000, description, OK
    warning,   ///< header 1010, description, OK
    question,  ///< header 1010, the question whether to end, Yes and No
};

/// What to do about a failure.
struct FailurePolicy {
    BoxForm box;
    FailureAction answer;     ///< after OK or Yes
    FailureAction otherwise;  ///< after No; the same as `answer` where there is no question

    bool operator==(const FailurePolicy&) const = default;
};

/// The policy of a failure number: a question for a cancelled dialog, and by the severity of the message for
/// the failures of the program's own. Nothing for any other number, which is unknown.
constexpr std::optional<FailurePolicy> PolicyOf(std::int32_t number) {
    constexpr std::int32_t firstFailure = 2000;
    constexpr std::int32_t firstNote = 3000;
    if (number == CancelNumber::optionsForm)
        return FailurePolicy{BoxForm::question, FailureAction::endRun, FailureAction::leave};
    if (number == CancelNumber::fileDialog)
        return FailurePolicy{BoxForm::question, FailureAction::endRun, FailureAction::retry};
    const MessageRow* const message = FindMessage(number);
    if (message == nullptr || number < firstFailure || number >= firstNote) return std::nullopt;
    if (message->severity == Severity::exclamation)
        return FailurePolicy{BoxForm::warning, FailureAction::proceed, FailureAction::proceed};
    return FailurePolicy{BoxForm::failure, FailureAction::endRun, FailureAction::endRun};
}

}  // namespace wxbrg
