#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace wxbrg {

/// The system's active code page: how the bytes of files relate to the text in memory.
class CodePage {
  public:
    virtual ~CodePage() = default;
    /// Its number: 1252, 65001 and so on.
    virtual std::uint32_t Number() const = 0;
    /// The bytes of a UTF-8 text. A character that the code page lacks becomes "?" and is counted.
    virtual std::string ToBytes(std::string_view text) = 0;
    /// The UTF-8 text of bytes. A byte that the code page does not know becomes U+FFFD.
    virtual std::string ToText(std::string_view bytes) = 0;
    /// How many characters became "?" so far.
    virtual std::uint64_t LackingCharacters() const = 0;
};

}  // namespace wxbrg
