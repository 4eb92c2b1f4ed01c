#include "cli/Dispatch.h"
#include "cli/NearestWord.h"

#include <gmock/gmock.h>

namespace wxbrg::cli {
namespace {

const std::vector<std::string> subcommands{"export", "models", "options", "replay"};

StartedAs With(const std::vector<std::string>& arguments) {
    return Dispatch(arguments, subcommands);
}

TEST(Dispatch, NoArgumentIsTheTool) {
    EXPECT_EQ(With({}), StartedAs::tool);
}

TEST(Dispatch, KnownSubcommandIsTheToolWhateverFollows) {
    EXPECT_EQ(With({"export", "a.aml"}), StartedAs::tool);
    EXPECT_EQ(With({"models", "/DB=x"}), StartedAs::tool);
}

TEST(Dispatch, FirstArgumentWithHyphenIsTheTool) {
    EXPECT_EQ(With({"--version"}), StartedAs::tool);
    EXPECT_EQ(With({"-x", "/DB=x"}), StartedAs::tool);
}

TEST(Dispatch, SwitchAnywhereInTheArgumentsIsTheArisCommandLine) {
    EXPECT_EQ(With({"/USR=a", "/DB=b"}), StartedAs::arisCommandLine);
    EXPECT_EQ(With({"some", "words", "/loc:1033"}), StartedAs::arisCommandLine);
    EXPECT_EQ(With({"Export", "/Sel", "x"}), StartedAs::arisCommandLine);
}

TEST(Dispatch, SwitchAtTheVeryEndOrWithAnotherCharacterBehindIsNone) {
    EXPECT_EQ(With({"exprot", "/DB"}), StartedAs::unknownWord);
    EXPECT_EQ(With({"exprot", "/DBX=1"}), StartedAs::unknownWord);
    EXPECT_EQ(With({"DB=1"}), StartedAs::unknownWord);
}

TEST(Dispatch, SubcommandInAnotherCaseIsUnknown) {
    EXPECT_EQ(With({"Export"}), StartedAs::unknownWord);
}

TEST(Dispatch, EmptyFirstArgumentIsUnknown) {
    EXPECT_EQ(With({""}), StartedAs::unknownWord);
}

TEST(HoldsArisSwitch, TakesEachSwitchInAnyCaseWithEachSeparator) {
    for (const std::string name : {"/USR", "/DB", "/SVR", "/REG", "/SEL", "/LOC", "/usr", "/Db"})
        for (const std::string separator : {"=", ":", " "})
            EXPECT_TRUE(HoldsArisSwitch("x" + name + separator)) << name << separator;
}

TEST(HoldsArisSwitch, LooksOnBehindAnOccurrenceThatIsNone) {
    EXPECT_TRUE(HoldsArisSwitch("/DBX /DB=1"));
    EXPECT_FALSE(HoldsArisSwitch("/DBX /DB"));
}

TEST(JoinArguments, PutsOneBlankBetweenAndKeepsEmptyOnes) {
    EXPECT_EQ(JoinArguments({"/USR=", "", "b  c"}), "/USR=  b  c");
    EXPECT_EQ(JoinArguments({"", "/DB=x"}), " /DB=x");
    EXPECT_EQ(JoinArguments({}), "");
}

TEST(Nearest, TakesTheWordWithTheFewestChanges) {
    EXPECT_EQ(Nearest("exprot", subcommands), "export");
    EXPECT_EQ(Nearest("model", subcommands), "models");
    EXPECT_EQ(Nearest("opt", subcommands), "export");
    EXPECT_EQ(Nearest("option", subcommands), "options");
    EXPECT_EQ(Nearest("rplay", subcommands), "replay");
}

TEST(Nearest, CountsCharactersNotBytes) {
    EXPECT_EQ(Nearest("ä", {"bc", "b"}), "b");
    EXPECT_EQ(Nearest("äöü", {"abcd", "xyz"}), "xyz");
}

TEST(Nearest, IsTheFirstOfSeveralAndEmptyOfNone) {
    EXPECT_EQ(Nearest("x", {"a", "b"}), "a");
    EXPECT_EQ(Nearest("x", {}), "");
}

}  // namespace
}  // namespace wxbrg::cli
