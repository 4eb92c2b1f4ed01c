#include "cli/RunPlatform.h"

#include <utility>

namespace wxbrg::cli {

namespace {

template <class Part>
Part& Chosen(Part* own, Part& shared) {
    return own == nullptr ? shared : *own;
}

}  // namespace

Platform PlatformOf(const ToolEnvironment& environment, RunParts parts) {
    return {.profileStore = Chosen(parts.profileStore, environment.profileStore),
            .languageLibraries = environment.languageLibraries,
            .codePage = parts.codePage,
            .clock = environment.clock,
            .userLocale = Chosen(parts.userLocale, environment.userLocale),
            .fileSystem = Chosen(parts.fileSystem, environment.fileSystem),
            .messageBox = parts.messageBox,
            .fileDialog = parts.fileDialog,
            .optionsFormView = parts.optionsFormView,
            .helpViewer = parts.helpViewer,
            .progress = parts.progress,
            .programDirectory = parts.programDirectory.value_or(environment.programDirectory),
            .programName = parts.programName.value_or(environment.programName),
            .mappingProfile = std::move(parts.mappingProfile)};
}

}  // namespace wxbrg::cli
