#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "mapping/clsMappingRuleToken.h"

namespace wxbrg {

/// The text of a mapping profile, cut into tokens.
struct ProfileTokens {
    std::vector<clsMappingRuleToken> tokens;
    TextPlace end;  ///< behind the last character of the text
    /// The first word at which a run fails with an overflow, because some separator comes for the next time
    /// more than 32,767 characters further on.
    std::optional<TextPlace> overflow;
};

/// Cuts the text of a profile into tokens; any text gives some. A keyword is recognised, in any case, at the
/// beginning of a longer word too. Any other word ends in front of a blank, a tab, CR, LF or "="; it is a
/// number token if it is a number by the user's decimal separator. A word at the very end of the text, with
/// no separator behind it, gives no token. Cost: linear in the text.
ProfileTokens TokenizeProfile(std::string_view text, char32_t decimalSeparator);

}  // namespace wxbrg
