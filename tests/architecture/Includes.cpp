#include "tests/architecture/Includes.h"

#include <algorithm>

namespace wxbrg::architecture {

std::vector<std::string> QuotedIncludesOf(std::string_view source) {
    std::vector<std::string> includes;
    const auto skipBlanks = [](std::string_view& line) {
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    };
    while (!source.empty()) {
        std::string_view line = source.substr(0, source.find('\n'));
        source.remove_prefix(std::min(line.size() + 1, source.size()));
        skipBlanks(line);
        if (!line.starts_with('#')) continue;
        line.remove_prefix(1);
        skipBlanks(line);
        constexpr std::string_view directive = "include";
        if (!line.starts_with(directive)) continue;
        line.remove_prefix(directive.size());
        skipBlanks(line);
        if (!line.starts_with('"')) continue;
        const std::size_t end = line.find('"', 1);
        if (end != std::string_view::npos) includes.emplace_back(line.substr(1, end - 1));
    }
    return includes;
}

}  // namespace wxbrg::architecture
