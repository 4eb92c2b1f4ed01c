#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace wxbrg::xml {

/// The text without XML's white space (blank, tab, CR, LF) at both ends.
std::string_view TrimSpace(std::string_view text);

/// The number that a text spells: an optional sign and decimal digits, white space around it. Nothing for a
/// text that is no number or lies beyond 32 bits.
std::optional<std::int32_t> WholeNumber(std::string_view text);

/// Whether a text is made of decimal digits alone.
bool IsPlainDecimal(std::string_view text);

}  // namespace wxbrg::xml
