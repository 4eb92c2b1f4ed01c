#pragma once

#include <cstdint>

namespace wxbrg {

/// One run of characters that have an upper case at the same distance: `first`, `first + step` and so on up
/// to `last`. Rows are sorted and do not overlap.
struct UpperCaseRow {
    char32_t first;
    char32_t last;
    std::uint32_t step;
    std::int32_t distance;  ///< what is added to a character to get its upper case
};

/// Unicode's simple upper-case mappings. Made by `generate_upper_case_table.py`; not edited by hand.
// clang-format off
inline constexpr UpperCaseRow upperCaseTable[] = {
#include "support/UpperCaseTable.inc"
};
// clang-format on

}  // namespace wxbrg
