// How often the lookups ask the repository.

#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <string>

#include "mapping/ArisTypes.h"
#include "mapping/RelatedObjectSearch.h"
#include "mapping/RelatingPaths.h"
#include "mapping/RuleLookups.h"
#include "run/Frame.h"
#include "run/modGlobals.h"
#include "tests/bench/Shapes.h"
#include "tests/bench/SilentRun.h"

namespace wxbrg::bench {
namespace {

constexpr std::string_view controlRule = "FUNCTION_SENDS_CONTROL_TO_FUNCTION";
/// The steps that the default rules have from a function and from a rule object: each is one list of
/// connections to be asked for.
constexpr std::uint64_t stepsFromObject = 3;

class CountedModel : public test::FakeModel {
  public:
    using FakeModel::FakeModel;
    ARISObjDefList ObjDefListFilter(std::string_view filter, std::int32_t locale, std::int32_t objTypeNum,
                                    std::string_view symbolFilter) const override {
        ++timesAsked;
        return FakeModel::ObjDefListFilter(filter, locale, objTypeNum, symbolFilter);
    }

    mutable int timesAsked = 0;
};

class LookupCostTest : public testing::Test {
  protected:
    LookupCostTest() { run_.Begin(); }

    /// How often objects are asked for connections while `lookup` runs.
    template <class Lookup>
    std::uint64_t QuestionsOf(Lookup&& lookup) {
        const std::uint64_t before = drawing_.repository.ConnectionQuestions();
        lookup();
        return drawing_.repository.ConnectionQuestions() - before;
    }

    Drawing drawing_;
    SilentRun run_;
};

TEST_F(LookupCostTest, EachModelOfABatchIsAskedOnceForEachTypeOfTheRule) {
    constexpr int typesOfDataObjects = 6;
    std::deque<CountedModel> models;
    Collection<ARISModel> batch;
    for (int i = 0; i < 50; ++i) {
        const CountedModel& model = models.emplace_back(Numbered("guid", i), "Model", 13, drawing_.group);
        batch.Add(ARISModel(&model), model.Guid());
    }
    Collection<ARISObjDef> found;
    Find_ARIS_ObjDef_Using_Mapping_Rule(batch, found, "DATA_OBJECT");
    for (const CountedModel& model : models) EXPECT_EQ(model.timesAsked, typesOfDataObjects);
}

TEST_F(LookupCostTest, ASearchThroughDiamondsAsksForEachListOfConnectionsOnce) {
    constexpr std::uint64_t ruleObjects = 3 * 30 + 1;
    const Ends ends = AddDiamonds(drawing_, 30);
    Collection<ARISObjDef> found;
    EXPECT_EQ(QuestionsOf([&] {
                  Find_Related_ARIS_ObjDef_Using_Mapping_Rule(found, ends.from, controlRule);
              }),
              stepsFromObject * (1 + ruleObjects));
    ASSERT_EQ(found.Count(), 1);
    EXPECT_EQ(found.Item(1), ARISObjDef(ends.to));
}

TEST_F(LookupCostTest, ARelationTestThroughDiamondsAsksForEachListOfConnectionsAtMostOnce) {
    constexpr std::uint64_t ruleObjects = 3 * 30 + 1;
    const Ends ends = AddDiamonds(drawing_, 30);
    bool related = false;
    EXPECT_LE(QuestionsOf([&] {
                  related = ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(ends.from, ends.to,
                                                                                     controlRule);
              }),
              stepsFromObject * (1 + ruleObjects));
    EXPECT_TRUE(related);
    EXPECT_LE(QuestionsOf([&] {
                  related = ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(ends.from, ends.from,
                                                                                     controlRule);
              }),
              stepsFromObject * (1 + ruleObjects));
    EXPECT_FALSE(related);
}

TEST_F(LookupCostTest, NoPathIsFollowedIntoDiamondsThatDoNotLeadToTheTarget) {
    constexpr std::uint64_t ruleObjects = 3 * 30 + 1;
    const Ends ends = AddDiamonds(drawing_, 30);
    const Ref<FakeObject> other = drawing_.Function(3);
    drawing_.FunctionToFunction(ends.from, other);
    std::optional<PathCollection> paths;
    const std::uint64_t questions = QuestionsOf([&] {
        paths = Find_Relating_Paths_Using_Mapping_Rule({}, ends.from, other, controlRule);
    });
    ASSERT_EQ(std::distance(paths->begin(), paths->end()), 1);
    EXPECT_FALSE(paths->begin()->tails);
    // One search behind each of the two sides of the first diamond shows that they lead elsewhere.
    EXPECT_LE(questions, 2 * stepsFromObject * (1 + ruleObjects));
}

TEST_F(LookupCostTest, PathsThroughDiamondsAskForEachWayOnOnce) {
    constexpr std::uint64_t ruleObjects = 3 * 30 + 1;
    const Ends ends = AddDiamonds(drawing_, 30);
    std::optional<PathCollection> paths;
    // A relation test behind each rule object, which searches what lies behind it.
    EXPECT_LE(QuestionsOf([&] {
                  paths = Find_Relating_Paths_Using_Mapping_Rule({}, ends.from, ends.to, controlRule);
              }),
              (1 + ruleObjects) * stepsFromObject * (1 + ruleObjects));
    EXPECT_EQ(paths->FirstObjectsBetween().size(), 2 * 30 + 1);
}

TEST_F(LookupCostTest, ADepthThatOnlyTheLastWayReachesIsFoundWithoutWalkingTheOtherWaysAgain) {
    const Ends ends = AddDiamonds(drawing_, 30);
    AddRowOfRuleObjects(drawing_, ends, relatedSearchLimit);
    constexpr std::uint64_t ruleObjects = 3 * 30 + 1 + relatedSearchLimit;
    std::int32_t number = 0;
    EXPECT_LE(QuestionsOf([&] {
                  try {
                      Collection<ARISObjDef> found;
                      Find_Related_ARIS_ObjDef_Using_Mapping_Rule(found, ends.from, controlRule);
                  } catch (const RunEnd& end) {
                      number = end.number;
                  }
              }),
              stepsFromObject * (1 + ruleObjects));
    EXPECT_EQ(number, 2230);
}

}  // namespace
}  // namespace wxbrg::bench
