#include "tests/help/HelpExamples.h"

#include <algorithm>
#include <regex>
#include <sstream>
#include <stdexcept>

#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::string_view fence = "```";
constexpr std::string_view leftOut = "…";

/// Takes the lines of a block up to its end, the fence at which it begins being the next line.
std::vector<std::string> TakeBlock(std::istringstream& lines) {
    std::string line;
    if (!std::getline(lines, line) || line != fence)
        throw std::runtime_error("no block behind an example's line");
    std::vector<std::string> block;
    while (std::getline(lines, line)) {
        if (line == fence) return block;
        block.push_back(line);
    }
    throw std::runtime_error("a block has no end");
}

bool Matches(std::string_view shown, const std::string& exported) {
    const std::string line = Replace(exported, "\t", "    ");
    if (!shown.ends_with(" …")) return line == shown;
    return line.starts_with(shown.substr(0, shown.size() - leftOut.size()));
}

}  // namespace

std::vector<std::string> LinesOf(std::string_view text) {
    std::istringstream stream(Replace(text, "\r\n", "\n"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

std::vector<HelpExample> ExamplesOf(std::string_view text) {
    static const std::regex pageMark("<!-- page ([0-9]+) -->");
    static const std::regex exportMark("<!-- export ([^ ]+)(?: ([^ ]+))? -->");
    std::istringstream lines{std::string(text)};
    std::vector<HelpExample> examples;
    std::int32_t page = 0;
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        if (line.starts_with(fence))
            throw std::runtime_error("page " + std::to_string(page) + ": a block from nowhere");
        if (std::regex_match(line, match, pageMark))
            page = std::stoi(match[1]);
        else if (std::regex_match(line, match, exportMark))
            examples.push_back({page, match[1], match[2], TakeBlock(lines)});
    }
    return examples;
}

bool Shows(const HelpExample& example, const std::vector<std::string>& exported) {
    auto from = exported.begin();
    auto group = example.lines.begin();
    while (group != example.lines.end()) {
        const auto end = std::find(group, example.lines.end(), leftOut);
        const auto found =
            std::search(from, exported.end(), group, end, [](const auto& line, const auto& shown) {
                return Matches(shown, line);
            });
        if (found == exported.end()) return false;
        from = found + (end - group);
        group = end == example.lines.end() ? end : end + 1;
    }
    return !example.lines.empty();
}

}  // namespace wxbrg
