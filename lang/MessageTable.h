#pragma once

#include <algorithm>
#include <cstdint>
#include <span>

namespace wxbrg {

/// A row of a language library's table.
struct Message {
    std::uint32_t number;
    const char* text;  ///< UTF-8, never empty
};

/// Whether a table can be searched by halves: each number stands once, in rising order.
constexpr bool NumbersRise(std::span<const Message> table) {
    return std::ranges::adjacent_find(table, std::ranges::greater_equal{}, &Message::number) == table.end();
}

/// All texts of the library's language. Each library has a source of its own for it, which the build makes
/// from the catalogue.
extern const std::span<const Message> messageTable;

}  // namespace wxbrg
