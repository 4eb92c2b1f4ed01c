// When an activity starts and when it is done.

#include <gmock/gmock.h>

#include "model/clsACTIVITY.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* anyConnector = "AT_LEAST_ONE CONNECTOR";
constexpr const char* allConnectors = "ALL CONNECTORS";

class StartConditionTest : public CoreTest {
  protected:
    std::string StartCondition() {
        return FinishedProcess()->Col_ACTIVITY.Item(target->Guid())->StartCondition;
    }

    Ref<FakeObject> first = Function("first");
    Ref<FakeObject> second = Function("second");
    Ref<FakeObject> target = Function("target");
};

TEST_F(StartConditionTest, OneConnectorIsAnyConnectorWhateverRuleStandsBeforeIt) {
    Flow({first, RuleObject("and", andRuleSymbol), target});
    EXPECT_EQ(StartCondition(), anyConnector);
}

TEST_F(StartConditionTest, TwoConnectorsOverOneAndRuleAreAllConnectors) {
    const Ref<FakeObject> rule = RuleObject("and", andRuleSymbol);
    Flow({first, Event("one"), rule, target});
    Flow({second, rule});
    EXPECT_EQ(StartCondition(), allConnectors);
    EXPECT_EQ(gBlock.gFailureContext, "");
}

TEST_F(StartConditionTest, AnotherSymbolIsAnyConnector) {
    const Ref<FakeObject> rule = RuleObject("or", orRuleSymbol);
    Flow({first, rule, target});
    Flow({second, rule});
    EXPECT_EQ(StartCondition(), anyConnector);
}

TEST_F(StartConditionTest, OnePathBesideTheRuleIsAnyConnector) {
    const Ref<FakeObject> rule = RuleObject("and", andRuleSymbol);
    Flow({first, rule, target});
    Flow({second, rule});
    Flow({second, target});
    EXPECT_EQ(StartCondition(), anyConnector);
}

TEST_F(StartConditionTest, TwoRulesInFrontAreAnyConnector) {
    const Ref<FakeObject> rule = RuleObject("and", andRuleSymbol);
    const Ref<FakeObject> other = RuleObject("other", andRuleSymbol);
    Flow({first, rule, target});
    Flow({second, rule});
    repository.Connect(other, 43, target);
    EXPECT_EQ(StartCondition(), anyConnector);
}

TEST_F(StartConditionTest, ARuleThatIsDrawnInAnotherModelAloneCountsAmongThem) {
    const Ref<FakeObject> rule = RuleObject("and", andRuleSymbol);
    Flow({first, rule, target});
    Flow({second, rule});
    repository.Connect(DrawnElsewhere(ObjectType::rule, "elsewhere"), 43, target);
    EXPECT_EQ(StartCondition(), anyConnector);
}

TEST_F(StartConditionTest, TheSymbolIsThatOfTheFirstOccurrenceInTheProcessesModel) {
    const Ref<FakeObject> rule = repository.Object(ObjectType::rule, "rule");
    repository.Draw(elsewhere, rule, 0, 0, orRuleSymbol);
    Flow({first, rule, target});
    Flow({second, rule});
    EXPECT_EQ(StartCondition(), anyConnector);
    repository.Draw(model, rule, 0, 0, andRuleSymbol);
    repository.Draw(model, rule, 0, 0, orRuleSymbol);
    gBlock.gColPROCESS = {};
    EXPECT_EQ(StartCondition(), allConnectors);
}

TEST_F(StartConditionTest, ARuleInFrontOfAnEventInFrontCounts) {
    const Ref<FakeObject> rule = RuleObject("and", andRuleSymbol);
    Flow({first, rule, Event("ready"), target});
    Flow({second, rule});
    EXPECT_EQ(StartCondition(), allConnectors);
}

TEST_F(StartConditionTest, AConnectorFromTheActivityToItselfIsOneOfThem) {
    const Ref<FakeObject> rule = RuleObject("and", andRuleSymbol);
    Flow({first, rule, target});
    Flow({target, Event("again"), rule});
    EXPECT_EQ(StartCondition(), allConnectors);
    Flow({target, target});
    gBlock.gColPROCESS = {};
    EXPECT_EQ(StartCondition(), anyConnector);
}

TEST_F(StartConditionTest, AConnectorWithoutPathsIsOnAllPaths) {
    const Ref<FakeObject> rule = RuleObject("and", andRuleSymbol);
    Flow({first, rule, target});
    Flow({second, rule});
    const Ref<clsPROCESS> process = FinishedProcess();
    const Ref<clsACTIVITY> activity = process->Col_ACTIVITY.Item(target->Guid());
    activity->Col_CONTROL_CONNECTOR_IN.Item(2)->ColPath = {};
    EXPECT_EQ(activity->GetProperty_StartCondition("FUNCTION_RECEIVES_CONTROL_FROM_RULE", *process),
              allConnectors);
    EXPECT_EQ(activity->GetProperty_StartCondition("NO_RULE", *process), "");
}

