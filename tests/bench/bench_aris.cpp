#include <benchmark/benchmark.h>
#include <expat.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "aris/xml/XmlRepository.h"
#include "tests/bench/AmlGenerator.h"
#include "tests/bench/Memory.h"

// What reading an export costs, against what expat alone needs to walk the same file. The export is
// generated, 100 MB and a little; WXBRG_BENCH_FILE names another one.

namespace wxbrg::bench {

namespace {

constexpr std::uint64_t exportBytes = std::uint64_t{100} << 20U;
constexpr std::uint32_t functionsOfModel = 100;
constexpr int bufferBytes = 1 << 20;

const std::string& ExportFile() {
    static const std::string file = [] {
        if (const char* given = std::getenv("WXBRG_BENCH_FILE"); given != nullptr) return std::string(given);
        std::string name = (std::filesystem::temp_directory_path() / "wxbrg_bench.aml").string();
        std::ofstream out(name, std::ios::binary);
        GenerateAml({ModelsForSize(exportBytes, functionsOfModel), functionsOfModel}, out);
        return name;
    }();
    return file;
}

double ExportBytes() {
    return static_cast<double>(std::filesystem::file_size(ExportFile()));
}

void WalkWithExpat(const std::string& file) {
    XML_Parser parser = XML_ParserCreate(nullptr);
    XML_SetElementHandler(
        parser, [](void*, const char*, const char**) {}, [](void*, const char*) {});
    XML_SetCharacterDataHandler(parser, [](void*, const char*, int) {});
    std::ifstream in(file, std::ios::binary);
    for (bool last = false; !last;) {
        in.read(static_cast<char*>(XML_GetBuffer(parser, bufferBytes)), bufferBytes);
        const auto got = static_cast<int>(in.gcount());
        last = got < bufferBytes;
        if (XML_ParseBuffer(parser, got, last ? 1 : 0) != XML_STATUS_OK) std::abort();
    }
    XML_ParserFree(parser);
}

void ExpatAlone(benchmark::State& state) {
    const std::string& file = ExportFile();
    for (auto unused : state) WalkWithExpat(file);
    state.counters["bytes/s"] =
        benchmark::Counter(ExportBytes(), benchmark::Counter::kIsIterationInvariantRate);
}

void WholeLoad(benchmark::State& state) {
    const std::string& file = ExportFile();
    double kept = 0;
    double peak = 0;
    for (auto unused : state) {
        state.PauseTiming();
        ForgetPeak();
        const std::uint64_t heapBefore = HeapBytes();
        const std::uint64_t peakBefore = PeakBytes();
        state.ResumeTiming();
        auto repository = OpenXmlRepository({file, {}, {}});
        state.PauseTiming();
        kept = static_cast<double>(HeapBytes() - heapBefore);
        peak = static_cast<double>(PeakBytes() - peakBefore);
        repository.reset();
        state.ResumeTiming();
    }
    state.counters["bytes/s"] =
        benchmark::Counter(ExportBytes(), benchmark::Counter::kIsIterationInvariantRate);
    state.counters["kept/file"] = kept / ExportBytes();
    state.counters["peak/file"] = peak / ExportBytes();
    if (kept > ExportBytes()) state.SkipWithError("the repository is larger than the file it was read from");
}

/// Asks every model for its functions, and each function for its name, its place and its successors: what an
/// operation costs is to be the same however large the repository is.
std::int64_t AskEverything(const aris::Catalogue& catalogue) {
    constexpr std::int32_t english = 1033;
    constexpr std::int32_t functions = 22;
    constexpr std::int32_t creates = 44;
    std::int64_t operations = 0;
    for (const ARISModel& model : catalogue.Models()) {
        const ARISObjDefList objects = model->ObjDefListFilter("", english, functions, "");
        for (const ARISObjDef& object : objects) {
            benchmark::DoNotOptimize(object->Name(english));
            benchmark::DoNotOptimize(object->OccListInModel(model).Get(0)->X());
            benchmark::DoNotOptimize(object->Attribute(9, english)->IsMaintained());
            benchmark::DoNotOptimize(
                object->CxnListFilter(CxnKind::outgoing, "", english, creates, connectionFilterConstant));
        }
        operations += 1 + 4 * objects.Count();
    }
    return operations;
}

void Operations(benchmark::State& state) {
    const std::string file = (std::filesystem::temp_directory_path() / "wxbrg_bench_operations.aml").string();
    std::ofstream out(file, std::ios::binary);
    GenerateAml({static_cast<std::uint32_t>(state.range(0)), functionsOfModel}, out);
    out.close();
    const auto repository = OpenXmlRepository({file, {}, {}});
    std::int64_t operations = 0;
    for (auto unused : state) operations += AskEverything(*repository);
    state.SetItemsProcessed(operations);
    std::filesystem::remove(file);
}

BENCHMARK(ExpatAlone)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(WholeLoad)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Operations)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace wxbrg::bench

BENCHMARK_MAIN();
