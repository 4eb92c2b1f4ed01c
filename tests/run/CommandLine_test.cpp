// The ARIS command line: how a switch's value is found, and what is kept of it.

#include <gmock/gmock.h>

#include <string>

#include "run/clsARIS_Interface.h"
#include "run/modGlobals.h"
#include "tests/run/RunFixture.h"
#include "tests/support/FailureMatcher.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t longestCommandLine = 32767;

class GetCommandLineTest : public RunFixture {
  protected:
    std::string Value(const std::string& commandLine, std::string_view name) {
        request_.commandLine = commandLine;
        return clsARIS_Interface::GetCommandLine(name);
    }
};

TEST_F(GetCommandLineTest, TakesAValueBehindAnEqualsSignAColonOrABlank) {
    EXPECT_EQ(Value("/USR=anna", "/USR"), "anna");
    EXPECT_EQ(Value("/USR:anna", "/USR"), "anna");
    EXPECT_EQ(Value("/USR anna", "/USR"), "anna");
}

TEST_F(GetCommandLineTest, IsEmptyWithoutTheSwitch) {
    EXPECT_EQ(Value("", "/USR"), "");
    EXPECT_EQ(Value("/DB=x", "/USR"), "");
    EXPECT_EQ(Value("USR=anna", "/USR"), "");
}

TEST_F(GetCommandLineTest, TakesNoSwitchThatIsFollowedByAnythingElse) {
    EXPECT_EQ(Value("/DBX=x", "/DB"), "");
    EXPECT_EQ(Value("/DB\t=x", "/DB"), "");
    EXPECT_EQ(Value("/DB;x", "/DB"), "");
    EXPECT_EQ(Value("/DB", "/DB"), "");
    EXPECT_EQ(Value("/DBX=x/DB=y", "/DB"), "y");
}

TEST_F(GetCommandLineTest, TakesNoEqualsSignAtTheVeryEnd) {
    EXPECT_EQ(Value("/DB=", "/DB"), "");
    EXPECT_EQ(Value("/DB=x", "/DB"), "x");
}

TEST_F(GetCommandLineTest, ColonAndBlankAtTheVeryEndHaveAnEmptyValue) {
    EXPECT_EQ(Value("/DB:", "/DB"), "");
    EXPECT_EQ(Value("/DB ", "/DB"), "");
}

TEST_F(GetCommandLineTest, AValueRunsUpToTheNextSlash) {
    EXPECT_EQ(Value("/DB=a/b", "/DB"), "a");
    EXPECT_EQ(Value("/USR=a/DB=x", "/USR"), "a");
    EXPECT_EQ(Value("/USR=a/DB=x", "/DB"), "x");
}

TEST_F(GetCommandLineTest, KeepsTheBlanksOfAValue) {
    EXPECT_EQ(Value("/SVR=host /DB=db", "/SVR"), "host ");
    EXPECT_EQ(Value("/SVR=  my host ", "/SVR"), "  my host ");
}

TEST_F(GetCommandLineTest, ASlashAtTheFrontBelongsToTheValue) {
    EXPECT_EQ(Value("/SVR=/host", "/SVR"), "/host");
    EXPECT_EQ(Value("/SVR=/host/x", "/SVR"), "/host");
    EXPECT_EQ(Value("/DB=/DB=x", "/DB"), "/DB=x");
    EXPECT_EQ(Value("/DB:/USR=anna", "/DB"), "/USR=anna");
}

TEST_F(GetCommandLineTest, SearchesOnBehindAnEmptyValue) {
    EXPECT_EQ(Value("/DB: /DB=x", "/DB"), "x");
    EXPECT_EQ(Value("/DB=   /DB:   /DB=x", "/DB"), "x");
    EXPECT_EQ(Value("/DB=x/DB=y", "/DB"), "x");
}

TEST_F(GetCommandLineTest, WithoutARealValueTheLastBlankOneStays) {
    EXPECT_EQ(Value("/DB=  /DBX=x", "/DB"), "  ");
    EXPECT_EQ(Value("/DB=  /DB=", "/DB"), "  ");
    EXPECT_EQ(Value("/DB=  /DB:", "/DB"), "");
}

