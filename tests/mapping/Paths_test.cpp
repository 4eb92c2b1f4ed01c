// Paths between two objects, and whether there is one.

#include <gmock/gmock.h>

#include <algorithm>

#include "mapping/RelatingPaths.h"
#include "mapping/modPath.h"
#include "platform/RunStack.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view controlRule = "FUNCTION_SENDS_CONTROL_TO_FUNCTION";
constexpr std::string_view isRelated =
    "modMappingRule.ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule";

bool IsRelated(const ARISObjDef& from, const ARISObjDef& to, std::string_view rule = controlRule) {
    return ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(from, to, rule);
}

class RelatingPathsTest : public CoreTest {
  protected:
    static std::vector<std::string> Paths(const ARISObjDef& from, const ARISObjDef& to,
                                          std::string_view rule = controlRule) {
        return PathTexts(Find_Relating_Paths_Using_Mapping_Rule({}, from, to, rule).value());
    }

    Ref<FakeObject> start = Function("start");
    Ref<FakeObject> end = Function("end");
};

TEST_F(RelatingPathsTest, ADirectConnectionIsAPathWithoutObjects) {
    Flow({start, end});
    EXPECT_THAT(Paths(start, end), ElementsAre("start > end"));
}

TEST_F(RelatingPathsTest, TheObjectsOfAChainStandOnThePathInWalkingOrder) {
    Flow({start, Event("event"), RuleObject("first"), RuleObject("second"), end});
    EXPECT_THAT(Paths(start, end), ElementsAre("start > event > first > second > end"));
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
}

TEST_F(RelatingPathsTest, AllPathsComeInTheOrderOfTheRule) {
    const Ref<FakeObject> rule = RuleObject("rule");
    const Ref<FakeObject> event = Event("event");
    Flow({start, rule, end});
    Flow({rule, Event("late"), end});
    Flow({start, event, end});
    Flow({event, RuleObject("inner"), end});
    Flow({start, end});
    EXPECT_THAT(Paths(start, end),
                ElementsAre("start > end", "start > event > end", "start > event > inner > end",
                            "start > rule > end", "start > rule > late > end"));
}

TEST_F(RelatingPathsTest, ChainsThatLeadElsewhereAreLeftOut) {
    Flow({start, Event("away"), Function("other")});
    Flow({start, Event("event"), end});
    EXPECT_THAT(Paths(start, end), ElementsAre("start > event > end"));
}

TEST_F(RelatingPathsTest, TwoStepsThatGiveTheSamePathGiveItTwice) {
    const Ref<clsMappingRule> rule = NewRule("TWICE");
    AddStep(rule, ObjectType::function, CxnKind::outgoing, 118, ObjectType::function);
    AddStep(rule, ObjectType::function, CxnKind::outgoing, 118, ObjectType::function);
    Flow({start, end});
    EXPECT_THAT(Paths(start, end, "TWICE"), ElementsAre("start > end", "start > end"));
}

TEST_F(RelatingPathsTest, TwoConnectionsOfOneTypeGiveOnePath) {
    Flow({start, end});
    Flow({start, end});
    EXPECT_THAT(Paths(start, end), ElementsAre("start > end"));
}

TEST_F(RelatingPathsTest, NoPathIsAnEmptyCollection) {
    EXPECT_THAT(Paths(start, end), IsEmpty());
}

TEST_F(RelatingPathsTest, AnEndThatIsNotDrawnGivesNoCollectionAtAll) {
    const Ref<FakeObject> undrawn = repository.Object(ObjectType::function, "undrawn");
    Flow({undrawn, end});
    Flow({start, undrawn});
    EXPECT_FALSE(Find_Relating_Paths_Using_Mapping_Rule({}, undrawn, end, controlRule));
    EXPECT_FALSE(Find_Relating_Paths_Using_Mapping_Rule({}, start, undrawn, controlRule));
    EXPECT_FALSE(Find_Relating_Paths_Using_Mapping_Rule({}, undrawn, end, "NO_RULE"));
}

