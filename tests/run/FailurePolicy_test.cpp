// What the user sees of a failure and what then happens, number by number.

#include "run/FailurePolicy.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <initializer_list>

#include "run/clsExceptionHandler.h"
#include "tests/run/RunFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::array<std::int16_t, 10> warnings{2030, 2040, 2050, 2060, 2070, 2080, 2090, 2110, 2210, 2220};
constexpr std::array<std::int16_t, 14> criticalNumbers{2000, 2010, 2020, 2100, 2120, 2130, 2140,
                                                       2150, 2160, 2170, 2180, 2190, 2200, 2230};

class PolicyTest : public RunFixture, public testing::WithParamInterface<std::int16_t> {
  protected:
    static FailureAction Analyse() { return gBlock.gExceptionHandler->AnalyseError(GetParam(), "described"); }
    static int Number() { return GetParam(); }
};

using WarningTest = PolicyTest;

TEST_P(WarningTest, ShowsTheDescriptionAndGoesOn) {
    EXPECT_EQ(Analyse(), FailureAction::proceed);
    EXPECT_THAT(Boxes(), ElementsAre(WarningBox(Number(), "test.Caller", "described")));
    EXPECT_EQ(gBlock.gRunReport.boxes.exclamation, 1);
}

INSTANTIATE_TEST_SUITE_P(, WarningTest, testing::ValuesIn(warnings));

using CriticalTest = PolicyTest;

TEST_P(CriticalTest, ShowsTheDescriptionAndEndsTheRun) {
    EXPECT_EQ(Analyse(), FailureAction::endRun);
    EXPECT_THAT(Boxes(), ElementsAre(FailureBox(Number(), "test.Caller", "described")));
    EXPECT_EQ(gBlock.gRunReport.boxes.critical, 1);
}

INSTANTIATE_TEST_SUITE_P(, CriticalTest, testing::ValuesIn(criticalNumbers));

using QuestionTest = PolicyTest;

TEST_P(QuestionTest, AnsweredWithYesEndsTheRun) {
    AnswerNextQuestion(BoxAnswer::yes);
    EXPECT_EQ(Analyse(), FailureAction::endRun);
    EXPECT_THAT(Boxes(), ElementsAre(QuestionBox(Number(), "test.Caller")));
    EXPECT_EQ(gBlock.gRunReport.boxes.question, 1);
}

INSTANTIATE_TEST_SUITE_P(, QuestionTest, testing::Values(999, 32755));

using UnknownNumberTest = PolicyTest;

TEST_P(UnknownNumberTest, ShowsNoBox) {
    EXPECT_EQ(Analyse(), FailureAction::unknown);
    EXPECT_THAT(Boxes(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(, UnknownNumberTest,
                         testing::Values(-32768, -2060, -1, 0, 5, 6, 7, 13, 28, 53, 76, 91, 457, 998, 1000,
                                         1010, 1999, 2001, 2055, 2231, 2240, 3000, 3110, 32754, 32756,
                                         32767));

class ExceptionHandlerTest : public RunFixture {
  protected:
    /// Hands a failure to MercyfulExit and returns how that ended the run.
    static std::optional<RunEnd> ExitMercyfully(std::string_view procedure, std::int16_t number,
                                                const std::string& description) {
        try {
            gBlock.gExceptionHandler->MercyfulExit(procedure, number, description);
        } catch (const RunEnd& end) {
            return end;
        }
        return std::nullopt;
    }
};

TEST_F(ExceptionHandlerTest, NoToTheQuestionOfTheOptionsFormLeavesTheProcedure) {
    AnswerNextQuestion(BoxAnswer::no);
    EXPECT_EQ(gBlock.gExceptionHandler->AnalyseError(999, ""), FailureAction::leave);
}

TEST_F(ExceptionHandlerTest, NoToTheQuestionOfTheFileDialogRunsTheStatementAgain) {
    AnswerNextQuestion(BoxAnswer::no);
    EXPECT_EQ(gBlock.gExceptionHandler->AnalyseError(32755, ""), FailureAction::retry);
}

TEST_F(ExceptionHandlerTest, EveryFailureOfTheTableIsTestedHere) {
    const auto isFailure = [](const MessageRow& row) {
        return PolicyOf(NumberOf(row.name)).has_value();
    };
    EXPECT_EQ(static_cast<std::size_t>(std::count_if(messages.begin(), messages.end(), isFailure)),
              warnings.size() + criticalNumbers.size());
}

TEST_F(ExceptionHandlerTest, TheBoxNamesTheRunningProcedure) {
    gBlock.gCurrentProcedure = "modX.Somewhere";
    gBlock.gExceptionHandler->AnalyseError(2210, "described");
    EXPECT_THAT(Boxes(), ElementsAre(WarningBox(2210, "modX.Somewhere", "described")));
}

TEST_F(ExceptionHandlerTest, AnalysingLeavesTheNameOfTheRunningProcedureAlone) {
    gBlock.gExceptionHandler->AnalyseError(2210, "described");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(ExceptionHandlerTest, TheMessageNumberReplacesItsMarkInTheWholeBoxText) {
    gBlock.gExceptionHandler->AnalyseError(2120, "<MessageID>twice<MessageID>, not <messageid>");
    EXPECT_THAT(Boxes(),
                ElementsAre(FailureBox(2120, "test.Caller", "WXB02120C twiceWXB02120C , not <messageid>")));
}

TEST_F(ExceptionHandlerTest, ABoxForAnUnknownFailureShowsNumberAndDescriptionAndEndsTheRun) {
    EXPECT_THAT(ExitMercyfully("modX.Inner", 91, "object not set"), EndedRun(RunEnding::unknownFailure, 91));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(91, "modX.Inner", "object not set")));
    EXPECT_EQ(gBlock.gRunReport.boxes.critical, 1);
}

TEST_F(ExceptionHandlerTest, TheMessageNumberReplacesItsMarkInTheBoxForAnUnknownFailureToo) {
    ExitMercyfully("modX.Inner", 5, "<MessageID>");
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(5, "modX.Inner", "WXB00005C ")));
}

