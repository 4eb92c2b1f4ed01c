#include "model/FlowLoops.h"

#include <gmock/gmock.h>

#include "mapping/StringLists.h"
#include "tests/fixture/CoreTest.h"
#include "tests/fixture/RandomChoices.h"

namespace wxbrg::test {
namespace {

TEST(FlowLoops, AConnectorToItselfClosesNoCircle) {
    FlowLoops flow;
    EXPECT_FALSE(flow.ClosesLoop("a", "a"));
    flow.Add("a", "a");
    EXPECT_FALSE(flow.ClosesLoop("a", "a"));
    EXPECT_FALSE(flow.ClosesLoop("b", "a"));
}

TEST(FlowLoops, AWayBackClosesACircle) {
    FlowLoops flow;
    flow.Add("b", "c");
    EXPECT_FALSE(flow.ClosesLoop("a", "b"));
    flow.Add("c", "a");
    EXPECT_TRUE(flow.ClosesLoop("a", "b"));
    EXPECT_FALSE(flow.ClosesLoop("b", "a"));
}

TEST(FlowLoops, AnObjectThatDiffersInCaseAloneIsMetWithTheOther) {
    FlowLoops flow;
    flow.Add("b", "X");
    flow.Add("b", "x");
    flow.Add("x", "a");
    EXPECT_FALSE(flow.ClosesLoop("a", "b"));
    flow.Add("X", "a");
    EXPECT_TRUE(flow.ClosesLoop("a", "b"));
}

TEST(FlowLoops, ALongChainNeedsNoRecursion) {
    FlowLoops flow;
    constexpr int length = 200000;
    for (int i = 0; i < length; ++i) flow.Add(std::to_string(i), std::to_string(i + 1));
    EXPECT_TRUE(flow.ClosesLoop(std::to_string(length), "0"));
    EXPECT_FALSE(flow.ClosesLoop("away", "0"));
}

/// A connector of the plain reading.
struct PlainConnector {
    ARISObjDef from;
    ARISObjDef to;
};

/// The test in its plain form: a walk by recursion over all connectors.
class PlainWalk {
  public:
    PlainWalk(const std::vector<PlainConnector>& connectors, const PlainConnector& start)
        : connectors_(connectors), start_(start) {
        visited_.Add(start.to, start.to->Guid());
        closes = Walk(start);
    }

    bool closes = false;

  private:
    bool Walk(const PlainConnector& connector) {
        if (connector.from->Guid() == connector.to->Guid()) return false;
        for (const PlainConnector& next : connectors_) {
            if (next.from->Guid() != connector.to->Guid()) continue;
            if (ARIS_ObjDefIsMemberOfCollection(next.to, visited_)) continue;
            visited_.AddNew(next.to, next.to->Guid());
            const bool behind = Walk(next);
            if (next.to->Guid() == start_.from->Guid() || behind) return true;
        }
        return false;
    }

    const std::vector<PlainConnector>& connectors_;
    const PlainConnector& start_;
    Collection<ARISObjDef> visited_;
};

class FlowLoopsPropertyTest : public CoreTest, protected RandomChoices<20260104> {
  protected:
    std::vector<ARISObjDef> MakeObjects(int count) {
        std::vector<ARISObjDef> objects;
        for (int i = 0; i < count; ++i) {
            // Every fourth Guid differs from another in case alone.
            const std::string guid = (i % 4 == 3 ? "{G" + std::to_string(i - 1) : "{g" + std::to_string(i));
            objects.push_back(repository.Object(ObjectType::function, "f", guid + "}"));
        }
        return objects;
    }
};

TEST_F(FlowLoopsPropertyTest, AnswersAsThePlainRecursionDoes) {
    int closing = 0;
    int open = 0;
    int found = 0;
    for (int round = 0; round < 400 && !HasFailure(); ++round) {
        const int size = 3 + Below(10);
        const std::vector<ARISObjDef> objects = MakeObjects(size);
        std::vector<PlainConnector> connectors;
        FlowLoops flow;
        for (int i = Below(3 * size); i >= 0; --i) {
            const PlainConnector added{objects[static_cast<std::size_t>(Below(size))],
                                       objects[static_cast<std::size_t>(Below(size))]};
            gBlock.gFailureContext = "";
            const PlainWalk plain(connectors, added);
            EXPECT_EQ(flow.ClosesLoop(added.from->Guid(), added.to->Guid()), plain.closes) << round;
            EXPECT_EQ(flow.LastTestFound(), gBlock.gFailureContext == "Retrieve collection member") << round;
            ++(plain.closes ? closing : open);
            found += flow.LastTestFound() ? 1 : 0;
            connectors.push_back(added);
            flow.Add(added.from->Guid(), added.to->Guid());
        }
    }
    EXPECT_GT(closing, 500);
    EXPECT_GT(open, 500);
    EXPECT_GT(found, 500);
}

}  // namespace
}  // namespace wxbrg::test
