// How a process gets its containers, its sources and its sinks.

#include <gmock/gmock.h>

#include "data/clsDATA_CONNECTOR.h"
#include "data/clsDATA_MEMBER.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class ProcessBoundaryTest : public CoreTest {
  protected:
    Ref<FakeObject> Data(const std::string& name, std::int32_t x = 0, std::int32_t y = 0) {
        return Drawn(ObjectType::ermAttribute, name, x, y);
    }

    Ref<FakeObject> a = Function("A", 0, 0);
    Ref<FakeObject> b = Function("B", 1000, 0);
};

TEST_F(ProcessBoundaryTest, OneObjectThatTwoActivitiesReadIsOneContainerWithTwoSources) {
    const Ref<FakeObject> data = Data("d", 500, 100);
    Reads(a, data);
    Reads(b, data);
    const Ref<clsPROCESS> process = FinishedProcess();
    EXPECT_EQ(process->InputContainer->ObjectName, "'DATA_STRUCTURE_0'");
    EXPECT_EQ(process->InputContainer->ColDATA_MEMBER.Count(), 1);
    EXPECT_THAT(TextsOf(process->Col_SOURCE),
                ElementsAre("SOURCE 1 XPOS 0 YPOS -100", "SOURCE 2 XPOS 0 YPOS -100"));
    EXPECT_TRUE(process->Col_SINK.IsEmpty());
    EXPECT_EQ(process->Col_DATA_CONNECTOR.Item(1)->Linking, "FROM SOURCE 1 TO 'A'");
    EXPECT_EQ(process->Col_DATA_CONNECTOR.Item(2)->Linking, "FROM SOURCE 2 TO 'B'");
    EXPECT_THAT(TextsOf(process->Col_DATA_CONNECTOR.Item(2)->ColMapping),
                ElementsAre("MAP '_STRUCT' TO '_STRUCT'"));
    EXPECT_THAT(Notes(3090), Contains("I3090|DATA CONNECTOR|FROM SOURCE 1 TO 'A'"));
}

TEST_F(ProcessBoundaryTest, WhatLeavesIsTheOutputWithASinkForEachActivity) {
    Writes(a, Data("x", 400, 0));
    Writes(b, Data("y", 600, 0));
    const Ref<clsPROCESS> process = FinishedProcess();
    EXPECT_EQ(process->OutputContainer->ColDATA_MEMBER.Count(), 2);
    EXPECT_EQ(process->InputContainer->ObjectName, "'Default Data Structure'");
    EXPECT_THAT(TextsOf(process->Col_SINK), ElementsAre("SINK 1 XPOS -100 YPOS 0", "SINK 2 XPOS 100 YPOS 0"));
    EXPECT_EQ(process->Col_DATA_CONNECTOR.Item(1)->Linking, "FROM 'A' TO SINK 1");
    EXPECT_THAT(TextsOf(process->Col_DATA_CONNECTOR.Item(1)->ColMapping), ElementsAre("MAP 'x' TO 'x'"));
}

TEST_F(ProcessBoundaryTest, OneMappedStructureIsTheContainer) {
    const Ref<FakeObject> order = EntityType("Order", {"Number"});
    Reads(a, order);
    const Ref<clsPROCESS> process = FinishedProcess();
    EXPECT_EQ(process->InputContainer, gBlock.gColDATA_STRUCTURE.Item(order->Guid()));
    EXPECT_EQ(process->Col_ACTIVITY.Item(1)->InputContainer, process->InputContainer);
}

TEST_F(ProcessBoundaryTest, SeveralObjectsGiveAGeneratedStructureInTheOrderOfTheConnectors) {
    const Ref<FakeObject> x = Data("x");
    const Ref<FakeObject> y = Data("y");
    Reads(b, x);
    Reads(a, y);
    Reads(b, y);
    const Ref<clsPROCESS> process = FinishedProcess();
    EXPECT_THAT(NamesOf(process->InputContainer->ColARISDataMemberObjectDefinition), ElementsAre("x", "y"));
    EXPECT_EQ(process->Col_ACTIVITY.Item(2)->InputContainer, process->InputContainer);
}

TEST_F(ProcessBoundaryTest, OneObjectThatIsNoDataLeavesTheContainerEmpty) {
    AddStep(NewRule("FUNCTION_RECEIVES_DATA"), ObjectType::function, CxnKind::incoming, 49,
            ObjectType::person);
    repository.Connect(Drawn(ObjectType::person, "Jo", 500, 0), 49, a);
    const Ref<clsPROCESS> process = FinishedProcess();
    EXPECT_FALSE(process->InputContainer);
    const Ref<clsDATA_CONNECTOR> connector = process->Col_DATA_CONNECTOR.Item(1);
    EXPECT_EQ(connector->Linking, "FROM SOURCE 1 TO 'A'");
    EXPECT_THAT(TextsOf(connector->ColMapping), IsEmpty());
    EXPECT_THAT(TextsOf(process->Col_SOURCE), ElementsAre("SOURCE 1 XPOS 0 YPOS 0"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ProcessBoundaryTest, ConnectorsInsideAreNoSourcesOrSinks) {
    const Ref<FakeObject> data = Data("d");
    Writes(a, data);
    Reads(b, data);
    const Ref<clsPROCESS> process = FinishedProcess();
    EXPECT_TRUE(process->Col_SOURCE.IsEmpty());
    EXPECT_TRUE(process->Col_SINK.IsEmpty());
    EXPECT_EQ(process->InputContainer->ObjectName, "'Default Data Structure'");
}

TEST_F(ProcessBoundaryTest, EverythingIsNotedInTheOrderOfItsMaking) {
    const Ref<FakeObject> data = Data("d");
    Flow({a, b});
    Writes(a, data);
    Reads(b, data);
    Reads(a, Data("in"));
    FinishedProcess();
    EXPECT_THAT(Notes(), ElementsAre("I3060|A|T22|PROGRAM_ACTIVITY", "I3060|B|T22|PROGRAM_ACTIVITY",
                                     "I3060|in|T19|DATA_MEMBER", "I3090|DATA_STRUCTURE|'DATA_STRUCTURE_0'",
                                     "I3060|d|T19|DATA_MEMBER", "I3090|DATA_STRUCTURE|'DATA_STRUCTURE_1'",
                                     "I3090|PROGRAM_ACTIVITY|'A'", "I3090|PROGRAM_ACTIVITY|'B'",
                                     "I3070|T22|A|T22|B", "I3090|CONTROL CONNECTOR|FROM 'A' TO 'B'",
                                     "I3080|T22|A|T22|B", "I3090|DATA CONNECTOR|FROM 'A' TO 'B'",
                                     "I3090|DATA CONNECTOR|FROM SOURCE 1 TO 'A'", "I3090|PROCESS|'Orders'"));
}

}  // namespace
}  // namespace wxbrg::test
