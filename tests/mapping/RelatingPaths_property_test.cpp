// Paths that share their chains against the search that lists each path anew.

#include <gmock/gmock.h>

#include <algorithm>

#include "mapping/RelatedObjectSearch.h"
#include "mapping/RelatingPaths.h"
#include "mapping/RuleTable.h"
#include "mapping/modPath.h"
#include "tests/fixture/CoreTest.h"
#include "tests/fixture/RandomChoices.h"

namespace wxbrg::test {
namespace {

/// A path written in full: its two ends and the objects between.
using Objects = std::vector<ARISObjDef>;
using Paths = std::vector<Objects>;

constexpr int ruleCount = 5;

std::string RuleName(int number) {
    return "RULE " + std::to_string(number);
}

Paths PlainConcatenation(const Paths& first, const Paths& second) {
    return Procedure("modPath.ConcatenatePaths", [&](Frame&) {
        if (first.empty() || second.empty()) return first.empty() ? second : first;
        Paths joined;
        for (const Objects& a : first) {
            for (const Objects& b : second) {
                if (a.back()->Guid() != b.front()->Guid()) continue;
                Collection<ARISObjDef> between;
                for (auto object = a.begin() + 1; object != a.end(); ++object)
                    between.Add(*object, (*object)->Guid());
                for (auto object = b.begin() + 1; object != b.end() - 1; ++object)
                    between.Add(*object, (*object)->Guid());
                joined.push_back({a.front()});
                joined.back().insert(joined.back().end(), between.begin(), between.end());
                joined.back().push_back(b.back());
            }
        }
        return joined;
    });
}

/// The search in its plain form: the ways on from an object are looked for with each way that leads there.
Paths PlainSearch(const Paths& prefix, const ARISObjDef& from, const ARISObjDef& to, std::string_view rule) {
    return Procedure("modMappingRule.Find_Relating_Paths_Using_Mapping_Rule", [&](Frame& frame) {
        if (from->OccList().Count() == 0 || to->OccList().Count() == 0) return Paths();
        Paths found;
        for (const clsConnectionMapping& step : FetchRule(frame, rule)->ColConnectionMapping) {
            if (from->TypeNum() != step.SourceObjTypeNum) continue;
            Collection<ARISObjDef> next;
            Find_Related_ARIS_ObjDef(next, from, step.CnxKind, step.CnxTypeNum, step.TargetObjTypeNum);
            for (const ARISObjDef& object : next) {
                if (!step.IsChainedConnection()) {
                    if (object->Guid() == to->Guid()) found.push_back({from, object});
                } else if (ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(object, to,
                                                                                    step.TargetObjRule)) {
                    const Paths onward = PlainSearch({{from, object}}, object, to, step.TargetObjRule);
                    found.insert(found.end(), onward.begin(), onward.end());
                }
            }
        }
        return PlainConcatenation(prefix, found);
    });
}

/// How a search ends, and the state that it leaves behind.
struct Outcome {
    std::vector<std::string> paths;
    std::vector<std::string> boxes;
    std::string procedure;
    std::string context;
    std::int32_t depth = 0;

    friend bool operator==(const Outcome&, const Outcome&) = default;
    friend void PrintTo(const Outcome& outcome, std::ostream* stream) {
        *stream << testing::PrintToString(outcome.paths) << testing::PrintToString(outcome.boxes)
                << outcome.procedure << " '" << outcome.context << "' " << outcome.depth;
    }
};

class RelatingPathsPropertyTest : public CoreTest, protected RandomChoices<20260105> {
  protected:
    /// Rules over two types of objects that go on with later rules alone, so that chains end whatever the
    /// circles among the objects. A few go on with a rule that there is none of.
    void MakeRules() {
        for (int i = 0; i < ruleCount; ++i) {
            const Ref<clsMappingRule> rule = NewRule(RuleName(i));
            for (int steps = 2 + Below(4); steps > 0; --steps) {
                std::string onward;
                if (i + 1 < ruleCount && !OneIn(3))
                    onward = RuleName(OneIn(100) ? ruleCount : i + 1 + Below(ruleCount - i - 1));
                AddStep(rule, 1 + Below(2), OneIn(8) ? CxnKind::incoming : CxnKind::outgoing, 1, 1 + Below(2),
                        onward);
            }
        }
    }

    /// Objects of which now and then two have Guids that differ in case alone.
    std::vector<Ref<FakeObject>> MakeGraph() {
        std::vector<Ref<FakeObject>> objects;
        const int size = 4 + Below(6);
        const std::string number = std::to_string(random());
        for (int i = 0; i < size; ++i) {
            const bool twin = i > 0 && OneIn(8);
            const std::string guid =
                (twin ? "{G" + std::to_string(i - 1) : "{g" + std::to_string(i)) + "." + number + "}";
            objects.push_back(repository.Object(1 + Below(2), "o" + std::to_string(i), guid));
            if (!OneIn(30)) repository.Draw(elsewhere, objects.back());
        }
        for (int i = 2 * size + Below(size); i > 0; --i)
            repository.Connect(OneOf(objects), 1, OneOf(objects));
        return objects;
    }

