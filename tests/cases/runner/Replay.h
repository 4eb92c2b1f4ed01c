#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "tests/cases/runner/FileTree.h"

namespace wxbrg::cases {

/// The names under which `Files` hold what is no written file.
inline constexpr const char* transcriptName = "transcript.jsonl";
inline constexpr const char* optionsName = "options";

/// How the replay of a case as a process went.
struct ReplayOutcome {
    int status = 0;   ///< exit status
    std::string err;  ///< what was on the standard error
    Files files;      ///< what the run wrote, dates masked, with "options"; "transcript.jsonl" is its output
};

/// Replays the case in a folder with the program of `TheArguments()`, into a temporary folder.
ReplayOutcome Replay(const std::filesystem::path& caseFolder);

/// The text with "DATE" for the date and time at the end of its third line, where it is a definition file and
/// the date has its form: "2026 Sat Nov 21  12:43:00".
std::string MaskDate(std::string_view text);

}  // namespace wxbrg::cases
