#include "cli/Dispatch.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>

#include "support/Text.h"

namespace wxbrg::cli {

namespace {

constexpr std::array<std::string_view, 6> arisSwitches{"/USR", "/DB", "/SVR", "/REG", "/SEL", "/LOC"};

bool HoldsSwitch(std::string_view upper, std::string_view name) {
    for (std::size_t at = upper.find(name); at != std::string_view::npos; at = upper.find(name, at + 1)) {
        const std::string_view behind = upper.substr(at + name.size(), 1);
        if (behind == "=" || behind == ":" || behind == " ") return true;
    }
    return false;
}

/// The number of characters to insert, drop or replace to make one word of the other.
std::size_t EditDistance(const std::u32string& a, const std::u32string& b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, replaced});
        }
    }
    return row.back();
}

}  // namespace

StartedAs Dispatch(const std::vector<std::string>& arguments, const std::vector<std::string>& subcommands) {
    if (arguments.empty()) return StartedAs::tool;
    const std::string& first = arguments.front();
    const bool known = std::find(subcommands.begin(), subcommands.end(), first) != subcommands.end();
    if (known || first.starts_with('-')) return StartedAs::tool;
    return HoldsArisSwitch(JoinArguments(arguments)) ? StartedAs::arisCommandLine : StartedAs::unknownWord;
}

std::string JoinArguments(const std::vector<std::string>& arguments) {
    std::string joined;
    for (const std::string& argument : arguments) {
        if (&argument != &arguments.front()) joined += ' ';
        joined += argument;
    }
    return joined;
}

bool HoldsArisSwitch(std::string_view text) {
    const std::string upper = UpperCase(text);
    return std::any_of(arisSwitches.begin(), arisSwitches.end(), [&](std::string_view name) {
        return HoldsSwitch(upper, name);
    });
}

std::string Nearest(std::string_view word, const std::vector<std::string>& candidates) {
    const std::u32string from = ToCharacters(word);
    const auto distance = [&](const std::string& candidate) {
        return EditDistance(from, ToCharacters(candidate));
    };
    const auto nearest = std::min_element(candidates.begin(), candidates.end(),
                                          [&](const std::string& a, const std::string& b) {
                                              return distance(a) < distance(b);
                                          });
    return nearest == candidates.end() ? std::string() : *nearest;
}

}  // namespace wxbrg::cli
