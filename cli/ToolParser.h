#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cli/ToolArguments.h"

namespace CLI {
class App;
}

namespace wxbrg::cli {

/// The command line tool's grammar: all subcommands and options with their help. Parsing fills in
/// `arguments`, which outlives the result.
std::unique_ptr<CLI::App> MakeGrammar(ToolArguments& arguments);

/// The names of the subcommands.
std::vector<std::string> SubcommandNames();

/// What became of the arguments: parsed, or answered on the spot by help, version or an error.
struct ParseResult {
    bool parsed = false;
    std::string out;     ///< for the standard output
    std::string err;     ///< for the standard error
    int exitStatus = 0;  ///< where nothing was parsed
};

/// Parses the arguments, without the program's name. No argument at all is answered by the help.
ParseResult ParseTool(const std::vector<std::string>& arguments, ToolArguments& parsed);

}  // namespace wxbrg::cli