TEST_F(ExceptionHandlerTest, CancelInTheBoxForAnUnknownFailureEndsTheRunAsOkDoes) {
    messageBox_.cancels = true;
    EXPECT_THAT(ExitMercyfully("modX.Inner", 91, "object not set"), EndedRun(RunEnding::unknownFailure, 91));
}

TEST_F(ExceptionHandlerTest, ANewHandlerForgetsTheStepThatIsAllowedToFail) {
    gBlock.gFailureContext = "Retrieve rule";
    gBlock.gExceptionHandler = gBlock.gPool.Create<clsExceptionHandler>();
    EXPECT_EQ(gBlock.gFailureContext, "");
}

TEST_F(ExceptionHandlerTest, ABoxBearsTheProductsNameAndAnswersTheButtonPressed) {
    AnswerNextQuestion(BoxAnswer::no);
    EXPECT_EQ(clsExceptionHandler::ShowMessageBox("text", 65572), BoxAnswer::no);
    EXPECT_THAT(Boxes(), ElementsAre(Box("text", 65572)));
}

TEST_F(ExceptionHandlerTest, BoxesAreCountedBySeverity) {
    for (const std::int32_t buttons : {16, 48 + 65536, 48, 64 + 1, 0})
        clsExceptionHandler::ShowMessageBox("text", buttons);
    EXPECT_EQ(gBlock.gRunReport.boxes.critical, 1);
    EXPECT_EQ(gBlock.gRunReport.boxes.question, 0);
    EXPECT_EQ(gBlock.gRunReport.boxes.exclamation, 2);
    EXPECT_EQ(gBlock.gRunReport.boxes.information, 1);
}

TEST(FormatMessageID, WritesTheNumberInAtLeastFiveDigitsAndTheSeveritysLetter) {
    EXPECT_EQ(clsExceptionHandler::FormatMessageID(16, 2010), "WXB02010C ");
    EXPECT_EQ(clsExceptionHandler::FormatMessageID(32, 32755), "WXB32755Q ");
    EXPECT_EQ(clsExceptionHandler::FormatMessageID(48, 999), "WXB00999E ");
    EXPECT_EQ(clsExceptionHandler::FormatMessageID(64, 3110), "WXB03110I ");
    EXPECT_EQ(clsExceptionHandler::FormatMessageID(64, 0), "WXB00000I ");
}

TEST(FormatMessageID, WritesAQuestionMarkForAnyOtherSeverity) {
    for (const std::int16_t severity :
         std::initializer_list<std::int16_t>{0, 1, 15, 17, 80, 128, -16, -32768, 32767})
        EXPECT_EQ(clsExceptionHandler::FormatMessageID(severity, 6), "WXB00006? ") << severity;
}

TEST(FormatMessageID, WritesANegativeNumberAsAMinusAndFiveDigits) {
    EXPECT_EQ(clsExceptionHandler::FormatMessageID(16, -1), "WXB-00001C ");
    EXPECT_EQ(clsExceptionHandler::FormatMessageID(16, -32768), "WXB-32768C ");
}

TEST(FormatMessageID, WritesMoreThanFiveDigitsInFull) {
    EXPECT_EQ(clsExceptionHandler::FormatMessageID(64, 123456), "WXB123456I ");
    EXPECT_EQ(clsExceptionHandler::FormatMessageID(64, 2147483647), "WXB2147483647I ");
    EXPECT_EQ(clsExceptionHandler::FormatMessageID(64, -2147483647 - 1), "WXB-2147483648I ");
}

}  // namespace
}  // namespace wxbrg
