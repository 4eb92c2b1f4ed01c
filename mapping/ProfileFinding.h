#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "mapping/clsMappingRuleToken.h"
#include "support/Text.h"

namespace wxbrg {

enum class FindingSeverity {
    error,    ///< it ends a run, brings a message box in it, or makes it do otherwise than the profile says
    warning,  ///< it looks like a mistake, and a run takes it as it stands
};

/// What is wrong or doubtful in a mapping profile.
struct ProfileFinding {
    FindingSeverity severity = FindingSeverity::error;
    TextPlace place;
    std::string text;           ///< what is wrong, and what to do about it
    std::int32_t endsWith = 0;  ///< the number of the failure with which a run ends at it as it reads; or 0
    /// The rules of the profile cannot all be taken from it: a run ends as it reads, or drops a rule that is
    /// cut off.
    bool unreadable = false;
};

/// A text of the profile as findings show it: a control character, which a terminal might obey, as U+FFFD.
inline std::string InQuotes(std::string_view text) {
    std::u32string characters = ToCharacters(text);
    for (char32_t& character : characters)
        if (character < U' ' || (character >= U'\x7F' && character < U'\xA0')) character = U'\xFFFD';
    return '"' + FromCharacters(characters) + '"';
}

}  // namespace wxbrg
