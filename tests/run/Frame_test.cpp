// What a procedure's frame does: names, ways out, and the answers to a failure.

#include "run/Frame.h"

#include <gmock/gmock.h>

#include <new>
#include <stdexcept>
#include <string>

#include "run/clsExceptionHandler.h"
#include "tests/run/RunFixture.h"
#include "tests/support/FailureMatcher.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Throws;

class FrameTest : public RunFixture {};

TEST_F(FrameTest, NamesItsProcedureWhileTheBodyRunsAndRestoresTheCallersNameAtTheNormalEnd) {
    std::string inside;
    Procedure("test.P", [&](Frame&) {
        inside = gBlock.gCurrentProcedure;
    });
    EXPECT_EQ(inside, "test.P");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FrameTest, AnEarlyReturnRestoresTheCallersName) {
    bool behind = false;
    Procedure("test.P", [&](Frame&) {
        if (gBlock.gCurrentProcedure == "test.P") return;
        behind = true;
    });
    EXPECT_FALSE(behind);
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FrameTest, ReturnsTheResultOfTheBody) {
    EXPECT_EQ(Procedure("test.P",
                        [](Frame&) {
                            return std::string("result");
                        }),
              "result");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FrameTest, NestedProceduresRestoreOneNameEach) {
    Procedure("test.Outer", [](Frame&) {
        Procedure("test.Inner", [](Frame&) {});
        EXPECT_EQ(gBlock.gCurrentProcedure, "test.Outer");
    });
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FrameTest, KeepNameLeavesTheProceduresNameAtTheNormalEnd) {
    const int result = Procedure("test.P", [](Frame& frame) {
        frame.KeepName();
        return 3;
    });
    EXPECT_EQ(result, 3);
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.P");
}

TEST_F(FrameTest, AFailingWayOutKeepsTheInnermostName) {
    const auto end = RunIn("test.Outer", [](Frame&) {
        Procedure("test.Inner", [](Frame& frame) {
            frame.Raise(Message::ruleMissing, "rule");
        });
    });
    EXPECT_THAT(end, EndedRun(RunEnding::endedByFailure, 2100));
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Inner");
    EXPECT_THAT(Boxes(), ElementsAre(FailureBox(2100, "test.Inner", TestText(2100, {"rule"}))));
}

TEST_F(FrameTest, AFailureOfTheRunTimeIsShownOnceByTheInnermostProcedureAndEndsTheRun) {
    const auto end = RunIn("test.Outer", [](Frame&) {
        Procedure("test.Inner", [](Frame&) {
            throw Failure(FailureKind::pathNotFound, "no/where");
        });
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 76));
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Inner");
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(76, "test.Inner", "path not found: no/where")));
}

TEST_F(FrameTest, RaisingAWarningShowsItAndGoesOnBehindIt) {
    std::string steps;
    const auto end = RunIn("test.P", [&](Frame& frame) {
        steps += "before ";
        frame.Raise(Message::modelLayoutNotConverted, "model");
        steps += "behind";
    });
    EXPECT_EQ(end, std::nullopt);
    EXPECT_EQ(steps, "before behind");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
    EXPECT_THAT(Boxes(), ElementsAre(WarningBox(2060, "test.P", TestText(2060, {"model"}))));
}

TEST_F(FrameTest, RaiseDescribesTheMessageWithItsArguments) {
    RunIn("test.P", [](Frame& frame) {
        frame.Raise(Message::unknownNameKind, "a", std::string("b"));
        frame.Raise(Message::unknownNameKind, "", "b");
        frame.Raise(Message::profileOdd);
    });
    EXPECT_THAT(Boxes(), ElementsAre(WarningBox(2040, "test.P", "2040|a|b|%3$s|%4$s"),
                                     WarningBox(2040, "test.P", "2040|%1$s|%2$s|%3$s|%4$s"),
                                     WarningBox(2220, "test.P", "2220|%1$s|%2$s|%3$s|%4$s")));
}

