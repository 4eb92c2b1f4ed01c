#include <gmock/gmock.h>

#include <csignal>
#include <memory>
#include <optional>

#include "options/FormControls.h"
#include "platform/HelpBook.h"
#include "platform/posix/DlLanguageLibraries.h"
#include "platform/terminal/lines/FormCaption.h"
#include "support/Text.h"
#include "tests/cli/ProgramFixture.h"
#include "tests/terminal/TmuxTerminal.h"

namespace wxbrg {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

const std::string programFolder = std::filesystem::path(WXBRG_PROGRAM).parent_path().string();

/// Runs the built program on a terminal as ARIS starts it, on "orders.aml" in the folder.
class OptionsFormProgram : public cli::ProgramTest {
  protected:
    OptionsFormProgram() { WriteExport("orders.aml", {{"{m1}", "New.orders"}}); }

    void Start(ScreenSize size = {80, 24}, const std::map<std::string, std::string>& variables = {}) {
        for (const auto& [name, value] : variables) environment[name] = value;
        terminal.emplace(size, folder.Path().string(), environment,
                         "stty -g > before\n'" WXBRG_PROGRAM
                         "' /USR=me /DB=orders /SVR=host /REG= '/SEL={m1},New.orders,13' /LOC=1033\n"
                         "status=$?\nstty -g > after\n(exit $status)");
    }
    std::string Press(const std::vector<std::string>& keys, const std::string& expected) const {
        terminal->Press(keys);
        const std::string screen = terminal->ScreenWith(expected);
        EXPECT_THAT(screen, HasSubstr(expected));
        return screen;
    }
    /// Takes the proposed way to the end: OK, and the file "result".
    void FinishWithOk() const {
        Press({"Enter"}, "Output file");
        NameFile();
    }
    void NameFile() const {
        Press({"result", "Enter"}, "Create it?");
        Press({"y", "Enter"}, "ended with 0");
        EXPECT_TRUE(Exists("result.wpx"));
        ExpectTerminalAsBefore();
    }
    void ExpectTerminalAsBefore() const { EXPECT_EQ(folder.Read("after"), folder.Read("before")); }
    std::string Option(const std::string& name) const { return Run({"options", "get", name}).out; }

