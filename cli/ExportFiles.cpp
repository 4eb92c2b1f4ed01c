#include "cli/ExportFiles.h"

#include <ostream>

#include "cli/ExportTargets.h"
#include "cli/UsageError.h"
#include "support/Failure.h"

namespace wxbrg::cli {

namespace {

std::unique_ptr<StagedFiles> StageTargets(const std::vector<StagedTarget>& targets,
                                          const ToolEnvironment& environment, const StopRequests& stop) {
    try {
        return environment.stageFiles(targets, stop);
    } catch (const TargetRefused& refused) {
        throw UsageError(std::string(refused.what()) + "; give another name with -o or --log.");
    }
}

std::unique_ptr<StagedFiles> StageApart(const ExportArguments& given, const std::vector<InputFile>& inputs,
                                        const ToolEnvironment& environment, const StopRequests& stop) {
    const std::vector<StagedTarget> targets = TargetsOf(given);
    RequireTargetsApart(targets, inputs);
    RequireNoneThere(targets);
    return StageTargets(targets, environment, stop);
}

}  // namespace

ExportFiles::ExportFiles(const ExportArguments& given, const std::vector<InputFile>& inputs,
                         const ToolEnvironment& environment, const StopRequests& stop)
    : definition_(TargetsOf(given).front()), staged_(StageApart(given, inputs, environment, stop)) {}

std::string ExportFiles::NameForTheRun() {
    return definitionForTheRun;
}

bool ExportFiles::Finish(const RunReport& report, std::ostream& err) {
    if (report.ending == RunEnding::normal && PutInPlace(err)) return true;
    Abandon(err);
    return false;
}

bool ExportFiles::PutInPlace(std::ostream& err) {
    try {
        for (const std::string& remark : staged_->PutInPlace()) err << "wxbrg: " << remark << '\n';
        return true;
    } catch (const Failure& failure) {
        err << "wxbrg: " << failure.Description << '\n';
    } catch (const StopRequested& request) {
        err << "wxbrg: " << request.what() << '\n';
    }
    return false;
}

void ExportFiles::Abandon(std::ostream& err) {
    const std::vector<std::string> kept = staged_->Abandon();
    err << "wxbrg: The export is not complete: " << definition_.name << " was not written";
    const char* separator = "; what there is of it is in ";
    for (const std::string& name : kept) {
        err << separator << name;
        separator = " and ";
    }
    err << ".\n";
}

}  // namespace wxbrg::cli