TEST_F(FrameTest, RaiseOfANumberThatEndsTheRunDoesNotGoOnBehindIt) {
    bool behind = false;
    const auto end = RunIn("test.P", [&](Frame& frame) {
        frame.Raise(Message::arisNotStarted);
        behind = true;
    });
    EXPECT_THAT(end, EndedRun(RunEnding::endedByFailure, 2010));
    EXPECT_FALSE(behind);
}

TEST_F(FrameTest, LeavingReturnsFromTheProcedureNormallyWithAZeroValue) {
    AnswerNextQuestion(BoxAnswer::no);
    bool behind = false;
    const int result = Procedure("test.P", [&](Frame& frame) {
        frame.RaiseBare(CancelNumber::optionsForm);
        behind = true;
        return 7;
    });
    EXPECT_EQ(result, 0);
    EXPECT_FALSE(behind);
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
    EXPECT_THAT(Boxes(), ElementsAre(QuestionBox(999, "test.P")));
}

TEST_F(FrameTest, YesToTheQuestionEndsTheRun) {
    AnswerNextQuestion(BoxAnswer::yes);
    const auto end = RunIn("test.P", [](Frame& frame) {
        frame.RaiseBare(CancelNumber::optionsForm);
    });
    EXPECT_THAT(end, EndedRun(RunEnding::endedByFailure, 999));
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.P");
}

TEST_F(FrameTest, AFailureThatIsThrownAndAnsweredWithNoLeavesTheProcedureToo) {
    AnswerNextQuestion(BoxAnswer::no);
    const auto end = RunIn("test.P", [](Frame&) {
        throw Failure(CancelNumber::optionsForm);
    });
    EXPECT_EQ(end, std::nullopt);
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FrameTest, LeavingTheFrameOfAnOuterProcedureLeavesTheInnerOneAsWell) {
    AnswerNextQuestion(BoxAnswer::no);
    std::string steps;
    Procedure("test.Outer", [&](Frame& outer) {
        Procedure("test.Inner", [&](Frame&) {
            steps += "inner ";
            outer.RaiseBare(CancelNumber::optionsForm);
            steps += "behind it ";
        });
        steps += "behind the inner one";
    });
    EXPECT_EQ(steps, "inner ");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FrameTest, AStepWithoutAFailureRunsOnce) {
    int runs = 0;
    RunIn("test.P", [&](Frame& frame) {
        frame.Step([&] {
            ++runs;
        });
    });
    EXPECT_EQ(runs, 1);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(FrameTest, AStepIsPassedOverByAWarningAndLeavesItsTargetUntouched) {
    std::string target = "untouched";
    std::string steps;
    const auto end = RunIn("test.P", [&](Frame& frame) {
        const auto convert = []() -> std::string {
            Fail(Message::ruleDoubled, "rule");
        };
        frame.Step([&] {
            target = convert();
        });
        steps += "behind";
    });
    EXPECT_EQ(end, std::nullopt);
    EXPECT_EQ(target, "untouched");
    EXPECT_EQ(steps, "behind");
    EXPECT_THAT(Boxes(), ElementsAre(WarningBox(2110, "test.P", TestText(2110, {"rule"}))));
}

TEST_F(FrameTest, AStepRunsAgainForAsLongAsTheAnswerIsRetry) {
    Answer("file cancel:no\nfile cancel:no\nfile out.wpx\n");
    std::string chosen;
    const auto end = RunIn("test.P", [&](Frame& frame) {
        frame.Step([&] {
            const auto name = gBlock.gPlatform->fileDialog.AskSaveName({});
            if (!name) throw Failure(CancelNumber::fileDialog);
            chosen = *name;
        });
    });
    EXPECT_EQ(end, std::nullopt);
    EXPECT_EQ(chosen, "out.wpx");
    EXPECT_THAT(Boxes(), ElementsAre(QuestionBox(32755, "test.P"), QuestionBox(32755, "test.P")));
}

TEST_F(FrameTest, AStepEndsTheRunWhereTheAnswerIsToEnd) {
    AnswerNextQuestion(BoxAnswer::yes);
    const auto end = RunIn("test.P", [](Frame& frame) {
        frame.Step([] {
            throw Failure(CancelNumber::fileDialog);
        });
    });
    EXPECT_THAT(end, EndedRun(RunEnding::endedByFailure, 32755));
}

TEST_F(FrameTest, AStepEndsTheRunForAnUnknownNumber) {
    const auto end = RunIn("test.P", [](Frame& frame) {
        frame.Step([] {
            throw Failure(FailureKind::objectNotSet);
        });
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 91));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(91, "test.P", "object not set")));
}

