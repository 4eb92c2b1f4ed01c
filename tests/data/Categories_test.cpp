#include <gmock/gmock.h>

#include "data/clsPROCESS_CATEGORY.h"
#include "data/modPROCESS_CATEGORY.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CategoriesTest : public CoreTest {
  protected:
    Ref<FakeModel> ModelIn(const std::string& groupName) {
        return repository.Model(processType, "Model", repository.Group(groupName));
    }
};

TEST_F(CategoriesTest, ACategoryBeginsEmpty) {
    const clsPROCESS_CATEGORY category;
    EXPECT_FALSE(category.ARIS_Group);
    EXPECT_EQ(category.ObjectName + category.DESCRIPTION + category.DOCUMENTATION, "");
    EXPECT_FALSE(category.SetupFinished);
}

TEST_F(CategoriesTest, TwoModelsOfOneGroupGiveOneCategory) {
    const Ref<FakeModel> second = repository.Model(processType, "Second", group);
    PROCESS_CATEGORY_Create(ModelsOf({model, second}));
    ASSERT_EQ(gBlock.gColPROCESS_CATEGORY.Count(), 1);
    EXPECT_EQ(gBlock.gColPROCESS_CATEGORY.Item(group->Guid())->ARIS_Group, ARISGroup(group));
    EXPECT_THAT(Notes(), ElementsAre("I3040|Sales", "I3090|PROCESS_CATEGORY|'Sales'"));
}

TEST_F(CategoriesTest, ALaterBatchNotesTheGroupAgainAndFillsNothingTwice) {
    PROCESS_CATEGORY_Create(ModelsOf({model}));
    ForgetNotes();
    PROCESS_CATEGORY_Create(ModelsOf({ModelIn("New"), repository.Model(processType, "Second", group)}));
    EXPECT_EQ(gBlock.gColPROCESS_CATEGORY.Count(), 2);
    EXPECT_THAT(Notes(), ElementsAre("I3040|New", "I3040|Sales", "I3090|PROCESS_CATEGORY|'New'"));
}

TEST_F(CategoriesTest, GroupsComeInTheOrderOfTheirFirstModel) {
    const Ref<FakeModel> b = ModelIn("B");
    const Ref<FakeModel> a = ModelIn("A");
    const Collection<ARISGroup> groups = PROCESS_CATEGORY_Find_ARIS_Group_In_ModelCollection(
        ModelsOf({b, a, repository.Model(otherModelType, "x", b->Group())}));
    ASSERT_EQ(groups.Count(), 2);
    EXPECT_EQ(groups.Item(1)->Name(english), "B");
    EXPECT_EQ(groups.Item(2)->Name(english), "A");
}

TEST_F(CategoriesTest, NoModelsGiveNoCategory) {
    PROCESS_CATEGORY_Create({});
    EXPECT_TRUE(gBlock.gColPROCESS_CATEGORY.IsEmpty());
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(CategoriesTest, AGroupWithoutANameIsKeptWithAnEmptyName) {
    PROCESS_CATEGORY_Create(ModelsOf({ModelIn("")}));
    ASSERT_EQ(gBlock.gColPROCESS_CATEGORY.Count(), 1);
    EXPECT_EQ(gBlock.gColPROCESS_CATEGORY.Item(1)->ObjectName, "");
    EXPECT_TRUE(gBlock.gColPROCESS_CATEGORY.Item(1)->SetupFinished);
    EXPECT_THAT(Notes(), ElementsAre("I3040", "I3090|PROCESS_CATEGORY"));
}

TEST_F(CategoriesTest, TextsAreReadFromTheGroupAndConverted) {
    const Ref<FakeGroup> described = repository.Group("No. 1");
    described->Set(9, "what\tit is");
    described->Set(8, "one\r\ntwo");
    PROCESS_CATEGORY_Create(ModelsOf({repository.Model(processType, "Model", described)}));
    const Ref<clsPROCESS_CATEGORY> category = gBlock.gColPROCESS_CATEGORY.Item(1);
    EXPECT_EQ(category->ObjectName, "'No_ 1'");
    EXPECT_EQ(category->DESCRIPTION, "'what it is'");
    EXPECT_EQ(category->DOCUMENTATION, "'one two'");
}

TEST_F(CategoriesTest, TextsAreGatedByTheirOptions) {
    group->Set(9, "description");
    group->Set(8, "documentation");
    gBlock.gOptUseDescriptionAttr = gBlock.gOptUseDocumentationAttr = false;
    PROCESS_CATEGORY_Create(ModelsOf({model}));
    EXPECT_EQ(gBlock.gColPROCESS_CATEGORY.Item(1)->DESCRIPTION, "");
    EXPECT_EQ(gBlock.gColPROCESS_CATEGORY.Item(1)->DOCUMENTATION, "");
}

TEST_F(CategoriesTest, AnAttributeOfAGroupIsEmptyUnlessItIsMaintained) {
    group->Set(8, "one\r\ntwo");
    group->SetUnmaintained(9);
    EXPECT_EQ(PROCESS_CATEGORY_Find_ARIS_Group_Attribute(group, 8), "one two");
    EXPECT_EQ(PROCESS_CATEGORY_Find_ARIS_Group_Attribute(group, 9), "");
    EXPECT_EQ(PROCESS_CATEGORY_Find_ARIS_Group_Attribute(group, 10), "");
    EXPECT_EQ(PROCESS_CATEGORY_Find_ARIS_Group_Attribute(group, -1), "Sales");
    gBlock.gOptRemoveLineBreaks = false;
    EXPECT_EQ(PROCESS_CATEGORY_Find_ARIS_Group_Attribute(group, 8), "one\r\ntwo");
}

TEST_F(CategoriesTest, AMissingRuleEndsTheRun) {
    gBlock.gColMappingRule.Remove("PROCESS_CATEGORY_ObjectName");
    EXPECT_EQ(EndOf([&] {
                  PROCESS_CATEGORY_Create(ModelsOf({model}));
              }),
              2100);
    EXPECT_THAT(Boxes(),
                ElementsAre("C2100 in modPROCESS_CATEGORY.PROCESS_CATEGORY_Find_ARIS_Group_Attribute_Using_"
                            "Mapping_Rule: PROCESS_CATEGORY_ObjectName"));
}

}  // namespace
}  // namespace wxbrg::test
