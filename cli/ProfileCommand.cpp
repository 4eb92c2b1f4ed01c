#include "cli/ProfileCommand.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "cli/BatchPlatform.h"
#include "cli/ExitStatus.h"
#include "cli/RuleChoice.h"
#include "cli/StoredOptions.h"
#include "mapping/ProfileCheck.h"
#include "mapping/ProfileDiff.h"
#include "mapping/ProfileFile.h"
#include "mapping/ProfileText.h"
#include "platform/scripted/NoProgress.h"
#include "support/TerminalText.h"

namespace wxbrg::cli {

namespace {

constexpr const char* builtInRules = "built-in rules";

/// What a profile is read with.
struct Reading {
    ProfileStore& profileStore;  ///< says the language of the boxes
    const ToolEnvironment& environment;
};

/// The profile that the arguments name, read as a run reads it.
ProfileFile ReadFile(const RuleArguments& given, const Reading& reading) {
    const ToolEnvironment& environment = reading.environment;
    const std::unique_ptr<CodePage> codePage = environment.codePage(std::nullopt);
    NoProgress progress;
    BatchPlatform platform(environment, {.profileStore = reading.profileStore,
                                         .codePage = *codePage,
                                         .progress = progress,
                                         .boxes = environment.err,
                                         .mappingProfile = ChosenProfile(given, environment.fileSystem)});
    return ReadProfileFile(platform.Get());
}

RuleArguments Named(const std::string& file) {
    return {.profile = file, .builtIn = false};
}

void Print(const std::string& file, const ProfileFinding& finding, std::ostream& out) {
    const char* const severity = finding.severity == FindingSeverity::error ? "error" : "warning";
    out << Printable(file) << ':' << finding.place.line << ':' << finding.place.column << ": " << severity
        << ": " << Printable(finding.text) << '\n';
}

/// The rules that the arguments name; nothing, after reporting why, where they cannot be taken from the file.
std::optional<RuleTable> ReadRules(const RuleArguments& given, const Reading& reading) {
    const ProfileFile file = ReadFile(given, reading);
    ProfileRules read = ReadProfileRules(file.text, reading.environment.userLocale.DecimalSeparator());
    for (const ProfileFinding& mistake : read.mistakes) Print(file.name, mistake, reading.environment.err);
    if (!read.mistakes.empty()) return std::nullopt;
    return std::move(read.rules);
}

int Print(const RuleArguments& given, const Reading& reading) {
    const std::optional<RuleTable> rules = ReadRules(given, reading);
    if (!rules) return ExitStatus::failure;
    reading.environment.out << ProfileText(*rules);
    return ExitStatus::normal;
}

std::string Counted(std::ptrdiff_t count, const std::string& word) {
    return std::to_string(count) + " " + word + (count == 1 ? "" : "s");
}

int Check(const std::string& name, const Reading& reading) {
    const ProfileFile file = ReadFile(Named(name), reading);
    const std::vector<ProfileFinding> findings =
        CheckProfile(file.text, reading.environment.userLocale.DecimalSeparator());
    for (const ProfileFinding& finding : findings) Print(name, finding, reading.environment.out);
    const auto errors = std::count_if(findings.begin(), findings.end(), [](const ProfileFinding& finding) {
        return finding.severity == FindingSeverity::error;
    });
    const auto warnings = static_cast<std::ptrdiff_t>(findings.size()) - errors;
    reading.environment.out << Printable(name) << ": " << Counted(errors, "error") << ", "
                            << Counted(warnings, "warning") << '\n';
    if (errors > 0) return ExitStatus::failure;
    return warnings > 0 ? ExitStatus::strict : ExitStatus::normal;
}

int Diff(const ProfileArguments& given, const Reading& reading) {
    const RuleArguments base = given.base ? Named(*given.base) : RuleArguments{{}, true};
    const std::optional<RuleTable> before = ReadRules(base, reading);
    const std::optional<RuleTable> now = ReadRules(Named(given.file), reading);
    if (!before || !now) return ExitStatus::failure;
    reading.environment.out << "--- " << Printable(given.base.value_or(builtInRules)) << "\n+++ "
                            << Printable(given.file) << '\n'
                            << DifferenceText(DifferencesOf(*before, *now), before->size());
    return ExitStatus::normal;
}

}  // namespace

int RunProfileCommand(const ProfileArguments& given, const ToolEnvironment& environment) {
    StoredOptions stored(given.noStoredOptions, environment);
    const Reading reading{stored.Store(), environment};
    switch (given.operation) {
        case ProfileOperation::check:
            return Check(given.file, reading);
        case ProfileOperation::diff:
            return Diff(given, reading);
        case ProfileOperation::print:
            break;
    }
    return Print(given.rules, reading);
}

}  // namespace wxbrg::cli
