#pragma once

#include <optional>
#include <string>

#include "cli/ToolArguments.h"
#include "platform/FileSystem.h"

namespace wxbrg::cli {

/// The mapping profile that the arguments name, as `Platform::mappingProfile` takes it: nothing for the one
/// beside the program, empty for the built-in rules. Throws `UsageError` for a file that cannot be read.
std::optional<std::string> ChosenProfile(const RuleArguments& given, FileSystem& files);

}  // namespace wxbrg::cli
