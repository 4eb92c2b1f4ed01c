#include "cli/ExportSummary.h"

#include <array>
#include <cstdio>
#include <ostream>
#include <string_view>
#include <utility>

#include "support/TerminalText.h"

namespace wxbrg::cli {

namespace {

std::string Counted(std::uint64_t count, std::string_view one, std::string_view many) {
    return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

std::string_view KindName(aris::UnknownType::Kind kind) {
    switch (kind) {
        case aris::UnknownType::Kind::model:
            return "model";
        case aris::UnknownType::Kind::object:
            return "object";
        case aris::UnknownType::Kind::connection:
            return "connection";
        case aris::UnknownType::Kind::attribute:
            return "attribute";
        case aris::UnknownType::Kind::symbol:
            break;
    }
    return "symbol";
}

void WriteUnknownTypes(const std::vector<aris::UnknownType>& types, std::ostream& out) {
    if (types.empty()) return;
    out << "Unknown types:          " << types.size() << '\n';
    for (const aris::UnknownType& type : types)
        out << "  " << KindName(type.kind) << " type " << PrintableField(type.apiName) << ", taken as number "
            << type.number << ": " << Counted(type.occurrences, "time", "times") << '\n';
}

void WriteDangling(const aris::DanglingReferences& dangling, std::ostream& out) {
    if (dangling.Total() == 0) return;
    out << "References to nothing:  " << dangling.Total() << ", left out\n";
    const std::array<std::pair<std::string_view, std::uint64_t>, 4> sorts{{
        {"object occurrences without a definition", dangling.occurrencesWithoutDefinition},
        {"connections without a target", dangling.connectionsWithoutTarget},
        {"connection occurrences without a definition", dangling.connectionOccurrencesWithoutDefinition},
        {"assigned models that are not there", dangling.assignedModelsMissing},
    }};
    for (const auto& [name, count] : sorts)
        if (count != 0) out << "  " << name << ": " << count << '\n';
}

std::string Seconds(std::chrono::duration<double> time) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.2f s", time.count());
    return text.data();
}

}  // namespace

void WriteSummary(const ExportSummary& summary, std::ostream& out) {
    const RunReport& report = summary.report;
    const SeverityCounts& notes = report.notes;
    out << "Definition file:        " << Printable(summary.output) << '\n'
        << "Models selected:        " << report.modelsSelected << '\n'
        << "Processes:              " << report.processes << '\n'
        << "Objects written:        " << report.objectsWritten << '\n'
        << "Notes in the log:       " << notes.exclamation << " exclamation, " << notes.information
        << " information";
    if (notes.critical != 0) out << ", " << notes.critical << " critical";
    if (notes.question != 0) out << ", " << notes.question << " question";
    out << '\n';
    if (report.boxes.exclamation != 0) out << "Warnings shown:         " << report.boxes.exclamation << '\n';
    if (summary.lackingCharacters != 0)
        out << "Characters lost:        " << summary.lackingCharacters << ", which the code page "
            << summary.codePage << " lacks; they are written as \"?\"\n";
    WriteUnknownTypes(summary.catalogue.UnknownTypes(), out);
    WriteDangling(summary.catalogue.Dangling(), out);
    out << "Time:                   " << Seconds(summary.time) << '\n';
}

}  // namespace wxbrg::cli
