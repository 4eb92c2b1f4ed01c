// Which models are processes, and what a process holds apart from its activities and connectors.

#include <gmock/gmock.h>

#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "model/modPROCESS.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ProcessesTest : public CoreTest {
  protected:
    static std::vector<std::string> NamesOf(const Collection<ARISModel>& models) {
        std::vector<std::string> names;
        for (const ARISModel& one : models) names.push_back(one->Name(english));
        return names;
    }
    Ref<FakeModel> Model(const std::string& name, std::int32_t type = processType) {
        return repository.Model(type, name, group);
    }
};

TEST_F(ProcessesTest, AProcessBeginsEmptyWithTwoDefaultContainers) {
    const clsPROCESS process;
    EXPECT_FALSE(process.ARIS_Model);
    EXPECT_FALSE(process.ARIS_Group);
    for (const std::string* text : {&process.ProcessName, &process.WINDOW, &process.DESCRIPTION,
                                    &process.DOCUMENTATION, &process.CATEGORY, &process.OtherSettings})
        EXPECT_EQ(*text, "");
    EXPECT_EQ(process.InputContainer->ObjectName, "'Default Data Structure'");
    EXPECT_NE(process.InputContainer, process.OutputContainer);
    EXPECT_EQ(process.ShrinkFactor, 1.0);
    EXPECT_EQ(process.MaxXPos, 0);
    EXPECT_EQ(process.MaxYPos, 0);
    EXPECT_EQ(process.MinXPos, 99999999);
    EXPECT_EQ(process.MinYPos, 99999999);
    EXPECT_EQ(process.X_ContingencyOffset, 0);
    EXPECT_FALSE(process.CreateActivitiesFinished || process.LayoutConversionFinished ||
                 process.SetupFinished);
}

TEST_F(ProcessesTest, AModelOfAProcessTypeIsAProcess) {
    PROCESS_Find_ARIS_Mapping(ModelsOf({model}));
    const Ref<clsPROCESS> process = gBlock.gColPROCESS.Item(model->Guid());
    EXPECT_EQ(process->ARIS_Model, ARISModel(model));
    EXPECT_EQ(process->ARIS_Group, ARISGroup(group));
    EXPECT_EQ(process->ProcessName, "");
    EXPECT_THAT(Notes(), ElementsAre("I3050|Orders"));
}

