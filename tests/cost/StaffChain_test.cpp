// Chains of neighbours that are as deep as the database.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "run/modGlobals.h"
#include "tests/bench/Shapes.h"
#include "tests/bench/SilentRun.h"

namespace wxbrg::bench {
namespace {

using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::size_t smallStack = std::size_t{1} << 20U;

/// The notes on the persons of a chain, each written when the one behind it is finished: the last one first.
std::vector<std::string> FinishedPersons(std::int64_t persons) {
    std::vector<std::string> lines;
    for (std::int64_t number = persons - 1; number >= 0; --number) {
        const std::string identifier = Numbered("PERSON", number).replace(6, 1, "_");
        lines.push_back("WXB03090I PERSON|'" + identifier + "'|%3$s|%4$s");
        lines.push_back("WXB03060I " + Numbered("Person", number) + "|T46|PERSON|%4$s");
    }
    return lines;
}

std::vector<std::string> LinesOfPersons(const SilentRun& run) {
    std::vector<std::string> lines;
    for (const std::string& line : run.LogLines())
        if (line.starts_with("WXB03090I PERSON|") || line.starts_with("WXB03060I Person "))
            lines.push_back(line);
    return lines;
}

TEST(StaffChainTest, AChainOfTwentyThousandPersonsEndsNormallyAndFinishesTheLastPersonFirst) {
    constexpr std::int64_t persons = 20000;
    Drawing drawing;
    AddStaffChain(drawing, persons);
    SilentRun run;
    const RunReport report = run.Export(drawing.Automation(), {drawing.process});
    EXPECT_EQ(report.ending, RunEnding::normal) << report.error;
    EXPECT_THAT(run.Boxes(), IsEmpty());
    EXPECT_EQ(LinesOfPersons(run), FinishedPersons(persons));
}

TEST(StaffChainTest, AShortChainFitsOnASmallStack) {
    constexpr std::int64_t persons = 10;
    Drawing drawing;
    AddStaffChain(drawing, persons);
    SilentRun run;
    EXPECT_EQ(run.Export(drawing.Automation(), {drawing.process}, smallStack).ending, RunEnding::normal);
    EXPECT_THAT(LinesOfPersons(run), ElementsAreArray(FinishedPersons(persons)));
}

TEST(StaffChainTest, AChainThatIsDeeperThanTheStackEndsTheRunInTheBoxOfOutOfStackSpace) {
    Drawing drawing;
    AddStaffChain(drawing, 20000);
    SilentRun run;
    const RunReport report = run.Export(drawing.Automation(), {drawing.process}, smallStack);
    EXPECT_EQ(report.ending, RunEnding::unknownFailure);
    EXPECT_EQ(report.number, FailureKind::outOfStackSpace);
    ASSERT_THAT(run.Boxes(), SizeIs(1));
    EXPECT_THAT(run.Boxes().front().text, HasSubstr("WXB00028C "));
    EXPECT_THAT(LinesOfPersons(run), IsEmpty());
}

TEST(StaffChainTest, ARunAfterOneThatRanOutOfStackIsWhole) {
    Drawing drawing;
    AddStaffChain(drawing, 2000);
    SilentRun run;
    EXPECT_EQ(run.Export(drawing.Automation(), {drawing.process}, smallStack).number,
              FailureKind::outOfStackSpace);
    EXPECT_EQ(run.Export(drawing.Automation(), {drawing.process}).ending, RunEnding::normal);
    EXPECT_EQ(LinesOfPersons(run), FinishedPersons(2000));
}

}  // namespace
}  // namespace wxbrg::bench