TEST_F(RelatingPathsTest, PathsAreContinuedByThoseOfThePrefixThatEndAtTheStart) {
    const Ref<FakeObject> before = Function("before");
    Flow({start, end});
    PathCollection prefix;
    prefix.Add(CreatePath(before, start));
    prefix.Add(CreatePath(before, end));
    EXPECT_THAT(PathTexts(*Find_Relating_Paths_Using_Mapping_Rule(prefix, start, end, controlRule)),
                ElementsAre("before > start > end"));
}

TEST_F(RelatingPathsTest, APathFromAnObjectToItselfHoldsItAtBothEnds) {
    Flow({start, Event("again"), start});
    EXPECT_THAT(Paths(start, start), ElementsAre("start > again > start"));
}

TEST_F(RelatingPathsTest, AChainThatComesToAnObjectTwiceByTwoRulesEndsTheRun) {
    const Ref<FakeObject> event = Event("event");
    const Ref<FakeObject> rule = RuleObject("rule");
    Flow({event, rule, event, end});
    AddStep(NewRule("FIRST"), ObjectType::event, CxnKind::outgoing, 48, ObjectType::rule, "SECOND");
    AddStep(NewRule("SECOND"), ObjectType::rule, CxnKind::outgoing, 117, ObjectType::event, "THIRD");
    const Ref<clsMappingRule> third = NewRule("THIRD");
    AddStep(third, ObjectType::event, CxnKind::outgoing, 43, ObjectType::function);
    EXPECT_THAT(Paths(event, end, "FIRST"), ElementsAre("event > rule > event > end"));
    AddStep(third, ObjectType::event, CxnKind::outgoing, 48, ObjectType::rule, "FOURTH");
    AddStep(NewRule("FOURTH"), ObjectType::rule, CxnKind::outgoing, 43, ObjectType::function);
    Flow({rule, end});
    EXPECT_EQ(EndOf([&] {
                  Paths(event, end, "FIRST");
              }),
              FailureKind::duplicateKey);
    EXPECT_THAT(Boxes(), ElementsAre("C457 in modPath.ConcatenatePaths: duplicate key"));
}

TEST_F(RelatingPathsTest, ACircleThatTheRelationTestMeetsEndsTheRun) {
    const Ref<FakeObject> circle = RuleObject("circle");
    Flow({start, RuleObject("rule"), circle, circle, end});
    EXPECT_EQ(EndOf([&] {
                  Paths(start, end);
              }),
              2230);
    EXPECT_THAT(Boxes(), ElementsAre("C2230 in modMappingRule.Find_Related_ARIS_ObjDef_Using_Mapping_Rule: "
                                     "circle|T50"));
}

TEST_F(RelatingPathsTest, ACircleThatTheRelationTestDoesNotComeToUsesUpTheStack) {
    // From the circle's one object the end is found first, each time anew.
    const Ref<FakeObject> circle = RuleObject("circle");
    Flow({start, circle, circle, end});
    std::int32_t number = 0;
    OnReservedStack(std::size_t{4} << 20U, [&](const char* stackEnd) {
        gBlock.gStackEnd = stackEnd;
        number = EndOf([&] {
            Paths(start, end);
        });
    });
    EXPECT_EQ(number, FailureKind::outOfStackSpace);
}

class IsRelatedTest : public RelatingPathsTest {};

TEST_F(IsRelatedTest, ADirectStepAndAChainAreRelations) {
    const Ref<FakeObject> event = Event("event");
    const Ref<FakeObject> other = Function("other");
    Flow({start, event, end});
    Flow({start, other});
    EXPECT_TRUE(IsRelated(start, end));
    EXPECT_TRUE(IsRelated(start, other));
    EXPECT_FALSE(IsRelated(end, start));
    EXPECT_FALSE(IsRelated(start, event));
    EXPECT_FALSE(IsRelated(start, start));
}

