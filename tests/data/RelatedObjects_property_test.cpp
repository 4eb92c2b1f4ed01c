// The remembered questions against asking each object of the list anew.

#include <gmock/gmock.h>

#include "data/RelatedObjects.h"
#include "mapping/RelatingPaths.h"
#include "tests/fixture/CoreTest.h"
#include "tests/fixture/RandomChoices.h"

namespace wxbrg::test {
namespace {

constexpr int functionType = 1;
constexpr int betweenType = 2;
constexpr int dataType = 3;

/// What the questions about a list of objects came to: an answer for each, and the box that ended them.
struct Answers {
    std::vector<bool> answers;
    std::vector<std::string> boxes;
    std::string_view procedure;
    std::string_view context;

    friend bool operator==(const Answers&, const Answers&) = default;
    friend void PrintTo(const Answers& all, std::ostream* stream) {
        *stream << testing::PrintToString(all.answers) << testing::PrintToString(all.boxes) << all.procedure
                << " '" << all.context << "'";
    }
};

class RelatedObjectsPropertyTest : public CoreTest, protected RandomChoices<20260103> {
  protected:
    /// A rule from functions to data, straight and over objects between, and one that goes on from these. The
    /// second may turn in circles.
    void MakeRules() {
        const Ref<clsMappingRule> first = NewRule("FIRST");
        for (int steps = 1 + Below(4); steps > 0; --steps) {
            const bool chained = OneIn(2);
            AddStep(first, OneIn(6) ? dataType : functionType, OneIn(200) ? 7 : 2 + 2 * Below(2), Below(2),
                    chained ? betweenType : dataType, chained ? "NEXT" : "");
        }
        const Ref<clsMappingRule> next = NewRule("NEXT");
        for (int steps = 1 + Below(3); steps > 0; --steps) {
            const bool chained = OneIn(3);
            AddStep(next, betweenType, CxnKind::outgoing, Below(2), chained ? betweenType : dataType,
                    chained ? "NEXT" : "");
        }
    }

    std::vector<Ref<FakeObject>> MakeObjects(int type, int count) {
        std::vector<Ref<FakeObject>> objects;
        for (; count > 0; --count)
            objects.push_back(DrawnElsewhere(type, "O" + std::to_string(type) + std::to_string(count)));
        return objects;
    }

    void MakeGraph() {
        functions = MakeObjects(functionType, 6);
        between = MakeObjects(betweenType, 4);
        data = MakeObjects(dataType, 8);
        for (int i = 0; i < 10; ++i) {
            repository.Connect(OneOf(functions), Below(2), OneOf(OneIn(2) ? between : data));
            repository.Connect(OneOf(between), Below(2), OneOf(OneIn(4) ? between : data));
            repository.Connect(OneOf(OneIn(2) ? between : data), Below(2), OneOf(functions));
        }
        list = {};
        for (const Ref<FakeObject>& function : functions) list.Add(function, function->Guid());
    }

    template <class Ask>
    Answers AskAll(Ask&& ask) {
        const std::size_t boxes = Boxes().size();
        gBlock.gRelatedSearchDepth = 0;
        gBlock.gCurrentProcedure = "modTest.Test";
        gBlock.gFailureContext = "";
        Answers all;
        EndOf([&] {
            for (const Ref<FakeObject>& object : data) all.answers.push_back(ask(object));
        });
        all.boxes = Boxes();
        all.boxes.erase(all.boxes.begin(), all.boxes.begin() + static_cast<std::ptrdiff_t>(boxes));
        all.procedure = gBlock.gCurrentProcedure;
        all.context = gBlock.gFailureContext;
        return all;
    }

    bool IsRelatedToAny(const ARISObjDef& object) const {
        for (const ARISObjDef& function : list)
            if (ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(function, object, "FIRST"))
                return true;
        return false;
    }
    std::vector<Ref<FakeObject>> functions;
    std::vector<Ref<FakeObject>> between;
    std::vector<Ref<FakeObject>> data;
    Collection<ARISObjDef> list;
};

TEST_F(RelatedObjectsPropertyTest, AnswersAndFailsAsAskingEachObjectDoes) {
    int failed = 0;
    int positive = 0;
    for (int round = 0; round < 1000 && !HasFailure(); ++round) {
        MakeRules();
        MakeGraph();
        const Answers expected = AskAll([&](const ARISObjDef& object) {
            return IsRelatedToAny(object);
        });
        RelatedObjects related(list, "FIRST");
        const Answers answers = AskAll([&](const ARISObjDef& object) {
            return related.LeadTo(object);
        });
        EXPECT_EQ(answers, expected) << "round " << round;
        failed += expected.boxes.empty() ? 0 : 1;
        for (const bool answer : expected.answers) positive += answer ? 1 : 0;
    }
    EXPECT_GT(failed, 50);
    EXPECT_GT(positive, 1000);
}

class RelatedObjectsTest : public CoreTest {};

TEST_F(RelatedObjectsTest, NoStepIsTakenBeforeItIsNeededOrTwice) {
    const Ref<FakeObject> first = Function("first");
    const Ref<FakeObject> second = Function("second");
    const Ref<FakeObject> data = Drawn(ObjectType::entityType, "data");
    Writes(first, data);
    Writes(second, data);
    const Collection<ARISObjDef> functions = ObjectsOf({first, second});
    RelatedObjects senders(functions, "FUNCTION_SENDS_DATA");
    EXPECT_TRUE(senders.LeadTo(data));
    EXPECT_EQ(repository.ConnectionQuestions(), 1U);
    EXPECT_TRUE(senders.LeadTo(data));
    EXPECT_EQ(repository.ConnectionQuestions(), 1U);
    EXPECT_FALSE(senders.LeadTo(Drawn(ObjectType::entityType, "other")));
    EXPECT_FALSE(senders.LeadTo(Drawn(ObjectType::entityType, "another")));
    EXPECT_EQ(repository.ConnectionQuestions(), 2U * 6U);
}

TEST_F(RelatedObjectsTest, APositiveAnswerLeavesTheNameOfTheTest) {
    const Ref<FakeObject> function = Function("function");
    const Ref<FakeObject> data = Drawn(ObjectType::entityType, "data");
    Writes(function, data);
    const Collection<ARISObjDef> functions = ObjectsOf({function});
    RelatedObjects senders(functions, "FUNCTION_SENDS_DATA");
    EXPECT_FALSE(senders.LeadTo(Drawn(ObjectType::entityType, "other")));
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
    EXPECT_TRUE(senders.LeadTo(data));
    EXPECT_EQ(gBlock.gCurrentProcedure,
              "modMappingRule.ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule");
}

TEST_F(RelatedObjectsTest, AnEmptyListLeadsNowhereAndAsksForNoRule) {
    const Collection<ARISObjDef> none;
    RelatedObjects related(none, "NO_RULE");
    EXPECT_FALSE(related.LeadTo(Function("function")));
}

}  // namespace
}  // namespace wxbrg::test
