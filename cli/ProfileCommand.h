#pragma once

#include "cli/ToolArguments.h"
#include "cli/ToolEnvironment.h"

namespace wxbrg::cli {

/// Prints mapping rules as a profile, checks a profile, or shows what one changes. Returns the exit status;
/// throws `UsageError` for a profile that cannot be read.
///
/// `print` and `diff` end with 1, and report why on the standard error, for a profile whose rules cannot be
/// taken from it; else with 0. `check` prints its findings to the standard output, a line each, and ends with
/// 1 where one of them is an error, with 3 where there are warnings only.
int RunProfileCommand(const ProfileArguments& given, const ToolEnvironment& environment);

}  // namespace wxbrg::cli
