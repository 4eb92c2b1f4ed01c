#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace wxbrg {

/// What a rule of a profile is about.
enum class RuleSort { object, attribute, connection };

/// The keyword that opens a rule of a sort.
std::string_view KeywordOf(RuleSort sort);

/// The sort of the built-in rule of a name, in any case; nothing where there is none.
std::optional<RuleSort> BuiltInSort(std::string_view name);

/// The names of the rules that the export asks for itself, in the order of the built-in rules. All other
/// built-in rules are only gone on to by chained steps, or asked for by nothing.
std::vector<std::string_view> NamesAskedFor();

/// Whether a built-in rule, by its name in any case, is asked for by nothing at all.
bool IsIdleBuiltIn(std::string_view name);

}  // namespace wxbrg
