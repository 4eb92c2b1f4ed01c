#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wxbrg {

// Between the bytes of UTF-16, low byte first, and UTF-8. Each turns the other's result back into what it was
// given, also where a surrogate lacks its other half: it becomes three bytes that are no UTF-8.

/// Nothing for an odd number of bytes.
std::optional<std::string> Utf8OfUtf16(std::string_view bytes);

std::string Utf16OfUtf8(std::string_view text);

}  // namespace wxbrg
