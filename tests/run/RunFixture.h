#pragma once

#include <gmock/gmock.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "run/Frame.h"
#include "run/RunExport.h"
#include "tests/fixture/MemoryPlatform.h"

namespace wxbrg {

// For the messages of failing tests.
void PrintTo(const ShownBox& box, std::ostream* stream);
void PrintTo(const RunEnd& end, std::ostream* stream);

/// A text as the library of a test gives it with some of its arguments: "2020|item|%2$s|%3$s|%4$s".
std::string TestText(std::int32_t number, std::initializer_list<std::string_view> arguments = {});

// The whole texts of the boxes that `procedure` brings, with the number that stands in them.
std::string FailureBoxText(int number, std::string_view procedure, std::string_view description);
std::string WarningBoxText(int number, std::string_view procedure, std::string_view description);
std::string QuestionBoxText(int number, std::string_view procedure);
std::string UnknownFailureBoxText(int number, std::string_view procedure, std::string_view description);

// The boxes themselves.
testing::Matcher<const ShownBox&> Box(const std::string& text, std::int32_t buttons);
testing::Matcher<const ShownBox&> FailureBox(int number, std::string_view procedure,
                                             std::string_view description);
testing::Matcher<const ShownBox&> WarningBox(int number, std::string_view procedure,
                                             std::string_view description);
testing::Matcher<const ShownBox&> QuestionBox(int number, std::string_view procedure);
testing::Matcher<const ShownBox&> UnknownFailureBox(int number, std::string_view procedure,
                                                    std::string_view description);

/// Matches the way in which `RunFixture::RunIn` ended the run; what ran to its normal end is no match.
testing::Matcher<const std::optional<RunEnd>&> EndedRun(RunEnding ending, std::int32_t number);

/// A fresh global block on a platform of fakes, with the objects that stand behind the language library: what
/// a procedure finds when it is called in a run. Texts are those of the library of a test, files are in code
/// page 1252, boxes with OK alone are answered with it.
class RunFixture : public testing::Test {
  protected:
    RunFixture();
    ~RunFixture() override;

    /// The answers to the dialogs to come.
    void Answer(std::string_view script) { script_ = AnswerScript::Parse(script); }
    /// The answer to the next question, as if a dialog had been cancelled just now.
    void AnswerNextQuestion(BoxAnswer answer);

    /// Runs `body` as the procedure `name`, a literal. Nothing when the procedure came back.
    static std::optional<RunEnd> RunIn(std::string_view name, const std::function<void(Frame&)>& body);

    const std::vector<ShownBox>& Boxes() const { return messageBox_.Boxes(); }
    /// The bytes of a file; "(no such file)" where there is none.
    std::string Bytes(const std::string& name) const;

    RunRequest request_;
    MemoryPlatform memory_{1252, LocalTime{2026, 11, 21, 6, 12, 43, 5}, "/program"};

    // Its parts, under the names of members.
    AnswerScript& script_ = memory_.script;
    RecordingProfileStore& profileStore_ = memory_.profileStore;
    RecordingLanguageLibraries& languageLibraries_ = memory_.languageLibraries;
    IconvCodePage& codePage_ = memory_.codePage;
    ChosenUserLocale& userLocale_ = memory_.userLocale;
    MemoryFileSystem& fileSystem_ = memory_.fileSystem;
    ChosenMessageBox& messageBox_ = memory_.messageBox;
    RecordingFileDialog& fileDialog_ = memory_.fileDialog;
    ChosenOptionsFormView& optionsFormView_ = memory_.optionsFormView;
    RecordingHelpViewer& helpViewer_ = memory_.helpViewer;
    Platform& platform_ = memory_.platform;
};

}  // namespace wxbrg