TEST_F(ProcessesTest, AModelOfAnotherTypeIsDroppedWithoutAWord) {
    repository.Draw(elsewhere, repository.Object(ObjectType::function, "Check"));
    EXPECT_TRUE(PROCESS_Create(ModelsOf({elsewhere})).IsEmpty());
    EXPECT_TRUE(gBlock.gColPROCESS.IsEmpty());
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(ProcessesTest, AModelThatABatchMeetsAgainIsNotedAgainAndStays) {
    PROCESS_Create(ModelsOf({model}));
    const Ref<clsPROCESS> process = gBlock.gColPROCESS.Item(1);
    ForgetNotes();
    PROCESS_Create(ModelsOf({model}));
    EXPECT_EQ(gBlock.gColPROCESS.Count(), 1);
    EXPECT_EQ(gBlock.gColPROCESS.Item(1), process);
    EXPECT_THAT(Notes(), ElementsAre("I3050|Orders"));
}

TEST_F(ProcessesTest, ModelsComeInTheirOwnOrderEachOnce) {
    NewTypeRule("KINDS", {2, 1, 2});
    const Ref<FakeModel> one = Model("one", 1);
    const Ref<FakeModel> two = Model("two", 2);
    const Ref<FakeModel> three = Model("three", 3);
    EXPECT_THAT(NamesOf(PROCESS_Find_ARIS_Model_In_ModelCollection_Using_Mapping_Rule(
                    ModelsOf({one, three, two}), "KINDS")),
                ElementsAre("one", "two"));
    const ARISModelList list(std::vector<ARISModel>{two, three, one, two});
    EXPECT_THAT(NamesOf(Find_ARIS_Model_In_ModelList(list, "KINDS")), ElementsAre("two", "one"));
    EXPECT_TRUE(Find_ARIS_Model_In_ModelList(ARISModelList(), "KINDS").IsEmpty());
}

TEST_F(ProcessesTest, AMissingRuleEndsTheRunEvenWithoutModels) {
    EXPECT_EQ(EndOf([] {
                  PROCESS_Find_ARIS_Model_In_ModelCollection_Using_Mapping_Rule({}, "NO_RULE");
              }),
              2100);
    EXPECT_EQ(EndOf([] {
                  Find_ARIS_Model_In_ModelList({}, "NO_RULE");
              }),
              2100);
    EXPECT_EQ(EndOf([&] {
                  PROCESS_Find_ARIS_Model_Attribute_Using_Mapping_Rule(model, "NO_RULE");
              }),
              2100);
    const std::string own = "C2100 in modPROCESS.";
    EXPECT_THAT(Boxes(),
                ElementsAre(own + "PROCESS_Find_ARIS_Model_In_ModelCollection_Using_Mapping_Rule: NO_RULE",
                            own + "Find_ARIS_Model_In_ModelList: NO_RULE",
                            own + "PROCESS_Find_ARIS_Model_Attribute_Using_Mapping_Rule: NO_RULE"));
}

TEST_F(ProcessesTest, AnAttributeOfAModelIsEmptyUnlessItIsMaintained) {
    model->Set(9, "one\r\ntwo");
    model->SetUnmaintained(8);
    EXPECT_EQ(PROCESS_Find_ARIS_Model_Attribute(model, 9), "one two");
    EXPECT_EQ(PROCESS_Find_ARIS_Model_Attribute(model, 8), "");
    EXPECT_EQ(PROCESS_Find_ARIS_Model_Attribute(model, 7), "");
    EXPECT_EQ(PROCESS_Find_ARIS_Model_Attribute(model, -1), "Orders");
    EXPECT_EQ(PROCESS_Find_ARIS_Model_Attribute_Using_Mapping_Rule(model, "PROCESS_DESCRIPTION"), "one two");
    gBlock.gOptRemoveLineBreaks = false;
    EXPECT_EQ(PROCESS_Find_ARIS_Model_Attribute(model, 9), "one\r\ntwo");
}

TEST_F(ProcessesTest, TextsAreReadFromTheModelAndItsGroup) {
    group = repository.Group("No. 1");
    model = Model("Orders: all");
    model->Set(9, "what\t");
    model->Set(8, "how");
    model->Set(985, "SETTING 'a.b'");
    gBlock.gOptUseOtherSettings = true;
    const Ref<clsPROCESS> process = FinishedProcess();
    EXPECT_EQ(process->ProcessName, "'Orders_ all'");
    EXPECT_EQ(process->DESCRIPTION, "'what'");
    EXPECT_EQ(process->DOCUMENTATION, "'how'");
    EXPECT_EQ(process->CATEGORY, "'No_ 1'");
    EXPECT_EQ(process->OtherSettings, "SETTING 'a.b'");
}

TEST_F(ProcessesTest, TextsAreGatedByTheirOptions) {
    model->Set(9, "what");
    model->Set(8, "how");
    model->Set(985, "SETTING");
    gBlock.gOptUseDescriptionAttr = gBlock.gOptUseDocumentationAttr = gBlock.gOptUseOtherSettings = false;
    const Ref<clsPROCESS> process = FinishedProcess();
    EXPECT_EQ(process->DESCRIPTION + process->DOCUMENTATION + process->OtherSettings, "");
    EXPECT_EQ(process->CATEGORY, "'Sales'");
}

TEST_F(ProcessesTest, TheCategoryIsThePlainNameOfTheGroupWhateverTheRule) {
    group->Set(4711, "by rule");
    NewAttributeRule("PROCESS_CATEGORY_ObjectName", "4711");
    EXPECT_EQ(FinishedProcess()->CATEGORY, "'Sales'");
}

TEST_F(ProcessesTest, AnUnnamedGroupGivesNoCategory) {
    group = repository.Group("");
    model = Model("Orders");
    EXPECT_EQ(FinishedProcess()->CATEGORY, "");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ProcessesTest, AnUnnamedProcessIsKept) {
    model = Model("");
    EXPECT_EQ(FinishedProcess()->ProcessName, "");
    EXPECT_EQ(gBlock.gColPROCESS.Count(), 1);
    EXPECT_THAT(Notes(), ElementsAre("I3090|PROCESS"));
}

TEST_F(ProcessesTest, AProcessWithoutActivitiesHasAWindowAndNothingElse) {
    const Ref<clsPROCESS> process = FinishedProcess();
    EXPECT_EQ(process->WINDOW, "PAPERSIZE WIDTH 21000 HEIGHT 21000");
    EXPECT_EQ(process->ShrinkFactor, 1.0);
    EXPECT_TRUE(process->CreateActivitiesFinished);
    EXPECT_TRUE(process->LayoutConversionFinished);
    EXPECT_TRUE(process->SetupFinished);
    EXPECT_TRUE(process->Col_SOURCE.IsEmpty());
    EXPECT_TRUE(process->Col_SINK.IsEmpty());
}

TEST_F(ProcessesTest, AFinishedProcessIsNotFilledAgain) {
    const Ref<clsPROCESS> process = FinishedProcess();
    Function("new");
    ForgetNotes();
    EXPECT_TRUE(PROCESS_SetupProperties().IsEmpty());
    EXPECT_TRUE(process->Col_ACTIVITY.IsEmpty());
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(ProcessesTest, TheWindowWaitsForTheLayout) {
    const Ref<clsPROCESS> process = NewProcess();
    process->SetupProperty_ProcessGraphicsSetting();
    EXPECT_EQ(process->WINDOW, "");
    EXPECT_THAT(Boxes(), ElementsAre("E2060 in clsPROCESS.SetupProperty_WINDOW: Orders",
                                     "E2060 in clsPROCESS.SetupProperty_SOURCE: Orders",
                                     "E2060 in clsPROCESS.SetupProperty_SINK: Orders"));
}

TEST_F(ProcessesTest, SourcesAndSinksAreNumberedFromOne) {
    clsPROCESS process;
    EXPECT_EQ(process.GeneratedDataSourceName(), "SOURCE 1");
    EXPECT_EQ(process.GeneratedDataSourceName(), "SOURCE 2");
    EXPECT_EQ(process.GeneratedDataSinkName(), "SINK 1");
    EXPECT_EQ(clsPROCESS().GeneratedDataSourceName(), "SOURCE 1");
}

TEST_F(ProcessesTest, AProcessIsFilledWholeBeforeTheNextBegins) {
    group = repository.Group("No. 1");
    model = Model("Orders: all");
    model->Set(8, "how\t");
    model->Set(9, "what\t");
    const Ref<FakeModel> second = repository.Model(processType, "Second", repository.Group(""));
    Function("f");
    repository.Draw(second, repository.Object(ObjectType::function, "g"));
    PROCESS_Create(ModelsOf({model, second}));
    EXPECT_THAT(Notes(), ElementsAre("I3050|Orders: all", "I3050|Second", "I3100|Orders: all|Orders_ all",
                                     "I3100|what\t|what", "I3100|how\t|how", "I3100|No. 1|No_ 1",
                                     "I3060|f|T22|PROGRAM_ACTIVITY", "I3090|PROGRAM_ACTIVITY|'f'",
                                     "I3090|PROCESS|'Orders_ all'", "I3060|g|T22|PROGRAM_ACTIVITY",
                                     "I3090|PROGRAM_ACTIVITY|'g'", "I3090|PROCESS|'Second'"));
}

TEST_F(ProcessesTest, OtherSettingsAreReadInFrontOfTheActivities) {
    gBlock.gOptUseOtherSettings = true;
    gBlock.gColMappingRule.Remove("PROCESS_OTHER_SETTINGS");
    Function("f");
    EXPECT_EQ(EndOf([&] {
                  FinishedProcess();
              }),
              2100);
    EXPECT_THAT(Notes(), IsEmpty());
}

class NewModelsTest : public ProcessesTest {
  protected:
    Ref<FakeObject> Refined(const std::string& name, Ref<FakeModel> by) {
        const Ref<FakeObject> function = Function(name);
        function->Assign(by);
        return function;
    }
};

TEST_F(NewModelsTest, ModelsThatActivitiesRunAreAskedForUntilTheyHaveAProcess) {
    const Ref<FakeModel> refined = Model("Refined");
    Refined("b", refined);
    Refined("a", refined);
    Refined("c", Model("Other"));
    const Collection<ARISModel> pending = PROCESS_Create(ModelsOf({model}));
    EXPECT_THAT(NamesOf(pending), ElementsAre("Refined", "Other"));
    EXPECT_TRUE(PROCESS_Create(pending).IsEmpty());
    EXPECT_EQ(gBlock.gColPROCESS.Count(), 3);
}

TEST_F(NewModelsTest, AModelOfTheSameBatchIsNotAskedFor) {
    const Ref<FakeModel> refined = Model("Refined");
    Refined("a", refined);
    Refined("itself", model);
    EXPECT_TRUE(PROCESS_Create(ModelsOf({model, refined})).IsEmpty());
}

TEST_F(NewModelsTest, AModelWhoseGuidDiffersFromABuiltOneInCaseAloneIsNotAskedFor) {
    FakeModel lower("{m}", "Lower", processType, group);
    FakeModel upper("{M}", "Upper", processType, group);
    const Ref<FakeObject> function = Refined("a", &upper);
    EXPECT_TRUE(PROCESS_Create(ModelsOf({model, &lower})).IsEmpty());
    EXPECT_EQ(gBlock.gColPROCESS.Item(1)->Col_ACTIVITY.Item(function->Guid())->PROCESS, "'Upper'");
    gBlock.gColPROCESS = {};
}

}  // namespace
}  // namespace wxbrg::test
