#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace wxbrg::cli {

/// What the subcommands that read a repository have in common.
struct RepositoryArguments {
    std::string file;
    std::string typesFile;               ///< empty: the built-in type table alone
    std::optional<std::int32_t> locale;  ///< nothing: the repository's first language
};

/// Which mapping rules count; with neither given, those of the profile beside the program, else the built-in
/// ones.
struct RuleArguments {
    std::optional<std::string> profile;  ///< name of a mapping profile
    bool builtIn = false;                ///< the built-in rules, whatever profile is there
};

struct ExportArguments {
    RepositoryArguments repository;
    RuleArguments rules;
    std::string output;
    std::vector<std::string> models;  ///< names and Guids
    bool all = false;
    std::string user;
    std::string language;                   ///< empty: the stored one
    std::optional<std::uint32_t> codePage;  ///< nothing: the system's
    std::vector<std::string> settings;      ///< "Name=Value" each
    std::optional<std::string> log;         ///< nothing: beside the output; "none": no log
    bool noClobber = false;                 ///< an output or log that exists is not replaced
    bool noStoredOptions = false;           ///< what is stored does not count
    bool strict = false;
    bool quiet = false;
};

struct ModelsArguments {
    RepositoryArguments repository;
    RuleArguments rules;
    bool all = false;
    bool noStoredOptions = false;  ///< what is stored does not count
};

enum class OptionsAction { list, get, set, reset };

struct OptionsArguments {
    OptionsAction action = OptionsAction::list;
    std::string name;  ///< empty for a reset of all
    std::string value;
};

enum class ProfileOperation { print, check, diff };

struct ProfileArguments {
    ProfileOperation operation = ProfileOperation::print;
    RuleArguments rules;              ///< of `print`
    std::string file;                 ///< of `check` and `diff`
    std::optional<std::string> base;  ///< of `diff`; nothing: the built-in rules
    bool noStoredOptions = false;     ///< what is stored does not count
};

struct ReplayArguments {
    std::string caseFolder;
    std::string outFolder;
};

enum class Subcommand { exportRun, models, profile, options, replay };

/// The parsed command line of the tool: the subcommand and what was given to it.
struct ToolArguments {
    Subcommand subcommand = Subcommand::exportRun;
    ExportArguments exportRun;
    ModelsArguments models;
    ProfileArguments profile;
    OptionsArguments options;
    ReplayArguments replay;
};

}  // namespace wxbrg::cli
