// The whole program on a desktop, from the ARIS command line to the written file, and what it does where
// there is none.

#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <future>
#include <sstream>
#include <thread>

#include "tests/cli/ProgramFixture.h"
#include "tests/qt/VirtualDisplay.h"

namespace wxbrg::cli {
namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

const std::vector<std::string> arisArguments{
    "/USR=me", "/DB=orders", "/SVR=host", "/REG=", "/SEL={m1},New.orders,13", "/LOC=1033"};

/// Seconds after which `timeout` ends a program. Only against one that hangs: below the limit that ctest has
/// for a test, so that the report tells which.
constexpr const char* limit = "240";

class DesktopProgram : public ProgramTest {
  protected:
    DesktopProgram() {
        WriteExport("orders.aml", {{"{m1}", "New.orders"}});
        environment["DISPLAY"] = display.Name();
        environment["QT_QPA_PLATFORM"] = "xcb";
        environment["LSAN_OPTIONS"] = "suppressions=" WXBRG_FOREIGN_LEAKS ":print_suppressions=0";
    }

    /// Starts the program as ARIS does, side by side with the test; not longer than the limit.
    std::future<ProcessResult> Start() const {
        return std::async(std::launch::async, [this] {
            std::vector<std::string> arguments{"timeout", limit, WXBRG_PROGRAM};
            arguments.insert(arguments.end(), arisArguments.begin(), arisArguments.end());
            return RunProcess(arguments, {{}, folder.Path(), environment});
        });
    }
    /// Waits for a window by a part of its title, gives it the keyboard and presses keys. Returns the window.
    std::string Press(const std::string& title, std::vector<std::string> keys,
                      const std::string& behind = {}) const {
        const std::string window = WindowOf(title, behind);
        Control({"windowfocus", "--sync", window});
        keys.insert(keys.begin(), {"key", "--delay", "100"});
        Control(std::move(keys));
        return window;
    }
    /// The visible window whose title holds a text, as soon as there is one that is not `behind`.
    std::string WindowOf(const std::string& title, const std::string& behind) const {
        for (;;) {
            std::istringstream windows(Control({"search", "--sync", "--onlyvisible", "--name", title}));
            for (std::string window; windows >> window;)
                if (window != behind) return window;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    }
    std::string Control(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"timeout", limit, "xdotool"});
        const ProcessResult done = RunProcess(arguments, {{}, ".", environment});
        EXPECT_EQ(done.status, 0) << done.err;
        return done.out;
    }
    /// Keeps a picture of the screen beside the build.
    void Photograph(const std::string& name) const {
        qputenv("DISPLAY", display.Name().c_str());
        qputenv("QT_QPA_PLATFORM", "xcb");
        int count = 1;
        char program[] = "test";
        char* arguments[] = {program, nullptr};
        const QGuiApplication application(count, arguments);
        const fs::path pictures = WXBRG_SCREENSHOTS;
        fs::create_directories(pictures);
        const std::string file = (pictures / name).string();
        EXPECT_TRUE(QGuiApplication::primaryScreen()->grabWindow(0).save(QString::fromStdString(file)));
    }

    VirtualDisplay display;
};

TEST_F(DesktopProgram, ExportsFromTheArisCommandLineToTheWrittenFile) {
    std::future<ProcessResult> run = Start();
    Press("export options", {"alt+i", "7"});
    Photograph("options.png");
    Press("export options", {"Return"});
    const std::string fileDialog = Press("Save As", {"o", "u", "t", "Return"});
    Press("Save As", {"Return"}, fileDialog);  // the question whether to create the file
    const ProcessResult result = run.get();
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(folder.Read("out.wpx"), AllOf(HasSubstr("'New_orders'"), HasSubstr("= me")));
    EXPECT_THAT(folder.Read("out.log"), HasSubstr("WXB03110I "));
    environment["DISPLAY"] = "";
    EXPECT_EQ(Run({"options", "get", "FirstSuffixNumber"}).out, "7\n");
}

