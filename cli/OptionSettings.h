#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "options/OptionTable.h"
#include "platform/ProfileStore.h"

namespace wxbrg::cli {

/// A value given to an option by name; the name is spelled as the table of options spells it.
struct OptionSetting {
    std::string_view name;
    ProfileValue value;
};

/// The option of a name, without regard to ASCII case, or null.
const ExportOption* FindOption(std::string_view name);

/// The number that a text stands for: an optional sign and digits, or what else passes as a number of 32
/// bits. Throws `UsageError`, naming `name`, for any other text.
std::int32_t OptionNumber(std::string_view name, std::string_view text);

/// Reads "Name=Value" as an export option. Throws `UsageError`, listing the names there are, for an unknown
/// name, for a text without "=" and for a value that is no number.
OptionSetting ParseSetting(std::string_view setting);

/// Reads a value for any stored value that the user may set: an export option, or one of the texts
/// "Language" and "RepositoryPath". Throws `UsageError` as `ParseSetting` does.
OptionSetting ParseStoredValue(std::string_view name, std::string_view value);

/// The names of all stored values that the user may set: the export options in their order, then the texts.
std::vector<std::string_view> StoredValueNames();

/// The stored value of a name, without regard to ASCII case, as it is spelled. Throws `UsageError`, listing
/// the names there are, where there is none.
std::string_view StoredValueName(std::string_view name);

}  // namespace wxbrg::cli
