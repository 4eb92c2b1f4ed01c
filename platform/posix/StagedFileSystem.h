#pragma once

#include <memory>
#include <vector>

#include "platform/StagedFiles.h"
#include "platform/StopRequests.h"

namespace wxbrg {

/// Stages files. The file system below and `stop` outlive the result. Throws `TargetRefused` for a name that
/// cannot be written, `TargetBusy`, and `Failure` where the system fails otherwise.
std::unique_ptr<StagedFiles> StageFiles(FileSystem& files, const std::vector<StagedTarget>& targets,
                                        const StopRequests& stop);

}  // namespace wxbrg
