#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/MessageBox.h"
#include "platform/scripted/ScriptError.h"

namespace wxbrg {

/// What a user who is not there does in a dialog.
enum class ScriptedAction {
    // in the options form
    ok,
    apply,
    close,
    help,
    cancelOptions,  ///< the question that follows is answered with `ScriptedAnswer::question`
    click,          ///< on the control `ScriptedAnswer::text`
    type,           ///< the keys `ScriptedAnswer::text`, 8 for backspace
    paste,          ///< the text `ScriptedAnswer::text`
    // in the file dialog
    chooseFile,  ///< of the name `ScriptedAnswer::text`
    cancelFile,  ///< the question that follows is answered with `ScriptedAnswer::question`
};

struct ScriptedAnswer {
    ScriptedAction action;
    std::string text = {};
    BoxAnswer question = BoxAnswer::yes;
    std::size_t line = 0;  ///< of the script, from 1; 0 for an answer that is in none
};

/// The answers to all dialogs of a run, which are taken strictly in their order. The dialogs share one
/// script, which outlives them.
///
/// As a text a script has one answer a line: "options ACTION" for the options form, where ACTION is "ok",
/// "apply", "close", "help", "cancel:yes", "cancel:no", "click:CONTROL", "type:KEYS" ("\b" for backspace) or
/// "paste:TEXT"; "file NAME", "file cancel:yes" or "file cancel:no" for the file dialog. What follows
/// "cancel:" answers the question box that comes next.
class AnswerScript {
  public:
    explicit AnswerScript(std::vector<ScriptedAnswer> answers);
    /// Throws `ScriptError`, naming the line, for a line that cannot be read.
    static AnswerScript Parse(std::string_view text);

    // Each of these throws `ScriptError` when the next answer is for something else, when there is none, and
    // when the question that a cancel was to bring was not asked before.

    ScriptedAnswer TakeForOptions();
    ScriptedAnswer TakeForFile();
    /// The answer to a question box, whose text is given for the error.
    BoxAnswer TakeForQuestion(std::string_view question);

    /// Throws `ScriptError` about an answer that was taken and does not do.
    [[noreturn]] void Reject(const ScriptedAnswer& answer, const std::string& reason);

    /// How many answers were not taken, that to a question included.
    std::size_t Remaining() const;
    /// What was thrown, also where something above the dialogs has caught it; nothing for a script that fits.
    const std::optional<std::string>& Error() const { return error_; }

  private:
    const ScriptedAnswer& Next(std::string_view asked);
    void Take();
    [[noreturn]] void Throw(const std::string& text);

    std::vector<ScriptedAnswer> answers_;
    std::size_t next_ = 0;
    std::optional<ScriptedAnswer> openQuestion_;  ///< a cancel whose question has not come yet
    std::optional<std::string> error_;
};

}  // namespace wxbrg