TEST_F(IsRelatedTest, WhatIsNotDrawnIsNotRelated) {
    const Ref<FakeObject> undrawn = repository.Object(ObjectType::function, "undrawn");
    Flow({start, undrawn});
    Flow({undrawn, end});
    EXPECT_FALSE(IsRelated(start, undrawn));
    EXPECT_FALSE(IsRelated(undrawn, end));
    EXPECT_FALSE(IsRelated(undrawn, end, "NO_RULE"));
}

TEST_F(IsRelatedTest, APositiveAnswerLeavesItsNameAndANegativeOneDoesNot) {
    Flow({start, end});
    EXPECT_FALSE(IsRelated(end, start));
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
    EXPECT_TRUE(IsRelated(start, end));
    EXPECT_EQ(gBlock.gCurrentProcedure, isRelated);
}

TEST_F(IsRelatedTest, FailuresBehindAPositiveAnswerAreReportedUnderItsName) {
    Flow({start, end});
    EXPECT_EQ(EndOf([&] {
                  Procedure("modTest.Caller", [&](Frame& frame) {
                      IsRelated(start, end);
                      frame.Raise(Message::objectOfWrongKind, "a", "b", "c");
                  });
              }),
              2120);
    EXPECT_THAT(Boxes(), ElementsAre("C2120 in " + std::string(isRelated) + ": a|b|c"));
}

TEST_F(IsRelatedTest, TheNameGoesWithTheFrameOfTheCaller) {
    Flow({start, end});
    Procedure("modTest.Caller", [&](Frame&) {
        IsRelated(start, end);
    });
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
}

TEST_F(IsRelatedTest, AChainInACircleEndsTheRun) {
    const Ref<FakeObject> rule = RuleObject("rule");
    Flow({start, rule, rule, end});
    EXPECT_EQ(EndOf([&] {
                  IsRelated(start, end);
              }),
              2230);
}

TEST_F(IsRelatedTest, TheAnswerComesBeforeStepsBehindItAreTaken) {
    const Ref<FakeObject> rule = RuleObject("rule");
    Flow({start, end});
    Flow({start, rule, rule});
    EXPECT_TRUE(IsRelated(start, end));
}

TEST_F(IsRelatedTest, GuidsCompareWithCase) {
    const Ref<FakeObject> lower = repository.Object(ObjectType::function, "lower", "{abc}");
    const Ref<FakeObject> upper = repository.Object(ObjectType::function, "upper", "{ABC}");
    repository.Draw(model, lower);
    repository.Draw(model, upper);
    Flow({start, lower});
    EXPECT_TRUE(IsRelated(start, lower));
    EXPECT_FALSE(IsRelated(start, upper));
}

class ConcatenatePathsTest : public CoreTest {
  protected:
    using Paths = PathCollection;

    static Paths PathsOf(std::initializer_list<Ref<clsPath>> list) {
        Paths paths;
        for (const Ref<clsPath>& path : list) paths.Add(path);
        return paths;
    }

    Ref<FakeObject> a = Function("A");
    Ref<FakeObject> b = Function("B");
    Ref<FakeObject> c = Function("C");
    Ref<FakeObject> d = Function("D");
};

TEST_F(ConcatenatePathsTest, ANewPathHasItsEndsAndNothingBetween) {
    const Ref<clsPath> path = CreatePath(a, b);
    EXPECT_EQ(path->FROM_ARISObjectDefinition, ARISObjDef(a));
    EXPECT_EQ(path->TO_ARISObjectDefinition, ARISObjDef(b));
    EXPECT_TRUE(path->ColARISObjectDefinitionsOnPath.IsEmpty());
}

TEST_F(ConcatenatePathsTest, TheObjectWhereTwoPathsMeetComesBetween) {
    const Ref<clsPath> first = CreatePath(a, b);
    const Ref<clsPath> second = CreatePath(b, c);
    EXPECT_THAT(PathTexts(ConcatenatePaths(PathsOf({first}), PathsOf({second}))), ElementsAre("A > B > C"));
    EXPECT_THAT(PathTexts(PathsOf({first, second})), ElementsAre("A > B", "B > C"));
}

