// Which activities a process has, and what they are filled with before there are connectors.

#include <gmock/gmock.h>

#include "data/clsDATA_STRUCTURE.h"
#include "data/clsPROGRAM.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "model/modACTIVITY.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ActivitiesTest : public CoreTest {
  protected:
    Ref<FakeModel> Model(const std::string& name, std::int32_t type = processType) {
        return repository.Model(type, name, group);
    }
    /// The activity of an object, in a process with its activities only.
    Ref<clsACTIVITY> ActivityOf(const Ref<FakeObject>& object) {
        return ProcessWithActivities()->Col_ACTIVITY.Item(object->Guid());
    }
};

TEST_F(ActivitiesTest, AnActivityBeginsManualAutomaticAndEmpty) {
    const clsACTIVITY activity;
    EXPECT_EQ(activity.StartCondition, "AT_LEAST_ONE CONNECTOR");
    EXPECT_EQ(activity.StartMode, "MANUAL");
    EXPECT_EQ(activity.ExitMode, "AUTOMATIC");
    for (const std::string* text :
         {&activity.ActivityName, &activity.LAYOUT, &activity.DESCRIPTION, &activity.DOCUMENTATION,
          &activity.PROCESS, &activity.PROGRAM, &activity.SUPPORT_TOOL, &activity.PERSON,
          &activity.MEMBER_OF_ROLE, &activity.ORGANIZATION, &activity.ExitCondition, &activity.OtherSettings})
        EXPECT_EQ(*text, "");
    EXPECT_EQ(activity.InputContainer->ObjectName, "'Default Data Structure'");
    EXPECT_NE(activity.InputContainer, activity.OutputContainer);
    EXPECT_EQ(activity.ARIS_XPos + activity.ARIS_YPos + activity.WPX_XPos + activity.WPX_YPos, 0);
    EXPECT_FALSE(activity.Is_PROCESS_ACTIVITY());
    EXPECT_FALSE(activity.LayoutConversionFinished || activity.SetupIndependentPropertiesFinished ||
                 activity.SetupDependentPropertiesFinished);
}

TEST_F(ActivitiesTest, FunctionsOfTheModelAreActivitiesInTheOrderOfTheirNames) {
    Function("b");
    Function("a");
    Event("no activity");
    model->List(DrawnElsewhere(ObjectType::function, "listed and drawn elsewhere"));
    const Ref<clsPROCESS> process = ProcessWithActivities();
    EXPECT_THAT(Notes(), ElementsAre("I3060|a|T22|PROGRAM_ACTIVITY", "I3060|b|T22|PROGRAM_ACTIVITY",
                                     "I3090|PROGRAM_ACTIVITY|'a'", "I3090|PROGRAM_ACTIVITY|'b'"));
    EXPECT_EQ(process->Col_ACTIVITY.Count(), 2);
    EXPECT_TRUE(process->CreateActivitiesFinished);
}

TEST_F(ActivitiesTest, AnObjectDrawnTwiceIsOneActivityAtItsFirstPlace) {
    const Ref<FakeObject> object = repository.Object(ObjectType::function, "f");
    repository.Draw(elsewhere, object, 1, 2);
    repository.Draw(model, object, 30, 40);
    repository.Draw(model, object, 50, 60);
    const Ref<clsPROCESS> process = ProcessWithActivities();
    ASSERT_EQ(process->Col_ACTIVITY.Count(), 1);
    const Ref<clsACTIVITY> activity = process->Col_ACTIVITY.Item(1);
    EXPECT_EQ(activity->ARIS_XPos, 30);
    EXPECT_EQ(activity->ARIS_YPos, 40);
}

