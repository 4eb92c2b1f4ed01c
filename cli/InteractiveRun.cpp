#include "cli/InteractiveRun.h"

#include "cli/CauseText.h"
#include "cli/InputKeepingFileDialog.h"
#include "cli/OpenRepository.h"
#include "cli/RunOutcome.h"
#include "cli/RunPlatform.h"
#include "cli/StoredOptions.h"
#include "options/MessageTexts.h"
#include "options/OptionTable.h"
#include "options/StoredValues.h"
#include "run/RunExport.h"
#include "run/clsARIS_Interface.h"
#include "run/clsExceptionHandler.h"
#include "run/modGlobals.h"

namespace wxbrg::cli {

namespace {

/// Empty for the working directory.
std::string RepositoryFolder(const ProfileStore& store) {
    const ProfileValue stored = GetProfileValue(store, programKey, repositoryPathValue);
    const auto* folder = std::get_if<std::string>(&stored);
    return folder == nullptr ? std::string() : *folder;
}

/// Shows what is wrong with the stored options, if anything is.
void ReportStore(const std::string& problem, const std::string& consequence, MessageBox& messageBox) {
    if (!problem.empty()) messageBox.Report("wxbrg", consequence + problem);
}

/// Shows the cause behind the last box where the user looks: in a window of its own, or as a line.
void ShowCause(const RunReport& report, const Dialogs& dialogs, std::ostream& err) {
    const std::string cause = report.ending == RunEnding::normal ? std::string() : CauseText(report.cause);
    if (dialogs.inWindows && !cause.empty())
        dialogs.messageBox->Show(productName, cause,
                                 BoxStyle::ok + Severity::information + BoxStyle::foreground);
    else
        ReportCause(report, err);
}

/// The files that the run reads that is on its way.
std::vector<InputFile> InputsOf(const ToolEnvironment& environment) {
    std::vector<InputFile> files =
        CommonInputFiles(environment, StoredLanguage(environment.profileStore), std::nullopt);
    files.push_back({"the repository", environment.databaseFile(RepositoryFolder(environment.profileStore),
                                                                gBlock.gARISInterface->sDatabase)});
    return files;
}

}  // namespace

int RunInteractively(const std::string& commandLine, const ToolEnvironment& environment) {
    RunRequest request;
    request.commandLine = commandLine;
    const std::unique_ptr<CodePage> codePage = environment.codePage(std::nullopt);
    const std::unique_ptr<Progress> progress = environment.progress();
    const Dialogs dialogs = environment.dialogs();
    const std::unique_ptr<aris::Automation> automation = environment.folderAutomation(
        RepositoryFolder(environment.profileStore), ProgressOf(*progress, "the database"));
    InputKeepingFileDialog fileDialog(*dialogs.fileDialog,
                                      [&] {
                                          return InputsOf(environment);
                                      },
                                      {}, {});
    Platform platform = PlatformOf(environment, {.codePage = *codePage,
                                                 .messageBox = *dialogs.messageBox,
                                                 .fileDialog = fileDialog,
                                                 .optionsFormView = *dialogs.optionsFormView,
                                                 .helpViewer = *dialogs.helpViewer,
                                                 .progress = *progress});
    request.atBegin = [&] {
        ReportStore(StoreProblem(environment.profileStore),
                    "The default options count: ", *dialogs.messageBox);
    };
    request.atEnd = [&](const RunReport& report) {
        progress->Report({}, 0, 0);
        ReportStore(environment.profileStore.TakeWriteProblem(),
                    "Not everything could be stored: ", *dialogs.messageBox);
        ReportProgramFailure(report, environment.err);
        ShowCause(report, dialogs, environment.err);
    };
    const RunReport report = RunExport(request, platform, *automation);
    ReportLostCharacters(*codePage, environment.err);
    return ExitStatusOf(report, false);
}

}  // namespace wxbrg::cli
