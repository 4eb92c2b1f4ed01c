#include "cli/ModelsCommand.h"

#include <ostream>
#include <string>

#include "cli/CauseText.h"
#include "cli/ExitStatus.h"
#include "cli/OpenRepository.h"
#include "cli/ProcessTypes.h"
#include "cli/RuleChoice.h"
#include "cli/RunOutcome.h"
#include "cli/StoredOptions.h"
#include "support/TerminalText.h"

namespace wxbrg::cli {

namespace {

std::string GroupPath(const OpenedRepository& repository, ARISModel model) {
    std::string path;
    for (const ARISGroup& group : repository.catalogue->GroupPath(model)) {
        if (!path.empty()) path += '/';
        path += group->Name(repository.locale);
    }
    return path;
}

}  // namespace

int RunModelsCommand(const ModelsArguments& given, const ToolEnvironment& environment) {
    StoredOptions stored(given.noStoredOptions, environment);
    const std::unique_ptr<CodePage> codePage = environment.codePage(std::nullopt);
    const ProcessTypes inForce = ProcessTypesInForce(
        environment, {stored.Store(), *codePage, ChosenProfile(given.rules, environment.fileSystem)},
        environment.err);
    if (inForce.report.ending != RunEnding::normal) {
        ReportProgramFailure(inForce.report, environment.err);
        ReportCause(inForce.report, environment.err);
        return ExitStatusOf(inForce.report, false);
    }
    const std::unique_ptr<Progress> progress = environment.progress();
    const OpenedRepository repository = OpenRepository(given.repository, environment, *progress);
    progress->Report({}, 0, 0);
    for (const ARISModel& model : repository.catalogue->Models()) {
        if (!given.all && !IsProcessTypeIn(inForce, model->TypeNum())) continue;
        environment.out << PrintableField(model->Guid()) << '\t' << model->TypeNum() << '\t'
                        << PrintableField(model->Type()) << '\t'
                        << PrintableField(GroupPath(repository, model)) << '\t'
                        << PrintableField(model->Name(repository.locale)) << '\n';
    }
    return ExitStatus::normal;
}

}  // namespace wxbrg::cli
