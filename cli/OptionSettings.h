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

/// The stored option of a name, without regard to case, or null.
const ExportOption* FindOption(std::string_view name);

/// The same; throws `UsageError`, listing the names there are, where there is none.
const ExportOption& StoredOption(std::string_view name);

/// Reads "Name=Value" as an export option. Throws `UsageError` for an unknown name and for a text without
/// "=", listing the names there are, and for a value that the option does not take, saying which it takes.
OptionSetting ParseSetting(std::string_view setting);

/// Reads a value for any stored option, texts among them. Throws `UsageError` as `ParseSetting` does.
OptionSetting ParseStoredValue(std::string_view name, std::string_view value);

/// The names of all stored options, in the order of their table.
std::vector<std::string_view> StoredValueNames();

}  // namespace wxbrg::cli
