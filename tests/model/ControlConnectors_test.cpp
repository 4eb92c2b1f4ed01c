// Which control connectors a process has, and which of them are reported as loops.

#include <gmock/gmock.h>

#include "model/clsACTIVITY.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"
#include "model/modCONTROL_CONNECTOR.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ControlConnectorsTest : public CoreTest {
  protected:
    /// The connectors as "A > B".
    static std::vector<std::string> Texts(const Collection<Ref<clsCONTROL_CONNECTOR>>& connectors) {
        std::vector<std::string> texts;
        for (const Ref<clsCONTROL_CONNECTOR>& connector : connectors)
            texts.push_back(connector->FROM_ARISObjectDefinition->Name(english) + " > " +
                            connector->TO_ARISObjectDefinition->Name(english));
        return texts;
    }
    std::vector<std::string> Find() {
        process = ProcessWithActivities();
        ForgetNotes();
        CONTROL_CONNECTOR_Find_ARIS_Mapping(*process);
        return Texts(process->Col_CONTROL_CONNECTOR);
    }
    Ref<clsACTIVITY> Activity(const Ref<FakeObject>& function) {
        return process->Col_ACTIVITY.Item(function->Guid());
    }

    Ref<FakeObject> a = Function("A");
    Ref<FakeObject> b = Function("B");
    Ref<FakeObject> c = Function("C");
    Ref<clsPROCESS> process;
};

TEST_F(ControlConnectorsTest, AChainOfEventsAndRulesIsOneConnector) {
    Flow({a, Event("event"), RuleObject("rule"), b});
    EXPECT_THAT(Find(), ElementsAre("A > B"));
    const Ref<clsCONTROL_CONNECTOR> connector = process->Col_CONTROL_CONNECTOR.Item(1);
    EXPECT_THAT(PathTexts(connector->ColPath), ElementsAre("A > event > rule > B"));
    EXPECT_TRUE(connector->ConnectorPathsAvailable);
    EXPECT_FALSE(connector->SetupFinished);
    EXPECT_EQ(connector->PROCESS, process);
    EXPECT_EQ(connector->Key(), std::string(a->Guid()) + "/" + std::string(b->Guid()));
    EXPECT_EQ(process->Col_CONTROL_CONNECTOR.Item(connector->Key()), connector);
    EXPECT_THAT(Notes(), ElementsAre("I3070|T22|A|T22|B"));
}

TEST_F(ControlConnectorsTest, AConnectorHangsOnItsTwoActivities) {
    Flow({a, b});
    Find();
    const Ref<clsCONTROL_CONNECTOR> connector = process->Col_CONTROL_CONNECTOR.Item(1);
    EXPECT_EQ(Activity(a)->Col_CONTROL_CONNECTOR_OUT.Item(connector->Key()), connector);
    EXPECT_EQ(Activity(b)->Col_CONTROL_CONNECTOR_IN.Item(connector->Key()), connector);
    EXPECT_TRUE(Activity(a)->Col_CONTROL_CONNECTOR_IN.IsEmpty());
    EXPECT_TRUE(Activity(b)->Col_CONTROL_CONNECTOR_OUT.IsEmpty());
    EXPECT_TRUE(Activity(c)->Col_CONTROL_CONNECTOR_IN.IsEmpty());
}

TEST_F(ControlConnectorsTest, SeveralPathsAreOneConnector) {
    Flow({a, Event("one"), b});
    Flow({a, Event("two"), b});
    Flow({a, b});
    EXPECT_THAT(Find(), ElementsAre("A > B"));
    EXPECT_THAT(PathTexts(process->Col_CONTROL_CONNECTOR.Item(1)->ColPath),
                ElementsAre("A > B", "A > one > B", "A > two > B"));
}

TEST_F(ControlConnectorsTest, ConnectorsComeInTheOrderOfTheActivitiesAndOfTheirTargets) {
    Flow({c, a});
    Flow({a, RuleObject("rule"), b});
    Flow({a, c});
    EXPECT_THAT(Find(), ElementsAre("A > C", "A > B", "C > A"));
}

