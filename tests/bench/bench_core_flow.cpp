#include <benchmark/benchmark.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "data/modDATA_CONNECTOR.h"
#include "mapping/ArisTypes.h"
#include "model/FlowLoops.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"
#include "model/modCONTROL_CONNECTOR.h"
#include "run/modGlobals.h"
#include "tests/bench/Shapes.h"
#include "tests/bench/SilentRun.h"

// What the connectors of one process cost: the tests for loops, and the search for connectors.

namespace wxbrg::bench {

namespace {

using Connectors = std::vector<std::pair<std::string, std::string>>;

std::string Guid(std::int64_t number) {
    return Numbered("guid", number);
}

/// Each connector leads on from the one before: no walk meets anything.
Connectors ForwardChain(std::int64_t count) {
    Connectors connectors;
    for (std::int64_t i = 0; i < count; ++i) connectors.emplace_back(Guid(i), Guid(i + 1));
    return connectors;
}

/// Each connector leads to the start of the one before: each walk meets all there are.
Connectors BackwardChain(std::int64_t count) {
    Connectors connectors;
    for (std::int64_t i = 0; i < count; ++i) connectors.emplace_back(Guid(i + 1), Guid(i));
    return connectors;
}

/// Connectors between all pairs of as few objects as can be, in the order that makes walks longest.
Connectors Dense(std::int64_t count) {
    Connectors connectors;
    for (std::int64_t from = 1; std::ssize(connectors) < count; ++from)
        for (std::int64_t to = 0; to < from && std::ssize(connectors) < count; ++to)
            connectors.emplace_back(Guid(from), Guid(to));
    return connectors;
}

/// The tests of all connectors of a process, N of them, none of which closes a loop.
template <Connectors (*shape)(std::int64_t)>
void LoopTests(benchmark::State& state) {
    const Connectors connectors = shape(state.range(0));
    for (auto unused : state) {
        FlowLoops loops;
        for (const auto& [from, to] : connectors) {
            if (loops.ClosesLoop(from, to)) state.SkipWithError("a loop where there is none");
            loops.Add(from, to);
        }
    }
    state.SetComplexityN(state.range(0));
}

void ExportProcess(benchmark::State& state, Drawing& drawing) {
    SilentRun run;
    for (auto unused : state) {
        const RunReport report = run.Export(drawing.Automation(), {drawing.process});
        if (report.ending != RunEnding::normal || !run.Boxes().empty())
            state.SkipWithError("the run did not end normally");
    }
    state.SetComplexityN(state.range(0));
}

/// A whole run on one model whose N control connectors are tested in the worst order.
void ProcessOfControlConnectors(benchmark::State& state) {
    Drawing drawing;
    AddBackwardChain(drawing, state.range(0) + 1);
    ExportProcess(state, drawing);
}

/// The same for data connectors: each function writes what the one before it reads.
void ProcessOfDataConnectors(benchmark::State& state) {
    Drawing drawing;
    Ref<FakeObject> before = drawing.Function(0);
    for (std::int64_t number = 1; number <= state.range(0); ++number) {
        const Ref<FakeObject> function = drawing.Function(number);
        const Ref<FakeObject> data = drawing.EntityType(number);
        drawing.Writes(function, data);
        drawing.Reads(before, data);
        before = function;
    }
    ExportProcess(state, drawing);
}

/// The process of a drawing, registered and empty.
clsPROCESS& EmptyProcess(const Drawing& drawing) {
    const Ref<clsPROCESS> process = gBlock.gPool.Create<clsPROCESS>();
    process->ARIS_Model = drawing.process;
    process->ARIS_Group = drawing.group;
    return *process;
}

/// Searches the connectors of a drawing's process anew each time; `find` says whether all are there.
template <class Find>
void FindConnectors(benchmark::State& state, const Drawing& drawing, Find&& find) {
    SilentRun run;
    for (auto unused : state) {
        state.PauseTiming();
        run.Begin();
        clsPROCESS& process = EmptyProcess(drawing);
        state.ResumeTiming();
        if (!find(process)) state.SkipWithError("connectors are missing");
    }
}

/// N functions, each of which reads and writes a data object that no other one touches.
void BoundaryConnectors(benchmark::State& state) {
    Drawing drawing;
    for (std::int64_t number = 0; number < state.range(0); ++number) {
        const Ref<FakeObject> function = drawing.Function(number);
        drawing.Reads(function, drawing.EntityType(2 * number));
        drawing.Writes(function, drawing.EntityType(2 * number + 1));
    }
    FindConnectors(state, drawing, [&](clsPROCESS& process) {
        DATA_CONNECTOR_Find_ARIS_Mapping(process);
        return process.Col_DATA_CONNECTOR.Count() == 2 * state.range(0);
    });
    state.SetComplexityN(state.range(0));
}

/// One connector whose paths lead through pairs of rule objects, found and filled.
void FillConnector(benchmark::State& state, Drawing& drawing, const Ends& ends, bool hasDescription) {
    SilentRun run;
    run.Begin();
    const Ref<clsPROCESS> process = gBlock.gPool.Create<clsPROCESS>();
    process->ARIS_Model = drawing.process;
    process->MinXPos = process->MinYPos = 0;
    process->LayoutConversionFinished = true;
    for (auto unused : state) {
        clsCONTROL_CONNECTOR connector;
        connector.FROM_ARISObjectDefinition = ends.from;
        connector.TO_ARISObjectDefinition = ends.to;
        connector.PROCESS = process;
        connector.FindARISObjectDefinitionsOnConnectorPaths();
        connector.SetupProperties();
        if (connector.DESCRIPTION.empty() == hasDescription || connector.LAYOUT.empty())
            state.SkipWithError("the connector is not filled as it should be");
    }
}

/// N pairs on whose paths there is nothing to print.
void ConnectorOfSilentPaths(benchmark::State& state) {
    Drawing drawing;
    FillConnector(state, drawing, AddDiamonds(drawing, state.range(0)), false);
    state.counters["paths"] = std::ldexp(1.0, static_cast<int>(state.range(0)));
    state.SetComplexityN(state.range(0));
}

/// Pairs with a description in front of them, which every path prints: N is the paths.
void ConnectorOfPrintedPaths(benchmark::State& state) {
    Drawing drawing;
    const Ends ends = AddDiamonds(drawing, state.range(0));
    const Ref<FakeObject> first = drawing.Function(3);
    const Ref<FakeObject> described = drawing.RuleObject()->With(AttributeType::description, "text");
    drawing.FunctionToRule(first, described);
    drawing.RuleToRule(described, ends.top);
    FillConnector(state, drawing, {first, ends.to, ends.top}, true);
    state.SetComplexityN(std::int64_t{1} << state.range(0));
}

/// One rule object behind a function, and N functions behind it.
void SplitIntoMany(benchmark::State& state) {
    Drawing drawing;
    const Ref<FakeObject> start = drawing.Function(0);
    const Ref<FakeObject> split = drawing.RuleObject();
    drawing.FunctionToRule(start, split);
    for (std::int64_t number = 1; number <= state.range(0); ++number)
        drawing.RuleToFunction(split, drawing.Function(number));
    FindConnectors(state, drawing, [&](clsPROCESS& process) {
        CONTROL_CONNECTOR_Find_ARIS_Mapping(process);
        return process.Col_CONTROL_CONNECTOR.Count() == state.range(0);
    });
    state.SetComplexityN(state.range(0));
}

/// One data object that as many functions write as read it: N is the connectors, one for each pair.
void SharedDataObject(benchmark::State& state) {
    Drawing drawing;
    const std::int64_t functions = state.range(0);
    const Ref<FakeObject> data = drawing.EntityType(0);
    for (std::int64_t number = 0; number < functions; ++number) {
        drawing.Writes(drawing.Function(2 * number), data);
        drawing.Reads(drawing.Function(2 * number + 1), data);
    }
    FindConnectors(state, drawing, [&](clsPROCESS& process) {
        DATA_CONNECTOR_Find_ARIS_Mapping(process);
        return process.Col_DATA_CONNECTOR.Count() == functions * functions;
    });
    state.SetComplexityN(functions * functions);
}

/// N models with two functions each, one of which writes what the other one reads: the same data object in
/// all of them. The one connector of a model is all that a run finds there.
void DataObjectOfAllModels(benchmark::State& state) {
    Drawing drawing;
    const Ref<FakeObject> data = drawing.EntityType(0);
    std::vector<ARISModel> models;
    for (std::int64_t number = 0; number < state.range(0); ++number) {
        const Ref<test::FakeModel> model =
            drawing.repository.Model(13, Numbered("Process", number), drawing.group);
        const Ref<FakeObject> writer = drawing.repository.Object(ObjectType::function, "Writer");
        const Ref<FakeObject> reader = drawing.repository.Object(ObjectType::function, "Reader");
        for (const Ref<FakeObject> shown : {data, writer, reader}) drawing.repository.Draw(model, shown);
        drawing.Writes(writer, data);
        drawing.Reads(reader, data);
        models.emplace_back(model);
    }
    SilentRun run;
    for (auto unused : state)
        if (run.Export(drawing.Automation(), models).ending != RunEnding::normal)
            state.SkipWithError("the run did not end normally");
    state.SetComplexityN(state.range(0));
}

BENCHMARK(LoopTests<ForwardChain>)
    ->RangeMultiplier(10)
    ->Range(100, 1000000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(LoopTests<BackwardChain>)
    ->RangeMultiplier(10)
    ->Range(100, 10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(LoopTests<Dense>)
    ->RangeMultiplier(10)
    ->Range(100, 10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(ProcessOfControlConnectors)
    ->RangeMultiplier(10)
    ->Range(100, 10000)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->Complexity();
BENCHMARK(ProcessOfDataConnectors)
    ->RangeMultiplier(10)
    ->Range(100, 10000)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->Complexity();
BENCHMARK(BoundaryConnectors)
    ->RangeMultiplier(10)
    ->Range(10, 10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(ConnectorOfSilentPaths)
    ->Arg(1)
    ->Arg(10)
    ->Arg(20)
    ->Arg(30)
    ->Arg(45)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity();
BENCHMARK(ConnectorOfPrintedPaths)->DenseRange(2, 14, 3)->Unit(benchmark::kMicrosecond)->Complexity();
BENCHMARK(SplitIntoMany)->RangeMultiplier(4)->Range(8, 512)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(SharedDataObject)->RangeMultiplier(2)->Range(4, 64)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(DataObjectOfAllModels)
    ->RangeMultiplier(10)
    ->Range(10, 1000)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->Complexity();

}  // namespace

}  // namespace wxbrg::bench