TEST_F(DesktopProgram, CancelIsAskedAboutInABoxAndEndsTheRun) {
    EXPECT_EQ(Run({"options", "set", "Language", "DEU"}).status, 0);
    std::future<ProcessResult> run = Start();
    Press("Exportoptionen", {"Escape"});
    Press("^ARIS to Tarnlight Workflow Bridge$", {"alt+j"});
    EXPECT_EQ(run.get().status, 130);
    EXPECT_FALSE(Exists("out.wpx"));
}

TEST_F(DesktopProgram, TheCauseOfAFailureIsShownInAWindowBehindItsBox) {
    fs::create_symlink("/dev/full", folder / "full.wpx");
    std::future<ProcessResult> run = Start();
    Press("export options", {"Return"});
    const std::string fileDialog = Press("Save As", {"f", "u", "l", "l", "Return"});
    Press("Save As", {"alt+y"}, fileDialog);  // the question whether to replace the file
    const std::string box = Press("^ARIS to Tarnlight Workflow Bridge$", {"Return"});
    WindowOf("^ARIS to Tarnlight Workflow Bridge$", box);
    Photograph("cause.png");
    Press("^ARIS to Tarnlight Workflow Bridge$", {"Return"}, box);
    const ProcessResult result = run.get();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, Not(HasSubstr("No space left on device")));
}

TEST_F(DesktopProgram, AStoreThatCannotBeReadIsShownInAWindowAndTheRunGoesOn) {
    fs::create_directories(folder / "settings" / "wxbrg" / "registry.reg");
    std::future<ProcessResult> run = Start();
    Press("^wxbrg$", {"Return"});
    Press("export options", {"Escape"});
    Press("^ARIS to Tarnlight Workflow Bridge$", {"alt+y"});
    EXPECT_EQ(run.get().status, 130);
}

TEST_F(DesktopProgram, AMissingLanguageLibraryIsToldInAWindowAndEndsTheRun) {
    EXPECT_EQ(Run({"options", "set", "Language", "XYZ"}).status, 0);
    std::future<ProcessResult> run = Start();
    WindowOf("^ARIS to Tarnlight Workflow Bridge$", {});
    EXPECT_EQ(run.wait_for(std::chrono::milliseconds(200)), std::future_status::timeout);
    Photograph("no-language-library.png");
    Press("^ARIS to Tarnlight Workflow Bridge$", {"Return"});
    const ProcessResult result = run.get();
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, Not(HasSubstr("terminal")));
    EXPECT_FALSE(Exists("out.wpx"));
}

TEST_F(DesktopProgram, ADisplayThatCannotBeOpenedIsToldAndTheTerminalServes) {
    environment["DISPLAY"] = ":9999";
    const ProcessResult result = Run(arisArguments, "o\nresult\ny\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.err, AllOf(StartsWith("wxbrg: The display cannot be opened: "), HasSubstr(":9999"),
                                  testing::EndsWith("; the terminal is used instead.\n")));
    EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1);
    EXPECT_TRUE(Exists("result.wpx"));
}

TEST_F(DesktopProgram, AMissingModuleIsToldAndTheTerminalServes) {
    const fs::path program = WXBRG_PROGRAM;
    fs::copy(program, folder / "wxbrg");
    fs::copy(program.parent_path() / "wxbrgENU.dll", folder / "wxbrgENU.dll");
    std::vector<std::string> arguments{(folder / "wxbrg").string()};
    arguments.insert(arguments.end(), arisArguments.begin(), arisArguments.end());
    const ProcessResult result = RunProcess(arguments, {"o\nresult\ny\n", folder.Path(), environment});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.err, AllOf(StartsWith("wxbrg: The desktop module cannot be loaded: "),
                                  HasSubstr("wxbrg_desktop.so")));
    EXPECT_TRUE(Exists("result.wpx"));
}

TEST_F(DesktopProgram, OnlyTheArisCommandLineLoadsTheModule) {
    environment["LD_DEBUG"] = "files";
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {"--version"}, {"options"}, {"export", "orders.aml", "-o", "out.wpx"}}) {
        const ProcessResult result = Run(arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_THAT(result.err,
                    AllOf(HasSubstr("libexpat"), Not(HasSubstr("Qt6")), Not(HasSubstr("wxbrg_desktop"))));
    }
}

}  // namespace
}  // namespace wxbrg::cli