TEST_F(ActivitiesTest, ActivitiesAreMadeOnce) {
    Function("a");
    const Ref<clsPROCESS> process = ProcessWithActivities();
    Function("b");
    ForgetNotes();
    Collection<ARISModel> newModels;
    ACTIVITY_Create(newModels, *process);
    EXPECT_EQ(process->Col_ACTIVITY.Count(), 1);
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(ActivitiesTest, AnAssignedModelOfAProcessTypeMakesAProcessActivity) {
    const Ref<FakeObject> object = Function("f");
    object->Assign(Model("Chart", otherModelType));
    object->Assign(Model("Refined: all"));
    const Ref<clsACTIVITY> activity = ActivityOf(object);
    EXPECT_TRUE(activity->Is_PROCESS_ACTIVITY());
    EXPECT_EQ(activity->AssignedModel->Name(english), "Refined: all");
    EXPECT_EQ(activity->PROCESS, "'Refined_ all'");
    EXPECT_EQ(activity->PROGRAM, "");
    EXPECT_THAT(Notes(3060), ElementsAre("I3060|f|T22|PROCESS_ACTIVITY"));
    EXPECT_THAT(Notes(3090), ElementsAre("I3090|PROCESS_ACTIVITY|'f'"));
    EXPECT_THAT(Notes(3000), IsEmpty());
}

TEST_F(ActivitiesTest, AnAssignedModelOfAnotherTypeDoesNot) {
    const Ref<FakeObject> object = Function("f");
    object->Assign(Model("Chart", otherModelType));
    EXPECT_FALSE(ActivityOf(object)->Is_PROCESS_ACTIVITY());
    EXPECT_THAT(Notes(3060), ElementsAre("I3060|f|T22|PROGRAM_ACTIVITY"));
}

TEST_F(ActivitiesTest, TheFirstOfSeveralAssignedProcessesCounts) {
    const Ref<FakeObject> object = Function("f");
    for (const char* name : {"first", "second", "third"}) object->Assign(Model(name));
    object->Assign(Model("Chart", otherModelType));
    Collection<ARISModel> newModels;
    const Ref<clsPROCESS> process = NewProcess();
    ACTIVITY_Create(newModels, *process);
    EXPECT_EQ(process->Col_ACTIVITY.Item(1)->PROCESS, "'first'");
    EXPECT_EQ(newModels.Count(), 1);
    EXPECT_THAT(Notes(), ElementsAre("E3000|PROCESS|PROCESS_ACTIVITY", "I3020|second|M13", "I3020|third|M13",
                                     "I3060|f|T22|PROCESS_ACTIVITY", "I3090|PROCESS_ACTIVITY|'f'"));
}

TEST_F(ActivitiesTest, AnUnnamedAssignedModelLeavesTheProcessEmpty) {
    const Ref<FakeObject> object = Function("f");
    object->Assign(Model(""));
    const Ref<clsACTIVITY> activity = ActivityOf(object);
    EXPECT_TRUE(activity->Is_PROCESS_ACTIVITY());
    EXPECT_EQ(activity->PROCESS, "");
}

TEST_F(ActivitiesTest, NamesAreConvertedAndNeedNotBeUnique) {
    const Ref<FakeObject> one = Function("ORDER (new)");
    const Ref<FakeObject> other = Function("ORDER (new)");
    const Ref<clsPROCESS> process = ProcessWithActivities();
    EXPECT_EQ(process->Col_ACTIVITY.Item(one->Guid())->ActivityName, "'_DER _new_'");
    EXPECT_EQ(process->Col_ACTIVITY.Item(other->Guid())->ActivityName, "'_DER _new_'");
}

TEST_F(ActivitiesTest, AnUnnamedActivityIsKept) {
    EXPECT_EQ(ActivityOf(Function(""))->ActivityName, "");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ActivitiesTest, TheDescriptionIsGatedAndTheDocumentationIsNot) {
    const Ref<FakeObject> object = Function("f")->With(9, "what")->With(8, "how\t");
    gBlock.gOptUseDescriptionAttr = gBlock.gOptUseDocumentationAttr = false;
    const Ref<clsACTIVITY> activity = ActivityOf(object);
    EXPECT_EQ(activity->DESCRIPTION, "");
    EXPECT_EQ(activity->DOCUMENTATION, "'how'");
    gBlock.gOptUseDescriptionAttr = true;
    activity->SetupProperty_DESCRIPTION();
    EXPECT_EQ(activity->DESCRIPTION, "'what'");
}

TEST_F(ActivitiesTest, OtherSettingsAreTakenAsReadOnDemand) {
    const Ref<FakeObject> object = Function("f")->With(1209, "PRIORITY 'x'\t1");
    const Ref<clsACTIVITY> activity = ActivityOf(object);
    EXPECT_EQ(activity->OtherSettings, "");
    gBlock.gOptUseOtherSettings = true;
    activity->SetupProperty_OtherSettings();
    EXPECT_EQ(activity->OtherSettings, "PRIORITY 'x'\t1");
}

TEST_F(ActivitiesTest, ContainersComeFromTheDataThatIsReadAndWritten) {
    const Ref<FakeObject> object = Function("f");
    const Ref<FakeObject> order = EntityType("Order", {"Number"});
    Reads(object, order);
    Writes(object, Drawn(ObjectType::ermAttribute, "x"));
    Writes(object, Drawn(ObjectType::ermAttribute, "y"));
    const Ref<clsACTIVITY> activity = ActivityOf(object);
    EXPECT_EQ(activity->InputContainer, gBlock.gColDATA_STRUCTURE.Item(order->Guid()));
    EXPECT_TRUE(activity->OutputContainer->IsGenerated);
    EXPECT_EQ(activity->OutputContainer->ColDATA_MEMBER.Count(), 2);
}

TEST_F(ActivitiesTest, FunctionsThatReadTheSameShareAContainer) {
    const Ref<FakeObject> one = Function("one");
    const Ref<FakeObject> other = Function("other");
    const Ref<FakeObject> x = Drawn(ObjectType::ermAttribute, "x");
    const Ref<FakeObject> y = Drawn(ObjectType::ermAttribute, "y");
    Reads(one, x);
    Reads(one, y);
    Reads(other, y);
    Reads(other, x);
    gBlock.gNextDataStructureSuffix = 7;
    const Ref<clsPROCESS> process = ProcessWithActivities();
    EXPECT_EQ(process->Col_ACTIVITY.Item(1)->InputContainer, process->Col_ACTIVITY.Item(2)->InputContainer);
    EXPECT_EQ(process->Col_ACTIVITY.Item(1)->InputContainer->ObjectName, "'DATA_STRUCTURE_7'");
    EXPECT_EQ(gBlock.gNextDataStructureSuffix, 8);
}

TEST_F(ActivitiesTest, TheFirstPhaseRunsOnceAndTheSecondOnlyBehindIt) {
    const Ref<clsPROCESS> process = NewProcess();
    clsACTIVITY activity;
    activity.ARISObjectDefinition = Function("f")->With(1207, "AUTOMATIC");
    gBlock.gOptUseOtherSettings = true;
    activity.SetupDependentProperties(*process);
    EXPECT_FALSE(activity.SetupDependentPropertiesFinished);
    EXPECT_EQ(activity.StartMode, "MANUAL");
    Collection<ARISModel> newModels;
    activity.SetupIndependentProperties(newModels);
    ForgetNotes();
    activity.SetupIndependentProperties(newModels);
    EXPECT_THAT(Notes(), IsEmpty());
    activity.SetupDependentProperties(*process);
    EXPECT_TRUE(activity.SetupDependentPropertiesFinished);
    EXPECT_EQ(activity.StartMode, "AUTOMATIC");
    activity.StartMode = "kept";
    activity.SetupDependentProperties(*process);
    EXPECT_EQ(activity.StartMode, "kept");
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(ActivitiesTest, TheFirstPhaseIsNameThenContainersThenTextsThenProgram) {
    const Ref<FakeObject> object = Function("A.B")->With(9, "what\t")->With(8, "how\t");
    repository.Connect(Drawn(ObjectType::applicationSystem, "Ledger"), 221, object);
    Writes(object, Drawn(ObjectType::ermAttribute, "out"));
    Reads(object, Drawn(ObjectType::ermAttribute, "in"));
    ActivityOf(object);
    EXPECT_THAT(Notes(), ElementsAre("I3060|A.B|T22|PROGRAM_ACTIVITY", "I3100|A.B|A_B", "I3100|A.B|A_B",
                                     "I3060|in|T19|DATA_MEMBER", "I3090|DATA_STRUCTURE|'DATA_STRUCTURE_0'",
                                     "I3060|out|T19|DATA_MEMBER", "I3090|DATA_STRUCTURE|'DATA_STRUCTURE_1'",
                                     "I3100|what\t|what", "I3100|how\t|how", "I3090|PROGRAM|'Ledger'",
                                     "I3060|Ledger|T6|PROGRAM", "I3090|PROGRAM_ACTIVITY|'A_B'"));
}

TEST_F(ActivitiesTest, OtherSettingsAreReadBehindTheNote) {
    gBlock.gOptUseOtherSettings = true;
    gBlock.gColMappingRule.Remove("ACTIVITY_OTHER_SETTINGS");
    Function("f");
    EXPECT_EQ(EndOf([&] {
                  ProcessWithActivities();
              }),
              2100);
    EXPECT_THAT(Notes(), ElementsAre("I3060|f|T22|PROGRAM_ACTIVITY", "I3090|PROGRAM_ACTIVITY|'f'"));
}

TEST_F(ActivitiesTest, TheRuleOfProcessesIsAskedForOnlyWhereModelsAreAssigned) {
    gBlock.gColMappingRule.Remove("PROCESS");
    const Ref<FakeObject> object = Function("f");
    EXPECT_FALSE(ActivityOf(object)->Is_PROCESS_ACTIVITY());
    object->Assign(Model("Chart", otherModelType));
    gBlock.gColPROCESS = {};
    EXPECT_EQ(EndOf([&] {
                  ActivityOf(object);
              }),
              2100);
    EXPECT_THAT(Boxes(), ElementsAre("C2100 in modPROCESS.Find_ARIS_Model_In_ModelList: PROCESS"));
}

TEST_F(ActivitiesTest, OneObjectThatIsNoDataLeavesTheContainerEmpty) {
    AddStep(NewRule("FUNCTION_SENDS_DATA"), ObjectType::function, CxnKind::outgoing, 50, ObjectType::person);
    const Ref<FakeObject> object = Function("f");
    repository.Connect(object, 50, Drawn(ObjectType::person, "Jo"));
    const Ref<clsACTIVITY> activity = ActivityOf(object);
    EXPECT_FALSE(activity->OutputContainer);
    EXPECT_EQ(activity->InputContainer->ObjectName, "'Default Data Structure'");
    EXPECT_THAT(Boxes(), IsEmpty());
}

}  // namespace
}  // namespace wxbrg::test
