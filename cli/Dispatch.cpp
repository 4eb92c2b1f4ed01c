#include "cli/Dispatch.h"

#include <algorithm>
#include <cstddef>

#include "run/ArisSwitches.h"
#include "support/Text.h"

namespace wxbrg::cli {

namespace {

bool HoldsSwitch(std::string_view upper, std::string_view name) {
    for (std::size_t at = upper.find(name); at != std::string_view::npos; at = upper.find(name, at + 1)) {
        const std::string_view behind = upper.substr(at + name.size(), 1);
        if (behind == "=" || behind == ":" || behind == " ") return true;
    }
    return false;
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
    return std::any_of(ArisSwitch::all.begin(), ArisSwitch::all.end(), [&](std::string_view name) {
        return HoldsSwitch(upper, name);
    });
}

}  // namespace wxbrg::cli
