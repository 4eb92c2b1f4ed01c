#pragma once

#include "cli/ToolArguments.h"
#include "cli/ToolEnvironment.h"

namespace wxbrg::cli {

/// Prints one line a model: Guid, type number, readable type, path of groups with "/" between them, and name,
/// separated by tabs. A tab or line break within one of them becomes a blank. Returns the exit status; throws
/// as `OpenRepository` does.
int RunModelsCommand(const ModelsArguments& given, const ToolEnvironment& environment);

}  // namespace wxbrg::cli
