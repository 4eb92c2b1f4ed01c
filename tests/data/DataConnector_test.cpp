// What a data connector prepares for the output.

#include <gmock/gmock.h>

#include "data/clsDATA_CONNECTOR.h"
#include "data/clsDATA_MEMBER.h"
#include "data/clsDATA_STRUCTURE.h"
#include "data/modDATA_CONNECTOR.h"
#include "data/modDATA_STRUCTURE.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class DataConnectorTest : public CoreTest {
  protected:
    Ref<FakeObject> Data(const std::string& name, std::int32_t x = 0, std::int32_t y = 0) {
        return Drawn(ObjectType::ermAttribute, name, x, y);
    }
    /// A connector of a process that has just its activities.
    Ref<clsDATA_CONNECTOR> Connector(DataConnectorKind kind, const ARISObjDef& from, const ARISObjDef& to) {
        if (!process) process = ProcessWithActivities();
        const Ref<clsDATA_CONNECTOR> connector = gBlock.gPool.Create<clsDATA_CONNECTOR>();
        connector->ConnectorKind = kind;
        connector->FROM_ARISObjectDefinition = from;
        connector->TO_ARISObjectDefinition = to;
        connector->PROCESS = process;
        return connector;
    }
    Ref<clsACTIVITY> Activity(const Ref<FakeObject>& function) {
        return process->Col_ACTIVITY.Item(function->Guid());
    }
    static std::string Linking(const Ref<clsDATA_CONNECTOR>& connector, const std::string& name) {
        connector->SetupProperty_Linking(name);
        return connector->Linking;
    }

    Ref<FakeObject> a = Function("Check order", 0, 0);
    Ref<FakeObject> b = Function("ORDER (new)", 1000, 0);
    Ref<clsPROCESS> process;
};

TEST_F(DataConnectorTest, LinkingNamesTheTwoEnds) {
    EXPECT_EQ(Linking(Connector(DataConnectorKind::activityToActivity, a, b), ""),
              "FROM 'Check order' TO '_DER _new_'");
    EXPECT_EQ(Linking(Connector(DataConnectorKind::activityToActivity, b, b), ""), "LOOP '_DER _new_'");
    EXPECT_EQ(Linking(Connector(DataConnectorKind::processInput, {}, b), "SOURCE 1"),
              "FROM SOURCE 1 TO '_DER _new_'");
    EXPECT_EQ(Linking(Connector(DataConnectorKind::processOutput, a, {}), "SINK 2"),
              "FROM 'Check order' TO SINK 2");
}

TEST_F(DataConnectorTest, LinkingAtTheBoundaryNeedsAName) {
    EXPECT_EQ(Linking(Connector(DataConnectorKind::processInput, {}, b), ""), "");
    EXPECT_EQ(Linking(Connector(DataConnectorKind::processOutput, a, {}), ""), "");
}

TEST_F(DataConnectorTest, OneStructureAtBothEndsIsMappedWhole) {
    const Ref<FakeObject> data = Data("d");
    Writes(a, data);
    Reads(b, data);
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::activityToActivity, a, b);
    connector->SetupProperty_Mapping(nullptr);
    EXPECT_THAT(TextsOf(connector->ColMapping), ElementsAre("MAP '_STRUCT' TO '_STRUCT'"));
    EXPECT_EQ(gBlock.gFailureContext, "");
}

TEST_F(DataConnectorTest, AMappedSourceGoesIntoTheMemberThatStandsForIt) {
    const Ref<FakeObject> order = EntityType("Order", {"Number"});
    Writes(a, order);
    Reads(b, order);
    Reads(b, Data("other"));
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::activityToActivity, a, b);
    connector->SetupProperty_Mapping(nullptr);
    EXPECT_THAT(TextsOf(connector->ColMapping), ElementsAre("MAP '_STRUCT' TO 'Order'"));
}

TEST_F(DataConnectorTest, AMemberThatStandsForAMappedSinkGoesIntoItWhole) {
    const Ref<FakeObject> order = EntityType("Order", {"Number"});
    Writes(a, order);
    Writes(a, Data("other"));
    Reads(b, order);
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::activityToActivity, a, b);
    connector->SetupProperty_Mapping(nullptr);
    EXPECT_THAT(TextsOf(connector->ColMapping), ElementsAre("MAP 'Order' TO '_STRUCT'"));
}

