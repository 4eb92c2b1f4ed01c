#include "cli/Program.h"

#include <exception>
#include <ostream>

#include "cli/ArisCommandLine.h"
#include "cli/Dispatch.h"
#include "cli/ExitStatus.h"
#include "cli/ExportCommand.h"
#include "cli/ModelsCommand.h"
#include "cli/OptionsCommand.h"
#include "cli/ProfileCommand.h"
#include "cli/ReplayCommand.h"
#include "cli/ToolParser.h"
#include "cli/UsageError.h"

namespace wxbrg::cli {

namespace {

int RunSubcommand(const ToolArguments& arguments, const Surroundings& surroundings) {
    switch (arguments.subcommand) {
        case Subcommand::exportRun:
            return RunExportCommand(arguments.exportRun, surroundings);
        case Subcommand::models:
            return RunModelsCommand(arguments.models, surroundings);
        case Subcommand::profile:
            return RunProfileCommand(arguments.profile, surroundings);
        case Subcommand::options:
            return RunOptionsCommand(arguments.options, surroundings);
        case Subcommand::replay:
            break;
    }
    return RunReplayCommand(arguments.replay, surroundings);
}

int RunTool(const std::vector<std::string>& arguments, const Surroundings& surroundings) {
    ToolArguments given;
    const ParseResult result = ParseTool(arguments, given);
    surroundings.out << result.out;
    surroundings.err << result.err;
    return result.parsed ? RunSubcommand(given, surroundings) : result.exitStatus;
}

int Run(const std::vector<std::string>& arguments, const Surroundings& surroundings) {
    const std::vector<std::string> subcommands = SubcommandNames();
    switch (Dispatch(arguments, subcommands)) {
        case StartedAs::arisCommandLine:
            return RunArisCommandLine(JoinArguments(arguments), surroundings);
        case StartedAs::unknownWord:
            throw UsageError("There is no subcommand \"" + arguments.front() + "\"; did you mean \"" +
                             Nearest(arguments.front(), subcommands) +
                             "\"? \"wxbrg --help\" lists them all.");
        case StartedAs::tool:
            break;
    }
    return RunTool(arguments, surroundings);
}

}  // namespace

int RunProgram(const std::vector<std::string>& arguments, const Surroundings& surroundings) {
    int status = ExitStatus::failure;
    try {
        status = Run(arguments, surroundings);
    } catch (const UsageError& error) {
        surroundings.err << "wxbrg: " << error.what() << '\n';
        status = ExitStatus::usage;
    } catch (const std::exception& error) {
        surroundings.err << "wxbrg: " << error.what() << '\n';
    }
    if (surroundings.out.flush()) return status;
    surroundings.err << "wxbrg: The standard output could not be written.\n";
    return status == ExitStatus::normal ? ExitStatus::failure : status;
}

}  // namespace wxbrg::cli
