#include "platform/terminal/lines/TerminalFileDialog.h"

#include <gmock/gmock.h>

#include <sstream>
#include <stdexcept>

#include "tests/TemporaryFolder.h"

namespace wxbrg {
namespace {

using testing::HasSubstr;

class TerminalFileDialogTest : public testing::Test {
  protected:
    TerminalFileDialogTest() {
        settings.flags = FileDialogFlag::overwritePrompt + FileDialogFlag::pathMustExist +
                         FileDialogFlag::noReadOnlyReturn;
        settings.initialDirectory = folder.Path().string();
        settings.fileName = "*.wpx";
        settings.defaultExtension = "wpx";
    }
    std::optional<std::string> Ask(const std::string& input) {
        std::istringstream in(input);
        TerminalFileDialog dialog(in, out);
        return dialog.AskSaveName(settings);
    }
    std::string In(const std::string& name) const { return (folder / name).string(); }

    TemporaryFolder folder;
    FileDialogSettings settings;
    std::ostringstream out;
};

TEST_F(TerminalFileDialogTest, ARelativeNameCountsFromTheInitialFolder) {
    EXPECT_EQ(Ask("orders.wpx\n"), In("orders.wpx"));
    EXPECT_THAT(out.str(), HasSubstr(folder.Path().string()));
}

TEST_F(TerminalFileDialogTest, AnAbsoluteNameStandsForItself) {
    const TemporaryFolder other;
    EXPECT_EQ(Ask((other / "orders.wpx").string() + "\n"), (other / "orders.wpx").string());
}

TEST_F(TerminalFileDialogTest, WithoutAnInitialFolderTheNameStaysAsTyped) {
    settings.initialDirectory.clear();
    EXPECT_EQ(Ask("no-such-file-here.wpx\n"), "no-such-file-here.wpx");
}

TEST_F(TerminalFileDialogTest, ANameWithoutAPointGetsTheDefaultExtension) {
    EXPECT_EQ(Ask("orders\n"), In("orders.wpx"));
    EXPECT_EQ(Ask("orders.\n"), In("orders."));
    EXPECT_EQ(Ask("orders.txt\n"), In("orders.txt"));
}

TEST_F(TerminalFileDialogTest, AnEmptyLineTakesTheProposedName) {
    settings.fileName = "last";
    EXPECT_EQ(Ask("\n"), In("last.wpx"));
    EXPECT_THAT(out.str(), HasSubstr("Enter: last"));
}

TEST_F(TerminalFileDialogTest, APatternIsNoProposalAndNoName) {
    EXPECT_EQ(Ask("\n*.wpx\na?\norders\n"), In("orders.wpx"));
    EXPECT_THAT(out.str(), HasSubstr("*.wpx is a pattern"));
    EXPECT_THAT(out.str(), Not(HasSubstr("Enter:")));
}

TEST_F(TerminalFileDialogTest, AnExistingFileIsTakenOnlyOnAYes) {
    folder.Write("old.wpx", "x");
    EXPECT_EQ(Ask("old\nno\nnew\n"), In("new.wpx"));
    EXPECT_EQ(Ask("old\nyes\n"), In("old.wpx"));
    EXPECT_EQ(folder.Read("old.wpx"), "x");
}

TEST_F(TerminalFileDialogTest, WithoutTheFlagAnExistingFileIsTakenUnasked) {
    settings.flags = 0;
    folder.Write("old.wpx", "x");
    EXPECT_EQ(Ask("old\n"), In("old.wpx"));
}

TEST_F(TerminalFileDialogTest, WithItsFlagAFileThatIsNotThereIsMadeOnlyOnAYes) {
    settings.flags += FileDialogFlag::createPrompt;
    EXPECT_EQ(Ask("new\nno\nother\nyes\n"), In("other.wpx"));
    EXPECT_THAT(out.str(), HasSubstr(In("new.wpx") + " does not exist. Create it?"));
    EXPECT_FALSE(std::filesystem::exists(folder / "other.wpx"));
    folder.Write("old.wpx", "x");
    EXPECT_EQ(Ask("old\nyes\n"), In("old.wpx"));
    EXPECT_EQ(Ask("new\n"), std::nullopt);
}

TEST_F(TerminalFileDialogTest, TheCreateQuestionComesOnlyForAFileThatMayBeMade) {
    settings.flags += FileDialogFlag::createPrompt;
    EXPECT_EQ(Ask("nowhere/new\nc\n"), std::nullopt);
    EXPECT_THAT(out.str(), Not(HasSubstr("Create it?")));
}

TEST_F(TerminalFileDialogTest, WithItsFlagTheLetterHShowsTheHelpAndTheQuestionComesAgain) {
    int helped = 0;
    settings.flags += FileDialogFlag::showHelp;
    settings.help = [&helped] {
        ++helped;
    };
    EXPECT_EQ(Ask("h\nH\norders\n"), In("orders.wpx"));
    EXPECT_EQ(helped, 2);
    EXPECT_THAT(out.str(), HasSubstr("(h: help, c: cancel)"));
    EXPECT_EQ(Ask("./h\n"), In("./h.wpx"));
}

TEST_F(TerminalFileDialogTest, WithoutTheFlagTheLetterHIsAName) {
    EXPECT_EQ(Ask("h\n"), In("h.wpx"));
    EXPECT_THAT(out.str(), Not(HasSubstr("help")));
}

TEST_F(TerminalFileDialogTest, AFolderThatIsNotThereIsTold) {
    EXPECT_EQ(Ask("nowhere/orders\norders\n"), In("orders.wpx"));
    EXPECT_THAT(out.str(), HasSubstr("There is no folder " + In("nowhere")));
}

TEST_F(TerminalFileDialogTest, WithoutTheFlagTheFolderNeedNotBeThere) {
    settings.flags = 0;
    EXPECT_EQ(Ask("nowhere/orders\n"), In("nowhere/orders.wpx"));
}

TEST_F(TerminalFileDialogTest, AFolderIsNoFile) {
    folder.Write("sub.wpx/inside", "x");
    EXPECT_EQ(Ask("sub\norders\n"), In("orders.wpx"));
    EXPECT_THAT(out.str(), HasSubstr("is a folder"));
}

TEST_F(TerminalFileDialogTest, CancelIsTheLetterC) {
    EXPECT_EQ(Ask("c\n"), std::nullopt);
    EXPECT_EQ(Ask("C\n"), std::nullopt);
}

TEST_F(TerminalFileDialogTest, TheEndOfTheInputCancels) {
    folder.Write("old.wpx", "x");
    EXPECT_EQ(Ask(""), std::nullopt);
    EXPECT_EQ(Ask("old\n"), std::nullopt);
}

TEST_F(TerminalFileDialogTest, BehindTheEndOfTheInputNothingMoreIsAsked) {
    std::istringstream in;
    TerminalFileDialog dialog(in, out);
    EXPECT_EQ(dialog.AskSaveName(settings), std::nullopt);
    EXPECT_THROW(dialog.AskSaveName(settings), std::runtime_error);
}

TEST_F(TerminalFileDialogTest, ACancelMayBeFollowedByAnotherName) {
    std::istringstream in("c\norders\n");
    TerminalFileDialog dialog(in, out);
    EXPECT_EQ(dialog.AskSaveName(settings), std::nullopt);
    EXPECT_EQ(dialog.AskSaveName(settings), In("orders.wpx"));
}

}  // namespace
}  // namespace wxbrg
