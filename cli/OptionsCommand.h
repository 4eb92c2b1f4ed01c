#pragma once

#include "cli/ToolArguments.h"
#include "cli/ToolEnvironment.h"

namespace wxbrg::cli {

/// Shows and changes the stored options of the user. `list` prints a line for each: name, value and where it
/// comes from ("user", "machine" or "default"), separated by tabs. Returns the exit status; throws
/// `UsageError` for a name that there is not and a value that is none, and std::runtime_error where the
/// stored options cannot be read.
int RunOptionsCommand(const OptionsArguments& given, const ToolEnvironment& environment);

}  // namespace wxbrg::cli
