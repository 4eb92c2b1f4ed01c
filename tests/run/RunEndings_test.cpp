// The ways in which a run ends before there is anything to export.

#include <gmock/gmock.h>

#include <new>
#include <stdexcept>
#include <string>

#include "run/RunExport.h"
#include "run/modGlobals.h"
#include "tests/run/ArisMocks.h"
#include "tests/run/RunFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::Invoke;
using testing::IsEmpty;
using testing::NiceMock;
using testing::Throw;

constexpr std::string_view programKey = R"(Software\Quenby\Tarnlight Workflow Aris Bridge\CurrentVersion)";
constexpr std::string_view retrieveProcedure = "clsARIS_Interface.RetrieveSelectedARISModels";

/// Calls procedures within each other, `depth` times.
void Recurse(int depth) {
    Procedure("test.Recurse", [&](Frame&) {
        if (depth > 0) Recurse(depth - 1);
    });
}

class RunEndingsTest : public RunFixture {
  protected:
    RunEndingsTest() { request_.commandLine = "/USR=anna /DB=Orders /SEL=g1,Order,13 /LOC=1033"; }

    RunReport Run() { return RunExport(request_, platform_, automation_); }

    void StoreLanguage(const ProfileValue& value) {
        profileStore_.Put(ProfileScope::user, programKey, "Language", value);
    }

    /// Creates no application.
    NiceMock<MockAutomation> automation_;
};

TEST_F(RunEndingsTest, WithoutALanguageLibraryTheRunEndsWithABoxInEnglishBeforeAnythingElse) {
    StoreLanguage(std::string("DEU"));
    EXPECT_CALL(automation_, CreateObject).Times(0);
    const RunReport report = Run();
    EXPECT_EQ(report.ending, RunEnding::noLanguageLibrary);
    EXPECT_EQ(report.boxes.critical, 1);
    EXPECT_THAT(Boxes(),
                ElementsAre(Box("The Language Resource file 'wxbrgDEU.dll' could not be found.", 65552)));
    EXPECT_THAT(languageLibraries_.asked, ElementsAre("wxbrgDEU.dll"));
    EXPECT_EQ(optionsFormView_.timesShown, 0);
    EXPECT_THAT(fileDialog_.shown, IsEmpty());
}

TEST_F(RunEndingsTest, WithoutArisTheRunEndsBeforeTheOptionsAreShown) {
    const RunReport report = Run();
    EXPECT_EQ(report.ending, RunEnding::endedByFailure);
    EXPECT_EQ(report.number, 2010);
    EXPECT_EQ(report.procedure, retrieveProcedure);
    EXPECT_EQ(report.error, "");
    EXPECT_EQ(report.boxes.critical, 1);
    EXPECT_THAT(Boxes(), ElementsAre(FailureBox(2010, retrieveProcedure, TestText(2010))));
    EXPECT_THAT(languageLibraries_.asked, ElementsAre("wxbrgENU.dll"));
    EXPECT_EQ(optionsFormView_.timesShown, 0);
    EXPECT_THAT(fileDialog_.shown, IsEmpty());
}

TEST_F(RunEndingsTest, ABadCommandLineEndsTheRunBeforeArisIsStarted) {
    request_.commandLine = "/LOC=x";
    EXPECT_CALL(automation_, CreateObject).Times(0);
    const RunReport report = Run();
    EXPECT_EQ(report.ending, RunEnding::unknownFailure);
    EXPECT_EQ(report.number, 13);
    EXPECT_EQ(report.procedure, "clsARIS_Interface.SaveCommandlineArguments");
}

TEST_F(RunEndingsTest, AnAutomationNumberOfArisEndsTheRunAsOverflow) {
    EXPECT_CALL(automation_, CreateObject)
        .WillOnce(Throw(Failure::WithDescription(-2147221164, "class not registered")));
    const RunReport report = Run();
    EXPECT_EQ(report.ending, RunEnding::unknownFailure);
    EXPECT_EQ(report.number, 6);
    EXPECT_EQ(report.procedure, retrieveProcedure);
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(6, retrieveProcedure, "overflow")));
}

