#include "cli/ProcessTypes.h"

#include <algorithm>

#include "cli/UnattendedDialogs.h"
#include "platform/scripted/NoProgress.h"

namespace wxbrg::cli {

ProcessTypes ProcessTypesInForce(const Surroundings& surroundings, ProfileStore& profileStore,
                                 CodePage& codePage, std::ostream& told) {
    NoProgress progress;
    PrintingMessageBox messageBox(told, progress);
    GivenFileDialog fileDialog{std::string()};
    AcceptingOptionsFormView optionsFormView;
    Platform platform{.profileStore = profileStore,
                      .languageLibraries = surroundings.languageLibraries,
                      .codePage = codePage,
                      .clock = surroundings.clock,
                      .userLocale = surroundings.userLocale,
                      .fileSystem = surroundings.fileSystem,
                      .messageBox = messageBox,
                      .fileDialog = fileDialog,
                      .optionsFormView = optionsFormView,
                      .progress = progress,
                      .programDirectory = surroundings.programDirectory,
                      .programName = surroundings.programName};
    return ReadProcessTypes(platform);
}

bool IsProcessTypeIn(const ProcessTypes& inForce, std::int32_t modelType) {
    return std::find(inForce.types.begin(), inForce.types.end(), modelType) != inForce.types.end();
}

}  // namespace wxbrg::cli
