#include "cli/Program.h"

#include <exception>
#include <ostream>

#include "cli/CauseText.h"
#include "cli/Dispatch.h"
#include "cli/ExitStatus.h"
#include "cli/ExportCommand.h"
#include "cli/InteractiveRun.h"
#include "cli/ModelsCommand.h"
#include "cli/NearestWord.h"
#include "cli/OptionsCommand.h"
#include "cli/ProfileCommand.h"
#include "cli/ReplayCommand.h"
#include "cli/ToolParser.h"
#include "cli/UsageError.h"

namespace wxbrg::cli {

namespace {

int RunSubcommand(const ToolArguments& arguments, const ToolEnvironment& environment) {
    switch (arguments.subcommand) {
        case Subcommand::exportRun:
            return RunExportCommand(arguments.exportRun, environment);
        case Subcommand::models:
            return RunModelsCommand(arguments.models, environment);
        case Subcommand::profile:
            return RunProfileCommand(arguments.profile, environment);
        case Subcommand::options:
            return RunOptionsCommand(arguments.options, environment);
        case Subcommand::replay:
            break;
    }
    return RunReplayCommand(arguments.replay, environment);
}

int RunTool(const std::vector<std::string>& arguments, const ToolEnvironment& environment) {
    ToolArguments given;
    const ParseResult result = ParseTool(arguments, given);
    environment.out << result.out;
    environment.err << result.err;
    return result.parsed ? RunSubcommand(given, environment) : result.exitStatus;
}

int Run(const std::vector<std::string>& arguments, const ToolEnvironment& environment) {
    const std::vector<std::string> subcommands = SubcommandNames();
    switch (Dispatch(arguments, subcommands)) {
        case StartedAs::arisCommandLine:
            return RunInteractively(JoinArguments(arguments), environment);
        case StartedAs::unknownWord:
            throw UsageError("There is no subcommand \"" + arguments.front() + "\"; did you mean \"" +
                             Nearest(arguments.front(), subcommands) +
                             "\"? \"wxbrg --help\" lists them all.");
        case StartedAs::tool:
            break;
    }
    return RunTool(arguments, environment);
}

}  // namespace

int RunProgram(const std::vector<std::string>& arguments, const ToolEnvironment& environment) {
    int status = ExitStatus::failure;
    try {
        status = Run(arguments, environment);
    } catch (const UsageError& error) {
        environment.err << "wxbrg: " << error.what() << '\n';
        status = ExitStatus::usage;
    } catch (const std::exception& error) {
        ReportException(error, environment.err);
    }
    if (environment.out.flush()) return status;
    environment.err << "wxbrg: The standard output could not be written.\n";
    return status == ExitStatus::normal ? ExitStatus::failure : status;
}

}  // namespace wxbrg::cli
