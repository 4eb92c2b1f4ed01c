// The search along chains of rules.

#include <gmock/gmock.h>

#include "mapping/RelatedObjectSearch.h"
#include "mapping/RelatingPaths.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view controlRule = "FUNCTION_SENDS_CONTROL_TO_FUNCTION";
constexpr const char* tooDeep = "C2230 in modMappingRule.Find_Related_ARIS_ObjDef_Using_Mapping_Rule: ";

class RelatedSearchTest : public CoreTest {
  protected:
    static std::vector<std::string> Related(const ARISObjDef& item, std::string_view rule = controlRule) {
        Collection<ARISObjDef> result;
        return NamesOf(Find_Related_ARIS_ObjDef_Using_Mapping_Rule(result, item, rule));
    }
    static std::int32_t EndOfSearch(const ARISObjDef& item) {
        return EndOf([&] {
            Related(item);
        });
    }
    /// A function, as many rule objects one behind the other, and a function.
    Ref<FakeObject> ChainOfRules(int count) {
        const Ref<FakeObject> start = Function("start");
        Ref<FakeObject> last = start;
        for (int i = 1; i <= count; ++i) {
            const Ref<FakeObject> next = RuleObject("rule " + std::to_string(i));
            Flow({last, next});
            last = next;
        }
        Flow({last, Function("end")});
        return start;
    }
};

TEST_F(RelatedSearchTest, OnlyTheObjectsAtTheEndOfAChainAreFound) {
    const Ref<FakeObject> start = Function("start");
    Flow({start, Event("event"), RuleObject("rule"), Function("end")});
    EXPECT_THAT(Related(start), ElementsAre("end"));
    EXPECT_EQ(gBlock.gRelatedSearchDepth, 0);
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
}

TEST_F(RelatedSearchTest, AllStepsOfTheRuleThatStartFromTheTypeAreTakenInTheirOrder) {
    const Ref<FakeObject> start = Function("start");
    Flow({start, RuleObject("rule"), Function("behind the rule")});
    Flow({start, Event("event"), Function("behind the event")});
    Flow({start, Function("direct")});
    EXPECT_THAT(Related(start), ElementsAre("direct", "behind the event", "behind the rule"));
}

TEST_F(RelatedSearchTest, AnObjectThatSeveralWaysLeadToStandsWhereItIsFoundFirst) {
    const Ref<FakeObject> start = Function("start");
    const Ref<FakeObject> end = Function("end");
    const Ref<FakeObject> event = Event("event");
    Flow({start, event, end});
    Flow({event, RuleObject("rule"), end});
    Flow({start, RuleObject("other"), Function("last")});
    EXPECT_THAT(Related(start), ElementsAre("end", "last"));
}

