#pragma once

#include <string>

#include "cli/ToolEnvironment.h"

namespace wxbrg::cli {

/// The interactive run that ARIS starts. `commandLine` is the text behind the program's name. The databases
/// are the exports in the folder that the stored value "RepositoryPath" names, by default the working
/// directory. Returns the exit status.
int RunInteractively(const std::string& commandLine, const ToolEnvironment& environment);

}  // namespace wxbrg::cli
