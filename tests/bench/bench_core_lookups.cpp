#include <benchmark/benchmark.h>

#include <cmath>

#include "mapping/ArisTypes.h"
#include "mapping/RelatedObjectSearch.h"
#include "mapping/RelatingPaths.h"
#include "mapping/RuleLookups.h"
#include "run/Frame.h"
#include "run/modGlobals.h"
#include "tests/bench/Shapes.h"
#include "tests/bench/SilentRun.h"

// What the lookups cost: the objects of a batch of models, and searches and paths along chained rules.

namespace wxbrg::bench {

namespace {

constexpr std::string_view controlRule = "FUNCTION_SENDS_CONTROL_TO_FUNCTION";

/// N models with ten persons each.
void ObjectsOfBatch(benchmark::State& state) {
    constexpr int personsEach = 10;
    Drawing drawing;
    SilentRun run;
    run.Begin();
    Collection<ARISModel> models;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        const Ref<test::FakeModel> model = drawing.repository.Model(1, Numbered("Staff", i), drawing.group);
        for (int person = 0; person < personsEach; ++person)
            drawing.repository.Draw(model,
                                    drawing.repository.Object(ObjectType::person, Numbered("P", person)));
        models.Add(model, model->Guid());
    }
    for (auto unused : state) {
        Collection<ARISObjDef> found;
        Find_ARIS_ObjDef_Using_Mapping_Rule(models, found, "PERSON");
        if (found.Count() != state.range(0) * personsEach) state.SkipWithError("objects are missing");
    }
    state.SetComplexityN(state.range(0));
}

void SearchFrom(benchmark::State& state, const Ends& ends) {
    for (auto unused : state) {
        Collection<ARISObjDef> found;
        Find_Related_ARIS_ObjDef_Using_Mapping_Rule(found, ends.from, controlRule);
        if (found.Count() != 1) state.SkipWithError("the other end is missing");
    }
}

void TestRelation(benchmark::State& state, const Ends& ends) {
    for (auto unused : state)
        if (!ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(ends.from, ends.to, controlRule))
            state.SkipWithError("the other end is missing");
}

void FindPaths(benchmark::State& state, const Ends& ends) {
    for (auto unused : state)
        if (Find_Relating_Paths_Using_Mapping_Rule({}, ends.from, ends.to, controlRule)->IsEmpty())
            state.SkipWithError("the paths are missing");
}

/// N pairs of rule objects; a search may nest 100 levels deep, which ends the range.
template <void (*ask)(benchmark::State&, const Ends&)>
void Diamonds(benchmark::State& state) {
    Drawing drawing;
    SilentRun run;
    run.Begin();
    ask(state, AddDiamonds(drawing, state.range(0)));
    state.counters["ways"] = std::ldexp(1.0, static_cast<int>(state.range(0)));
    state.SetComplexityN(state.range(0));
}

/// Ten rows of rule objects, all of a row joined to all of the next: N is the connections.
template <void (*ask)(benchmark::State&, const Ends&)>
void Grid(benchmark::State& state) {
    Drawing drawing;
    SilentRun run;
    run.Begin();
    const std::int64_t width = state.range(0);
    ask(state, AddGrid(drawing, width));
    state.counters["ways"] = std::pow(static_cast<double>(width), 10);
    state.SetComplexityN(9 * width * width + 2 * width);
}

/// The first way from the start leads through N diamonds, the second one into a chain that is too deep.
void TooDeepBehindDiamonds(benchmark::State& state) {
    Drawing drawing;
    SilentRun run;
    run.Begin();
    const Ends ends = AddDiamonds(drawing, state.range(0));
    AddRowOfRuleObjects(drawing, ends, relatedSearchLimit);
    for (auto unused : state) {
        gBlock.gRelatedSearchDepth = 0;
        std::int32_t number = 0;
        try {
            Collection<ARISObjDef> found;
            Find_Related_ARIS_ObjDef_Using_Mapping_Rule(found, ends.from, controlRule);
        } catch (const RunEnd& end) {
            number = end.number;
        }
        if (number != 2230) state.SkipWithError("the search did not end the run");
    }
    state.SetComplexityN(state.range(0));
}

/// As many pairs as a search may nest through.
void UpToDeepestDiamonds(benchmark::internal::Benchmark* bench) {
    for (const std::int64_t pairs : {1, 10, 20, 30, 45}) bench->Arg(pairs);
    bench->Unit(benchmark::kMicrosecond)->Complexity();
}

BENCHMARK(ObjectsOfBatch)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMicrosecond)->Complexity();
BENCHMARK(Diamonds<SearchFrom>)->Name("RelatedSearch_Diamonds")->Apply(UpToDeepestDiamonds);
BENCHMARK(Diamonds<TestRelation>)->Name("RelationTest_Diamonds")->Apply(UpToDeepestDiamonds);
BENCHMARK(Grid<SearchFrom>)
    ->Name("RelatedSearch_Grid")
    ->RangeMultiplier(2)
    ->Range(2, 64)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity();
BENCHMARK(Grid<TestRelation>)
    ->Name("RelationTest_Grid")
    ->RangeMultiplier(2)
    ->Range(2, 64)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity();
BENCHMARK(TooDeepBehindDiamonds)->Apply(UpToDeepestDiamonds);
BENCHMARK(Diamonds<FindPaths>)->Name("Paths_Diamonds")->Apply(UpToDeepestDiamonds);
BENCHMARK(Grid<FindPaths>)
    ->Name("Paths_Grid")
    ->RangeMultiplier(2)
    ->Range(2, 16)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity();

}  // namespace

}  // namespace wxbrg::bench
