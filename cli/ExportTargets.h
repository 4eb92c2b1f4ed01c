#pragma once

#include <string>
#include <vector>

#include "cli/InputFiles.h"
#include "cli/ToolArguments.h"
#include "platform/StagedFiles.h"

namespace wxbrg::cli {

/// The name under which an export opens its definition file, wherever that goes.
inline constexpr const char* definitionForTheRun = "definition.wpx";

/// The definition file and the log of an export, in this order. Throws `UsageError` for a name that leaves no
/// room for the log's.
std::vector<StagedTarget> TargetsOf(const ExportArguments& given);

/// Throws `UsageError` where a target, or a file that lies beside it for a while, is one of the inputs, or
/// where the two targets are one file. Files are told apart by identity, not by name.
void RequireTargetsApart(const std::vector<StagedTarget>& targets, const std::vector<InputFile>& inputs);

/// Throws `UsageError` where a target that must not be replaced is there.
void RequireNoneThere(const std::vector<StagedTarget>& targets);

}  // namespace wxbrg::cli
