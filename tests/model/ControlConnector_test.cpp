// What a control connector prepares for the output.

#include <gmock/gmock.h>

#include "mapping/modPath.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"
#include "model/modCONTROL_CONNECTOR.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ControlConnectorTest : public CoreTest {
  protected:
    /// An event that compares data objects.
    Ref<FakeObject> Comparing(const std::string& compareOperator, const std::string& value,
                              const std::vector<std::string>& data) {
        const Ref<FakeObject> event = Event("event")->With(497, compareOperator)->With(498, value);
        for (const std::string& name : data)
            repository.Connect(Drawn(ObjectType::ermAttribute, name), 75, event);
        return event;
    }
    /// The first connector of the process, finished.
    Ref<clsCONTROL_CONNECTOR> Finished() {
        gBlock.gColPROCESS = {};
        process = ProcessWithActivities();
        ForgetNotes();
        CONTROL_CONNECTOR_Create(*process);
        return process->Col_CONTROL_CONNECTOR.Item(1);
    }
    std::string ConditionOf(const Ref<FakeObject>& event) {
        clsCONTROL_CONNECTOR connector;
        return connector.GetProperty_Condition("EVENT_IS_COMPARED_WITH_DATA", event);
    }
    /// The condition of a connector with a path over each of the objects; without one for an empty object.
    static std::string ConditionOver(std::initializer_list<ARISObjDef> objects) {
        clsCONTROL_CONNECTOR connector;
        for (const ARISObjDef& object : objects) {
            const Ref<clsPath> path = CreatePath({}, {});
            if (object) path->ColARISObjectDefinitionsOnPath.Add(object, object->Guid());
            connector.ColPath.Add(path);
        }
        connector.ConnectorPathsAvailable = true;
        connector.SetupProperty_Condition();
        return connector.Condition;
    }

    Ref<FakeObject> check = Function("Check", 0, 0);
    Ref<FakeObject> pay = Function("Pay", 1000, 0);
    Ref<clsPROCESS> process;
};

