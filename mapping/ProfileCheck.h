#pragma once

#include <string_view>
#include <vector>

#include "mapping/ProfileFinding.h"
#include "mapping/ProfileTable.h"

namespace wxbrg {

/// Everything that is wrong or doubtful in the text of a profile, sorted by place. An empty text is wrong,
/// too.
std::vector<ProfileFinding> CheckProfile(std::string_view text, char32_t decimalSeparator);

/// The rules that a run takes from the text of a profile, which for an empty one are the built-in rules.
struct ProfileRules {
    RuleTable rules;  ///< empty where `mistakes` are not
    /// Why the rules cannot be taken from it: the findings that make it unreadable, sorted by place.
    std::vector<ProfileFinding> mistakes;
};
/// The global block is made anew for the built-in rules.
ProfileRules ReadProfileRules(std::string_view text, char32_t decimalSeparator);

}  // namespace wxbrg
