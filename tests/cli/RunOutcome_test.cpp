#include "cli/RunOutcome.h"

#include <gmock/gmock.h>

#include <sstream>

#include "cli/ExportSummary.h"
#include "platform/posix/IconvCodePage.h"
#include "tests/cli/FakeCatalogue.h"

namespace wxbrg::cli {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

RunReport EndedBy(RunEnding ending, std::int32_t number) {
    RunReport report;
    report.ending = ending;
    report.number = number;
    return report;
}

TEST(ExitStatusOf, FollowsTheWayTheRunEnded) {
    EXPECT_EQ(ExitStatusOf(RunReport(), false), 0);
    EXPECT_EQ(ExitStatusOf(EndedBy(RunEnding::endedByFailure, 2020), false), 1);
    EXPECT_EQ(ExitStatusOf(EndedBy(RunEnding::unknownFailure, 6), false), 1);
    EXPECT_EQ(ExitStatusOf(EndedBy(RunEnding::noLanguageLibrary, 0), false), 1);
    EXPECT_EQ(ExitStatusOf(EndedBy(RunEnding::error, 0), false), 1);
}

TEST(ExitStatusOf, ACancelledDialogIs130) {
    EXPECT_EQ(ExitStatusOf(EndedBy(RunEnding::endedByFailure, 999), false), 130);
    EXPECT_EQ(ExitStatusOf(EndedBy(RunEnding::endedByFailure, 32755), true), 130);
    EXPECT_EQ(ExitStatusOf(EndedBy(RunEnding::unknownFailure, 999), false), 1);
}

TEST(ExitStatusOf, AWarningIs3WithStrictOnly) {
    RunReport boxed;
    boxed.boxes.exclamation = 1;
    RunReport noted;
    noted.notes.exclamation = 1;
    EXPECT_EQ(ExitStatusOf(boxed, true), 3);
    EXPECT_EQ(ExitStatusOf(noted, true), 3);
    EXPECT_EQ(ExitStatusOf(boxed, false), 0);
    EXPECT_EQ(ExitStatusOf(noted, false), 0);
}

TEST(ExitStatusOf, InformationIsNoWarning) {
    RunReport report;
    report.notes.information = 5;
    report.boxes.question = 1;
    EXPECT_EQ(ExitStatusOf(report, true), 0);
}

TEST(ExitStatusOf, AFailureGoesBeforeAWarning) {
    RunReport report = EndedBy(RunEnding::unknownFailure, 6);
    report.boxes.exclamation = 1;
    EXPECT_EQ(ExitStatusOf(report, true), 1);
}

TEST(ReportProgramFailure, TellsAnErrorOfTheProgramOnly) {
    std::ostringstream err;
    RunReport report = EndedBy(RunEnding::unknownFailure, 6);
    report.error = "slip";
    ReportProgramFailure(report, err);
    EXPECT_EQ(err.str(), "");
    report.ending = RunEnding::error;
    ReportProgramFailure(report, err);
    EXPECT_EQ(err.str(), "wxbrg: slip\n");
}

TEST(ReportLostCharacters, CountsWhatTheCodePageLacks) {
    IconvCodePage codePage(1252);
    std::ostringstream err;
    ReportLostCharacters(codePage, err);
    EXPECT_EQ(err.str(), "");
    codePage.ToBytes("aΩb中");
    ReportLostCharacters(codePage, err);
    EXPECT_THAT(err.str(), AllOf(HasSubstr("1252"), HasSubstr("2 characters")));
}

class ExportSummaryTest : public testing::Test {
  protected:
    std::string Written() {
        std::ostringstream out;
        WriteSummary({"out.wpx", report, catalogue, 1252, lackingCharacters, std::chrono::milliseconds(1234)},
                     out);
        return out.str();
    }
    RunReport report;
    FakeCatalogue catalogue;
    std::uint64_t lackingCharacters = 0;
};

TEST_F(ExportSummaryTest, TellsCountsNotesAndTime) {
    report.modelsSelected = 1;
    report.processes = 2;
    report.objectsWritten = 14;
    report.notes.exclamation = 3;
    report.notes.information = 40;
    EXPECT_EQ(Written(),
              "Definition file:        out.wpx\n"
              "Models selected:        1\n"
              "Processes:              2\n"
              "Objects written:        14\n"
              "Notes in the log:       3 exclamation, 40 information\n"
              "Time:                   1.23 s\n");
}

TEST_F(ExportSummaryTest, TellsWhatIsRareOnlyWhereItIs) {
    report.boxes.exclamation = 2;
    report.notes.critical = 7;
    report.notes.question = 8;
    lackingCharacters = 9;
    EXPECT_THAT(Written(), AllOf(HasSubstr("Warnings shown:         2\n"), HasSubstr("7 critical"),
                                 HasSubstr("8 question"), HasSubstr("9, which the code page 1252 lacks")));
}

TEST_F(ExportSummaryTest, ListsEachUnknownTypeOnce) {
    catalogue.unknownTypes = {{aris::UnknownType::Kind::object, "OT_ODD", 100000, 1},
                              {aris::UnknownType::Kind::connection, "CT_ODD", 100000, 3}};
    EXPECT_THAT(Written(), HasSubstr("Unknown types:          2\n"
                                     "  object type OT_ODD, taken as number 100000: 1 time\n"
                                     "  connection type CT_ODD, taken as number 100000: 3 times\n"));
}

TEST_F(ExportSummaryTest, NamesEveryKindOfUnknownType) {
    using Kind = aris::UnknownType::Kind;
    catalogue.unknownTypes = {
        {Kind::model, "M", 1, 1}, {Kind::attribute, "A", 2, 1}, {Kind::symbol, "S", 3, 1}};
    EXPECT_THAT(Written(),
                AllOf(HasSubstr("model type M"), HasSubstr("attribute type A"), HasSubstr("symbol type S")));
}

TEST_F(ExportSummaryTest, CountsReferencesToNothingBySort) {
    catalogue.dangling.occurrencesWithoutDefinition = 4;
    catalogue.dangling.assignedModelsMissing = 6;
    EXPECT_THAT(Written(), AllOf(HasSubstr("References to nothing:  10, left out\n"),
                                 HasSubstr("object occurrences without a definition: 4\n"),
                                 HasSubstr("assigned models that are not there: 6\n"),
                                 Not(HasSubstr("connections without a target"))));
}

}  // namespace
}  // namespace wxbrg::cli
