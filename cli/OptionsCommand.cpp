#include "cli/OptionsCommand.h"

#include <ostream>
#include <stdexcept>
#include <string>

#include "cli/ExitStatus.h"
#include "cli/OptionSettings.h"
#include "cli/StoredOptions.h"
#include "options/StoredValues.h"
#include "support/TerminalText.h"

namespace wxbrg::cli {

namespace {

struct ValueAndOrigin {
    ProfileValue value;
    std::string_view origin;
};

ProfileValue DefaultOf(const ExportOption& option) {
    if (option.kind == OptionKind::text) return std::string(option.textByDefault);
    return option.byDefault;
}

ValueAndOrigin InForce(const ProfileStore& store, const ExportOption& option) {
    ProfileValue value = store.Read(ProfileScope::user, programKey, option.valueName);
    if (!std::holds_alternative<std::monostate>(value)) return {std::move(value), "user"};
    value = store.Read(ProfileScope::machine, programKey, option.valueName);
    if (!std::holds_alternative<std::monostate>(value)) return {std::move(value), "machine"};
    return {DefaultOf(option), "default"};
}

int List(const ToolEnvironment& environment) {
    for (const ExportOption& option : storedOptions) {
        const ValueAndOrigin found = InForce(environment.profileStore, option);
        environment.out << option.valueName << '\t' << PrintableField(TextOf(found.value)) << '\t'
                        << found.origin << '\n';
    }
    return ExitStatus::normal;
}

int Get(const std::string& name, const ToolEnvironment& environment) {
    environment.out << Printable(TextOf(InForce(environment.profileStore, StoredOption(name)).value)) << '\n';
    return ExitStatus::normal;
}

/// Prints what did not happen, and why as far as the store knows.
void ReportFailure(const std::string& what, const ToolEnvironment& environment) {
    const std::string why = environment.profileStore.TakeWriteProblem();
    environment.err << "wxbrg: " << what << (why.empty() ? "." : ": " + why) << '\n';
}

int Set(const OptionsArguments& given, const ToolEnvironment& environment) {
    const OptionSetting setting = ParseStoredValue(given.name, given.value);
    if (environment.profileStore.Write(programKey, setting.name, setting.value)) return ExitStatus::normal;
    ReportFailure("The option " + std::string(setting.name) + " could not be stored", environment);
    return ExitStatus::failure;
}

int Reset(const std::string& name, const ToolEnvironment& environment) {
    std::vector<std::string_view> names = StoredValueNames();
    if (!name.empty()) names = {StoredOption(name).valueName};
    for (const std::string_view each : names) {
        if (environment.profileStore.Remove(programKey, each)) continue;
        ReportFailure("The stored option " + std::string(each) + " could not be taken away", environment);
        return ExitStatus::failure;  // the others would fail alike
    }
    return ExitStatus::normal;
}

}  // namespace

int RunOptionsCommand(const OptionsArguments& given, const ToolEnvironment& environment) {
    if (const std::string problem = StoreProblem(environment.profileStore); !problem.empty())
        throw std::runtime_error(problem);
    switch (given.action) {
        case OptionsAction::get:
            return Get(given.name, environment);
        case OptionsAction::set:
            return Set(given, environment);
        case OptionsAction::reset:
            return Reset(given.name, environment);
        case OptionsAction::list:
            break;
    }
    return List(environment);
}

}  // namespace wxbrg::cli
