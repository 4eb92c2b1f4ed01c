#include <benchmark/benchmark.h>

#include <vector>

#include "data/StructureIndex.h"
#include "data/clsDATA_STRUCTURE.h"
#include "data/modDATA_STRUCTURE.h"
#include "run/modGlobals.h"
#include "tests/bench/Memory.h"
#include "tests/bench/Shapes.h"
#include "tests/bench/SilentRun.h"

// What chains of neighbours and equal structures cost.

namespace wxbrg::bench {

namespace {

/// A whole run on an organization, behind whose manager stands a chain of N persons.
void StaffChain(benchmark::State& state) {
    Drawing drawing;
    AddStaffChain(drawing, state.range(0));
    SilentRun run;
    double peak = 0;
    for (auto unused : state) {
        state.PauseTiming();
        ForgetPeak();
        const std::uint64_t before = PeakBytes();
        state.ResumeTiming();
        const RunReport report = run.Export(drawing.Automation(), {drawing.process});
        peak = static_cast<double>(PeakBytes() - before);
        if (report.ending != RunEnding::normal) state.SkipWithError("the run did not end normally");
    }
    state.counters["peak/person"] =
        benchmark::Counter(peak / static_cast<double>(state.range(0)), benchmark::Counter::kDefaults,
                           benchmark::Counter::kIs1024);
    state.SetComplexityN(state.range(0));
}

/// N sets of two data objects, no two of them equal.
std::vector<Collection<ARISObjDef>> Pairs(Drawing& drawing, std::int64_t count) {
    std::vector<Collection<ARISObjDef>> pairs;
    Ref<FakeObject> before = drawing.EntityType(0);
    for (std::int64_t number = 1; number <= count; ++number) {
        const Ref<FakeObject> next = drawing.EntityType(number);
        Collection<ARISObjDef>& pair = pairs.emplace_back();
        pair.Add(before, before->Guid());
        pair.Add(next, next->Guid());
        before = next;
    }
    return pairs;
}

/// A structure for each of N sets of members, then each once more, which finds the equal one.
void EqualStructures(benchmark::State& state) {
    Drawing drawing;
    SilentRun run;
    const std::vector<Collection<ARISObjDef>> pairs = Pairs(drawing, state.range(0));
    for (auto unused : state) {
        state.PauseTiming();
        run.Begin();
        state.ResumeTiming();
        for (const Collection<ARISObjDef>& pair : pairs) DATA_STRUCTURE_Generate(pair);
        const std::int32_t structures = gBlock.gColDATA_STRUCTURE.Count();
        for (const Collection<ARISObjDef>& pair : pairs) DATA_STRUCTURE_Generate(pair);
        if (gBlock.gColDATA_STRUCTURE.Count() != structures)
            state.SkipWithError("an equal structure was not found");
    }
    state.SetComplexityN(state.range(0));
}

using FindStructure = Ref<clsDATA_STRUCTURE> (*)(const Collection<ARISObjDef>& members);

Ref<clsDATA_STRUCTURE> ByIndex(const Collection<ARISObjDef>& members) {
    return gBlock.gStructureIndex->Find(members, nullptr);
}
Ref<clsDATA_STRUCTURE> ByWalk(const Collection<ARISObjDef>& members) {
    return StructureIndex::FindByWalk(members, nullptr);
}

/// Each of N structures is looked for by its members, among all of them.
template <FindStructure find>
void FindStructures(benchmark::State& state) {
    Drawing drawing;
    SilentRun run;
    run.Begin();
    const std::vector<Collection<ARISObjDef>> pairs = Pairs(drawing, state.range(0));
    for (const Collection<ARISObjDef>& pair : pairs) DATA_STRUCTURE_Generate(pair);
    for (auto unused : state)
        for (const Collection<ARISObjDef>& pair : pairs)
            if (!find(pair)) state.SkipWithError("a structure was not found");
    state.SetComplexityN(state.range(0));
}

BENCHMARK(StaffChain)
    ->RangeMultiplier(10)
    ->Range(100, 100000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->Complexity();
BENCHMARK(EqualStructures)
    ->RangeMultiplier(10)
    ->Range(100, 100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(FindStructures<ByIndex>)
    ->RangeMultiplier(10)
    ->Range(100, 100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(FindStructures<ByWalk>)
    ->RangeMultiplier(10)
    ->Range(10, 1000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

}  // namespace

}  // namespace wxbrg::bench