TEST_F(GetCommandLineTest, FindsASwitchInAnyCaseAndKeepsTheCaseOfItsValue) {
    EXPECT_EQ(Value("/usr=Anna", "/USR"), "Anna");
    EXPECT_EQ(Value("/uSr:aNNA", "/USR"), "aNNA");
}

TEST_F(GetCommandLineTest, CharactersOutsideAsciiShiftNothing) {
    EXPECT_EQ(Value("/USR=Jürgen Strauß/DB=Öl ŉ ﬀ/SVR=s", "/USR"), "Jürgen Strauß");
    EXPECT_EQ(Value("/USR=Jürgen Strauß/DB=Öl ŉ ﬀ/SVR=s", "/DB"), "Öl ŉ ﬀ");
    EXPECT_EQ(Value("/USR=😀ß/SVR=日本", "/SVR"), "日本");
}

TEST_F(GetCommandLineTest, RestoresTheNameOfTheRunningProcedure) {
    Value("/DB=x", "/DB");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
    Value("", "/DB");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(GetCommandLineTest, TakesALineOf32767Characters) {
    const std::string start = "/USR=";
    const std::string letter = "ä";
    std::string line = start;
    for (std::size_t i = start.size(); i < longestCommandLine; ++i) line += letter;
    EXPECT_EQ(Value(line, "/USR"), line.substr(start.size()));
}

TEST_F(GetCommandLineTest, OverflowsForALongerLine) {
    EXPECT_THAT(
        [&] {
            Value(std::string(longestCommandLine + 1, 'x'), "/USR");
        },
        Fails(FailureKind::overflow));
}

class SaveCommandlineArgumentsTest : public RunFixture {
  protected:
    std::optional<RunEnd> Save(const std::string& commandLine) {
        request_.commandLine = commandLine;
        return RunIn("test.P", [](Frame&) {
            gBlock.gARISInterface->SaveCommandlineArguments();
        });
    }
    /// The box that ends the run for a command line.
    void ExpectUnknownFailure(const std::string& commandLine, int number, std::string_view procedure,
                              std::string_view description) {
        EXPECT_THAT(Save(commandLine), EndedRun(RunEnding::unknownFailure, number));
        EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(number, procedure, description)));
    }
};

constexpr std::string_view saveProcedure = "clsARIS_Interface.SaveCommandlineArguments";

