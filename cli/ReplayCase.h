#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace wxbrg::cli {

/// An interactive run in a folder: what it is given and how its dialogs are answered.
struct ReplayCase {
    std::filesystem::path repository;  ///< `repository.aml`
    std::string commandLine;           ///< `command`: the text behind the program's name
    std::string options;               ///< `options`: the user's, a line each: Name=number or Name=s:text
    std::string machineOptions;        ///< `machine-options`: the machine's, likewise
    std::string answers;               ///< `answers`: a line for each dialog
    std::uint32_t codePage = 65001;    ///< `code-page`: the number of the active code page
};

/// Reads a case. The repository and the command must be there; another file that is absent stands for nothing
/// given. Absent is only what is not there: a link that leads nowhere is not. The texts are UTF-8; a byte
/// order mark at their start is dropped. Throws `UsageError`, naming file and cause: for a folder or a file
/// that is missing or cannot be read, the mapping profile among them, for a code page that is no number, and
/// for an output file named outside the folder of the output.
ReplayCase ReadReplayCase(const std::filesystem::path& folder);

}  // namespace wxbrg::cli