    std::optional<TmuxTerminal> terminal;
};

const std::string firstPage = "[x] Convert ARIS names";

TEST_F(OptionsFormProgram, ShowsTheFormOnTheWholeScreenAndGivesItBack) {
    Start();
    EXPECT_THAT(terminal->ScreenWith(firstPage),
                AllOf(HasSubstr("┌─ ARIS to Tarnlight Workflow Bridge"), HasSubstr("[ Help ]"),
                      HasSubstr("[ OK ]  [ Cancel ]    Apply"), HasSubstr("Esc cancel")));
    FinishWithOk();
    EXPECT_THAT(terminal->Screen(), Not(HasSubstr("[ Cancel ]")));
    EXPECT_TRUE(std::filesystem::is_empty(folder / "settings"));
}

TEST_F(OptionsFormProgram, ApplyStoresAtOnceAndOkWhatHasChangedSince) {
    Start();
    terminal->ScreenWith(firstPage);
    Press({"Right", "Space"}, "[ ] Convert ARIS names");
    Press({"Left", "BTab", "Enter"}, "[ Cancel ]    Apply");
    EXPECT_EQ(Option("ConvertNames"), "0\n");
    Press({"PgDn", "Right", "Space"}, "[ ] Insert bend points into WPX control");
    FinishWithOk();
    EXPECT_EQ(Option("UseCtrlConBendPoints"), "0\n");
    EXPECT_THAT(folder.Read("result.wpx"), HasSubstr("'New.orders'"));
}

TEST_F(OptionsFormProgram, EscapeAsksAndNoComesBackToTheFormAsItWas) {
    Start();
    terminal->ScreenWith(firstPage);
    Press({"Right", "Space"}, "[ ] Convert ARIS names");
    EXPECT_THAT(Press({"Escape"}, "Yes or no?"),
                AllOf(HasSubstr("WXB00999Q "), Not(HasSubstr("[ Cancel ]"))));
    EXPECT_THAT(Press({"n", "Enter"}, "[ ] Convert ARIS names"), HasSubstr("[ Apply ]"));
    Press({"Escape"}, "Yes or no?");
    Press({"y", "Enter"}, "ended with 130");
    EXPECT_EQ(Option("ConvertNames"), "-1\n");
    ExpectTerminalAsBefore();
}

TEST_F(OptionsFormProgram, TheCancelButtonAndControlCAskToo) {
    Start();
    terminal->ScreenWith(firstPage);
    Press({"C-c"}, "Yes or no?");
    Press({"n", "Enter"}, "[ Cancel ]");
    Press({"BTab", "Enter"}, "Yes or no?");
    Press({"y", "Enter"}, "ended with 130");
}

TEST_F(OptionsFormProgram, HelpIsShownOutsideTheFormUntilEnter) {
    const std::optional<HelpBook> help = HelpBook::Read(programFolder + "/wxbrgENU.hlp");
    ASSERT_TRUE(help);
    Start({80, 60});
    terminal->ScreenWith(firstPage);
    terminal->Press({"Down", "Right"});
    EXPECT_THAT(Press({"F1"}, "Enter: back to the options"),
                AllOf(HasSubstr(help->Page(50016)->title), Not(HasSubstr("[ Cancel ]"))));
    Press({"Enter"}, "[ Cancel ]");
    terminal->Press({"Left", "?"});
    EXPECT_THAT(terminal->ScreenWith(help->Page(50002)->title), HasSubstr("Enter: back to the options"));
    Press({"Enter"}, "[ Cancel ]");
    FinishWithOk();
}

TEST_F(OptionsFormProgram, TheTextFieldTakesDigitsOnly) {
    Start();
    terminal->ScreenWith(firstPage);
    Press({"Right", "Down", "Down", "4", "2"}, "[042 ]");
    Press({"x", "Space", "?", "Home", "DC", "7"}, "[742 ]");
    EXPECT_THAT(terminal->OutputWith("\a"), HasSubstr("\a"));
    FinishWithOk();
    EXPECT_EQ(Option("FirstSuffixNumber"), "742\n");
}

TEST_F(OptionsFormProgram, UnderstandsKeysWithAltAndControl) {
    Start();
    terminal->ScreenWith(firstPage);
    terminal->Press({"Right", "Down", "Down"});
    Press({"M-2"}, "[x] Insert bend points");
    Press({"C-NPage"}, "[x] Include description attributes");
    Press({"C-PPage", "C-PPage"}, "[0   ]");
    Press({"M-h"}, "Enter: back to the options");
    Press({"Enter"}, "[ Cancel ]");
    FinishWithOk();
}

TEST_F(OptionsFormProgram, FollowsTheWindow) {
    Start();
    terminal->ScreenWith(firstPage);
    terminal->Resize({120, 40});
    EXPECT_THAT(terminal->ScreenWith("\n               ┌─ ARIS"), HasSubstr("\n               ┌─ ARIS"));
    terminal->Resize({50, 12});
    EXPECT_THAT(terminal->ScreenWith("needs more room"), HasSubstr("needs more room"));
    terminal->Resize({80, 24});
    EXPECT_THAT(terminal->ScreenWith("\n┌─ ARIS"), AllOf(HasSubstr("\n┌─ ARIS"), HasSubstr(firstPage)));
    Press({"Enter"}, "Output file");
    terminal->Resize({100, 30});
    NameFile();
}

TEST_F(OptionsFormProgram, TakesTheSizeThatTheWindowGetsDuringAQuestion) {
    Start();
    terminal->ScreenWith(firstPage);
    Press({"Escape"}, "Yes or no?");
    terminal->Resize({120, 40});
    EXPECT_THAT(Press({"n", "Enter"}, "[ Cancel ]"), HasSubstr("\n               ┌─ ARIS"));
}

TEST_F(OptionsFormProgram, GoesOnLineByLineInAWindowThatHasBecomeTooSmall) {
    Start();
    terminal->ScreenWith(firstPage);
    Press({"Right", "Space"}, "[ ] Convert ARIS names");
    terminal->Resize({60, 15});
    terminal->ScreenWith("needs more room");
    Press({"Enter"}, "Number: change");
    Press({"o", "Enter"}, "Output file");
    NameFile();
    EXPECT_EQ(Option("ConvertNames"), "0\n");
}

TEST_F(OptionsFormProgram, WithoutRoomThereAreQuestionsByTheLine) {
    Start({60, 15});
    EXPECT_THAT(terminal->ScreenWith("Number: change"), HasSubstr("Number: change"));
    Press({"o", "Enter"}, "Output file");
    NameFile();
}

TEST_F(OptionsFormProgram, ATerminalThatCannotBeDrawnOnGetsQuestionsByTheLine) {
    for (const std::string term : {"dumb", "unknown-to-all", ""}) {
        Start({80, 40}, {{"TERM", term}});
        EXPECT_THAT(terminal->ScreenWith("Number: change"),
                    AllOf(HasSubstr("Number: change"), HasSubstr("  1  [x]  Convert ARIS names")))
            << term;
        Press({"c", "Enter"}, "Yes or no?");
        Press({"y", "Enter"}, "ended with 130");
    }
}

TEST_F(OptionsFormProgram, WorksOnTerminalsOfManyKinds) {
    for (const std::string term : {"xterm-256color", "screen", "linux", "vt100"}) {
        Start({80, 24}, {{"TERM", term}});
        EXPECT_THAT(terminal->ScreenWith(firstPage), HasSubstr("│ 1 Naming conventions ")) << term;
        Press({"Down"}, "[x] Insert bend points");
        Press({"Escape"}, "Yes or no?");
        Press({"y", "Enter"}, "ended with 130");
        ExpectTerminalAsBefore();
    }
}

TEST_F(OptionsFormProgram, TheControlWithTheKeyboardStandsOutWithColorsAndWithout) {
    constexpr const char* reverse = "\x1b[7m";
    Start({80, 24}, {{"NO_COLOR", ""}});
    terminal->ScreenWith(firstPage);
    EXPECT_THAT(terminal->StyledScreen(), AllOf(HasSubstr("\x1b[44m 1 "), Not(HasSubstr(reverse))));
    Start({80, 24}, {{"NO_COLOR", "1"}});
    terminal->ScreenWith(firstPage);
    EXPECT_THAT(terminal->StyledScreen(),
                AllOf(HasSubstr(std::string(reverse) + " 1 "), Not(HasSubstr("\x1b[44m"))));
}

TEST_F(OptionsFormProgram, ASignalThatEndsTheProgramGivesTheTerminalBack) {
    Start();
    terminal->ScreenWith(firstPage);
    terminal->Signal(SIGTERM);
    EXPECT_THAT(terminal->ScreenWith("ended with"),
                AllOf(HasSubstr("ended with 1"), Not(HasSubstr("[ Cancel ]"))));
    ExpectTerminalAsBefore();
}

class OptionsFormLanguages : public OptionsFormProgram, public testing::WithParamInterface<const char*> {
  protected:
    OptionsFormLanguages()
        : library_(DlLanguageLibraries(programFolder).Load("wxbrg" + std::string(GetParam()) + ".dll")) {}