TEST_F(StartConditionTest, WithTheOptionATypedConditionWins) {
    const Ref<FakeObject> rule = RuleObject("and", andRuleSymbol);
    Flow({first, rule, target});
    Flow({second, rule});
    target->Set(985, "'x' = 1.5");
    EXPECT_EQ(StartCondition(), allConnectors);
    gBlock.gOptStartConditions = true;
    gBlock.gColPROCESS = {};
    EXPECT_EQ(StartCondition(), "'x' = 1.5");
}

TEST_F(StartConditionTest, WithTheOptionAnEmptyConditionFallsBack) {
    gBlock.gOptStartConditions = true;
    const Ref<FakeObject> rule = RuleObject("and", andRuleSymbol);
    Flow({first, rule, target});
    Flow({second, rule});
    EXPECT_EQ(StartCondition(), allConnectors);
    EXPECT_EQ(gBlock.gColPROCESS.Item(1)->Col_ACTIVITY.Item(first->Guid())->StartCondition, anyConnector);
}

TEST_F(StartConditionTest, ATypedConditionOfBlanksIsATypedOne) {
    gBlock.gOptStartConditions = true;
    target->Set(985, "  ");
    EXPECT_EQ(StartCondition(), "  ");
}

class ExitConditionTest : public CoreTest {
  protected:
    /// An event that compares a data object with 1.
    Ref<FakeObject> Comparing(const std::string& data) {
        const Ref<FakeObject> event = Event("event")->With(497, "=")->With(498, "1");
        repository.Connect(Drawn(ObjectType::ermAttribute, data), 75, event);
        return event;
    }
    Ref<clsACTIVITY> Finished() { return FinishedProcess()->Col_ACTIVITY.Item(object->Guid()); }

    Ref<FakeObject> object = Function("f");
};

TEST_F(ExitConditionTest, WithoutALoopThereIsNone) {
    Flow({object, Comparing("x"), Function("other")});
    EXPECT_EQ(Finished()->ExitCondition, "");
}

TEST_F(ExitConditionTest, ALoopIsLeftWhenItsConditionFails) {
    Flow({object, Comparing("x"), object});
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->ExitCondition, "NOT ( x = 1 )");
    EXPECT_EQ(activity->Col_CONTROL_CONNECTOR_OUT.Item(1)->Linking, "");
}

TEST_F(ExitConditionTest, ALoopWithoutAConditionGivesNone) {
    Flow({object, object});
    EXPECT_EQ(Finished()->ExitCondition, "");
}

TEST_F(ExitConditionTest, WithTheOptionATypedConditionWins) {
    Flow({object, Comparing("x"), object});
    object->Set(986, "_RC = 0");
    EXPECT_EQ(Finished()->ExitCondition, "NOT ( x = 1 )");
    gBlock.gOptExitConditions = true;
    gBlock.gColPROCESS = {};
    EXPECT_EQ(Finished()->ExitCondition, "_RC = 0");
}

TEST_F(ExitConditionTest, WithTheOptionAnEmptyConditionFallsBackToTheLoop) {
    gBlock.gOptExitConditions = true;
    Flow({object, Comparing("x"), object});
    EXPECT_EQ(Finished()->ExitCondition, "NOT ( x = 1 )");
}

TEST_F(ExitConditionTest, ATypedConditionOfBlanksIsATypedOne) {
    gBlock.gOptExitConditions = true;
    Flow({object, Comparing("x"), object});
    object->Set(986, " ");
    EXPECT_EQ(Finished()->ExitCondition, " ");
}

TEST_F(ExitConditionTest, ModesAreTakenAsReadWithOtherSettings) {
    object->With(1207, "auto 'x'")->With(1208, "manual\t");
    const Ref<clsACTIVITY> bare = Finished();
    EXPECT_EQ(bare->StartMode, "MANUAL");
    EXPECT_EQ(bare->ExitMode, "AUTOMATIC");
    gBlock.gOptUseOtherSettings = true;
    gBlock.gColPROCESS = {};
    const Ref<clsACTIVITY> full = Finished();
    EXPECT_EQ(full->StartMode, "auto 'x'");
    EXPECT_EQ(full->ExitMode, "manual\t");
}

TEST_F(ExitConditionTest, WithOtherSettingsEmptyModesStayTheDefaults) {
    gBlock.gOptUseOtherSettings = true;
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->StartMode, "MANUAL");
    EXPECT_EQ(activity->ExitMode, "AUTOMATIC");
    EXPECT_EQ(activity->OtherSettings, "");
    EXPECT_THAT(Boxes(), IsEmpty());
}

}  // namespace
}  // namespace wxbrg::test
