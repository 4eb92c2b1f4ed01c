#include "cli/BatchPlatform.h"

#include <utility>

#include "cli/RunPlatform.h"

namespace wxbrg::cli {

BatchPlatform::BatchPlatform(const ToolEnvironment& environment, BatchSettings setting)
    : messageBox_(setting.boxes, setting.progress),
      fileDialog_(std::move(setting.output)),
      platform_(PlatformOf(environment, {.codePage = setting.codePage,
                                         .messageBox = messageBox_,
                                         .fileDialog = fileDialog_,
                                         .optionsFormView = optionsFormView_,
                                         .helpViewer = helpViewer_,
                                         .progress = setting.progress,
                                         .profileStore = &setting.profileStore,
                                         .fileSystem = setting.fileSystem,
                                         .mappingProfile = std::move(setting.mappingProfile)})) {}

}  // namespace wxbrg::cli