TEST_F(RunEndingsTest, AFailureBeforeFailuresCanBeHandledIsAnErrorThatSaysWhatAndWhere) {
    languageLibraries_.failure = Failure(FailureKind::fileAccess, "wxbrgENU.dll");
    const RunReport report = Run();
    EXPECT_EQ(report.ending, RunEnding::error);
    EXPECT_EQ(report.error,
              "failure 75 in modUtilities.LoadLocalizedResources: file access error: wxbrgENU.dll");
    EXPECT_EQ(report.procedure, "modUtilities.LoadLocalizedResources");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(RunEndingsTest, AMistakeOfTheProgramIsAnErrorInItsOwnWords) {
    EXPECT_CALL(automation_, CreateObject).WillOnce(Throw(std::logic_error("bug")));
    const RunReport report = Run();
    EXPECT_EQ(report.ending, RunEnding::error);
    EXPECT_EQ(report.error, "bug");
    EXPECT_EQ(report.procedure, retrieveProcedure);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(RunEndingsTest, MemoryThatRunsOutEndsInABox) {
    EXPECT_CALL(automation_, CreateObject).WillOnce(Throw(std::bad_alloc()));
    const RunReport report = Run();
    EXPECT_EQ(report.ending, RunEnding::unknownFailure);
    EXPECT_EQ(report.number, 7);
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(7, retrieveProcedure, "out of memory")));
}

TEST_F(RunEndingsTest, AStackThatRunsOutEndsInOneBox) {
    request_.stackSize = std::size_t{2} << 20U;
    EXPECT_CALL(automation_, CreateObject).WillOnce(Invoke([](std::string_view) {
        Recurse(1'000'000'000);
        return ARISApplication();
    }));
    const RunReport report = Run();
    EXPECT_EQ(report.ending, RunEnding::unknownFailure);
    EXPECT_EQ(report.number, 28);
    EXPECT_EQ(report.procedure, "test.Recurse");
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(28, "test.Recurse", "out of stack space")));
}

TEST_F(RunEndingsTest, TheStackOfARunHoldsRecursionThatAnOrdinaryOneDoesNot) {
    EXPECT_CALL(automation_, CreateObject).Times(2).WillRepeatedly(Invoke([](std::string_view) {
        Recurse(200'000);
        return ARISApplication();
    }));
    EXPECT_EQ(Run().number, 2010);
    request_.stackSize = std::size_t{8} << 20U;
    EXPECT_EQ(Run().number, 28);
}

TEST_F(RunEndingsTest, AStackThatIsTooSmallForAnyProcedureIsAnErrorAndNoCrash) {
    request_.stackSize = std::size_t{256} << 10U;
    const RunReport report = Run();
    EXPECT_EQ(report.ending, RunEnding::error);
    EXPECT_EQ(report.error, "failure 28 in modMain.Main: out of stack space");
}

TEST_F(RunEndingsTest, ARunLeavesAFreshGlobalBlockHoweverItEnds) {
    Run();
    EXPECT_EQ(gBlock.gPlatform, nullptr);
    EXPECT_EQ(gBlock.gAutomation, nullptr);
    EXPECT_EQ(gBlock.gRunRequest, nullptr);
    EXPECT_EQ(gBlock.gResourceLibrary, nullptr);
    EXPECT_FALSE(gBlock.gExceptionHandler);
    EXPECT_FALSE(gBlock.gARISInterface);
    EXPECT_EQ(gBlock.gStackEnd, nullptr);
    EXPECT_EQ(gBlock.gLocale, 0);
    EXPECT_EQ(gBlock.gCurrentProcedure, "");
    EXPECT_EQ(gBlock.gRunReport.boxes.critical, 0);
}

TEST_F(RunEndingsTest, ARunBeginsWithoutWhatAnotherOneLeft) {
    Run();
    const RunReport second = Run();
    EXPECT_EQ(second.number, 2010);
    EXPECT_EQ(second.boxes.critical, 1);
}

}  // namespace
}  // namespace wxbrg
