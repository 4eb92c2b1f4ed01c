#include "mapping/ProfileNames.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>

#include "mapping/DefaultMappingRules.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

/// Data connectors are described by CONTROL_CONNECTOR_DESCRIPTION too.
constexpr std::array<std::string_view, 1> idleRules{"DATA_CONNECTOR_DESCRIPTION"};

template <class Rows>
void AddSort(const Rows& rows, RuleSort sort, std::map<std::string, RuleSort>& sorts) {
    for (const auto& row : rows) sorts.emplace(UpperCase(row.rule), sort);
}

/// The sorts of the built-in rules by the upper case of their names.
const std::map<std::string, RuleSort>& BuiltInSorts() {
    static const std::map<std::string, RuleSort> sorts = [] {
        std::map<std::string, RuleSort> made;
        AddSort(defaultRules::types, RuleSort::object, made);
        AddSort(defaultRules::attributes, RuleSort::attribute, made);
        AddSort(defaultRules::steps, RuleSort::connection, made);
        return made;
    }();
    return sorts;
}

/// Whether some built-in step goes on with a rule.
bool IsGoneOnTo(std::string_view name) {
    return std::any_of(defaultRules::steps.begin(), defaultRules::steps.end(),
                       [&](const defaultRules::StepRow& step) {
                           return step.continues == name;
                       });
}

template <class Rows>
void AddNamesAskedFor(const Rows& rows, std::vector<std::string_view>& names) {
    for (const auto& row : rows)
        if ((names.empty() || names.back() != row.rule) && !IsGoneOnTo(row.rule) && !IsIdleBuiltIn(row.rule))
            names.push_back(row.rule);
}

}  // namespace

std::string_view KeywordOf(RuleSort sort) {
    switch (sort) {
        case RuleSort::object:
            return "OBJECT_MAPPING";
        case RuleSort::attribute:
            return "ATTRIBUTE_MAPPING";
        case RuleSort::connection:
            break;
    }
    return "CONNECTION_MAPPING";
}

std::optional<RuleSort> BuiltInSort(std::string_view name) {
    const auto found = BuiltInSorts().find(UpperCase(name));
    return found == BuiltInSorts().end() ? std::nullopt : std::optional(found->second);
}

std::vector<std::string_view> NamesAskedFor() {
    std::vector<std::string_view> names;
    AddNamesAskedFor(defaultRules::types, names);
    AddNamesAskedFor(defaultRules::attributes, names);
    AddNamesAskedFor(defaultRules::steps, names);
    return names;
}

bool IsIdleBuiltIn(std::string_view name) {
    return std::find(idleRules.begin(), idleRules.end(), UpperCase(name)) != idleRules.end();
}

}  // namespace wxbrg