TEST_F(DataConnectorTest, BetweenTwoMappedStructuresTheReverseRelationIsNotTried) {
    const Ref<FakeObject> outer = Drawn(ObjectType::cluster, "Outer");
    const Ref<FakeObject> inner = EntityType("Inner", {"Number"});
    AddMember(outer, inner);
    Writes(a, outer);
    Reads(b, inner);
    const Ref<clsDATA_CONNECTOR> down = Connector(DataConnectorKind::activityToActivity, a, b);
    down->SetupProperty_Mapping(nullptr);
    EXPECT_THAT(TextsOf(down->ColMapping), IsEmpty());
    std::swap(Activity(a)->OutputContainer, Activity(b)->InputContainer);
    const Ref<clsDATA_CONNECTOR> up = Connector(DataConnectorKind::activityToActivity, a, b);
    up->SetupProperty_Mapping(nullptr);
    EXPECT_THAT(TextsOf(up->ColMapping), ElementsAre("MAP '_STRUCT' TO 'Inner'"));
}

TEST_F(DataConnectorTest, BetweenGeneratedStructuresTheCommonMembersAreMappedInTheOrderOfTheSource) {
    const Ref<FakeObject> x = Data("x");
    const Ref<FakeObject> y = Data("y");
    Writes(a, y);
    Writes(a, Data("only sent"));
    Writes(a, x);
    Reads(b, x);
    Reads(b, Data("only read"));
    Reads(b, y);
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::activityToActivity, a, b);
    connector->SetupProperty_Mapping(nullptr);
    EXPECT_THAT(TextsOf(connector->ColMapping), ElementsAre("MAP 'y' TO 'y'", "MAP 'x' TO 'x'"));
    EXPECT_EQ(gBlock.gFailureContext, "");
}

TEST_F(DataConnectorTest, GeneratedStructuresWithoutACommonMemberAreNotMapped) {
    Writes(a, Data("x"));
    Reads(b, Data("y"));
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::activityToActivity, a, b);
    connector->SetupProperty_Mapping(nullptr);
    EXPECT_THAT(TextsOf(connector->ColMapping), IsEmpty());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(DataConnectorTest, DefaultStructuresAreTwoAndHaveNothingInCommon) {
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::activityToActivity, a, b);
    connector->SetupProperty_Mapping(nullptr);
    EXPECT_THAT(TextsOf(connector->ColMapping), IsEmpty());
}

TEST_F(DataConnectorTest, AtTheBoundaryTheContainerOfTheProcessIsTheOtherEnd) {
    const Ref<FakeObject> data = Data("d");
    Reads(b, data);
    Writes(a, data);
    const Ref<clsDATA_STRUCTURE> structure = DATA_STRUCTURE_Generate(ObjectsOf({data, Data("e")}));
    const Ref<clsDATA_CONNECTOR> entering = Connector(DataConnectorKind::processInput, {}, b);
    entering->SetupProperty_Mapping(structure);
    EXPECT_THAT(TextsOf(entering->ColMapping), ElementsAre("MAP 'd' TO 'd'"));
    const Ref<clsDATA_CONNECTOR> leaving = Connector(DataConnectorKind::processOutput, a, {});
    leaving->SetupProperty_Mapping(Activity(a)->OutputContainer);
    EXPECT_THAT(TextsOf(leaving->ColMapping), ElementsAre("MAP '_STRUCT' TO '_STRUCT'"));
}

TEST_F(DataConnectorTest, AtTheBoundaryNothingIsMappedWithoutAContainer) {
    const Ref<clsDATA_CONNECTOR> entering = Connector(DataConnectorKind::processInput, {}, b);
    Activity(b)->InputContainer = nullptr;
    entering->SetupProperty_Mapping(nullptr);
    EXPECT_THAT(TextsOf(entering->ColMapping), IsEmpty());
}

