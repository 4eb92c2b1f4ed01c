#include "cli/ModelsCommand.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "cli/ExitStatus.h"
#include "cli/OpenedRepository.h"
#include "cli/ProcessTypes.h"
#include "cli/RuleChoice.h"
#include "cli/RunOutcome.h"
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

int RunModelsCommand(const ModelsArguments& given, const Surroundings& surroundings) {
    const std::unique_ptr<CodePage> codePage = surroundings.codePage(std::nullopt);
    const ProcessTypes inForce = ProcessTypesInForce(
        surroundings,
        {surroundings.profileStore, *codePage, ChosenProfile(given.rules, surroundings.fileSystem)},
        surroundings.err);
    if (inForce.report.ending != RunEnding::normal) {
        TellProgramFailure(inForce.report, surroundings.err);
        return ExitStatusOf(inForce.report, false);
    }
    const std::unique_ptr<Progress> progress = surroundings.progress();
    const OpenedRepository repository = OpenRepository(given.repository, surroundings, *progress);
    progress->Report({}, 0, 0);
    for (const ARISModel& model : repository.catalogue->Models()) {
        if (!given.all && !IsProcessTypeIn(inForce, model->TypeNum())) continue;
        surroundings.out << Field(model->Guid()) << '\t' << model->TypeNum() << '\t' << Field(model->Type())
                         << '\t' << Field(GroupPath(repository, model)) << '\t'
                         << Field(model->Name(repository.locale)) << '\n';
    }
    return ExitStatus::normal;
}

}  // namespace wxbrg::cli
