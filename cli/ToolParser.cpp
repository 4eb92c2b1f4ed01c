#include "cli/ToolParser.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <sstream>

#include "cli/ExitStatus.h"
#include "support/TerminalText.h"

namespace wxbrg::cli {

namespace {

constexpr const char* description =
    "Exports process models of an ARIS XML export as a definition file for Tarnlight Workflow.";

constexpr const char* footer =
    "Started by ARIS with the switches /USR, /DB, /SVR, /REG, /SEL and /LOC, the program runs the\n"
    "interactive export instead: options dialog, file dialog, export.\n"
    "The manual page wxbrg(1) has more.\n";

CLI::App* AddSubcommand(CLI::App& app, const char* name, const char* text, Subcommand subcommand,
                        ToolArguments& arguments) {
    CLI::App* added = app.add_subcommand(name, text);
    added->callback([subcommand, &arguments] {
        arguments.subcommand = subcommand;
    });
    return added;
}

void AddRepository(CLI::App& app, RepositoryArguments& repository) {
    app.add_option("FILE", repository.file, "ARIS XML export (AML)")->required();
    app.add_option("--locale", repository.locale,
                   "Language of names and texts, by its number; the first one of the export if not given")
        ->type_name("N");
    app.add_option("--types", repository.typesFile, "Further rows for the table of ARIS types")
        ->type_name("FILE");
}

/// The options that say which rules count; `builtIn` is the one for the built-in rules.
void AddRules(CLI::App& app, const char* builtIn, RuleArguments& rules) {
    CLI::Option* flag =
        app.add_flag(builtIn, rules.builtIn, "The built-in rules, whatever profile is beside the program");
    app.add_option("--profile", rules.profile, "Mapping profile to take the rules from")
        ->type_name("FILE")
        ->excludes(flag);
}

void AddNoStoredOptions(CLI::App& app, bool& given) {
    app.add_flag("--no-stored-options", given,
                 "Pass over the stored options of user and machine, the language included");
}

void AddExport(CLI::App& app, ToolArguments& arguments) {
    ExportArguments& given = arguments.exportRun;
    CLI::App& command = *AddSubcommand(app, "export", "Export models, with no questions asked",
                                       Subcommand::exportRun, arguments);
    AddRepository(command, given.repository);
    command
        .add_option("-o,--output", given.output,
                    "Definition file to write; the log goes beside it. - is the standard output")
        ->required()
        ->type_name("FILE");
    command
        .add_option("--log", given.log, "Log to write in place of the one beside the output; none for no log")
        ->type_name("FILE");
    command.add_flag("--no-clobber", given.noClobber, "Replace no definition file or log that exists");
    CLI::Option* model = command
                             .add_option("--model", given.models,
                                         "Model to export, by name or Guid; may be given several times")
                             ->type_name("NAME|GUID")
                             ->allow_extra_args(false);
    command.add_flag("--all", given.all, "Export every model of a process type")->excludes(model);
    AddRules(command, "--default-rules", given.rules);
    command.add_option("--user", given.user, "User name for the file's header")->type_name("NAME");
    command.add_option("--language", given.language, "Language of messages and notes, such as ENU or DEU")
        ->type_name("TAG");
    command
        .add_option("--code-page", given.codePage,
                    "Code page of the files, by its number; the system's if not given")
        ->type_name("N");
    command
        .add_option("--set", given.settings,
                    "Export option for this run, such as ConvertNames=0; may be given several times")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
    AddNoStoredOptions(command, given.noStoredOptions);
    command.add_flag("--strict", given.strict, "End with exit status 3 where there was a warning");
    command.add_flag("--quiet", given.quiet, "Print no summary");
}

void AddModels(CLI::App& app, ToolArguments& arguments) {
    CLI::App& command = *AddSubcommand(
        app, "models", "List the models of a process type: Guid, type number, type, group, name",
        Subcommand::models, arguments);
    AddRepository(command, arguments.models.repository);
    AddRules(command, "--default-rules", arguments.models.rules);
    command.add_flag("--all", arguments.models.all, "List the models of all types");
    AddNoStoredOptions(command, arguments.models.noStoredOptions);
}

/// Adds a word behind a subcommand; given, it sets `field` to `value`.
template <class Action>
CLI::App* AddAction(CLI::App& command, const char* name, const char* text, Action value, Action& field) {
    CLI::App* added = command.add_subcommand(name, text);
    added->callback([value, &field] {
        field = value;
    });
    return added;
}

void AddProfile(CLI::App& app, ToolArguments& arguments) {
    ProfileArguments& given = arguments.profile;
    CLI::App& command = *AddSubcommand(app, "profile", "Print, check and compare mapping profiles",
                                       Subcommand::profile, arguments);
    command.require_subcommand(1);
    CLI::App* print = AddAction(command, "print", "Print the mapping rules in force as a profile",
                                ProfileOperation::print, given.operation);
    AddRules(*print, "--default", given.rules);
    CLI::App* check = AddAction(command, "check", "Report what is wrong or doubtful in a profile",
                                ProfileOperation::check, given.operation);
    check->add_option("FILE", given.file, "Mapping profile to check")->required();
    CLI::App* diff = AddAction(command, "diff", "Show what a profile changes, rule by rule",
                               ProfileOperation::diff, given.operation);
    diff->add_option("FILE", given.file, "Mapping profile that changes something")->required();
    diff->add_option("BASE", given.base, "Mapping profile to compare with; the built-in rules if not given");
    for (CLI::App* each : {print, check, diff}) AddNoStoredOptions(*each, given.noStoredOptions);
}

void AddOptions(CLI::App& app, ToolArguments& arguments) {
    OptionsArguments& given = arguments.options;
    CLI::App& command =
        *AddSubcommand(app, "options", "Show and set the stored options", Subcommand::options, arguments);
    command.require_subcommand(0, 1);
    AddAction(command, "list", "Print name, value and origin of each option (the default)",
              OptionsAction::list, given.action);
    CLI::App* get = AddAction(command, "get", "Print one value", OptionsAction::get, given.action);
    get->add_option("NAME", given.name, "Option to print")->required();
    CLI::App* set = AddAction(command, "set", "Store a value", OptionsAction::set, given.action);
    set->add_option("NAME", given.name, "Option to store")->required();
    set->add_option("VALUE", given.value, "Its value: -1 (on) or 0 (off), a number from 0 on, or a text")
        ->required();
    CLI::App* reset = AddAction(command, "reset", "Take stored values away, so that the defaults count again",
                                OptionsAction::reset, given.action);
    reset->add_option("NAME", given.name, "Option to reset; all of them if not given");
}

void AddReplay(CLI::App& app, ToolArguments& arguments) {
    CLI::App& command = *AddSubcommand(
        app, "replay", "Run the interactive export of a case folder, its dialogs answered by the case",
        Subcommand::replay, arguments);
    command.add_option("CASE", arguments.replay.caseFolder, "Folder of the case")->required();
    command.add_option("--out", arguments.replay.outFolder, "Folder for what the run writes")
        ->required()
        ->type_name("DIR");
}

}  // namespace

std::unique_ptr<CLI::App> MakeGrammar(ToolArguments& arguments) {
    auto app = std::make_unique<CLI::App>(description, "wxbrg");
    app->set_version_flag("--version", std::string("wxbrg ") + WXBRG_VERSION, "Print the version and end");
    app->set_help_flag("-h,--help", "Print this help and end");
    app->allow_windows_style_options(false);
    app->require_subcommand(1);
    app->failure_message([](const CLI::App*, const CLI::Error& error) {
        return "wxbrg: " + Printable(error.what()) + "\nTry --help behind the subcommand for its usage.\n";
    });
    AddExport(*app, arguments);
    AddModels(*app, arguments);
    AddProfile(*app, arguments);
    AddOptions(*app, arguments);
    AddReplay(*app, arguments);
    app->footer(footer);  // last, for subcommands take it over
    return app;
}

std::vector<std::string> SubcommandNames() {
    ToolArguments arguments;
    const std::unique_ptr<CLI::App> app = MakeGrammar(arguments);
    std::vector<std::string> names;
    for (const CLI::App* subcommand : app->get_subcommands([](const CLI::App*) {
             return true;
         }))
        names.push_back(subcommand->get_name());
    return names;
}

ParseResult ParseTool(const std::vector<std::string>& arguments, ToolArguments& parsed) {
    const std::unique_ptr<CLI::App> app = MakeGrammar(parsed);
    ParseResult result;
    if (arguments.empty()) {
        result.out = app->help();
        return result;
    }
    try {
        app->parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        result.parsed = true;
    } catch (const CLI::ParseError& error) {
        std::ostringstream out;
        std::ostringstream err;
        const int status = app->exit(error, out, err);
        result.out = out.str();
        result.err = err.str();
        result.exitStatus = status == 0 ? ExitStatus::normal : ExitStatus::usage;
    }
    return result;
}

}  // namespace wxbrg::cli
