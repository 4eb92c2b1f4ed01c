#include "cli/ExportCommand.h"

#include <chrono>
#include <filesystem>
#include <ostream>
#include <sstream>

#include "cli/BatchPlatform.h"
#include "cli/CauseText.h"
#include "cli/ExitStatus.h"
#include "cli/ExportFiles.h"
#include "cli/ExportSummary.h"
#include "cli/InputFiles.h"
#include "cli/ModelChoice.h"
#include "cli/OpenRepository.h"
#include "cli/OptionSettings.h"
#include "cli/ProcessTypes.h"
#include "cli/RuleChoice.h"
#include "cli/RunOutcome.h"
#include "cli/StoppingProgress.h"
#include "cli/StoredOptions.h"
#include "cli/UsageError.h"
#include "options/MessageTexts.h"
#include "platform/Path.h"
#include "platform/scripted/OverlayProfileStore.h"
#include "run/RunExport.h"

namespace wxbrg::cli {

namespace {

std::unique_ptr<CodePage> OpenCodePage(const ExportArguments& given, const ToolEnvironment& environment) {
    std::unique_ptr<CodePage> codePage = environment.codePage(given.codePage);
    if (!codePage)
        throw UsageError("There is no code page " + std::to_string(given.codePage.value_or(0)) +
                         " on this system; 65001 is UTF-8, 1252 Western European.");
    return codePage;
}

/// The options given for this run.
void PutSettings(const ExportArguments& given, OverlayProfileStore& store) {
    for (const std::string& text : given.settings) {
        const OptionSetting setting = ParseSetting(text);
        store.Write(programKey, setting.name, setting.value);
    }
    if (!given.language.empty()) store.Write(programKey, languageValue, given.language);
}

/// The models to export. Where the rules in force cannot be read, the run is to find that out by itself and
/// to end as it always does then: any model counts, and all are taken where none is named.
std::vector<ARISModel> ModelsToExport(const ExportArguments& given, const OpenedRepository& repository,
                                      const ProcessTypes& inForce) {
    const bool known = inForce.report.ending == RunEnding::normal;
    const ModelChoice choice{given.models, given.all || (!known && given.models.empty())};
    return ChooseModels(choice, *repository.catalogue, repository.locale, [&](std::int32_t type) {
        return !known || IsProcessTypeIn(inForce, type);
    });
}

ExportSelection Select(const ExportArguments& given, const OpenedRepository& repository,
                       const ProcessTypes& inForce) {
    ExportSelection selection;
    selection.user = given.user;
    selection.database = TextOf(PathOf(given.repository.file).stem());
    selection.locale = repository.locale;
    selection.models = ModelsToExport(given, repository, inForce);
    return selection;
}

/// What a batch run uses besides the environment.
struct BatchParts {
    OverlayProfileStore profileStore;
    std::unique_ptr<CodePage> codePage;
    std::unique_ptr<Progress> progress;
    std::optional<std::string> mappingProfile;  ///< as in `Platform`
};

RunReport RunBatch(const RunRequest& request, FileSystem& files, aris::Automation& automation,
                   BatchParts& own, const ToolEnvironment& environment) {
    BatchPlatform platform(environment, {.profileStore = own.profileStore,
                                         .codePage = *own.codePage,
                                         .progress = *own.progress,
                                         .boxes = environment.err,
                                         .output = ExportFiles::NameForTheRun(),
                                         .mappingProfile = own.mappingProfile,
                                         .fileSystem = &files});
    RunReport report = RunExport(request, platform.Get(), automation);
    own.progress->Report({}, 0, 0);
    return report;
}

BatchParts PartsOf(const ExportArguments& given, const ToolEnvironment& environment, ProfileStore& store,
                   const StopRequests& stop) {
    BatchParts own{OverlayProfileStore(store), OpenCodePage(given, environment),
                   std::make_unique<StoppingProgress>(environment.progress(), stop),
                   ChosenProfile(given.rules, environment.fileSystem)};
    PutSettings(given, own.profileStore);
    if (own.mappingProfile && IsPipe(*own.mappingProfile))
        throw UsageError("The mapping profile " + *own.mappingProfile +
                         " is a pipe, and an export reads the profile more than once; name a file.");
    return own;
}

std::vector<InputFile> InputsOf(const ExportArguments& given, const BatchParts& own,
                                const ToolEnvironment& environment) {
    std::vector<InputFile> inputs =
        CommonInputFiles(environment, StoredLanguage(own.profileStore), own.mappingProfile);
    inputs.push_back({"the repository", given.repository.file});
    inputs.push_back({"the table of types", given.repository.typesFile});
    return inputs;
}

int Export(const ExportArguments& given, const ToolEnvironment& environment, const StopRequests& stop) {
    const auto start = std::chrono::steady_clock::now();
    StoredOptions stored(given.noStoredOptions, environment);
    BatchParts own = PartsOf(given, environment, stored.Store(), stop);
    ExportFiles files(given, InputsOf(given, own, environment), environment, stop);
    // What the boxes say here, those of the run say again.
    std::ostringstream ignored;
    const ProcessTypes inForce =
        ProcessTypesInForce(environment, {own.profileStore, *own.codePage, own.mappingProfile}, ignored);
    const OpenedRepository repository = OpenRepository(given.repository, environment, *own.progress);
    RunRequest request;
    request.selection = Select(given, repository, inForce);
    const std::unique_ptr<aris::Automation> automation =
        environment.catalogueAutomation(*repository.catalogue);
    const RunReport report = RunBatch(request, files.Files(), *automation, own, environment);

    ReportProgramFailure(report, environment.err);
    ReportCause(report, environment.err);
    const bool complete = files.Finish(report, environment.err);
    if (!complete || given.quiet)
        ReportLostCharacters(*own.codePage, environment.err);
    else
        WriteSummary(
            {files.Definition().name, report, *repository.catalogue, own.codePage->Number(),
             own.codePage->LackingCharacters(), std::chrono::steady_clock::now() - start},
            files.Definition().place == StagedPlace::standardOutput ? environment.err : environment.out);
    if (complete) return ExitStatusOf(report, given.strict);
    return stop.Signal() == 0 ? ExitStatus::failure : ExitStatus::signalled + stop.Signal();
}

}  // namespace

int RunExportCommand(const ExportArguments& given, const ToolEnvironment& environment) {
    const std::unique_ptr<StopRequests> stop = environment.catchStopRequests();
    try {
        return Export(given, environment, *stop);
    } catch (const StopRequested& request) {
        environment.err << "wxbrg: " << request.what() << '\n';
        return ExitStatus::signalled + request.signal;
    }
}

}  // namespace wxbrg::cli
