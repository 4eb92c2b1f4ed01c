#pragma once

#include "cli/ToolArguments.h"
#include "cli/ToolEnvironment.h"

namespace wxbrg::cli {

/// Exports models of a repository with no questions asked: the options are the stored ones with those of the
/// command line over them, boxes go to the standard error, and a summary to the standard output. Returns the
/// exit status; throws `UsageError` for what cannot be asked so, and `Failure` where the repository cannot be
/// read, both before anything is written.
int RunExportCommand(const ExportArguments& given, const ToolEnvironment& environment);

}  // namespace wxbrg::cli
