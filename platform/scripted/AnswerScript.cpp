#include "platform/scripted/AnswerScript.h"

#include <array>
#include <utility>

#include "platform/scripted/ScriptLines.h"

namespace wxbrg {

namespace {

constexpr std::string_view optionsWord = "options ";
constexpr std::string_view fileWord = "file ";
constexpr std::string_view cancelWord = "cancel:";
constexpr char backspace = 8;

/// An action of the options form by its word. One that ends with a colon is followed by a text.
struct ActionRow {
    std::string_view word;
    ScriptedAction action;
};
// clang-format off
constexpr std::array actionTable{
    ActionRow{"ok",     ScriptedAction::ok},
    ActionRow{"apply",  ScriptedAction::apply},
    ActionRow{"close",  ScriptedAction::close},
    ActionRow{"help",   ScriptedAction::help},
    ActionRow{"click:", ScriptedAction::click},
    ActionRow{"type:",  ScriptedAction::type},
    ActionRow{"paste:", ScriptedAction::paste},
};
// clang-format on

std::string Place(std::size_t line) {
    return line == 0 ? std::string() : "line " + std::to_string(line) + ": ";
}

bool IsForFile(ScriptedAction action) {
    return action == ScriptedAction::chooseFile || action == ScriptedAction::cancelFile;
}

bool IsCancel(ScriptedAction action) {
    return action == ScriptedAction::cancelOptions || action == ScriptedAction::cancelFile;
}

/// What an answer is for, in words.
std::string_view PurposeOf(const ScriptedAnswer& answer) {
    return IsForFile(answer.action) ? "the file dialog" : "the options dialog";
}

std::string Keys(std::string_view text) {
    constexpr std::string_view backspaceMark = "\\b";
    std::string keys;
    while (!text.empty()) {
        const bool marked = text.starts_with(backspaceMark);
        keys.push_back(marked ? backspace : text.front());
        text.remove_prefix(marked ? backspaceMark.size() : 1);
    }
    return keys;
}

/// The answer to the question behind "cancel:". Nothing where it is neither yes nor no.
std::optional<ScriptedAnswer> ReadCancel(std::string_view text, ScriptedAction action) {
    if (text == "yes") return ScriptedAnswer{action, {}, BoxAnswer::yes};
    if (text == "no") return ScriptedAnswer{action, {}, BoxAnswer::no};
    return std::nullopt;
}

std::optional<ScriptedAnswer> ReadOptionsAnswer(std::string_view text) {
    if (text.starts_with(cancelWord))
        return ReadCancel(text.substr(cancelWord.size()), ScriptedAction::cancelOptions);
    for (const ActionRow& row : actionTable) {
        const bool withText = row.word.ends_with(':');
        if (!withText && text == row.word) return ScriptedAnswer{row.action};
        if (!withText || !text.starts_with(row.word)) continue;
        const std::string_view argument = text.substr(row.word.size());
        return ScriptedAnswer{row.action,
                              row.action == ScriptedAction::type ? Keys(argument) : std::string(argument)};
    }
    return std::nullopt;
}

std::optional<ScriptedAnswer> ReadFileAnswer(std::string_view text) {
    if (text.starts_with(cancelWord))
        return ReadCancel(text.substr(cancelWord.size()), ScriptedAction::cancelFile);
    if (text.empty()) return std::nullopt;
    return ScriptedAnswer{ScriptedAction::chooseFile, std::string(text)};
}

std::optional<ScriptedAnswer> ReadAnswer(std::string_view line) {
    if (line.starts_with(optionsWord)) return ReadOptionsAnswer(line.substr(optionsWord.size()));
    if (line.starts_with(fileWord)) return ReadFileAnswer(line.substr(fileWord.size()));
    return std::nullopt;
}

}  // namespace

AnswerScript::AnswerScript(std::vector<ScriptedAnswer> answers) : answers_(std::move(answers)) {}

AnswerScript AnswerScript::Parse(std::string_view text) {
    std::vector<ScriptedAnswer> answers;
    for (const ScriptLine& line : ScriptLines(text)) {
        std::optional<ScriptedAnswer> answer = ReadAnswer(line.text);
        if (!answer)
            throw ScriptError(Place(line.number) + "\"" + std::string(line.text) +
                              "\" is no answer to a dialog");
        answer->line = line.number;
        answers.push_back(std::move(*answer));
    }
    return AnswerScript(std::move(answers));
}

void AnswerScript::Throw(const std::string& text) {
    error_ = text;
    throw ScriptError(text);
}

void AnswerScript::Reject(const ScriptedAnswer& answer, const std::string& reason) {
    Throw(Place(answer.line) + reason);
}

const ScriptedAnswer& AnswerScript::Next(std::string_view asked) {
    if (openQuestion_)
        Reject(*openQuestion_, "cancelling brought no question; next came " + std::string(asked));
    if (next_ == answers_.size()) Throw("the answers have run out: none is left for " + std::string(asked));
    return answers_[next_];
}

void AnswerScript::Take() {
    const ScriptedAnswer& taken = answers_[next_++];
    if (IsCancel(taken.action)) openQuestion_ = taken;
}

ScriptedAnswer AnswerScript::TakeForOptions() {
    const ScriptedAnswer& next = Next("the options dialog");
    if (IsForFile(next.action)) Reject(next, "the options dialog came, the answer is for the file dialog");
    Take();
    return next;
}

ScriptedAnswer AnswerScript::TakeForFile() {
    const ScriptedAnswer& next = Next("the file dialog");
    if (!IsForFile(next.action)) Reject(next, "the file dialog came, the answer is for the options dialog");
    Take();
    return next;
}

BoxAnswer AnswerScript::TakeForQuestion(std::string_view question) {
    if (openQuestion_) return std::exchange(openQuestion_, std::nullopt)->question;
    const std::string asked = "the question \"" + std::string(question) + "\"";
    const ScriptedAnswer& next = Next(asked);
    Reject(next, asked + " came, the answer is for " + std::string(PurposeOf(next)));
}

std::size_t AnswerScript::Remaining() const {
    return answers_.size() - next_ + (openQuestion_ ? 1U : 0U);
}

}  // namespace wxbrg
