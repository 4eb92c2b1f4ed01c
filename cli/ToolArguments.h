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

struct ExportArguments {
    RepositoryArguments repository;
    std::string output;
    std::vector<std::string> models;  ///< names and Guids
    bool all = false;
    std::string user;
    std::string language;                   ///< empty: the stored one
    std::optional<std::uint32_t> codePage;  ///< nothing: the system's
    std::vector<std::string> settings;      ///< "Name=Value" each
    bool strict = false;
    bool quiet = false;
};

struct ModelsArguments {
    RepositoryArguments repository;
    bool all = false;
};

enum class OptionsAction { list, get, set, reset };

struct OptionsArguments {
    OptionsAction action = OptionsAction::list;
    std::string name;  ///< empty for a reset of all
    std::string value;
};

struct ReplayArguments {
    std::string caseFolder;
    std::string outFolder;
};

enum class Subcommand { exportRun, models, options, replay };

/// The parsed command line of the tool: the subcommand and what was given to it.
struct ToolArguments {
    Subcommand subcommand = Subcommand::exportRun;
    ExportArguments exportRun;
    ModelsArguments models;
    OptionsArguments options;
    ReplayArguments replay;
};

}  // namespace wxbrg::cli