TEST_F(ConcatenatePathsTest, ObjectsOfBothPathsStandAroundTheJoint) {
    const Paths head = ConcatenatePaths(PathsOf({CreatePath(a, b)}), PathsOf({CreatePath(b, c)}));
    const Paths tail = ConcatenatePaths(PathsOf({CreatePath(c, d)}), PathsOf({CreatePath(d, Function("E"))}));
    EXPECT_THAT(PathTexts(ConcatenatePaths(head, tail)), ElementsAre("A > B > C > D > E"));
}

TEST_F(ConcatenatePathsTest, PairsComeInTheOrderOfTheFirst) {
    const Paths joined =
        ConcatenatePaths(PathsOf({CreatePath(a, b), CreatePath(d, b), CreatePath(a, d), CreatePath(a, b)}),
                         PathsOf({CreatePath(b, c), CreatePath(b, d)}));
    EXPECT_THAT(PathTexts(joined),
                ElementsAre("A > B > C", "A > B > D", "D > B > C", "D > B > D", "A > B > C", "A > B > D"));
}

TEST_F(ConcatenatePathsTest, PathsThatDoNotMeetAreLost) {
    EXPECT_THAT(PathTexts(ConcatenatePaths(PathsOf({CreatePath(a, b)}), PathsOf({CreatePath(c, d)}))),
                IsEmpty());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConcatenatePathsTest, WithNothingOnOneSideTheSamePathsComeBack) {
    const Paths three = PathsOf({CreatePath(a, b), CreatePath(b, c), CreatePath(c, d)});
    const Paths empty;
    for (const Paths& same :
         {ConcatenatePaths(empty, three), ConcatenatePaths(three, empty), ClonePaths(three)}) {
        EXPECT_TRUE(std::equal(same.begin(), same.end(), three.begin(), three.end(),
                               [](const PathCollection::Entry& one, const PathCollection::Entry& other) {
                                   return one.head == other.head;
                               }));
    }
    EXPECT_TRUE(ConcatenatePaths(empty, empty).IsEmpty());
}

TEST_F(ConcatenatePathsTest, AWalkThatPassesThroughAnObjectTwiceEndsTheRun) {
    const Paths head = ConcatenatePaths(PathsOf({CreatePath(a, b)}), PathsOf({CreatePath(b, c)}));
    const Paths tail = ConcatenatePaths(PathsOf({CreatePath(c, b)}), PathsOf({CreatePath(b, d)}));
    EXPECT_EQ(EndOf([&] {
                  ConcatenatePaths(head, tail);
              }),
              FailureKind::duplicateKey);
    EXPECT_THAT(Boxes(), ElementsAre("C457 in modPath.ConcatenatePaths: duplicate key"));
}

TEST_F(ConcatenatePathsTest, AWalkThroughObjectsWhoseGuidsDifferInCaseAloneEndsTheRun) {
    const Ref<FakeObject> lower = repository.Object(ObjectType::function, "lower", "{abc}");
    const Ref<FakeObject> upper = repository.Object(ObjectType::function, "upper", "{ABC}");
    const Paths over = ConcatenatePaths(PathsOf({CreatePath(b, upper)}), PathsOf({CreatePath(upper, c)}));
    EXPECT_EQ(EndOf([&] {
                  ConcatenatePaths(
                      ConcatenatePaths(PathsOf({CreatePath(a, lower)}), PathsOf({CreatePath(lower, b)})),
                      over);
              }),
              FailureKind::duplicateKey);
    EXPECT_TRUE(ConcatenatePaths(PathsOf({CreatePath(a, lower)}), PathsOf({CreatePath(upper, c)})).IsEmpty());
}

TEST_F(ConcatenatePathsTest, AWalkMayPassThroughItsOwnEnds) {
    const Paths head = ConcatenatePaths(PathsOf({CreatePath(a, b)}), PathsOf({CreatePath(b, a)}));
    EXPECT_THAT(PathTexts(ConcatenatePaths(head, PathsOf({CreatePath(a, c)}))), ElementsAre("A > B > A > C"));
}

}  // namespace
}  // namespace wxbrg::test
