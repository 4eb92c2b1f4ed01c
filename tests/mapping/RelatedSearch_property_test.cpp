// The search along chains against the plain recursion that it stands for.

#include <gmock/gmock.h>

#include <algorithm>
#include <utility>

#include "mapping/RelatedObjectSearch.h"
#include "tests/fixture/CoreTest.h"
#include "tests/fixture/RandomChoices.h"

namespace wxbrg::test {
namespace {

constexpr int ruleCount = 4;

/// How a search ends: what it finds, or the object at which the nesting is too deep.
struct Outcome {
    std::vector<std::string> found;
    std::string tooDeepAt;

    friend bool operator==(const Outcome&, const Outcome&) = default;
    friend void PrintTo(const Outcome& outcome, std::ostream* stream) {
        *stream << testing::PrintToString(outcome.found) << " too deep at '" << outcome.tooDeepAt << "'";
    }
};

/// The search in its plain form: down every chain, again and again.
class PlainSearch {
  public:
    explicit PlainSearch(const ARISObjDef& item, std::string_view rule) { Visit(item, rule); }

    Outcome Result() const {
        return tooDeepAt_.empty() ? Outcome{NamesOf(found_), ""} : Outcome{{}, tooDeepAt_};
    }
    /// Whether it gave up because it took too long.
    bool TookTooLong() const { return visits_ > mostVisits; }

  private:
    static constexpr int mostVisits = 50000;

    bool IsOver() const { return !tooDeepAt_.empty() || TookTooLong(); }

    void Visit(const ARISObjDef& item, std::string_view ruleName) {
        if (IsOver() || ++visits_ > mostVisits) return;
        if (depth_ >= 100) {
            tooDeepAt_ = item->Name(english);
            return;
        }
        ++depth_;
        if (item->OccList().Count() > 0)
            for (const clsConnectionMapping& step :
                 gBlock.gColMappingRule.Item(ruleName)->ColConnectionMapping)
                if (item->TypeNum() == step.SourceObjTypeNum) Take(item, step);
        --depth_;
    }

    void Take(const ARISObjDef& item, const clsConnectionMapping& step) {
        Collection<ARISObjDef> steps;
        Find_Related_ARIS_ObjDef(steps, item, step.CnxKind, step.CnxTypeNum, step.TargetObjTypeNum);
        for (const ARISObjDef& next : steps) {
            if (!step.IsChainedConnection())
                found_.AddNew(next, next->Guid());
            else if (next->OccList().Count() > 0)
                Visit(next, step.TargetObjRule);
        }
    }

    Collection<ARISObjDef> found_;
    std::string tooDeepAt_;
    int depth_ = 0;
    int visits_ = 0;
};

std::string RuleName(int number) {
    return "RULE " + std::to_string(number);
}

/// What random graphs and rules look like.
struct Shape {
    int graphs = 0;
    int objects = 0;
    int connections = 0;
    int reach = 0;           ///< how many objects onward a connection leads at most
    int connectionBack = 0;  ///< one connection in so many leads back; 0: none
    int stepBack = 0;        ///< one step of the rules in so many leads against its connections; 0: none
};

/// How many of the compared searches found something, and how many failed.
struct Compared {
    int found = 0;
    int failed = 0;
};

class RelatedSearchPropertyTest : public CoreTest, protected RandomChoices<20260101> {
  protected:
    /// Rules over two types of objects and two types of connections.
    void MakeRules(const Shape& shape) {
        for (int i = 0; i < ruleCount; ++i) {
            const Ref<clsMappingRule> rule = NewRule(RuleName(i));
            for (int steps = 3 + Below(3); steps > 0; --steps)
                AddStep(rule, 1 + Below(2), OneIn(shape.stepBack) ? CxnKind::incoming : CxnKind::outgoing,
                        1 + Below(2), 1 + Below(2), OneIn(4) ? "" : RuleName(Below(ruleCount)));
        }
    }

    /// Objects and connections, a few of them not drawn.
    std::vector<Ref<FakeObject>> MakeGraph(const Shape& shape) {
        std::vector<Ref<FakeObject>> objects;
        for (int i = 0; i < shape.objects; ++i) {
            objects.push_back(repository.Object(1 + Below(2), "object " + std::to_string(i)));
            if (!OneIn(40)) repository.Draw(elsewhere, objects.back());
        }
        for (int i = 0; i < shape.connections; ++i) {
            int from = Below(shape.objects - 1);
            int to = std::min(shape.objects - 1, from + 1 + Below(shape.reach));
            if (OneIn(shape.connectionBack)) std::swap(from, to);
            const Ref<FakeConnection> connection = repository.ConnectUndrawn(
                objects[static_cast<std::size_t>(from)], 1 + Below(2), objects[static_cast<std::size_t>(to)]);
            if (!OneIn(40)) connection->Draw();
        }
        return objects;
    }