TEST_F(DataConnectorTest, TwoEmptyContainersAreTheSameAndOneIsAFailure) {
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::activityToActivity, a, b);
    Activity(a)->OutputContainer = nullptr;
    EXPECT_EQ(EndOf([&] {
                  connector->SetupProperty_Mapping(nullptr);
              }),
              FailureKind::objectNotSet);
    Activity(b)->InputContainer = nullptr;
    connector->SetupProperty_Mapping(nullptr);
    EXPECT_THAT(TextsOf(connector->ColMapping), ElementsAre("MAP '_STRUCT' TO '_STRUCT'"));
}

TEST_F(DataConnectorTest, AnEmptyMemberThatIsFoundIsAFailure) {
    const Ref<FakeObject> self = Drawn(ObjectType::cluster, "Self");
    AddMember(self, self);
    Reads(b, self);
    Reads(b, Data("other"));
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::processInput, {}, b);
    const Ref<clsDATA_STRUCTURE> mapped = DATA_STRUCTURE_Add_ARIS_Mapping(self);
    EXPECT_EQ(EndOf([&] {
                  connector->SetupProperty_Mapping(mapped);
              }),
              FailureKind::objectNotSet);
    EXPECT_THAT(Boxes(), ElementsAre("C91 in clsDATA_CONNECTOR.SetupProperty_Mapping: object not set"));
}

TEST_F(DataConnectorTest, AnEndThatIsNoActivityEndsTheRun) {
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::activityToActivity, a,
                                                       DrawnElsewhere(ObjectType::function, "elsewhere"));
    EXPECT_EQ(EndOf([&] {
                  connector->SetupProperty_Mapping(nullptr);
              }),
              FailureKind::invalidCall);
    EXPECT_THAT(Boxes(), ElementsAre("C5 in clsDATA_CONNECTOR.SetupProperty_Mapping: invalid call or "
                                     "missing key"));
}

TEST_F(DataConnectorTest, TheBendPointIsTheMeanOfTheEndsAndTheDataOnTheFirstPath) {
    const Ref<FakeObject> first = Data("first", 500, 200);
    const Ref<FakeObject> second = Data("second", 900, 900);
    for (const Ref<FakeObject>& data : {first, second}) {
        Writes(a, data);
        Reads(b, data);
    }
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::activityToActivity, a, b);
    connector->FindARISObjectDefinitionsOnConnectorPaths();
    connector->SetupProperty_LAYOUT("");
    EXPECT_THAT(PathTexts(connector->ColPath), SizeIs(2));
    // Window x is -500, 0, 500: the mean goes -500, -250, 166 - 167. Window y is 0, -200, 0.
    EXPECT_EQ(connector->LAYOUT, "XPOS -1 YPOS -67");
    EXPECT_EQ(connector->SOURCE_LAYOUT + connector->SINK_LAYOUT, "");
}

TEST_F(DataConnectorTest, TheOptionGatesBendPointsButNotSourcesAndSinks) {
    gBlock.gOptUseDataConBendPoints = false;
    const Ref<FakeObject> data = Data("d", 530, 200);
    Writes(a, data);
    Reads(b, data);
    const Ref<clsDATA_CONNECTOR> between = Connector(DataConnectorKind::activityToActivity, a, b);
    between->FindARISObjectDefinitionsOnConnectorPaths();
    between->SetupProperty_LAYOUT("");
    EXPECT_EQ(between->LAYOUT, "");
    const Ref<clsDATA_CONNECTOR> entering = Connector(DataConnectorKind::processInput, {}, b);
    entering->ColInputDataObjects = ObjectsOf({data});
    entering->SetupProperty_LAYOUT("SOURCE 1");
    EXPECT_EQ(entering->SOURCE_LAYOUT, "SOURCE 1 XPOS 30 YPOS -200");
    const Ref<clsDATA_CONNECTOR> leaving = Connector(DataConnectorKind::processOutput, a, {});
    leaving->ColOutputDataObjects = ObjectsOf({data});
    leaving->SetupProperty_LAYOUT("SINK 2");
    EXPECT_EQ(leaving->SINK_LAYOUT, "SINK 2 XPOS 30 YPOS -200");
    EXPECT_EQ(entering->LAYOUT + leaving->LAYOUT, "");
}

