// Which data connectors a process has.

#include <gmock/gmock.h>

#include "data/clsDATA_CONNECTOR.h"
#include "data/modDATA_CONNECTOR.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DataConnectorsTest : public CoreTest {
  protected:
    Ref<FakeObject> Data(const std::string& name, std::int32_t type = ObjectType::ermAttribute) {
        return Drawn(type, name);
    }
    /// A connector as "1: A > B", "2: a, b > A" or "3: A > a".
    static std::string ConnectorText(const clsDATA_CONNECTOR& connector) {
        const auto end = [](const ARISObjDef& object, const Collection<ARISObjDef>& data) {
            if (object) return object->Name(english);
            std::string names;
            for (const std::string& name : NamesOf(data)) names += (names.empty() ? "" : ", ") + name;
            return names;
        };
        return std::to_string(static_cast<int>(connector.ConnectorKind)) + ": " +
               end(connector.FROM_ARISObjectDefinition, connector.ColInputDataObjects) + " > " +
               end(connector.TO_ARISObjectDefinition, connector.ColOutputDataObjects);
    }
    static std::vector<std::string> Texts(const Collection<Ref<clsDATA_CONNECTOR>>& connectors) {
        std::vector<std::string> texts;
        for (const Ref<clsDATA_CONNECTOR>& connector : connectors) texts.push_back(ConnectorText(*connector));
        return texts;
    }
    std::vector<std::string> Find() {
        process = ProcessWithActivities();
        ForgetNotes();
        DATA_CONNECTOR_Find_ARIS_Mapping(*process);
        return Texts(process->Col_DATA_CONNECTOR);
    }
    Ref<clsACTIVITY> Activity(const Ref<FakeObject>& function) {
        return process->Col_ACTIVITY.Item(function->Guid());
    }

    Ref<FakeObject> a = Function("A");
    Ref<FakeObject> b = Function("B");
    Ref<clsPROCESS> process;
};

TEST_F(DataConnectorsTest, DataThatOneWritesAndAnotherReadsStaysInside) {
    const Ref<FakeObject> data = Data("d");
    Writes(a, data);
    Reads(b, data);
    EXPECT_THAT(Find(), ElementsAre("1: A > B"));
    const Ref<clsDATA_CONNECTOR> connector = process->Col_DATA_CONNECTOR.Item(1);
    EXPECT_THAT(PathTexts(connector->ColPath), ElementsAre("A > d > B"));
    EXPECT_TRUE(connector->ConnectorPathsAvailable);
    EXPECT_EQ(connector->PROCESS, process);
    EXPECT_EQ(connector->Key(), std::string(a->Guid()) + "/" + std::string(b->Guid()));
    EXPECT_EQ(process->Col_DATA_CONNECTOR.Item(connector->Key()), connector);
    EXPECT_EQ(Activity(a)->Col_DATA_CONNECTOR_OUT.Item(connector->Key()), connector);
    EXPECT_EQ(Activity(b)->Col_DATA_CONNECTOR_IN.Item(connector->Key()), connector);
    EXPECT_TRUE(Activity(a)->Col_DATA_CONNECTOR_IN.IsEmpty());
    EXPECT_TRUE(Activity(b)->Col_DATA_CONNECTOR_OUT.IsEmpty());
    EXPECT_THAT(Notes(), ElementsAre("I3080|T22|A|T22|B"));
}

TEST_F(DataConnectorsTest, EveryKindOfDataFlows) {
    for (const std::int32_t type :
         {ObjectType::entityType, ObjectType::relationType, ObjectType::ermAttribute, ObjectType::cluster,
          ObjectType::attributeTypeGroup, ObjectType::informationFlow}) {
        const Ref<FakeObject> data = Data("t" + std::to_string(type), type);
        Writes(a, data);
        Reads(b, data);
    }
    EXPECT_THAT(Find(), ElementsAre("1: A > B"));
    EXPECT_THAT(PathTexts(process->Col_DATA_CONNECTOR.Item(1)->ColPath),
                ElementsAre("A > t17 > B", "A > t11 > B", "A > t19 > B", "A > t14 > B", "A > t111 > B",
                            "A > t26 > B"));
}

TEST_F(DataConnectorsTest, AFunctionThatSendsDataToItselfHasALoop) {
    const Ref<FakeObject> data = Data("d");
    Writes(a, data);
    Reads(a, data);
    EXPECT_THAT(Find(), ElementsAre("1: A > A"));
    EXPECT_THAT(Texts(Activity(a)->Col_DATA_CONNECTOR_IN), ElementsAre("1: A > A"));
    EXPECT_THAT(Texts(Activity(a)->Col_DATA_CONNECTOR_OUT), ElementsAre("1: A > A"));
    EXPECT_TRUE(process->Col_DATA_CONNECTOR.Item(1)->IsLoopConnector());
}

