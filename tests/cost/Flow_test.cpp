// The connectors of large processes.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "data/clsDATA_CONNECTOR.h"
#include "data/modDATA_CONNECTOR.h"
#include "model/FlowLoops.h"
#include "model/clsPROCESS.h"
#include "platform/RunStack.h"
#include "run/modGlobals.h"
#include "tests/bench/Shapes.h"
#include "tests/bench/SilentRun.h"

namespace wxbrg::bench {
namespace {

TEST(FlowCostTest, ALoopOfAHundredThousandConnectorsIsFoundOnASmallStack) {
    constexpr std::size_t smallStack = std::size_t{256} << 10U;
    constexpr std::int64_t connectors = 100000;
    FlowLoops loops;
    for (std::int64_t i = 0; i + 1 < connectors; ++i) loops.Add(Numbered("guid", i), Numbered("guid", i + 1));
    bool closes = false;
    bool closesWithoutIt = true;
    OnReservedStack(smallStack, [&](const char*) {
        closes = loops.ClosesLoop(Numbered("guid", connectors - 1), Numbered("guid", 0));
        closesWithoutIt = loops.ClosesLoop("another guid", Numbered("guid", 0));
    });
    EXPECT_TRUE(closes);
    EXPECT_FALSE(closesWithoutIt);
}

/// How often the repository is asked for connections by the search for the data connectors of a process in
/// which as many functions read and write a data object of their own.
std::uint64_t QuestionsOfBoundaryConnectors(std::int64_t functions) {
    Drawing drawing;
    for (std::int64_t number = 0; number < functions; ++number) {
        const Ref<FakeObject> function = drawing.Function(number);
        drawing.Reads(function, drawing.EntityType(2 * number));
        drawing.Writes(function, drawing.EntityType(2 * number + 1));
    }
    SilentRun run;
    run.Begin();
    const Ref<clsPROCESS> process = gBlock.gPool.Create<clsPROCESS>();
    process->ARIS_Model = drawing.process;
    DATA_CONNECTOR_Find_ARIS_Mapping(*process);
    EXPECT_EQ(process->Col_DATA_CONNECTOR.Count(), 2 * functions);
    return drawing.repository.ConnectionQuestions();
}

TEST(FlowCostTest, DataThatCrossesTheProcessIsFoundWithAsManyQuestionsForEachFunctionHoweverManyThereAre) {
    const std::uint64_t questions = QuestionsOfBoundaryConnectors(100);
    EXPECT_EQ(QuestionsOfBoundaryConnectors(1000), 10 * questions);
}

}  // namespace
}  // namespace wxbrg::bench
