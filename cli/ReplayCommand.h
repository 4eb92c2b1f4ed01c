#pragma once

#include "cli/ToolArguments.h"
#include "cli/ToolEnvironment.h"

namespace wxbrg::cli {

/// Runs the interactive export of a case folder with its dialogs answered by the case. Boxes and the way the
/// run ended go to the standard output, a JSON value a line; the files of the run and `options`, the stored
/// options after it, into the folder of the output, which is made if need be. Nothing else is read or changed
/// apart from the program's language library. Returns the exit status; throws `UsageError` for a bad case and
/// for answers that do not fit or run out.
int RunReplayCommand(const ReplayArguments& given, const ToolEnvironment& environment);

}  // namespace wxbrg::cli
