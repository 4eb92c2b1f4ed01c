#include "cli/ArisCommandLine.h"

#include "cli/OpenedRepository.h"
#include "cli/RunOutcome.h"
#include "options/ExportOptions.h"
#include "options/modUtilities_registry.h"
#include "run/RunExport.h"

namespace wxbrg::cli {

namespace {

/// Empty for the working directory.
std::string RepositoryFolder(const ProfileStore& store) {
    const ProfileValue stored = GetProfileValue(store, programKey, repositoryPathValue);
    const auto* folder = std::get_if<std::string>(&stored);
    return folder == nullptr ? std::string() : *folder;
}

}  // namespace

int RunArisCommandLine(const std::string& commandLine, const Surroundings& surroundings) {
    RunRequest request;
    request.commandLine = commandLine;
    const std::unique_ptr<CodePage> codePage = surroundings.codePage(std::nullopt);
    const std::unique_ptr<Progress> progress = surroundings.progress();
    const Dialogs dialogs = surroundings.dialogs();
    const std::unique_ptr<aris::Automation> automation = surroundings.folderAutomation(
        RepositoryFolder(surroundings.profileStore), TellingOf(*progress, "the database"));
    Platform platform{.profileStore = surroundings.profileStore,
                      .languageLibraries = surroundings.languageLibraries,
                      .codePage = *codePage,
                      .clock = surroundings.clock,
                      .userLocale = surroundings.userLocale,
                      .fileSystem = surroundings.fileSystem,
                      .messageBox = *dialogs.messageBox,
                      .fileDialog = *dialogs.fileDialog,
                      .optionsFormView = *dialogs.optionsFormView,
                      .helpViewer = *dialogs.helpViewer,
                      .progress = *progress,
                      .programDirectory = surroundings.programDirectory,
                      .programName = surroundings.programName};
    const RunReport report = RunExport(request, platform, *automation);
    progress->Report({}, 0, 0);
    TellProgramFailure(report, surroundings.err);
    TellLostCharacters(*codePage, surroundings.err);
    return ExitStatusOf(report, false);
}

}  // namespace wxbrg::cli
