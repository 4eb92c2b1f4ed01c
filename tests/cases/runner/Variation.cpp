#include "tests/cases/runner/Variation.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "mapping/ProfileText.h"
#include "mapping/RuleTable.h"
#include "options/OptionTable.h"
#include "platform/scripted/ScriptLines.h"
#include "tests/TemporaryFolder.h"

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
    if (option->IsNumber()) return std::to_string(now + 1);
    return now == 0 ? "-1" : "0";
}

/// Makes all that a rule names a number of nothing.
void MakeIdle(clsMappingRule& rule) {
    clsMappingRule idle;
    idle.Name = rule.Name;
    if (!rule.AttributeMapping.empty()) idle.AttributeMapping = std::to_string(noType);
    for (clsObjectMapping mapping : rule.ColObjectMapping) {
        mapping.ObjTypeNum = noType;
        idle.ColObjectMapping.Add(mapping);
    }
    for (clsConnectionMapping mapping : rule.ColConnectionMapping) {
        mapping.SourceObjTypeNum = noType;
        idle.ColConnectionMapping.Add(mapping);
    }
    rule = idle;
}

}  // namespace

ReplayOutcome ReplayWith(const Case& original, const std::string& file, const std::string& bytes) {
    const TemporaryFolder copy;
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
    RuleTable rules = BuiltInRules();
    for (clsMappingRule& rule : rules)
        if (rule.Name == idle) MakeIdle(rule);
    return ProfileText(rules);
}

}  // namespace wxbrg::cases
