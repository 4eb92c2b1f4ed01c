#include "cli/OptionSettings.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>

#include "cli/UsageError.h"
#include "support/Numbers.h"
#include "support/Text.h"

namespace wxbrg::cli {

namespace {

bool IsSame(std::string_view a, std::string_view b) {
    return UpperCase(a) == UpperCase(b);
}

std::vector<std::string_view> NamesOf(std::span<const ExportOption> options) {
    std::vector<std::string_view> names;
    for (const ExportOption& option : options) names.push_back(option.valueName);
    return names;
}

UsageError WithNames(const std::string& message, std::span<const ExportOption> options) {
    const std::vector<std::string_view> names = NamesOf(options);
    return UsageError(message + " The names are:", {names.begin(), names.end()});
}

/// A number that an option takes. Throws `UsageError` for any other text.
std::int32_t NumberFor(const ExportOption& option, std::string_view text) {
    std::optional<std::int32_t> number;
    try {
        number = ToInt32(text, U'.');
    } catch (const Failure&) {
        number.reset();  // no number of 32 bits: refused below as one out of range is
    }
    if (number && option.Takes(*number)) return *number;
    const std::string range =
        option.kind == OptionKind::flag
            ? "-1 (on) or 0 (off)"
            : "a number from 0 to " + std::to_string(std::numeric_limits<std::int32_t>::max());
    throw UsageError("The value of " + std::string(option.valueName) + " must be " + range + ", not " +
                     InQuotes(text) + ".");
}

}  // namespace

const ExportOption* FindOption(std::string_view name) {
    const auto* const found =
        std::find_if(storedOptions.begin(), storedOptions.end(), [&](const ExportOption& option) {
            return IsSame(option.valueName, name);
        });
    return found == storedOptions.end() ? nullptr : found;
}

OptionSetting ParseSetting(std::string_view setting) {
    const std::size_t equals = setting.find('=');
    if (equals == std::string_view::npos)
        throw WithNames("--set takes Name=Value, and " + InQuotes(setting) + " holds no \"=\".",
                        exportOptions);
    const std::string_view name = Trim(setting.substr(0, equals));
    const ExportOption* option = FindOption(name);
    if (option == nullptr || !isExportOption(*option))
        throw WithNames("There is no export option " + InQuotes(name) + ".", exportOptions);
    return {option->valueName, NumberFor(*option, setting.substr(equals + 1))};
}

OptionSetting ParseStoredValue(std::string_view name, std::string_view value) {
    const ExportOption& option = StoredOption(name);
    if (isExportOption(option)) return {option.valueName, NumberFor(option, value)};
    return {option.valueName, std::string(value)};
}

std::vector<std::string_view> StoredValueNames() {
    return NamesOf(storedOptions);
}

const ExportOption& StoredOption(std::string_view name) {
    const ExportOption* const option = FindOption(name);
    if (option == nullptr)
        throw WithNames("There is no stored option " + InQuotes(name) + ".", storedOptions);
    return *option;
}

}  // namespace wxbrg::cli