    Outcome Search(const ARISObjDef& item, std::string_view rule) {
        const std::size_t boxes = Boxes().size();
        Collection<ARISObjDef> found;
        gBlock.gRelatedSearchDepth = 0;
        const std::int32_t end = EndOf([&] {
            Find_Related_ARIS_ObjDef_Using_Mapping_Rule(found, item, rule);
        });
        if (end == 0) {
            EXPECT_EQ(gBlock.gRelatedSearchDepth, 0);
            return {NamesOf(found), ""};
        }
        EXPECT_EQ(end, 2230);
        EXPECT_EQ(gBlock.gRelatedSearchDepth, 100);
        EXPECT_EQ(Boxes().size(), boxes + 1);
        const std::string box = Boxes().back();
        const std::size_t name = box.find(": ") + 2;
        return {{}, box.substr(name, box.rfind('|') - name)};
    }

    void CompareFrom(const ARISObjDef& item, std::string_view rule, Compared& compared) {
        const PlainSearch plain(item, rule);
        if (plain.TookTooLong()) return;
        const Outcome expected = plain.Result();
        EXPECT_EQ(Search(item, rule), expected) << "from " << item->Name(english);
        compared.found += expected.found.empty() ? 0 : 1;
        compared.failed += expected.tooDeepAt.empty() ? 0 : 1;
    }

    Compared Compare(const Shape& shape) {
        Compared compared;
        for (int graph = 0; graph < shape.graphs && !HasFailure(); ++graph) {
            MakeRules(shape);
            const std::vector<Ref<FakeObject>> objects = MakeGraph(shape);
            for (std::size_t start = 0; start < objects.size(); start += 2)
                CompareFrom(objects[start], RuleName(Below(ruleCount)), compared);
        }
        return compared;
    }

    /// About a hundred rule objects in a chain, with some shortcuts, and a function behind some of them.
    std::vector<Ref<FakeObject>> MakeLongChain() {
        std::vector<Ref<FakeObject>> chain;
        for (int i = 95 + Below(20); i > 0; --i) chain.push_back(RuleObject("rule " + std::to_string(i)));
        const auto connect = [&](std::size_t from, std::size_t to) {
            if (to < chain.size()) Flow({chain[from], chain[to]});
        };
        for (std::size_t i = 0; i < chain.size(); ++i) {
            if (OneIn(30)) connect(i, i + 2);
            connect(i, i + 1);
            if (OneIn(30)) connect(i, i + 2 + static_cast<std::size_t>(Below(9)));
            if (OneIn(10)) Flow({chain[i], Function("function " + std::to_string(i))});
        }
        return chain;
    }
};

TEST_F(RelatedSearchPropertyTest, FindsTheSameInTheSameOrderWithoutCircles) {
    const Compared compared = Compare({.graphs = 200, .objects = 30, .connections = 60, .reach = 4});
    EXPECT_GT(compared.found, 500);
    EXPECT_EQ(compared.failed, 0);
}

TEST_F(RelatedSearchPropertyTest, FailsAtTheSameObjectInCircles) {
    const Compared compared = Compare(
        {.graphs = 250, .objects = 20, .connections = 40, .reach = 3, .connectionBack = 8, .stepBack = 8});
    EXPECT_GT(compared.found, 100);
    EXPECT_GT(compared.failed, 100);
}

TEST_F(RelatedSearchPropertyTest, MeetsTheLimitWhereLongChainsPartAndMeet) {
    Compared compared;
    for (int graph = 0; graph < 60; ++graph) {
        const std::vector<Ref<FakeObject>> chain = MakeLongChain();
        for (std::size_t start = 0; start < 20; start += 3)
            CompareFrom(chain[start], "RULE_SENDS_CONTROL_TO_FUNCTION", compared);
    }
    EXPECT_GT(compared.found, 100);
    EXPECT_GT(compared.failed, 100);
}

}  // namespace
}  // namespace wxbrg::test