TEST_F(ControlConnectorsTest, ATargetOutsideTheModelHasNoConnector) {
    Flow({a, Event("event"), DrawnElsewhere(ObjectType::function, "elsewhere")});
    EXPECT_THAT(Find(), IsEmpty());
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(ControlConnectorsTest, ObjectsBetweenMayBeDrawnElsewhere) {
    Flow({a, DrawnElsewhere(ObjectType::event, "elsewhere"), b});
    EXPECT_THAT(Find(), ElementsAre("A > B"));
}

TEST_F(ControlConnectorsTest, AConnectorToItselfHangsOnItsActivityTwice) {
    Flow({a, a});
    EXPECT_THAT(Find(), ElementsAre("A > A"));
    EXPECT_THAT(Texts(Activity(a)->Col_CONTROL_CONNECTOR_IN), ElementsAre("A > A"));
    EXPECT_THAT(Texts(Activity(a)->Col_CONTROL_CONNECTOR_OUT), ElementsAre("A > A"));
    EXPECT_TRUE(process->Col_CONTROL_CONNECTOR.Item(1)->IsLoopConnector());
}

TEST_F(ControlConnectorsTest, BeforeTheActivitiesAreCompleteNothingIsHungOnThem) {
    Flow({a, b});
    process = ProcessWithActivities();
    process->CreateActivitiesFinished = false;
    CONTROL_CONNECTOR_Find_ARIS_Mapping(*process);
    EXPECT_EQ(process->Col_CONTROL_CONNECTOR.Count(), 1);
    EXPECT_TRUE(Activity(a)->Col_CONTROL_CONNECTOR_OUT.IsEmpty());
}

TEST_F(ControlConnectorsTest, FindingAgainNotesAgainAndAddsNothing) {
    Flow({a, b});
    Find();
    const Ref<clsCONTROL_CONNECTOR> connector = process->Col_CONTROL_CONNECTOR.Item(1);
    CONTROL_CONNECTOR_Find_ARIS_Mapping(*process);
    EXPECT_EQ(process->Col_CONTROL_CONNECTOR.Count(), 1);
    EXPECT_EQ(Activity(a)->Col_CONTROL_CONNECTOR_OUT.Item(1), connector);
    EXPECT_THAT(Notes(), ElementsAre("I3070|T22|A|T22|B", "I3070|T22|A|T22|B"));
}

TEST_F(ControlConnectorsTest, ACircleOfEventsAndRulesAloneEndsTheRun) {
    const Ref<FakeObject> event = Event("event");
    const Ref<FakeObject> rule = RuleObject("rule");
    Flow({a, event, rule, event});
    EXPECT_EQ(EndOf([&] {
                  Find();
              }),
              2230);
}

TEST_F(ControlConnectorsTest, AnObjectWhoseGuidDiffersInCaseAloneIsNotTheActivity) {
    const Ref<FakeObject> kept = repository.Object(ObjectType::function, "D", "{twin}");
    const Ref<FakeObject> twin = repository.Object(ObjectType::function, "E", "{TWIN}");
    repository.Draw(model, kept);
    repository.Draw(model, twin);
    Flow({a, twin});
    Flow({twin, b});
    EXPECT_THAT(Find(), ElementsAre("A > E"));
    EXPECT_THAT(Texts(Activity(a)->Col_CONTROL_CONNECTOR_OUT), ElementsAre("A > E"));
    EXPECT_TRUE(Activity(kept)->Col_CONTROL_CONNECTOR_IN.IsEmpty());
}

class ControlFlowLoopsTest : public ControlConnectorsTest {};

TEST_F(ControlFlowLoopsTest, AChainIsNoLoop) {
    Flow({a, b, c});
    Find();
    EXPECT_THAT(Notes(3130), IsEmpty());
}

TEST_F(ControlFlowLoopsTest, OfTwoOppositeConnectorsTheSecondIsReportedOf) {
    Flow({a, b});
    Flow({b, a});
    EXPECT_THAT(Find(), ElementsAre("A > B", "B > A"));
    EXPECT_THAT(Notes(), ElementsAre("I3070|T22|A|T22|B", "E3130|T22|B|T22|A", "I3070|T22|B|T22|A"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ControlFlowLoopsTest, OfARingTheConnectorThatClosesItIsReportedOf) {
    Flow({a, b, c, a});
    Find();
    EXPECT_THAT(Notes(3130), ElementsAre("E3130|T22|C|T22|A"));
}

TEST_F(ControlFlowLoopsTest, ARingBehindAChainIsReportedOfOnce) {
    Flow({a, b, c, b});
    Find();
    EXPECT_THAT(Notes(3130), ElementsAre("E3130|T22|C|T22|B"));
}

TEST_F(ControlFlowLoopsTest, AConnectorThatClosesTwoRingsIsReportedOfOnce) {
    Flow({a, b, c});
    Flow({a, c});
    Flow({c, a});
    Find();
    EXPECT_THAT(Notes(3130), ElementsAre("E3130|T22|C|T22|A"));
}

TEST_F(ControlFlowLoopsTest, AConnectorToItselfIsNoLoopAndNoWalkTakesIt) {
    Flow({a, a});
    Flow({a, b, b, c});
    Find();
    EXPECT_THAT(Notes(3130), IsEmpty());
}

TEST_F(ControlFlowLoopsTest, WithTheOptionOffNothingIsReportedOf) {
    gBlock.gOptFindControlFlowLoops = false;
    Flow({a, b, a});
    Find();
    EXPECT_THAT(Notes(3130), IsEmpty());
}

TEST_F(ControlFlowLoopsTest, ALoopStaysInTheProcessWithItsLinking) {
    Flow({a, b, a});
    process = FinishedProcess();
    EXPECT_EQ(process->Col_CONTROL_CONNECTOR.Item(2)->Linking, "FROM 'B' TO 'A'");
}

}  // namespace
}  // namespace wxbrg::test
