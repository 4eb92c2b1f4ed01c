#include "cli/ExportCommand.h"

#include <chrono>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <system_error>

#include "cli/BatchPlatform.h"
#include "cli/ExportSummary.h"
#include "cli/ModelChoice.h"
#include "cli/OpenRepository.h"
#include "cli/OptionSettings.h"
#include "cli/ProcessTypes.h"
#include "cli/RuleChoice.h"
#include "cli/RunOutcome.h"
#include "cli/UsageError.h"
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

void RequireOutputApart(const ExportArguments& given) {
    std::error_code error;
    if (std::filesystem::equivalent(PathOf(given.output), PathOf(given.repository.file), error))
        throw UsageError("The definition file would overwrite the repository " + given.repository.file +
                         "; give another name with -o.");
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

RunReport RunBatch(const RunRequest& request, const std::string& output, aris::Automation& automation,
                   BatchParts& own, const ToolEnvironment& environment) {
    BatchPlatform platform(environment, {.profileStore = own.profileStore,
                                         .codePage = *own.codePage,
                                         .progress = *own.progress,
                                         .boxes = environment.err,
                                         .output = output,
                                         .mappingProfile = own.mappingProfile});
    RunReport report = RunExport(request, platform.Get(), automation);
    own.progress->Report({}, 0, 0);
    return report;
}

}  // namespace

int RunExportCommand(const ExportArguments& given, const ToolEnvironment& environment) {
    const auto start = std::chrono::steady_clock::now();
    RequireOutputApart(given);
    BatchParts own{OverlayProfileStore(environment.profileStore), OpenCodePage(given, environment),
                   environment.progress(), ChosenProfile(given.rules, environment.fileSystem)};
    PutSettings(given, own.profileStore);
    // What the boxes say here, those of the run say again.
    std::ostringstream ignored;
    const ProcessTypes inForce =
        ProcessTypesInForce(environment, {own.profileStore, *own.codePage, own.mappingProfile}, ignored);
    const OpenedRepository repository = OpenRepository(given.repository, environment, *own.progress);
    RunRequest request;
    request.selection = Select(given, repository, inForce);
    const std::unique_ptr<aris::Automation> automation =
        environment.catalogueAutomation(*repository.catalogue);
    const RunReport report = RunBatch(request, given.output, *automation, own, environment);

    ReportProgramFailure(report, environment.err);
    if (report.ending != RunEnding::normal || given.quiet)
        ReportLostCharacters(*own.codePage, environment.err);
    else
        WriteSummary({given.output, report, *repository.catalogue, own.codePage->Number(),
                      own.codePage->LackingCharacters(), std::chrono::steady_clock::now() - start},
                     environment.out);
    return ExitStatusOf(report, given.strict);
}

}  // namespace wxbrg::cli
