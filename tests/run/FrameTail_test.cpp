// Failures that come up while a frame's tail is at work, and those that no tail can answer.

#include <gmock/gmock.h>

#include <functional>
#include <initializer_list>
#include <limits>
#include <stdexcept>

#include "run/Frame.h"
#include "run/clsExceptionHandler.h"
#include "tests/run/RunFixture.h"
#include "tests/support/FailureMatcher.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::ThrowsMessage;

class FrameTailTest : public RunFixture {};

class NumberOutside16BitsTest : public FrameTailTest, public testing::WithParamInterface<std::int32_t> {};

TEST_P(NumberOutside16BitsTest, IsOverflowInTheCallersFrameUnderTheInnerProceduresName) {
    bool behind = false;
    const auto end = RunIn("test.Outer", [&](Frame&) {
        Procedure("test.Inner", [](Frame&) {
            throw Failure::WithDescription(GetParam(), "what ARIS says");
        });
        behind = true;
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 6));
    EXPECT_FALSE(behind);
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Inner");
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(6, "test.Inner", "overflow")));
}

INSTANTIATE_TEST_SUITE_P(, NumberOutside16BitsTest,
                         testing::Values(32768, -32769, 40000, -2147352567,
                                         std::numeric_limits<std::int32_t>::min(),
                                         std::numeric_limits<std::int32_t>::max()));

class NumberAtTheEdgeOf16BitsTest : public FrameTailTest, public testing::WithParamInterface<std::int32_t> {};

TEST_P(NumberAtTheEdgeOf16BitsTest, IsShownAsItIs) {
    const auto end = RunIn("test.Outer", [&](Frame&) {
        Procedure("test.Inner", [](Frame&) {
            throw Failure::WithDescription(GetParam(), "what ARIS says");
        });
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, GetParam()));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(GetParam(), "test.Inner", "what ARIS says")));
}

INSTANTIATE_TEST_SUITE_P(, NumberAtTheEdgeOf16BitsTest, testing::Values(32767, -32768, -1, 0));

TEST_F(FrameTailTest, ARaisedNumberOutside16BitsBelongsToTheCallersFrame) {
    const auto end = RunIn("test.Outer", [](Frame&) {
        Procedure("test.Inner", [](Frame& frame) {
            frame.RaiseBare(40000);
        });
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 6));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(6, "test.Inner", "overflow")));
}

TEST_F(FrameTailTest, ANumberOutside16BitsInAStepBelongsToTheCallersFrame) {
    bool behind = false;
    const auto end = RunIn("test.Outer", [&](Frame&) {
        Procedure("test.Inner", [&](Frame& frame) {
            frame.Step([&] {
                frame.Step([] {
                    throw Failure(40000);
                });
            });
            behind = true;
        });
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 6));
    EXPECT_FALSE(behind);
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(6, "test.Inner", "overflow")));
}

TEST_F(FrameTailTest, AStepOfTheCallerMeetsTheFailureOfTheInnerTail) {
    const auto end = RunIn("test.Outer", [](Frame& outer) {
        outer.Step([] {
            Procedure("test.Inner", [](Frame&) {
                throw Failure(40000);
            });
        });
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 6));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(6, "test.Inner", "overflow")));
}

TEST_F(FrameTailTest, WithoutACallersFrameTheFailureOfTheTailLeavesTheProcedure) {
    const auto thrown = [](Frame&) {
        throw Failure(-40000);
    };
    const auto raised = [](Frame& frame) {
        frame.RaiseBare(40000);
    };
    const auto inAStep = [](Frame& frame) {
        frame.Step([] {
            throw Failure(40000);
        });
    };
    const auto raisedInAStep = [](Frame& frame) {
        frame.Step([&] {
            frame.RaiseBare(40000);
        });
    };
    for (const std::function<void(Frame&)>& body :
         std::initializer_list<std::function<void(Frame&)>>{thrown, raised, inAStep, raisedInAStep})
        EXPECT_THAT(
            [&] {
                Procedure("test.P", body);
            },
            Fails(FailureKind::overflow));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(FrameTailTest, ABoxThatFailsBelongsToTheCallersFrame) {
    messageBox_.nextFailure = Failure(FailureKind::fileAccess, "desktop");
    const auto end = RunIn("test.Outer", [](Frame&) {
        Procedure("test.Inner", [](Frame& frame) {
            frame.Raise(Message::modelLayoutNotConverted, "model");
        });
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 75));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(75, "test.Inner", "file access error: desktop")));
}

TEST_F(FrameTailTest, AFrameIsOutOfItsTailAgainWhenAWarningIsAnswered) {
    bool passed = false;
    const auto end = RunIn("test.Outer", [&](Frame&) {
        Procedure("test.Inner", [&](Frame& frame) {
            frame.Raise(Message::modelLayoutNotConverted, "model");
            frame.Step([] {
                Fail(Message::ruleDoubled, "rule");
            });
            passed = true;
            throw Failure(FailureKind::objectNotSet);
        });
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 91));
    EXPECT_TRUE(passed);
    EXPECT_THAT(Boxes(), ElementsAre(WarningBox(2060, "test.Inner", TestText(2060, {"model"})),
                                     WarningBox(2110, "test.Inner", TestText(2110, {"rule"})),
                                     UnknownFailureBox(91, "test.Inner", "object not set")));
}

TEST_F(FrameTailTest, WithoutAnExceptionHandlerAFailureIsAnErrorThatNamesItself) {
    gBlock.gExceptionHandler = nullptr;
    const auto run = [] {
        Procedure("test.P", [](Frame&) {
            throw Failure(FailureKind::fileAccess, "wxbrgENU.dll");
        });
    };
    EXPECT_THAT(run,
                ThrowsMessage<std::runtime_error>("failure 75 in test.P: file access error: wxbrgENU.dll"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

#ifdef WXBRG_TEST_BUILD

TEST_F(FrameTailTest, AWarningThatReachesAFrameOutsideAStepStopsATestBuild) {
    const auto run = [] {
        Procedure("test.P", [](Frame&) {
            Fail(Message::ruleDoubled, "rule");
        });
    };
    EXPECT_DEATH(run(), "warning 2110 reached the frame of test.P outside a step");
}

#else

TEST_F(FrameTailTest, AWarningThatReachesAFrameOutsideAStepEndsTheRunAsAnUnknownFailure) {
    const auto end = RunIn("test.P", [](Frame&) {
        Fail(Message::ruleDoubled, "rule");
    });
    EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, 2110));
    EXPECT_THAT(Boxes(), ElementsAre(WarningBox(2110, "test.P", TestText(2110, {"rule"})),
                                     UnknownFailureBox(2110, "test.P", TestText(2110, {"rule"}))));
}

#endif

}  // namespace
}  // namespace wxbrg