TEST_F(RelatedSearchTest, ATypeThatNoStepStartsFromLeadsNowhere) {
    EXPECT_THAT(Related(Drawn(ObjectType::person, "person")), IsEmpty());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(RelatedSearchTest, WhatIsNotDrawnBreaksAChain) {
    const Ref<FakeObject> start = Function("start");
    const Ref<FakeObject> undrawn = repository.Object(ObjectType::event, "undrawn");
    Flow({start, undrawn, Function("end")});
    EXPECT_THAT(Related(start), IsEmpty());
    repository.Draw(elsewhere, undrawn);
    EXPECT_THAT(Related(start), ElementsAre("end"));
}

TEST_F(RelatedSearchTest, AnObjectThatIsNotDrawnIsNoPlaceToStartAndItsRuleIsNotAskedFor) {
    const Ref<FakeObject> undrawn = repository.Object(ObjectType::function, "undrawn");
    Flow({undrawn, Function("end")});
    EXPECT_THAT(Related(undrawn), IsEmpty());
    EXPECT_THAT(Related(undrawn, "NO_RULE"), IsEmpty());
}

TEST_F(RelatedSearchTest, ARuleThatIsBlankIsLookedForWhereAStepArrives) {
    const Ref<clsMappingRule> rule = NewRule("BLANK_CHAIN");
    AddStep(rule, ObjectType::function, CxnKind::outgoing, 118, ObjectType::function, " ");
    const Ref<FakeObject> start = Function("start");
    EXPECT_THAT(Related(start, "BLANK_CHAIN"), IsEmpty());
    Flow({start, Function("end")});
    EXPECT_EQ(EndOf([&] {
                  Related(start, "BLANK_CHAIN");
              }),
              2100);
}

TEST_F(RelatedSearchTest, ARuleMayChainToItself) {
    EXPECT_THAT(Related(ChainOfRules(20)), ElementsAre("end"));
}

TEST_F(RelatedSearchTest, AHundredNestedSearchesAreAllowed) {
    EXPECT_THAT(Related(ChainOfRules(99)), ElementsAre("end"));
    EXPECT_EQ(gBlock.gRelatedSearchDepth, 0);
}

TEST_F(RelatedSearchTest, TheHundredAndFirstNestedSearchEndsTheRun) {
    EXPECT_EQ(EndOfSearch(ChainOfRules(100)), 2230);
    EXPECT_THAT(Boxes(), ElementsAre(tooDeep + std::string("rule 100|T50")));
    EXPECT_EQ(gBlock.gRelatedSearchDepth, 100);
}

TEST_F(RelatedSearchTest, TheDepthThatIsReachedAlreadyCounts) {
    const Ref<FakeObject> start = Function("start");
    gBlock.gRelatedSearchDepth = 100;
    EXPECT_EQ(EndOfSearch(start), 2230);
    EXPECT_THAT(Boxes(), ElementsAre(tooDeep + std::string("start|T22")));
}

TEST_F(RelatedSearchTest, ACircleEndsTheRunAtTheObjectAtWhichTheDepthIsReached) {
    const Ref<FakeObject> start = Function("start");
    const Ref<FakeObject> a = Event("a");
    const Ref<FakeObject> b = RuleObject("b");
    const Ref<FakeObject> c = RuleObject("c");
    Flow({start, a, b, c});
    Flow({c, a});
    // The start is search 1, a 2, b 3, c 4, a again 5 and so on: search 101 is at a.
    EXPECT_EQ(EndOfSearch(start), 2230);
    EXPECT_THAT(Boxes(), ElementsAre(tooDeep + std::string("a|T18")));
}

TEST_F(RelatedSearchTest, AnObjectThatLeadsToItselfIsACircle) {
    const Ref<FakeObject> start = Function("start");
    const Ref<FakeObject> rule = RuleObject("rule");
    Flow({start, rule, rule});
    EXPECT_EQ(EndOfSearch(start), 2230);
    EXPECT_THAT(Boxes(), ElementsAre(tooDeep + std::string("rule|T50")));
}

TEST_F(RelatedSearchTest, ALongChainInFrontOfTheCircleMayReachTheDepthFirst) {
    const Ref<FakeObject> start = Function("start");
    const Ref<FakeObject> turn = RuleObject("turn");
    Flow({start, turn});
    Ref<FakeObject> last = turn;
    for (int i = 1; i <= 50; ++i) {
        const Ref<FakeObject> next = RuleObject("side " + std::to_string(i));
        Flow({last, next});
        last = next;
    }
    Flow({turn, turn});
    // The chain of 50 is walked again at each turn; behind the turn at search 51 it is too long.
    EXPECT_EQ(EndOfSearch(start), 2230);
    EXPECT_THAT(Boxes(), ElementsAre(tooDeep + std::string("side 50|T50")));
}

TEST_F(RelatedSearchTest, ACircleOverAFunctionIsHarmless) {
    const Ref<FakeObject> start = Function("start");
    const Ref<FakeObject> other = Function("other");
    Flow({start, Event("go"), other, Event("back"), start});
    EXPECT_THAT(Related(start), ElementsAre("other"));
    EXPECT_THAT(Related(other), ElementsAre("start"));
}

TEST_F(RelatedSearchTest, WhatIsFoundJoinsWhatTheResultHolds) {
    const Ref<FakeObject> start = Function("start");
    const Ref<FakeObject> held = Function("held");
    Flow({start, held});
    Flow({start, Function("new")});
    Collection<ARISObjDef> result = ObjectsOf({held});
    EXPECT_THAT(NamesOf(Find_Related_ARIS_ObjDef_Using_Mapping_Rule(result, start, controlRule)),
                ElementsAre("held", "new"));
}

TEST_F(RelatedSearchTest, AChainOfThirtyDiamondsIsWalkedOnce) {
    const Ref<FakeObject> start = Function("start");
    Ref<FakeObject> top = RuleObject("top 0");
    Flow({start, top});
    for (int i = 1; i <= 30; ++i) {
        const Ref<FakeObject> next = RuleObject("top " + std::to_string(i));
        Flow({top, RuleObject("left"), next});
        Flow({top, RuleObject("right"), next});
        top = next;
    }
    const Ref<FakeObject> end = Function("end");
    Flow({top, end});
    EXPECT_THAT(Related(start), ElementsAre("end"));
    // Three kinds of connections for each of the 91 rule objects and the start.
    EXPECT_EQ(repository.ConnectionQuestions(), 3U * 92U);
    EXPECT_TRUE(ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(start, end, controlRule));
    EXPECT_LT(repository.ConnectionQuestions(), 1000U);
}

}  // namespace
}  // namespace wxbrg::test