TEST_F(FrameTest, AStepThatIsLeftLeavesTheProcedure) {
    AnswerNextQuestion(BoxAnswer::no);
    bool behind = false;
    const auto end = RunIn("test.P", [&](Frame& frame) {
        frame.Step([] {
            throw Failure(CancelNumber::optionsForm);
        });
        behind = true;
    });
    EXPECT_EQ(end, std::nullopt);
    EXPECT_FALSE(behind);
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FrameTest, ANamedScopeRestoresTheCallersNameAtItsNormalEnd) {
    const NamedScope scope("test.Scope");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Scope");
    scope.End();
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FrameTest, AFailureInANamedScopeReachesTheCallersFrameUnderTheScopesName) {
    const auto end = RunIn("test.P", [](Frame&) {
        const NamedScope scope("test.Scope");
        throw Failure(FailureKind::overflow);
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 6));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(6, "test.Scope", "overflow")));
}

TEST_F(FrameTest, AStepPassedOverInANamedScopeGoesOnUnderTheScopesNameUntilTheProcedureEnds) {
    RunIn("test.P", [](Frame& frame) {
        frame.Step([] {
            const NamedScope scope("test.Scope");
            Fail(Message::unknownNameKind, "12", "name");
        });
        EXPECT_EQ(gBlock.gCurrentProcedure, "test.Scope");
    });
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
    EXPECT_THAT(Boxes(), ElementsAre(WarningBox(2040, "test.Scope", TestText(2040, {"12", "name"}))));
}

TEST_F(FrameTest, MemoryThatRunsOutIsFailure7) {
    const auto end = RunIn("test.P", [](Frame&) {
        throw std::bad_alloc();
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 7));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(7, "test.P", "out of memory")));
}

TEST_F(FrameTest, MemoryThatRunsOutInAStepIsFailure7) {
    const auto end = RunIn("test.P", [](Frame& frame) {
        frame.Step([] {
            throw std::bad_alloc();
        });
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 7));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(7, "test.P", "out of memory")));
}

TEST_F(FrameTest, TheEndOfTheRunPassesThroughFramesAndStepsWithoutABox) {
    const auto end = RunIn("test.Outer", [](Frame& outer) {
        outer.Step([] {
            Procedure("test.Inner", [](Frame&) {
                throw RunEnd{RunEnding::noLanguageLibrary, 0};
            });
        });
    });
    EXPECT_THAT(end, EndedRun(RunEnding::noLanguageLibrary, 0));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(FrameTest, AMistakeOfTheProgramPassesThroughFramesAndStepsWithoutABox) {
    const auto run = [] {
        Procedure("test.P", [](Frame& frame) {
            frame.Step([] {
                throw std::logic_error("bug");
            });
        });
    };
    EXPECT_THAT(run, testing::ThrowsMessage<std::logic_error>("bug"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(FrameTest, FailIsAFailureDescribedByItsText) {
    const auto run = [] {
        Fail(Message::wrongSelection, "item");
    };
    EXPECT_THAT(run, Throws<Failure>(
                         testing::AllOf(testing::Field(&Failure::Number, 2020),
                                        testing::Field(&Failure::Description, TestText(2020, {"item"})))));
}

TEST_F(FrameTest, AStackThatIsNearlyUsedUpIsFailure28) {
    const char here = 0;
    gBlock.gStackEnd = &here;
    const auto end = RunIn("test.P", [](Frame&) {
        FAIL() << "the body must not run";
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 28));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(28, "test.P", "out of stack space")));
}

}  // namespace
}  // namespace wxbrg
