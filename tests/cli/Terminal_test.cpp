#include "platform/terminal/lines/Terminal.h"

#include <gmock/gmock.h>

#include <chrono>
#include <sstream>

#include "platform/terminal/lines/TerminalMessageBox.h"
#include "platform/terminal/lines/TerminalProgress.h"

namespace wxbrg {
namespace {

using testing::HasSubstr;

TEST(Terminal, ALineComesWithoutItsEndAndBlanksAround) {
    std::istringstream in(" one \r\ntwo");
    std::ostringstream out;
    Terminal terminal(in, out);
    EXPECT_EQ(terminal.Ask("? "), "one");
    EXPECT_EQ(terminal.Ask("? "), "two");
    EXPECT_EQ(terminal.Ask("? "), std::nullopt);
    EXPECT_EQ(out.str(), "? ? ? \n");
}

TEST(Terminal, ToldTextsHaveTheStreamsOwnLineEnds) {
    std::istringstream in;
    std::ostringstream out;
    Terminal(in, out).Print("a\r\nb");
    EXPECT_EQ(out.str(), "a\nb\n");
}

TEST(Terminal, ShowsNothingThatItWouldObey) {
    std::istringstream in("\n");
    std::ostringstream out;
    Terminal terminal(in, out);
    terminal.Print("a\x1B[2J\nb\r\nc");
    terminal.Ask("\u009B? ");
    EXPECT_EQ(out.str(), "a\\u{1B}[2J\\u{A}b\nc\n\\u{9B}? ");
}

TEST(Terminal, YesOrNoIsAskedUntilItIsAnswered) {
    std::istringstream in("perhaps\n\nYES\nn\n");
    std::ostringstream out;
    Terminal terminal(in, out);
    EXPECT_EQ(terminal.AskYesOrNo("Sure?"), true);
    EXPECT_EQ(terminal.AskYesOrNo("Sure?"), false);
    EXPECT_EQ(terminal.AskYesOrNo("Sure?"), std::nullopt);
    EXPECT_THAT(out.str(), HasSubstr("Please answer y or n."));
}

class TerminalMessageBoxTest : public testing::Test {
  protected:
    BoxAnswer Show(const std::string& input, std::int32_t buttons) {
        std::istringstream in(input);
        TerminalMessageBox box(in, out);
        return box.Show("The title", "The text\r\nin two lines", buttons);
    }
    static constexpr std::int32_t questionButtons = BoxStyle::yesNo + 32 + BoxStyle::foreground;

    std::ostringstream out;
};

TEST_F(TerminalMessageBoxTest, ShowsTitleAndWholeText) {
    Show("\n", BoxStyle::ok);
    EXPECT_THAT(out.str(), HasSubstr("The title\n"));
    EXPECT_THAT(out.str(), HasSubstr("\n  The text\n  in two lines\n"));
}

TEST_F(TerminalMessageBoxTest, QuestionsAreAnsweredYesOrNo) {
    EXPECT_EQ(Show("y\n", questionButtons), BoxAnswer::yes);
    EXPECT_EQ(Show("what\nno\n", questionButtons), BoxAnswer::no);
}

TEST_F(TerminalMessageBoxTest, OkNeedsOneLineWhateverItHolds) {
    EXPECT_EQ(Show("n\n", BoxStyle::ok + 48), BoxAnswer::ok);
}

TEST_F(TerminalMessageBoxTest, OkAndCancelAreBothThere) {
    EXPECT_EQ(Show("\n", BoxStyle::okCancel), BoxAnswer::ok);
    EXPECT_EQ(Show("C\n", BoxStyle::okCancel), BoxAnswer::cancel);
    EXPECT_EQ(Show("cancel\n", BoxStyle::okCancel), BoxAnswer::cancel);
}

TEST_F(TerminalMessageBoxTest, TheEndOfTheInputIsYesOrOk) {
    EXPECT_EQ(Show("", questionButtons), BoxAnswer::yes);
    EXPECT_EQ(Show("", BoxStyle::ok), BoxAnswer::ok);
    EXPECT_EQ(Show("", BoxStyle::okCancel), BoxAnswer::ok);
}

class TerminalProgressTest : public testing::Test {
  protected:
    TerminalProgress Make() {
        return TerminalProgress(out, [this] {
            return now;
        });
    }
    void Pass(std::chrono::milliseconds time) { now += time; }

    TerminalProgress::Time now{};
    std::ostringstream out;
};

TEST_F(TerminalProgressTest, NothingIsShownInTheFirstSecond) {
    {
        TerminalProgress progress = Make();
        Pass(std::chrono::milliseconds(999));
        progress.Report("reading", 1, 2);
    }
    EXPECT_EQ(out.str(), "");
}

TEST_F(TerminalProgressTest, StageAndShareAreShownOnOneLine) {
    TerminalProgress progress = Make();
    Pass(std::chrono::seconds(1));
    progress.Report("reading", 1, 3);
    EXPECT_EQ(out.str(), "\r\033[Kreading: 33 %");
    Pass(std::chrono::seconds(1));
    progress.Report("reading", 3, 3);
    EXPECT_THAT(out.str(), testing::EndsWith("\r\033[Kreading: 100 %"));
}

TEST_F(TerminalProgressTest, AStageStaysOnItsLine) {
    TerminalProgress progress = Make();
    Pass(std::chrono::seconds(1));
    progress.Report("reading \x1B[2J\n", 0, 0);
    EXPECT_EQ(out.str(), "\r\033[Kreading \\u{1B}[2J\\u{A}");
}

TEST_F(TerminalProgressTest, WithoutATotalTheAmountIsShown) {
    TerminalProgress progress = Make();
    Pass(std::chrono::seconds(1));
    progress.Report("processes", 0, 0);
    Pass(std::chrono::seconds(1));
    progress.Report("processes", 7, 0);
    EXPECT_EQ(out.str(), "\r\033[Kprocesses\r\033[Kprocesses: 7");
}

TEST_F(TerminalProgressTest, TheLineIsRewrittenTenTimesASecondAtMost) {
    TerminalProgress progress = Make();
    Pass(std::chrono::seconds(1));
    progress.Report("a", 0, 0);
    Pass(std::chrono::milliseconds(99));
    progress.Report("b", 0, 0);
    EXPECT_THAT(out.str(), testing::EndsWith("a"));
    Pass(std::chrono::milliseconds(1));
    progress.Report("c", 0, 0);
    EXPECT_THAT(out.str(), testing::EndsWith("c"));
}

TEST_F(TerminalProgressTest, AnEmptyStageTakesTheLineAwayOnce) {
    TerminalProgress progress = Make();
    progress.Report({}, 0, 0);
    EXPECT_EQ(out.str(), "");
    Pass(std::chrono::seconds(1));
    progress.Report("a", 0, 0);
    progress.Report({}, 0, 0);
    progress.Report({}, 0, 0);
    EXPECT_EQ(out.str(), "\r\033[Ka\r\033[K");
}

TEST_F(TerminalProgressTest, TheLineGoesWithTheObject) {
    {
        TerminalProgress progress = Make();
        Pass(std::chrono::seconds(1));
        progress.Report("a", 0, 0);
    }
    EXPECT_THAT(out.str(), testing::EndsWith("a\r\033[K"));
}

}  // namespace
}  // namespace wxbrg
