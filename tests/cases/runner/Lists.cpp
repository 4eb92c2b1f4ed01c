#include "tests/cases/runner/Lists.h"

#include <algorithm>
#include <stdexcept>

#include "platform/scripted/ScriptLines.h"
#include "support/Text.h"
#include "tests/cases/runner/Case.h"

namespace wxbrg::cases {

namespace {

ListLine Columns(std::string_view line) {
    ListLine columns;
    while (!line.empty()) {
        const std::size_t end = line.find('\t');
        if (end != 0) columns.emplace_back(Trim(line.substr(0, end)));
        line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
    }
    return columns;
}

/// The numbers of "50000-50029", or of a single one.
std::vector<std::string> Numbers(const std::string& range) {
    const std::size_t hyphen = range.find('-');
    const int first = std::stoi(range.substr(0, hyphen));
    const int last = hyphen == std::string::npos ? first : std::stoi(range.substr(hyphen + 1));
    std::vector<std::string> numbers;
    for (int number = first; number <= last; ++number) numbers.push_back(std::to_string(number));
    return numbers;
}

std::vector<ListLine> ReadList(const std::string& name, std::size_t columns) {
    return ParseList(name, ReadFile(CasesFolder() / name), columns);
}

}  // namespace

std::vector<ListLine> ParseList(const std::string& name, std::string_view text, std::size_t columns) {
    std::vector<ListLine> lines;
    for (const ScriptLine& line : ScriptLines(text)) {
        if (line.text.starts_with('#')) continue;
        lines.push_back(Columns(line.text));
        if (lines.back().size() != columns)
            throw std::invalid_argument(name + ":" + std::to_string(line.number) + " has not " +
                                        std::to_string(columns) + " columns with tabs between them");
    }
    return lines;
}

std::vector<PendingCase> ReadPending() {
    std::vector<PendingCase> pending;
    for (const ListLine& line : ReadList("pending", 2)) pending.push_back({line[0], line[1]});
    return pending;
}

bool IsPending(const std::string& name) {
    const std::vector<PendingCase> pending = ReadPending();
    return std::any_of(pending.begin(), pending.end(), [&name](const PendingCase& candidate) {
        return candidate.name == name;
    });
}

std::vector<Excuse> ReadExcuses() {
    std::vector<Excuse> excuses;
    for (const ListLine& line : ReadList("excuses", 3)) {
        if (line[0] != factKind::message) {
            excuses.push_back({line[0], line[1], line[2]});
            continue;
        }
        for (const std::string& number : Numbers(line[1])) excuses.push_back({line[0], number, line[2]});
    }
    return excuses;
}

std::vector<ShownFact> ReadShown() {
    std::vector<ShownFact> shown;
    for (const ListLine& line : ReadList("shown", 3)) shown.push_back({line[0], line[1], line[2]});
    return shown;
}

}  // namespace wxbrg::cases
