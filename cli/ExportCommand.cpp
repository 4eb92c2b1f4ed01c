#include "cli/ExportCommand.h"

#include <chrono>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <system_error>

#include "cli/ExportSummary.h"
#include "cli/ModelChoice.h"
#include "cli/OpenedRepository.h"
#include "cli/OptionSettings.h"
#include "cli/ProcessTypes.h"
#include "cli/RuleChoice.h"
#include "cli/RunOutcome.h"
#include "cli/UnattendedPlatform.h"
#include "cli/UsageError.h"
#include "platform/scripted/OverlayProfileStore.h"
#include "run/RunExport.h"

namespace wxbrg::cli {

namespace {

std::unique_ptr<CodePage> OpenCodePage(const ExportArguments& given, const Surroundings& surroundings) {
    std::unique_ptr<CodePage> codePage = surroundings.codePage(given.codePage);
    if (!codePage)
        throw UsageError("There is no code page " + std::to_string(given.codePage.value_or(0)) +
                         " on this system; 65001 is UTF-8, 1252 Western European.");
    return codePage;
}

void RequireOutputApart(const ExportArguments& given) {
    std::error_code error;
    if (std::filesystem::equivalent(given.output, given.repository.file, error))
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

ExportSelection Select(const ExportArguments& given, const OpenedRepository& repository,
                       const ProcessTypes& inForce) {
    ExportSelection selection;
    selection.user = given.user;
    selection.database = std::filesystem::path(given.repository.file).stem().string();
    selection.locale = repository.locale;
    selection.models = ChooseModels({given.models, given.all}, *repository.catalogue, repository.locale,
                                    [&](std::int32_t type) {
                                        return IsProcessTypeIn(inForce, type);
                                    });
    return selection;
}

/// What a run with nobody to ask stands on, apart from the surroundings.
struct Unattended {
    OverlayProfileStore profileStore;
    std::unique_ptr<CodePage> codePage;
    std::unique_ptr<Progress> progress;
    std::optional<std::string> mappingProfile;  ///< as in `Platform`
};

RunReport RunUnattended(const RunRequest& request, const std::string& output, aris::Automation& automation,
                        Unattended& own, const Surroundings& surroundings) {
    UnattendedPlatform platform(surroundings, {.profileStore = own.profileStore,
                                               .codePage = *own.codePage,
                                               .progress = *own.progress,
                                               .told = surroundings.err,
                                               .output = output,
                                               .mappingProfile = own.mappingProfile});
    RunReport report = RunExport(request, platform.Get(), automation);
    own.progress->Report({}, 0, 0);
    return report;
}

}  // namespace

int RunExportCommand(const ExportArguments& given, const Surroundings& surroundings) {
    const auto start = std::chrono::steady_clock::now();
    RequireOutputApart(given);
    Unattended own{OverlayProfileStore(surroundings.profileStore), OpenCodePage(given, surroundings),
                   surroundings.progress(), ChosenProfile(given.rules, surroundings.fileSystem)};
    PutSettings(given, own.profileStore);
    // What the boxes say here, those of the run say again, where it comes to one.
    std::ostringstream told;
    const ProcessTypes inForce =
        ProcessTypesInForce(surroundings, {own.profileStore, *own.codePage, own.mappingProfile}, told);
    if (inForce.report.ending != RunEnding::normal) {
        surroundings.err << told.str();
        TellProgramFailure(inForce.report, surroundings.err);
        return ExitStatusOf(inForce.report, given.strict);
    }
    const OpenedRepository repository = OpenRepository(given.repository, surroundings, *own.progress);
    RunRequest request;
    request.selection = Select(given, repository, inForce);
    const std::unique_ptr<aris::Automation> automation =
        surroundings.catalogueAutomation(*repository.catalogue);
    const RunReport report = RunUnattended(request, given.output, *automation, own, surroundings);

    TellProgramFailure(report, surroundings.err);
    if (report.ending != RunEnding::normal || given.quiet)
        TellLostCharacters(*own.codePage, surroundings.err);
    else
        WriteSummary({given.output, report, *repository.catalogue, own.codePage->Number(),
                      own.codePage->LackingCharacters(), std::chrono::steady_clock::now() - start},
                     surroundings.out);
    return ExitStatusOf(report, given.strict);
}

}  // namespace wxbrg::cli
