#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>

namespace wxbrg {

/// What a token of a mapping profile is.
enum class TokenType : std::int32_t { keyword = 1, word = 2, number = 3, equals = 6 };

/// Where something is written in a text. CR LF, CR and LF each end a line.
struct TextPlace {
    std::size_t line = 1;    ///< from 1
    std::size_t column = 1;  ///< in characters, from 1

    auto operator<=>(const TextPlace&) const = default;
};

/// One token of a mapping profile, and where it is written.
class clsMappingRuleToken {
  public:
    std::string TokenValue;  ///< keywords in upper case, all else as written
    wxbrg::TokenType TokenType = wxbrg::TokenType::word;

    std::string written;  ///< with the case that it has in the text
    TextPlace place;
    std::size_t begin = 0;  ///< position of its first character in the text, from 0
    std::size_t end = 0;    ///< position behind its last one
};

}  // namespace wxbrg
