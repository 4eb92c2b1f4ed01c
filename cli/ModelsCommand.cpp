#include "cli/ModelsCommand.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "cli/ExitStatus.h"
#include "cli/OpenRepository.h"
#include "cli/ProcessTypes.h"
#include "cli/RuleChoice.h"
#include "cli/RunOutcome.h"
#include "cli/StoredOptions.h"
#include "support/Text.h"

namespace wxbrg::cli {

namespace {

/// A text as one field of a line.
std::string Field(std::string_view text) {
    std::string field = RemoveLineBreaks(text);
    std::replace(field.begin(), field.end(), '\t', ' ');
    return field;
}

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
        return ExitStatusOf(inForce.report, false);
    }
    const std::unique_ptr<Progress> progress = environment.progress();
    const OpenedRepository repository = OpenRepository(given.repository, environment, *progress);
    progress->Report({}, 0, 0);
    for (const ARISModel& model : repository.catalogue->Models()) {
        if (!given.all && !IsProcessTypeIn(inForce, model->TypeNum())) continue;
        environment.out << Field(model->Guid()) << '\t' << model->TypeNum() << '\t' << Field(model->Type())
                        << '\t' << Field(GroupPath(repository, model)) << '\t'
                        << Field(model->Name(repository.locale)) << '\n';
    }
    return ExitStatus::normal;
}

}  // namespace wxbrg::cli
