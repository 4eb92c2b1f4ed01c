#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wxbrg::cli {

/// As what the program was started.
enum class StartedAs {
    tool,             ///< with a subcommand, with an option or with nothing
    arisCommandLine,  ///< by ARIS, with switches
    unknownWord,      ///< with a first word that is no subcommand
};

/// Decides by the arguments (without the program's name). `subcommands` are the names that there are.
StartedAs Dispatch(const std::vector<std::string>& arguments, const std::vector<std::string>& subcommands);

/// The arguments joined by one blank each: the text behind the program's name.
std::string JoinArguments(const std::vector<std::string>& arguments);

/// Whether the text holds a switch of the ARIS command line in any case, followed by "=", ":" or a blank.
bool HoldsArisSwitch(std::string_view text);

}  // namespace wxbrg::cli
