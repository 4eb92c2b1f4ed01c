#pragma once

#include <cstdint>
#include <limits>
#include <string_view>
#include <utility>

#include "support/Failure.h"

namespace wxbrg {

/// Whether a text reads as a number: blanks around it, an optional sign, ASCII digits with at most one
/// `decimalSeparator` among or beside them, an optional exponent ("e" or "E", an optional sign, digits).
/// Nothing else: no group separators, currency signs or hexadecimal digits.
bool IsNumeric(std::string_view text, char32_t decimalSeparator);

/// The value of a text that `IsNumeric` accepts, rounded to the nearest whole number, a tie to the even one.
/// Throws failure 13 for a text that is no number and failure 6 for a value outside 32 bits.
std::int32_t ToInt32(std::string_view text, char32_t decimalSeparator);

/// Likewise for signed 16 bits.
std::int16_t ToInt16(std::string_view text, char32_t decimalSeparator);

/// Whole-number conversion to a narrower type; throws failure 6 for a value outside its range.
template <class Narrow, class Wide>
constexpr Narrow NarrowTo(Wide value) {
    if (!std::in_range<Narrow>(value)) throw Failure(FailureKind::overflow);
    return static_cast<Narrow>(value);
}

/// Sum of two 32-bit numbers; throws failure 6 where it leaves 32 bits.
constexpr std::int32_t AddChecked(std::int32_t a, std::int32_t b) {
    return NarrowTo<std::int32_t>(std::int64_t{a} + b);
}

/// Difference of two 32-bit numbers; throws failure 6 where it leaves 32 bits.
constexpr std::int32_t SubtractChecked(std::int32_t a, std::int32_t b) {
    return NarrowTo<std::int32_t>(std::int64_t{a} - b);
}

/// The whole number not greater than `value`; throws failure 6 where it does not fit.
template <class Whole>
Whole FloorTo(double value);

/// The whole number nearest to `value`, a tie to the even one; throws failure 6 where it does not fit.
template <class Whole>
Whole RoundTo(double value);

extern template std::int16_t FloorTo<std::int16_t>(double);
extern template std::int32_t FloorTo<std::int32_t>(double);
extern template std::int16_t RoundTo<std::int16_t>(double);
extern template std::int32_t RoundTo<std::int32_t>(double);

}  // namespace wxbrg