    template <class Search>
    Outcome OutcomeOf(std::int32_t depth, Search&& search) {
        const std::size_t boxes = Boxes().size();
        gBlock.gRelatedSearchDepth = depth;
        gBlock.gCurrentProcedure = "modTest.Test";
        gBlock.gFailureContext = "";
        Outcome outcome;
        EndOf([&] {
            outcome.paths = search();
        });
        outcome.boxes = Boxes();
        outcome.boxes.erase(outcome.boxes.begin(),
                            outcome.boxes.begin() + static_cast<std::ptrdiff_t>(boxes));
        outcome.procedure = gBlock.gCurrentProcedure;
        outcome.context = gBlock.gFailureContext;
        outcome.depth = gBlock.gRelatedSearchDepth;
        return outcome;
    }

    static std::vector<std::string> Texts(const Paths& paths) {
        std::vector<std::string> texts;
        for (const Objects& path : paths) {
            texts.push_back(path.front()->Name(english));
            for (auto object = path.begin() + 1; object != path.end(); ++object)
                texts.back() += " > " + (*object)->Name(english);
        }
        return texts;
    }
    static std::vector<std::string> Texts(const std::optional<PathCollection>& paths) {
        return paths ? PathTexts(*paths) : std::vector<std::string>();
    }
};

TEST_F(RelatingPathsPropertyTest, FindsTheSamePathsAndFailsAsThePlainSearchDoes) {
    int several = 0;
    int twice = 0;
    int tooDeep = 0;
    int noRule = 0;
    for (int round = 0; round < 1500 && !HasFailure(); ++round) {
        MakeRules();
        const std::vector<Ref<FakeObject>> objects = MakeGraph();
        const ARISObjDef from = OneOf(objects);
        const ARISObjDef to = OneOf(objects);
        const std::int32_t depth = OneIn(4) ? 99 : 0;
        const Outcome expected = OutcomeOf(depth, [&] {
            return Texts(PlainSearch({}, from, to, RuleName(0)));
        });
        EXPECT_EQ(
            OutcomeOf(depth,
                      [&] {
                          return Texts(Find_Relating_Paths_Using_Mapping_Rule({}, from, to, RuleName(0)));
                      }),
            expected)
            << "round " << round;
        several += expected.paths.size() > 2 ? 1 : 0;
        for (const std::string& box : expected.boxes) {
            twice += box.starts_with("C457 in modPath.ConcatenatePaths") ? 1 : 0;
            tooDeep += box.starts_with("C2230") ? 1 : 0;
            noRule += box.starts_with("C2100") ? 1 : 0;
        }
    }
    EXPECT_GT(several, 20);
    EXPECT_GT(twice, 20);
    EXPECT_GT(tooDeep, 10);
    EXPECT_GT(noRule, 10);
}

TEST_F(RelatingPathsPropertyTest, ContinuesTheSamePathsBehindAPrefix) {
    int joined = 0;
    int twice = 0;
    for (int round = 0; round < 1500 && !HasFailure(); ++round) {
        MakeRules();
        const std::vector<Ref<FakeObject>> objects = MakeGraph();
        const ARISObjDef start = OneOf(objects);
        const ARISObjDef middle = OneOf(objects);
        const ARISObjDef away = OneOf(objects);
        const ARISObjDef end = OneOf(objects);
        const Outcome expected = OutcomeOf(0, [&] {
            Paths prefix = PlainSearch({}, start, middle, RuleName(1));
            prefix.push_back({start, away});
            return Texts(PlainSearch(prefix, middle, end, RuleName(2)));
        });
        EXPECT_EQ(OutcomeOf(0,
                            [&] {
                                PathCollection prefix =
                                    Find_Relating_Paths_Using_Mapping_Rule({}, start, middle, RuleName(1))
                                        .value_or(PathCollection());
                                prefix.Add(CreatePath(start, away));
                                return Texts(
                                    Find_Relating_Paths_Using_Mapping_Rule(prefix, middle, end, RuleName(2)));
                            }),
                  expected)
            << "round " << round;
        joined += expected.paths.size() > 2 ? 1 : 0;
        for (const std::string& box : expected.boxes)
            twice += box.starts_with("C457 in modPath.ConcatenatePaths") ? 1 : 0;
    }
    EXPECT_GT(joined, 50);
    EXPECT_GT(twice, 20);
}

}  // namespace
}  // namespace wxbrg::test
