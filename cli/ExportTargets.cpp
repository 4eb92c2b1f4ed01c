#include "cli/ExportTargets.h"

#include <filesystem>
#include <system_error>

#include "cli/UsageError.h"
#include "platform/Path.h"
#include "run/clsIOHandler.h"
#include "support/Text.h"

namespace wxbrg::cli {

namespace {

constexpr const char* standardOutput = "-";
constexpr const char* noLog = "none";
constexpr std::size_t charactersForLog = 4;

/// Targets are the definition file and the log.
const char* KindOf(std::size_t target) {
    return target == 0 ? "definition file" : "log";
}

const char* OptionOf(std::size_t target) {
    return target == 0 ? "-o" : "--log";
}

StagedTarget DefinitionOf(const ExportArguments& given) {
    if (given.output.empty())
        throw UsageError("The name of the definition file is empty; name a file with -o.");
    StagedTarget target{definitionForTheRun, given.output, StagedPlace::file, !given.noClobber};
    if (given.output != standardOutput) return target;
    target.name = "standard output";
    target.place = StagedPlace::standardOutput;
    return target;
}

std::string LogBeside(const std::string& definition) {
    const std::string lastPart = TextOf(PathOf(definition).filename());
    if (ToCharacters(lastPart).size() < charactersForLog)
        throw UsageError(
            "The name " + definition +
            " is too short for a log beside it, which has .log for the last four characters; give "
            "a longer name with -o, or a log with --log FILE or --log none.");
    return LogFileNameOf(definition);
}

StagedTarget LogOf(const ExportArguments& given) {
    StagedTarget target{LogFileNameOf(definitionForTheRun), {}, StagedPlace::file, !given.noClobber};
    if (given.log.value_or(given.output == standardOutput ? noLog : "") == noLog) {
        target.place = StagedPlace::nowhere;
        return target;
    }
    if (given.log && given.log->empty())
        throw UsageError("The name of the log is empty; name a file with --log, or none.");
    target.name = given.log ? *given.log : LogBeside(given.output);
    return target;
}

void RequireApart(const std::vector<StagedTarget>& targets, std::size_t which,
                  const std::vector<InputFile>& inputs) {
    const StagedTarget& target = targets[which];
    if (target.place != StagedPlace::file) return;
    const InputFile* const lost = InputLostBy(target.name, inputs);
    if (lost != nullptr)
        throw UsageError(std::string("The ") + KindOf(which) + ' ' + target.name + " would overwrite " +
                         lost->what + ' ' + lost->name + "; give another name with " + OptionOf(which) + '.');
}

}  // namespace

std::vector<StagedTarget> TargetsOf(const ExportArguments& given) {
    return {DefinitionOf(given), LogOf(given)};
}

void RequireTargetsApart(const std::vector<StagedTarget>& targets, const std::vector<InputFile>& inputs) {
    for (std::size_t which = 0; which < targets.size(); ++which) RequireApart(targets, which, inputs);
    if (targets.front().place != StagedPlace::file) return;
    RequireApart(targets, 1, {{"the definition file", targets.front().name}});
    if (targets.back().place != StagedPlace::file) return;
    RequireApart(targets, 0, {{"the log", targets.back().name}});
}

void RequireNoneThere(const std::vector<StagedTarget>& targets) {
    std::error_code error;
    for (std::size_t which = 0; which < targets.size(); ++which) {
        const StagedTarget& target = targets[which];
        if (target.place == StagedPlace::file && !target.mayReplace &&
            std::filesystem::is_regular_file(PathOf(target.name), error))
            throw UsageError(std::string("The ") + KindOf(which) + ' ' + target.name +
                             " exists and --no-clobber keeps it; give another name with " + OptionOf(which) +
                             '.');
    }
}

}  // namespace wxbrg::cli
