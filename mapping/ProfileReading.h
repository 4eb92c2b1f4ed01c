#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A reading of a mapping profile that knows where everything stands, for telling its user about it. A run
/// itself reads by `clsIOHandler::TokenizeMappingProfile`; both find the same tokens.
namespace wxbrg {

/// Where something stands in a text. CR LF, CR and LF each end a line.
struct TextPlace {
    std::size_t line = 1;    ///< from 1
    std::size_t column = 1;  ///< in characters, from 1

    auto operator<=>(const TextPlace&) const = default;
};

/// One token of a profile.
struct ProfileToken {
    std::int32_t type = 0;  ///< one of `TokenType`
    std::string value;      ///< keywords in upper case, all else as it stands
    std::string written;    ///< as it stands
    TextPlace place;
    std::size_t begin = 0;  ///< position of its first character in the text, from 0
    std::size_t end = 0;    ///< position behind its last one
};

struct ProfileReading {
    std::vector<ProfileToken> tokens;
    TextPlace end;  ///< behind the last character of the text
    /// The first word at which a run fails with an overflow, because some separator stands for the next time
    /// more than 32,767 characters further on.
    std::optional<TextPlace> overflow;
};

/// Reads the text of a profile. Words that are numbers, by the user's decimal separator, are number tokens. A
/// word at the very end of the text, with no separator behind it, gives no token. Cost: linear in the text.
ProfileReading ReadProfile(std::string_view text, char32_t decimalSeparator);

}  // namespace wxbrg
