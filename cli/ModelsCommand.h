#pragma once

#include "cli/Surroundings.h"
#include "cli/ToolArguments.h"

namespace wxbrg::cli {

/// Prints one line a model: Guid, type number, readable type, path of groups with "/" between them, and name,
/// separated by tabs. A tab or line break within one of them becomes a blank. Returns the exit status; throws
/// as `OpenRepository` does.
int RunModelsCommand(const ModelsArguments& given, const Surroundings& surroundings);

}  // namespace wxbrg::cli
