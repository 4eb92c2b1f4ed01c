#include "cli/OptionSettings.h"

#include <algorithm>
#include <array>

#include "cli/UsageError.h"
#include "support/Numbers.h"
#include "support/Text.h"

namespace wxbrg::cli {

namespace {

constexpr std::array storedTexts{languageValue, repositoryPathValue};

bool IsSame(std::string_view a, std::string_view b) {
    return UpperCase(a) == UpperCase(b);
}

std::string Listed(std::string message, const std::vector<std::string_view>& names) {
    message += " The names are:";
    for (const std::string_view name : names) message.append("\n  ").append(name);
    return message;
}

std::vector<std::string_view> OptionNames() {
    std::vector<std::string_view> names;
    for (const ExportOption& option : exportOptions) names.push_back(option.valueName);
    return names;
}

}  // namespace

const ExportOption* FindOption(std::string_view name) {
    const auto found =
        std::find_if(exportOptions.begin(), exportOptions.end(), [&](const ExportOption& option) {
            return IsSame(option.valueName, name);
        });
    return found == exportOptions.end() ? nullptr : &*found;
}

std::int32_t OptionNumber(std::string_view name, std::string_view text) {
    try {
        return ToInt32(text, U'.');
    } catch (const Failure&) {
        throw UsageError(Listed("The value of " + std::string(name) + " must be a number of 32 bits, and " +
                                    InQuotes(text) + " is none.",
                                OptionNames()));
    }
}

OptionSetting ParseSetting(std::string_view setting) {
    const std::size_t equals = setting.find('=');
    if (equals == std::string_view::npos)
        throw UsageError(
            Listed("--set takes Name=Value, and " + InQuotes(setting) + " holds no \"=\".", OptionNames()));
    const std::string_view name = Trim(setting.substr(0, equals));
    const ExportOption* option = FindOption(name);
    if (option == nullptr)
        throw UsageError(Listed("There is no export option " + InQuotes(name) + ".", OptionNames()));
    return {option->valueName, OptionNumber(option->valueName, setting.substr(equals + 1))};
}

OptionSetting ParseStoredValue(std::string_view name, std::string_view value) {
    const std::string_view spelled = StoredValueName(name);
    if (FindOption(spelled) != nullptr) return {spelled, OptionNumber(spelled, value)};
    return {spelled, std::string(value)};
}

std::vector<std::string_view> StoredValueNames() {
    std::vector<std::string_view> names = OptionNames();
    names.insert(names.end(), storedTexts.begin(), storedTexts.end());
    return names;
}

std::string_view StoredValueName(std::string_view name) {
    const std::vector<std::string_view> names = StoredValueNames();
    const auto found = std::find_if(names.begin(), names.end(), [&](std::string_view candidate) {
        return IsSame(candidate, name);
    });
    if (found == names.end())
        throw UsageError(Listed("There is no stored option " + InQuotes(name) + ".", names));
    return *found;
}

}  // namespace wxbrg::cli
