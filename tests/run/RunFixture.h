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

#include "platform/posix/IconvCodePage.h"
#include "platform/scripted/FixedClock.h"
#include "platform/scripted/MemoryFileSystem.h"
#include "platform/scripted/MemoryLanguageLibraries.h"
#include "platform/scripted/MemoryProfileStore.h"
#include "platform/scripted/NoProgress.h"
#include "platform/scripted/PlainUserLocale.h"
#include "platform/scripted/ScriptedFileDialog.h"
#include "platform/scripted/ScriptedMessageBox.h"
#include "platform/scripted/ScriptedOptionsFormView.h"
#include "run/Frame.h"
#include "run/RunExport.h"

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

/// A value that was stored, or was to be.
struct ProfileWrite {
    std::string key;
    std::string name;
    ProfileValue value;

    bool operator==(const ProfileWrite&) const = default;
};

/// A store that remembers what is written, and can refuse it.
class RecordingProfileStore : public MemoryProfileStore {
  public:
    bool Write(std::string_view key, std::string_view name, const ProfileValue& value) override;

    std::vector<ProfileWrite> writes;
    bool refuses = false;
};

/// Libraries in memory that remember what was asked for, and can fail.
class RecordingLanguageLibraries : public MemoryLanguageLibraries {
  public:
    std::unique_ptr<LanguageLibrary> Load(std::string_view fileName) override;

    std::vector<std::string> asked;
    std::optional<Failure> failure;
};

/// A locale whose decimal separator and number a test chooses.
class ChosenUserLocale : public PlainUserLocale {
  public:
    char32_t DecimalSeparator() const override { return decimalSeparator; }
    std::uint32_t Number() const override { return number; }

    char32_t decimalSeparator = U'.';
    std::uint32_t number = 1033;
};

/// Scripted boxes whose OK boxes a test can have cancelled, or fail.
class ChosenMessageBox : public ScriptedMessageBox {
  public:
    using ScriptedMessageBox::ScriptedMessageBox;
    BoxAnswer Show(std::string_view title, std::string_view text, std::int32_t buttons) override;

    bool cancels = false;
    std::optional<Failure> nextFailure;
};

/// A scripted file dialog that remembers what it was shown with.
class RecordingFileDialog : public ScriptedFileDialog {
  public:
    using ScriptedFileDialog::ScriptedFileDialog;
    std::optional<std::string> AskSaveName(const FileDialogSettings& settings) override;

    std::vector<FileDialogSettings> shown;
    std::function<void()> whenShown;
};

/// A scripted options form that a test can use by hand instead.
class ChosenOptionsFormView : public ScriptedOptionsFormView {
  public:
    using ScriptedOptionsFormView::ScriptedOptionsFormView;
    FormFont DefaultFont() const override {
        ++timesAskedForFont;
        return font;
    }
    void ShowModal(OptionsFormEvents& form) override;

    FormFont font;
    mutable int timesAskedForFont = 0;
    int timesShown = 0;
    std::function<void(OptionsFormEvents&)> use;
};

/// Remembers the pages that it is asked to show, as "wxbrgENU.hlp#50000".
class RecordingHelpViewer : public HelpViewer {
  public:
    void ShowPage(std::string_view helpFile, std::int32_t number) override {
        shown.push_back(std::string(helpFile) + "#" + std::to_string(number));
    }

    std::vector<std::string> shown;
};

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
    AnswerScript script_{{}};
    RecordingProfileStore profileStore_;
    RecordingLanguageLibraries languageLibraries_;
    IconvCodePage codePage_{1252};
    FixedClock clock_{LocalTime{2026, 11, 21, 6, 12, 43, 5}};
    ChosenUserLocale userLocale_;
    MemoryFileSystem fileSystem_;
    ChosenMessageBox messageBox_{script_};
    RecordingFileDialog fileDialog_{script_};
    ChosenOptionsFormView optionsFormView_{script_};
    RecordingHelpViewer helpViewer_;
    NoProgress progress_;
    Platform platform_{profileStore_, languageLibraries_, codePage_,   clock_,           userLocale_,
                       fileSystem_,   messageBox_,        fileDialog_, optionsFormView_, helpViewer_,
                       progress_,     "/program",         "wxbrg"};
};

}  // namespace wxbrg