TEST_F(DataConnectorTest, SourcesAndSinksDoNotWaitForTheLayout) {
    const Ref<clsDATA_CONNECTOR> entering = Connector(DataConnectorKind::processInput, {}, b);
    process->LayoutConversionFinished = false;
    entering->ColInputDataObjects = ObjectsOf({Data("d", 500, 0)});
    entering->SetupProperty_LAYOUT("");
    EXPECT_EQ(entering->SOURCE_LAYOUT, "");
    entering->SetupProperty_LAYOUT("SOURCE 1");
    EXPECT_EQ(entering->SOURCE_LAYOUT, "SOURCE 1 XPOS 0 YPOS 0");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(DataConnectorTest, ABendPointWithoutPathsOrLayoutIsAWarning) {
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::activityToActivity, a, b);
    connector->SetupProperty_LAYOUT("");
    connector->ConnectorPathsAvailable = true;
    process->LayoutConversionFinished = false;
    connector->SetupProperty_LAYOUT("");
    EXPECT_EQ(connector->LAYOUT, "");
    EXPECT_THAT(Boxes(), ElementsAre("E2090 in clsDATA_CONNECTOR.SetupProperty_LAYOUT",
                                     "E2060 in clsDATA_CONNECTOR.SetupProperty_LAYOUT: Orders"));
}

TEST_F(DataConnectorTest, TheDescriptionGathersThoseOfTheDataByTheRuleOfControlConnectors) {
    const Ref<FakeObject> data = Data("d")->With(9, "what")->With(4711, "not read");
    NewAttributeRule("DATA_CONNECTOR_DESCRIPTION", "4711");
    Writes(a, data);
    Reads(b, data);
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::activityToActivity, a, b);
    connector->SetupProperty_DESCRIPTION();
    EXPECT_EQ(connector->DESCRIPTION, "");
    EXPECT_THAT(Boxes(), ElementsAre("E2090 in clsDATA_CONNECTOR.SetupProperty_DESCRIPTION"));
    connector->FindARISObjectDefinitionsOnConnectorPaths();
    connector->SetupProperty_DESCRIPTION();
    EXPECT_EQ(connector->DESCRIPTION, "'\r\n   T19 ''d'' what'");
    gBlock.gOptUseDescriptionAttr = false;
    connector->DESCRIPTION = "";
    connector->SetupProperty_DESCRIPTION();
    EXPECT_EQ(connector->DESCRIPTION, "");
}

TEST_F(DataConnectorTest, AConnectorBetweenActivitiesIsFinishedOnceAndNoted) {
    const Ref<FakeObject> data = Data("d");
    Writes(a, data);
    Reads(b, data);
    process = ProcessWithActivities();
    DATA_CONNECTOR_Create(*process);
    const Ref<clsDATA_CONNECTOR> connector = process->Col_DATA_CONNECTOR.Item(1);
    EXPECT_TRUE(connector->SetupFinished);
    EXPECT_EQ(connector->ColMapping.Count(), 1);
    EXPECT_EQ(Notes().back(), "I3090|DATA CONNECTOR|FROM 'Check order' TO '_DER _new_'");
    ForgetNotes();
    connector->SetupProperties();
    EXPECT_EQ(connector->ColMapping.Count(), 1);
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(DataConnectorTest, AConnectorAtTheBoundaryIsLeftToTheProcess) {
    const Ref<clsDATA_CONNECTOR> connector = Connector(DataConnectorKind::processInput, {}, b);
    connector->ColInputDataObjects = ObjectsOf({Data("d")->With(9, "what")});
    ForgetNotes();
    connector->SetupProperties();
    EXPECT_TRUE(connector->SetupFinished);
    EXPECT_EQ(connector->Linking + connector->DESCRIPTION + connector->SOURCE_LAYOUT, "");
    EXPECT_TRUE(connector->ColMapping.IsEmpty());
    EXPECT_THAT(Notes(), IsEmpty());
    EXPECT_THAT(Boxes(), IsEmpty());
}

}  // namespace
}  // namespace wxbrg::test
