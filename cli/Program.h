#pragma once

#include <string>
#include <vector>

#include "cli/ToolEnvironment.h"

namespace wxbrg::cli {

/// The whole program behind main: decides as what it was started, runs that, and turns what goes wrong before
/// a run into a text on the standard error. `arguments` are without the program's name. Returns the exit
/// status.
int RunProgram(const std::vector<std::string>& arguments, const ToolEnvironment& environment);

}  // namespace wxbrg::cli
