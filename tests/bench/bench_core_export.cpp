#include <benchmark/benchmark.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "aris/xml/XmlAutomation.h"
#include "aris/xml/XmlRepository.h"
#include "platform/posix/PosixFileSystem.h"
#include "tests/bench/AmlGenerator.h"
#include "tests/bench/Memory.h"
#include "tests/bench/SilentRun.h"

// What a whole export costs, of N generated models with a hundred functions each, and how it grows.

namespace wxbrg::bench {

namespace {

constexpr std::uint32_t functionsOfModel = 100;

std::filesystem::path GeneratedExport(std::uint32_t models) {
    std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("wxbrg_bench_" + std::to_string(models) + ".aml");
    std::ofstream out(file, std::ios::binary);
    GenerateAml({models, functionsOfModel}, out);
    return file;
}

/// Processor time since a moment, of all threads: other programs do not show in it.
double SecondsSince(std::clock_t start) {
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Reads the repository and exports all of its models.
void ReadAndExport(benchmark::State& state, SilentRun& run) {
    const auto models = static_cast<std::uint32_t>(state.range(0));
    const std::filesystem::path file = GeneratedExport(models);
    for (auto unused : state) {
        state.PauseTiming();
        ForgetPeak();
        const std::uint64_t peakBefore = PeakBytes();
        state.ResumeTiming();
        const std::clock_t start = std::clock();
        const auto repository = OpenXmlRepository({file.string(), {}, {}});
        const double reading = SecondsSince(start);
        const std::clock_t startOfExport = std::clock();
        CatalogueAutomation automation(*repository);
        const ARISModelList all = repository->Models();
        const RunReport report = run.Export(automation, {all.begin(), all.end()});
        const double exporting = SecondsSince(startOfExport);
        if (report.ending != RunEnding::normal) state.SkipWithError("the run did not end normally");
        const auto objects = static_cast<double>(report.objectsWritten);
        state.counters["read_s"] = reading;
        state.counters["export_s"] = exporting;
        state.counters["objects"] = objects;
        state.counters["objects/s"] = objects / exporting;
        state.counters["peak_MB"] = static_cast<double>(PeakBytes() - peakBefore) / (1U << 20U);
        state.counters["file_MB"] = static_cast<double>(std::filesystem::file_size(file)) / (1U << 20U);
    }
    std::filesystem::remove(file);
    state.SetComplexityN(state.range(0));
}

/// Definition file and log in memory: what the disk costs stays outside.
void WholeExport_InMemory(benchmark::State& state) {
    SilentRun run;
    ReadAndExport(state, run);
}

void WholeExport_ToFiles(benchmark::State& state) {
    const std::filesystem::path output = std::filesystem::temp_directory_path() / "wxbrg_bench.wpx";
    PosixFileSystem files;
    SilentRun run(files, output.string());
    ReadAndExport(state, run);
    std::filesystem::remove(output);
    std::filesystem::remove(std::filesystem::path(output).replace_extension(".log"));
}

/// One export of 10, 100 and 1,000 models.
void OverDecadesOfModels(benchmark::internal::Benchmark* whole) {
    whole->RangeMultiplier(10)->Range(10, 1000)->Iterations(1)->Unit(benchmark::kMillisecond);
    whole->UseRealTime()->MeasureProcessCPUTime()->Complexity();
}

BENCHMARK(WholeExport_InMemory)->Apply(OverDecadesOfModels);
BENCHMARK(WholeExport_ToFiles)->Apply(OverDecadesOfModels);

}  // namespace

}  // namespace wxbrg::bench
