#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tests/cases/runner/FileTree.h"

namespace wxbrg::cases {

/// One end-to-end case.
struct Case {
    std::string name;              ///< of its folder
    std::filesystem::path folder;  ///< absolute
};

/// The folder of all cases and of the lists about them.
const std::filesystem::path& CasesFolder();

/// The cases that were there when this program was built, in the order of their folders.
const std::vector<Case>& AllCases();

/// The case of that name, or null.
const Case* FindCase(std::string_view name);

/// What the run of a case is to leave: the files that it writes, "options" and "transcript.jsonl".
Files ExpectedFiles(const Case& wanted);

}  // namespace wxbrg::cases
