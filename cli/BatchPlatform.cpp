#include "cli/BatchPlatform.h"

#include <utility>

namespace wxbrg::cli {

BatchPlatform::BatchPlatform(const ToolEnvironment& environment, BatchSettings setting)
    : messageBox_(setting.told, setting.progress),
      fileDialog_(std::move(setting.output)),
      platform_{.profileStore = setting.profileStore,
                .languageLibraries = environment.languageLibraries,
                .codePage = setting.codePage,
                .clock = environment.clock,
                .userLocale = environment.userLocale,
                .fileSystem = environment.fileSystem,
                .messageBox = messageBox_,
                .fileDialog = fileDialog_,
                .optionsFormView = optionsFormView_,
                .helpViewer = helpViewer_,
                .progress = setting.progress,
                .programDirectory = environment.programDirectory,
                .programName = environment.programName,
                .mappingProfile = std::move(setting.mappingProfile)} {}

}  // namespace wxbrg::cli
