#include "aris/xml/Spelling.h"

#include <algorithm>
#include <charconv>

namespace wxbrg::xml {

std::string_view TrimSpace(std::string_view text) {
    constexpr std::string_view space = " \t\r\n";
    const std::size_t first = text.find_first_not_of(space);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(space) - first + 1);
}

std::optional<std::int32_t> WholeNumber(std::string_view text) {
    text = TrimSpace(text);
    // std::from_chars takes a minus sign, but no plus sign.
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    std::int32_t value = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || rest != end) return std::nullopt;
    return value;
}

bool IsPlainDecimal(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char byte) {
        return byte >= '0' && byte <= '9';
    });
}

}  // namespace wxbrg::xml