TEST_F(SaveCommandlineArgumentsTest, KeepsEachValueWithoutBlanksAroundIt) {
    EXPECT_EQ(
        Save("/usr= Anna B. /DB = ignored /DB=Orders /SVR: host /REG=  r  /SEL= g,n,13;h,m,13 /LOC= 1033 "),
        std::nullopt);
    EXPECT_EQ(gBlock.gARISInterface->sUser, "Anna B.");
    EXPECT_EQ(gBlock.gARISInterface->sDatabase, "= ignored");
    EXPECT_EQ(gBlock.gARISInterface->sServer, "host");
    EXPECT_EQ(gBlock.gARISInterface->sRegistry, "r");
    EXPECT_EQ(gBlock.gARISInterface->sSelection, "g,n,13;h,m,13");
    EXPECT_EQ(gBlock.gLocale, 1033);
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(SaveCommandlineArgumentsTest, AMissingSwitchGivesAnEmptyText) {
    EXPECT_EQ(Save("/LOC=1031"), std::nullopt);
    EXPECT_EQ(gBlock.gARISInterface->sUser, "");
    EXPECT_EQ(gBlock.gARISInterface->sDatabase, "");
    EXPECT_EQ(gBlock.gARISInterface->sServer, "");
    EXPECT_EQ(gBlock.gARISInterface->sRegistry, "");
    EXPECT_EQ(gBlock.gARISInterface->sSelection, "");
    EXPECT_EQ(gBlock.gLocale, 1031);
}

TEST_F(SaveCommandlineArgumentsTest, RoundsTheLocaleToTheNearestNumberAndATieToTheEvenOne) {
    const auto locale = [&](const std::string& text) {
        EXPECT_EQ(Save("/LOC=" + text), std::nullopt) << text;
        return gBlock.gLocale;
    };
    EXPECT_EQ(locale("1033.5"), 1034);
    EXPECT_EQ(locale("1032.5"), 1032);
    EXPECT_EQ(locale("1032.51"), 1033);
    EXPECT_EQ(locale("1.033e3"), 1033);
    EXPECT_EQ(locale("-5"), -5);
    EXPECT_EQ(locale("32767.4"), 32767);
    EXPECT_EQ(locale("-32768.5"), -32768);
}

TEST_F(SaveCommandlineArgumentsTest, ReadsTheLocaleWithTheUsersDecimalSeparator) {
    userLocale_.decimalSeparator = U',';
    EXPECT_EQ(Save("/LOC=1030,6"), std::nullopt);
    EXPECT_EQ(gBlock.gLocale, 1031);
    EXPECT_THAT(Save("/LOC=1030.6"), EndedRun(RunEnding::unknownFailure, 13));
}

TEST_F(SaveCommandlineArgumentsTest, AMissingLocaleIsATypeMismatch) {
    ExpectUnknownFailure("/USR=anna", 13, saveProcedure, "type mismatch");
}

TEST_F(SaveCommandlineArgumentsTest, ALocaleOfBlanksIsATypeMismatch) {
    ExpectUnknownFailure("/LOC=  ", 13, saveProcedure, "type mismatch");
}

TEST_F(SaveCommandlineArgumentsTest, ALocaleThatIsNoNumberIsATypeMismatch) {
    ExpectUnknownFailure("/LOC=1031x", 13, saveProcedure, "type mismatch");
}

TEST_F(SaveCommandlineArgumentsTest, ALocaleOutside16BitsOverflows) {
    ExpectUnknownFailure("/LOC=32768", 6, saveProcedure, "overflow");
}

TEST_F(SaveCommandlineArgumentsTest, ALocaleThatRoundsOutOf16BitsOverflows) {
    ExpectUnknownFailure("/LOC=32767.5", 6, saveProcedure, "overflow");
}

TEST_F(SaveCommandlineArgumentsTest, ALineThatIsTooLongEndsTheRunUnderTheSearchsName) {
    ExpectUnknownFailure("/LOC=1033" + std::string(longestCommandLine, ' '), 6,
                         "clsARIS_Interface.GetCommandLine", "overflow");
}

TEST_F(SaveCommandlineArgumentsTest, WhatStoodInFrontOfABadLocaleIsKept) {
    Save("/USR=anna /SEL=g,n,13 /LOC=x");
    EXPECT_EQ(gBlock.gARISInterface->sUser, "anna");
    EXPECT_EQ(gBlock.gARISInterface->sSelection, "g,n,13");
}

TEST_F(SaveCommandlineArgumentsTest, ASelectionThatIsHandedOverCountsInPlaceOfTheCommandLine) {
    request_.selection = ExportSelection{
        .user = " u ", .database = "a/b;c", .server = "s", .registry = "r", .locale = 66567, .models = {}};
    EXPECT_EQ(Save("/USR=other /DB=other /LOC=no number"), std::nullopt);
    EXPECT_EQ(gBlock.gARISInterface->sUser, " u ");
    EXPECT_EQ(gBlock.gARISInterface->sDatabase, "a/b;c");
    EXPECT_EQ(gBlock.gARISInterface->sServer, "s");
    EXPECT_EQ(gBlock.gARISInterface->sRegistry, "r");
    EXPECT_EQ(gBlock.gARISInterface->sSelection, "");
    EXPECT_EQ(gBlock.gLocale, 66567);
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(SaveCommandlineArgumentsTest, MakingTheInterfaceRestoresTheNameOfTheRunningProcedure) {
    gBlock.gARISInterface = gBlock.gPool.Create<clsARIS_Interface>();
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
    EXPECT_TRUE(gBlock.gARISInterface->ColSelectedModels.IsEmpty());
}

}  // namespace
}  // namespace wxbrg