    std::string CaptionOf(const FormControl& control) const {
        return PlainCaption(library_->LoadString(static_cast<std::uint32_t>(control.captionNumber), 4096));
    }
    /// Captions may go on in a further line: looks for the beginning and for the last word.
    void ExpectCaption(const std::string& screen, const FormControl& control) const {
        const std::string caption = CaptionOf(control);
        ASSERT_FALSE(caption.empty());
        EXPECT_THAT(screen, HasSubstr(std::string(Left(caption, 20))));
        EXPECT_THAT(screen, HasSubstr(caption.substr(caption.find_last_of(' ') + 1)));
    }

  private:
    std::unique_ptr<LanguageLibrary> library_;
};

TEST_P(OptionsFormLanguages, EveryPageShowsItsControls) {
    ASSERT_EQ(Run({"options", "set", "Language", GetParam()}).status, 0);
    Start();
    for (const FormControl& tab : formControls) {
        if (tab.kind != FormControlKind::tab) continue;
        std::string screen;
        for (const FormControl& control : formControls) {
            if (control.captionNumber == 0 || (control.page != tab.page && control.page != noPage)) continue;
            if (screen.empty()) {
                if (tab.page == 0) terminal->ScreenWith("[ OK ]");
                terminal->Press({std::to_string(tab.page + 1)});
            }
            const std::string begin(Left(CaptionOf(control), 20));
            screen = terminal->ScreenWith(begin);
            ExpectCaption(screen, control);
        }
    }
    Press({"Enter"}, "Output file");
    NameFile();
}

INSTANTIATE_TEST_SUITE_P(Languages, OptionsFormLanguages, testing::Values("ENU", "DEU"),
                         [](const testing::TestParamInfo<const char*>& tested) {
                             return std::string(tested.param);
                         });

}  // namespace
}  // namespace wxbrg
