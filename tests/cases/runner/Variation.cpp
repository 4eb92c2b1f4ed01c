#include "tests/cases/runner/Variation.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "mapping/DefaultMappingRules.h"
#include "options/ExportOptions.h"
#include "platform/scripted/ScriptLines.h"
#include "tests/cli/TemporaryFolder.h"

namespace wxbrg::cases {

namespace {

namespace fs = std::filesystem;

/// A type number of nothing.
constexpr std::int32_t noType = 0;

/// The value of a stored option in the text form, or nothing.
std::string_view StoredValue(std::string_view options, std::string_view name) {
    for (const ScriptLine& line : ScriptLines(options))
        if (line.text.starts_with(name) && line.text.substr(name.size()).starts_with('='))
            return line.text.substr(name.size() + 1);
    return {};
}

std::string OtherValue(std::string_view name, std::string_view stored) {
    if (name == languageValue) return "s:ENU";
    const auto option =
        std::find_if(exportOptions.begin(), exportOptions.end(), [name](const ExportOption& candidate) {
            return candidate.valueName == name;
        });
    if (option == exportOptions.end()) throw std::invalid_argument("no option " + std::string(name));
    const int now = stored.empty() ? option->byDefault : std::stoi(std::string(stored));
    if (option->kind == OptionKind::number) return std::to_string(now + 1);
    return now == 0 ? "-1" : "0";
}

/// The clauses of one sort of rules: `keyword` and the name open that of a rule, `entry` writes one of its
/// rows.
template <class Rows, class Entry>
std::string Clauses(std::string_view keyword, const Rows& rows, std::string_view idle, const Entry& entry) {
    std::string text;
    std::string_view open;
    for (const auto& row : rows) {
        if (row.rule != open) {
            text += (open.empty() ? "" : "END\n") + std::string(keyword).append(row.rule).append("\n");
            open = row.rule;
        }
        text += entry(row, row.rule == idle);
    }
    return text + "END\n";
}

}  // namespace

ReplayOutcome ReplayWith(const Case& original, const std::string& file, const std::string& bytes) {
    const cli::TemporaryFolder copy;
    for (const auto& entry : fs::directory_iterator(original.folder))
        if (entry.is_regular_file()) fs::copy(entry.path(), copy.Path());
    WriteFile(copy / file, bytes);
    return Replay(copy.Path());
}

std::string OptionsWithOther(std::string_view options, std::string_view name) {
    std::string text;
    for (const ScriptLine& line : ScriptLines(options))
        if (!line.text.starts_with(std::string(name) + "=")) text.append(line.text).append("\n");
    return text.append(name) + "=" + OtherValue(name, StoredValue(options, name)) + "\n";
}

std::string BuiltInProfile(std::string_view idle) {
    const auto number = [](std::string_view keyword, std::int32_t value) {
        return "  " + std::string(keyword) + " = " + std::to_string(value) + "\n";
    };
    const auto type = [&](const defaultRules::TypeRow& row, bool isIdle) {
        return number("OBJECT_TYPE", isIdle ? noType : row.type);
    };
    const auto attribute = [&](const defaultRules::AttributeRow& row, bool isIdle) {
        return number("ATTRIBUTE_TYPE", isIdle ? noType : row.attribute);
    };
    const auto step = [&](const defaultRules::StepRow& row, bool isIdle) {
        const std::string entry = number("SOURCE_OBJECT_TYPE", isIdle ? noType : row.source) +
                                  number("TARGET_OBJECT_TYPE", row.target) +
                                  number("CONNECTION_KIND", row.kind) +
                                  number("CONNECTION_TYPE", row.connection);
        return row.continues.empty() ? entry
                                     : entry + "  TARGET_OBJECT_RULE = " + std::string(row.continues) + "\n";
    };
    return Clauses("OBJECT_MAPPING ", defaultRules::types, idle, type) +
           Clauses("ATTRIBUTE_MAPPING ", defaultRules::attributes, idle, attribute) +
           Clauses("CONNECTION_MAPPING ", defaultRules::steps, idle, step);
}

}  // namespace wxbrg::cases