TEST_F(DataConnectorsTest, DataThatNobodyWritesEntersTheProcess) {
    Reads(a, Data("x"));
    Reads(a, Data("y"));
    Reads(a, Data("z", ObjectType::informationFlow));
    EXPECT_THAT(Find(), ElementsAre("2: x, y, z > A"));
    const Ref<clsDATA_CONNECTOR> connector = process->Col_DATA_CONNECTOR.Item(1);
    EXPECT_EQ(connector->Key(), "SOURCE/" + std::string(a->Guid()));
    EXPECT_FALSE(connector->FROM_ARISObjectDefinition);
    EXPECT_FALSE(connector->ConnectorPathsAvailable);
    EXPECT_TRUE(connector->ColOutputDataObjects.IsEmpty());
    EXPECT_EQ(Activity(a)->Col_DATA_CONNECTOR_IN.Item(connector->Key()), connector);
    EXPECT_TRUE(Activity(a)->Col_DATA_CONNECTOR_OUT.IsEmpty());
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(DataConnectorsTest, DataThatNobodyReadsLeavesTheProcess) {
    Writes(a, Data("x"));
    Writes(a, Data("y"));
    EXPECT_THAT(Find(), ElementsAre("3: A > x, y"));
    const Ref<clsDATA_CONNECTOR> connector = process->Col_DATA_CONNECTOR.Item(1);
    EXPECT_EQ(connector->Key(), std::string(a->Guid()) + "/SINK");
    EXPECT_FALSE(connector->TO_ARISObjectDefinition);
    EXPECT_EQ(Activity(a)->Col_DATA_CONNECTOR_OUT.Item(connector->Key()), connector);
    EXPECT_TRUE(Activity(a)->Col_DATA_CONNECTOR_IN.IsEmpty());
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(DataConnectorsTest, OneFunctionHasOneSourceAndOneSinkOfItsOwn) {
    const Ref<FakeObject> shared = Data("shared");
    Reads(a, shared);
    Reads(b, shared);
    Writes(a, Data("out"));
    Writes(b, Data("other"));
    EXPECT_THAT(Find(), ElementsAre("2: shared > A", "2: shared > B", "3: A > out", "3: B > other"));
}

TEST_F(DataConnectorsTest, AWriterInsideKeepsDataInsideWhoeverElseWritesIt) {
    const Ref<FakeObject> data = Data("d");
    const Ref<FakeObject> outside = DrawnElsewhere(ObjectType::function, "outside");
    Reads(a, data);
    Writes(b, data);
    Writes(outside, data);
    EXPECT_THAT(Find(), ElementsAre("1: B > A"));
}

TEST_F(DataConnectorsTest, AWriterOrReaderOutsideAloneDoesNotKeepDataInside) {
    const Ref<FakeObject> outside = DrawnElsewhere(ObjectType::function, "outside");
    const Ref<FakeObject> read = Data("read");
    const Ref<FakeObject> written = Data("written");
    Reads(a, read);
    Writes(outside, read);
    Writes(a, written);
    Reads(outside, written);
    EXPECT_THAT(Find(), ElementsAre("2: read > A", "3: A > written"));
}

TEST_F(DataConnectorsTest, DataThatIsNotDrawnInTheModelDoesNotCross) {
    const Ref<FakeObject> data = DrawnElsewhere(ObjectType::ermAttribute, "elsewhere");
    Reads(a, data);
    Writes(a, DrawnElsewhere(ObjectType::ermAttribute, "away"));
    EXPECT_THAT(Find(), IsEmpty());
}

TEST_F(DataConnectorsTest, DataThatIsNotDrawnInTheModelStillJoinsItsFunctions) {
    const Ref<FakeObject> data = DrawnElsewhere(ObjectType::ermAttribute, "elsewhere");
    Writes(a, data);
    Reads(b, data);
    EXPECT_THAT(Find(), ElementsAre("1: A > B"));
}

TEST_F(DataConnectorsTest, ConnectorsBetweenActivitiesStandInFrontOfSourcesAndSinksBehind) {
    const Ref<FakeObject> inside = Data("inside");
    Writes(a, Data("out"));
    Reads(b, Data("in"));
    Writes(b, inside);
    Reads(a, inside);
    Reads(a, Data("also in"));
    EXPECT_THAT(Find(), ElementsAre("1: B > A", "2: also in > A", "2: in > B", "3: A > out"));
}

TEST_F(DataConnectorsTest, BeforeTheActivitiesAreCompleteNothingIsHungOnThem) {
    const Ref<FakeObject> data = Data("d");
    Writes(a, data);
    Reads(b, data);
    Reads(b, Data("in"));
    process = ProcessWithActivities();
    process->CreateActivitiesFinished = false;
    DATA_CONNECTOR_Find_ARIS_Mapping(*process);
    EXPECT_EQ(process->Col_DATA_CONNECTOR.Count(), 2);
    EXPECT_TRUE(Activity(a)->Col_DATA_CONNECTOR_OUT.IsEmpty());
    EXPECT_TRUE(Activity(b)->Col_DATA_CONNECTOR_IN.IsEmpty());
}

TEST_F(DataConnectorsTest, FindingAgainNotesAgainAndAddsNothing) {
    const Ref<FakeObject> data = Data("d");
    Writes(a, data);
    Reads(b, data);
    Reads(a, Data("in"));
    Writes(b, Data("out"));
    Find();
    const Ref<clsDATA_CONNECTOR> connector = process->Col_DATA_CONNECTOR.Item(1);
    DATA_CONNECTOR_Find_ARIS_Mapping(*process);
    EXPECT_THAT(Texts(process->Col_DATA_CONNECTOR), ElementsAre("1: A > B", "2: in > A", "3: B > out"));
    EXPECT_EQ(process->Col_DATA_CONNECTOR.Item(1), connector);
    EXPECT_EQ(Activity(a)->Col_DATA_CONNECTOR_OUT.Item(1), connector);
    EXPECT_THAT(Notes(), ElementsAre("I3080|T22|A|T22|B", "I3080|T22|A|T22|B"));
}

TEST_F(DataConnectorsTest, DataThatAFunctionOnlyReadsAndWritesItselfStaysInside) {
    const Ref<FakeObject> own = Data("own");
    const Ref<FakeObject> in = Data("in");
    Reads(a, own);
    Writes(a, own);
    Reads(a, in);
    EXPECT_THAT(Find(), ElementsAre("1: A > A", "2: in > A"));
}

TEST_F(DataConnectorsTest, AnObjectWhoseGuidDiffersInCaseAloneIsNotTheActivity) {
    const Ref<FakeObject> kept = repository.Object(ObjectType::function, "D", "{twin}");
    const Ref<FakeObject> twin = repository.Object(ObjectType::function, "E", "{TWIN}");
    repository.Draw(model, kept);
    repository.Draw(model, twin);
    const Ref<FakeObject> data = Data("d");
    Writes(a, data);
    Reads(twin, data);
    EXPECT_THAT(Find(), ElementsAre("1: A > E", "3: A > d"));
    EXPECT_THAT(Texts(Activity(a)->Col_DATA_CONNECTOR_OUT), ElementsAre("1: A > E", "3: A > d"));
    EXPECT_TRUE(Activity(kept)->Col_DATA_CONNECTOR_IN.IsEmpty());
    process->Col_DATA_CONNECTOR.Item(1)->SetupProperty_Mapping(nullptr);
    EXPECT_THAT(Boxes(), IsEmpty());
}

class DataFlowLoopsTest : public DataConnectorsTest {
  protected:
    /// Data from each function to the next.
    void Ring(std::initializer_list<Ref<FakeObject>> functions) {
        for (auto to = functions.begin() + 1; to != functions.end(); ++to) {
            const Ref<FakeObject> data = Data("d");
            Writes(*(to - 1), data);
            Reads(*to, data);
        }
    }

    Ref<FakeObject> c = Function("C");
};

TEST_F(DataFlowLoopsTest, ARingIsReportedOnceForTheConnectorThatClosesIt) {
    Ring({a, b, c, a});
    EXPECT_THAT(Find(), ElementsAre("1: A > B", "1: B > C", "1: C > A"));
    EXPECT_THAT(Notes(), ElementsAre("I3080|T22|A|T22|B", "I3080|T22|B|T22|C", "E3140|T22|C|T22|A",
                                     "I3080|T22|C|T22|A"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(DataFlowLoopsTest, WithTheOptionOffNothingIsReported) {
    gBlock.gOptFindDataFlowLoops = false;
    Ring({a, b, a});
    Find();
    EXPECT_THAT(Notes(3140), IsEmpty());
}

TEST_F(DataFlowLoopsTest, TheOptionOfTheControlFlowPlaysNoPart) {
    gBlock.gOptFindControlFlowLoops = false;
    Ring({a, b, a});
    Find();
    EXPECT_THAT(Notes(3140), ElementsAre("E3140|T22|B|T22|A"));
}

TEST_F(DataFlowLoopsTest, AChainAndALoopOfOneFunctionAreNoRing) {
    Ring({a, b, b, c});
    EXPECT_THAT(Find(), ElementsAre("1: A > B", "1: B > B", "1: B > C"));
    EXPECT_THAT(Notes(3140), IsEmpty());
}

TEST_F(DataFlowLoopsTest, AConnectorAtTheBoundaryIsInNoRing) {
    clsDATA_CONNECTOR connector;
    connector.ConnectorKind = DataConnectorKind::processInput;
    connector.TO_ARISObjectDefinition = a;
    process = ProcessWithActivities();
    EXPECT_FALSE(connector.IsMemberOfInvalidDataFlowLoop(*process));
    EXPECT_THAT(Boxes(), IsEmpty());
}

}  // namespace
}  // namespace wxbrg::test
