#include "cli/UnattendedPlatform.h"

#include <utility>

namespace wxbrg::cli {

UnattendedPlatform::UnattendedPlatform(const Surroundings& surroundings, UnattendedSetting setting)
    : messageBox_(setting.told, setting.progress),
      fileDialog_(std::move(setting.output)),
      platform_{.profileStore = setting.profileStore,
                .languageLibraries = surroundings.languageLibraries,
                .codePage = setting.codePage,
                .clock = surroundings.clock,
                .userLocale = surroundings.userLocale,
                .fileSystem = surroundings.fileSystem,
                .messageBox = messageBox_,
                .fileDialog = fileDialog_,
                .optionsFormView = optionsFormView_,
                .helpViewer = helpViewer_,
                .progress = setting.progress,
                .programDirectory = surroundings.programDirectory,
                .programName = surroundings.programName,
                .mappingProfile = std::move(setting.mappingProfile)} {}

}  // namespace wxbrg::cli