TEST_F(ControlConnectorTest, AChainCollapsesIntoAConnectorWithItsCondition) {
    Flow({check, Comparing("=", "yes", {"Status"}), RuleObject("rule"), pay});
    const Ref<clsCONTROL_CONNECTOR> connector = Finished();
    EXPECT_EQ(connector->Linking, "FROM 'Check' TO 'Pay'");
    EXPECT_EQ(connector->Condition, "Status = \"yes\"");
    EXPECT_TRUE(connector->SetupFinished);
    EXPECT_THAT(Notes(),
                ElementsAre("I3070|T22|Check|T22|Pay", "I3090|CONTROL CONNECTOR|FROM 'Check' TO 'Pay'"));
    ForgetNotes();
    connector->SetupProperties();
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(ControlConnectorTest, ADirectConnectionHasNoConditionAndNoBendPoint) {
    Flow({check, pay});
    const Ref<clsCONTROL_CONNECTOR> connector = Finished();
    EXPECT_EQ(connector->Condition, "");
    EXPECT_EQ(connector->LAYOUT, "");
    EXPECT_EQ(connector->DESCRIPTION, "");
}

TEST_F(ControlConnectorTest, ALoopHasNoLinking) {
    Flow({check, check});
    const Ref<clsCONTROL_CONNECTOR> connector = Finished();
    EXPECT_EQ(connector->Linking, "");
    EXPECT_EQ(Notes().back(), "I3090|CONTROL CONNECTOR");
}

TEST_F(ControlConnectorTest, LinkingCitesTheNamesOfTheObjectsWhateverTheRule) {
    NewAttributeRule("ACTIVITY_ActivityName", "4711");
    const Ref<FakeObject> other = Function("ORDER, new")->With(4711, "by rule");
    Flow({check, other});
    EXPECT_EQ(Finished()->Linking, "FROM 'Check' TO '_DER_ new'");
}

TEST_F(ControlConnectorTest, NumbersStandPlainAndOtherValuesInDoubleQuotes) {
    EXPECT_EQ(ConditionOf(Comparing(">", "100", {"Amount"})), "Amount > 100");
    EXPECT_EQ(ConditionOf(Comparing(">", " -1.5E3 ", {"Amount"})), "Amount >  -1.5E3 ");
    EXPECT_EQ(ConditionOf(Comparing("=", "abc", {"Amount"})), "Amount = \"abc\"");
    EXPECT_EQ(ConditionOf(Comparing("=", "1,000", {"Amount"})), "Amount = \"1,000\"");
    EXPECT_EQ(ConditionOf(Comparing("=", "it's \"x\"", {"Amount"})), "Amount = \"it's \"x\"\"");
    EXPECT_EQ(ConditionOf(Comparing("=", "0x10", {"Amount"})), "Amount = \"0x10\"");
}

TEST_F(ControlConnectorTest, ADataNameWithABlankStandsInTwoSingleQuotes) {
    EXPECT_EQ(ConditionOf(Comparing("=", "exceeded", {"Credit limit"})), "''Credit limit'' = \"exceeded\"");
    EXPECT_EQ(ConditionOf(Comparing("=", "1", {"Limit"})), "Limit = 1");
    EXPECT_EQ(ConditionOf(Comparing("=", "1", {"_Credit.limit"})), "Credit_limit = 1");
}

TEST_F(ControlConnectorTest, AnOperatorForUnequalIsSpelledAsTheTargetDoes) {
    EXPECT_EQ(ConditionOf(Comparing("!=", "1", {"x"})), "x <> 1");
    EXPECT_THAT(Notes(), ElementsAre("I3100|!=|<>"));
}

TEST_F(ControlConnectorTest, DataOperatorOrValueThatIsMissingGivesNoCondition) {
    EXPECT_EQ(ConditionOf(Comparing("=", "1", {})), "");
    EXPECT_EQ(ConditionOf(Comparing("", "1", {"x"})), "");
    EXPECT_EQ(ConditionOf(Comparing("  ", "1", {"x"})), "");
    EXPECT_EQ(ConditionOf(Comparing("=", "", {"x"})), "");
    gBlock.gOptConvertNames = false;
    EXPECT_EQ(ConditionOf(Comparing("  ", "1", {"x"})), "x    1");
}

TEST_F(ControlConnectorTest, WithoutDataAnEventIsNotAskedForItsOperator) {
    EXPECT_EQ(ConditionOf(Comparing("!=", "1", {})), "");
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(ControlConnectorTest, AComparisonThatLacksItsValueNamesNoData) {
    EXPECT_EQ(ConditionOf(Comparing("!=", "", {"x.y", "z"})), "");
    EXPECT_THAT(Notes(), ElementsAre("I3100|!=|<>"));
}

TEST_F(ControlConnectorTest, WhatAComparisonNotesComesOncePerPath) {
    const Ref<FakeObject> full = Comparing("=", "1", {"x", "y"});
    const Ref<FakeObject> bare = Comparing("!=", "", {"z"});
    const Ref<FakeObject> meet = RuleObject("meet");
    Flow({check, full, meet, bare, pay});
    Flow({check, meet});
    Flow({bare, RuleObject("around"), pay});
    EXPECT_EQ(Finished()->Condition, "x = 1 OR x = 1 OR x = 1 OR x = 1");
    EXPECT_THAT(Notes(), ElementsAre("I3070|T22|Check|T22|Pay", "E3120|event", "I3100|!=|<>", "E3120|event",
                                     "I3100|!=|<>", "I3100|!=|<>", "I3100|!=|<>",
                                     "I3090|CONTROL CONNECTOR|FROM 'Check' TO 'Pay'"));
}

TEST_F(ControlConnectorTest, PathsThatMeetRepeatTheLastConditionPathByPath) {
    const Ref<FakeObject> meet = RuleObject("meet");
    Flow({check, Comparing("=", "1", {"x"}), meet});
    Flow({check, RuleObject("silent"), meet});
    Flow({meet, Event("plain"), pay});
    Flow({meet, RuleObject("round"), pay});
    EXPECT_EQ(Finished()->Condition, "x = 1 OR x = 1 OR x = 1 OR x = 1");
}

TEST_F(ControlConnectorTest, TheFirstOfSeveralDataObjectsIsCompared) {
    EXPECT_EQ(ConditionOf(Comparing("=", "1", {"x", "y", "z"})), "x = 1");
    EXPECT_THAT(Notes(), ElementsAre("E3120|event"));
}

TEST_F(ControlConnectorTest, EventsOfOnePathAreJoinedByAnd) {
    Flow({check, Comparing("=", "1", {"x"}), RuleObject("rule"), Comparing(">", "", {"skipped"}),
          RuleObject("other"), Comparing("=", "2", {"y"}), pay});
    EXPECT_EQ(Finished()->Condition, "x = 1 AND y = 2");
}

TEST_F(ControlConnectorTest, PathsAreJoinedByOr) {
    Flow({check, Comparing("=", "1", {"x"}), pay});
    Flow({check, Comparing("=", "2", {"y"}), pay});
    EXPECT_EQ(Finished()->Condition, "x = 1 OR y = 2");
}

TEST_F(ControlConnectorTest, BehindTwoConditionsAPathWithoutOneRepeatsTheLast) {
    const ARISObjDef one = Comparing("=", "1", {"A"});
    const ARISObjDef two = Comparing("=", "2", {"B"});
    const ARISObjDef none;
    EXPECT_EQ(ConditionOver({one, two, none}), "A = 1 OR B = 2 OR B = 2");
    EXPECT_EQ(ConditionOver({one, two, none, one, none}), "A = 1 OR B = 2 OR B = 2 OR A = 1 OR A = 1");
    EXPECT_EQ(ConditionOver({none, one, none, two}), "A = 1 OR B = 2");
    EXPECT_EQ(ConditionOver({one, none, none}), "A = 1");
    EXPECT_EQ(ConditionOver({none, none}), "");
    EXPECT_EQ(ConditionOver({}), "");
}

TEST_F(ControlConnectorTest, WithTheOptionATypedConditionStandsForTheComparison) {
    const Ref<FakeObject> event = Comparing("=", "1", {"x"});
    event->Set(985, "typed 'as' it.is");
    Flow({check, event, pay});
    EXPECT_EQ(Finished()->Condition, "x = 1");
    repository.Connect(Drawn(ObjectType::ermAttribute, "y"), 75, event);
    gBlock.gOptTransitionConditions = true;
    EXPECT_EQ(Finished()->Condition, "typed 'as' it.is");
    EXPECT_THAT(Notes(3120), IsEmpty());
}

TEST_F(ControlConnectorTest, WithTheOptionAnEventWithoutATypedConditionIsCompared) {
    gBlock.gOptTransitionConditions = true;
    Flow({check, Comparing("=", "1", {"x"}), pay});
    EXPECT_EQ(Finished()->Condition, "x = 1");
}

TEST_F(ControlConnectorTest, OnlyControlObjectsHaveTypedConditions) {
    gBlock.gOptTransitionConditions = true;
    const Ref<FakeObject> rule = RuleObject("rule")->With(985, "typed");
    Flow({check, rule, pay});
    EXPECT_EQ(Finished()->Condition, "");
    NewTypeRule("CONTROL_OBJECT", {ObjectType::rule});
    EXPECT_EQ(Finished()->Condition, "typed");
}

TEST_F(ControlConnectorTest, AnyOtherRuleGivesNoCondition) {
    clsCONTROL_CONNECTOR connector;
    EXPECT_EQ(connector.GetProperty_Condition("NO_RULE", Comparing("=", "1", {"x"})), "");
}

TEST_F(ControlConnectorTest, TheDescriptionGathersThoseOfAllPaths) {
    Flow({check, Event("one")->With(9, "it's\r\nfirst"), pay});
    Flow({check, Event("two")->With(9, "second"), pay});
    Flow({check, Event("three"), pay});
    EXPECT_EQ(Finished()->DESCRIPTION, "'\r\n   T18 ''one'' it''s first\r\n   T18 ''two'' second'");
    gBlock.gOptUseDescriptionAttr = false;
    EXPECT_EQ(Finished()->DESCRIPTION, "");
}

TEST_F(ControlConnectorTest, ABendPointIsTheMeanOfAllObjectsOfTheFirstPathThatHasAny) {
    Flow({check, pay});
    Flow({check, Event("event", 500, 100), RuleObject("rule", andRuleSymbol, 700, 300), pay});
    Flow({check, RuleObject("away", andRuleSymbol, 900, 900), pay});
    // Window x: -500, 0, 200, 500. Window y: 0, -100, -300, 0.
    EXPECT_EQ(Finished()->LAYOUT, "XPOS 49 YPOS -101");
}

TEST_F(ControlConnectorTest, WithTheOptionOffThereIsNoBendPoint) {
    gBlock.gOptUseCtrlConBendPoints = false;
    Flow({check, Event("event"), pay});
    EXPECT_EQ(Finished()->LAYOUT, "");
}

TEST_F(ControlConnectorTest, WhatNeedsPathsOrALayoutWarnsWithoutThem) {
    clsCONTROL_CONNECTOR connector;
    connector.PROCESS = NewProcess();
    connector.SetupProperty_DESCRIPTION();
    connector.SetupProperty_Condition();
    connector.SetupProperty_LAYOUT();
    connector.ConnectorPathsAvailable = true;
    connector.SetupProperty_LAYOUT();
    EXPECT_THAT(Boxes(), ElementsAre("E2080 in clsCONTROL_CONNECTOR.SetupProperty_DESCRIPTION",
                                     "E2080 in clsCONTROL_CONNECTOR.SetupProperty_Condition",
                                     "E2090 in clsCONTROL_CONNECTOR.SetupProperty_LAYOUT",
                                     "E2060 in clsCONTROL_CONNECTOR.SetupProperty_LAYOUT: Orders"));
    EXPECT_EQ(connector.DESCRIPTION + connector.Condition + connector.LAYOUT, "");
}

TEST_F(ControlConnectorTest, WithoutAnyPathThereIsNoBendPoint) {
    clsCONTROL_CONNECTOR connector;
    connector.PROCESS = ProcessWithActivities();
    connector.ConnectorPathsAvailable = true;
    connector.SetupProperty_LAYOUT();
    EXPECT_EQ(connector.LAYOUT, "");
    EXPECT_THAT(Boxes(), IsEmpty());
}

}  // namespace
}  // namespace wxbrg::test
