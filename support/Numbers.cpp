#include "support/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "support/Text.h"

namespace wxbrg {

namespace {

bool IsDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

/// Reads a number as `IsNumeric` says and keeps it in the form that std::from_chars takes.
class NumberReader {
  public:
    NumberReader(std::string_view text, char32_t decimalSeparator) : rest_(Trim(text)) {
        AppendCharacter(separator_, decimalSeparator);
    }

    /// Whether the text is a number; then `Plain` holds it.
    bool Read() {
        TakeSign(true);
        std::size_t digits = TakeDigits();
        if (rest_.starts_with(separator_)) {
            rest_.remove_prefix(separator_.size());
            plain_.push_back('.');
            digits += TakeDigits();
        }
        if (digits == 0) return false;
        if (rest_.starts_with('e') || rest_.starts_with('E')) {
            rest_.remove_prefix(1);
            plain_.push_back('e');
            TakeSign(false);
            if (TakeDigits() == 0) return false;
        }
        return rest_.empty();
    }

    const std::string& Plain() const { return plain_; }

  private:
    /// std::from_chars takes no plus sign in front of the number.
    void TakeSign(bool dropPlus) {
        if (!rest_.starts_with('-') && !rest_.starts_with('+')) return;
        if (rest_.front() == '-' || !dropPlus) plain_.push_back(rest_.front());
        rest_.remove_prefix(1);
    }
    std::size_t TakeDigits() {
        std::size_t count = 0;
        while (count < rest_.size() && IsDigit(rest_[count])) ++count;
        plain_.append(rest_.substr(0, count));
        rest_.remove_prefix(count);
        return count;
    }

    std::string_view rest_;
    std::string separator_;
    std::string plain_;
};

/// The exponent of a number in the form that std::from_chars takes; at the end of the range beyond it.
std::int64_t ExponentOf(std::string_view plain) {
    constexpr std::int64_t beyond = std::numeric_limits<std::int64_t>::max() / 2;
    const std::size_t mark = plain.find('e');
    if (mark == std::string_view::npos) return 0;
    std::string_view digits = plain.substr(mark + 1);
    if (digits.starts_with('+')) digits.remove_prefix(1);
    std::int64_t exponent = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    if (result.ec == std::errc()) return exponent;
    return digits.starts_with('-') ? -beyond : beyond;
}

/// Whether a number that is not 0 lies between -1 and 1, for one of any size in the form that std::from_chars
/// takes.
bool IsBelowOne(std::string_view plain) {
    const std::string_view mantissa = plain.substr(0, plain.find('e'));
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto leading = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    const std::int64_t wholeDigits = leading < point ? point - leading : point + 1 - leading;
    return wholeDigits + ExponentOf(plain) <= 0;
}

double ToDouble(std::string_view text, char32_t decimalSeparator) {
    NumberReader reader(text, decimalSeparator);
    if (!reader.Read()) throw Failure(FailureKind::typeMismatch);
    const std::string& plain = reader.Plain();
    double value = 0;
    const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        if (!IsBelowOne(plain)) throw Failure(FailureKind::overflow);
        return 0;
    }
    return value;
}

}  // namespace

template <class Whole>
Whole FloorTo(double value) {
    const double floored = std::floor(value);
    if (!(floored >= std::numeric_limits<Whole>::min() && floored <= std::numeric_limits<Whole>::max()))
        throw Failure(FailureKind::overflow);
    return static_cast<Whole>(floored);
}

template <class Whole>
Whole RoundTo(double value) {
    const double below = std::floor(value);
    const double part = value - below;
    const bool up = part > 0.5 || (part == 0.5 && std::fmod(below, 2.0) != 0.0);
    return FloorTo<Whole>(up ? below + 1 : below);
}

template std::int16_t FloorTo<std::int16_t>(double);
template std::int32_t FloorTo<std::int32_t>(double);
template std::int16_t RoundTo<std::int16_t>(double);
template std::int32_t RoundTo<std::int32_t>(double);

bool IsNumeric(std::string_view text, char32_t decimalSeparator) {
    return NumberReader(text, decimalSeparator).Read();
}

std::int32_t ToInt32(std::string_view text, char32_t decimalSeparator) {
    return RoundTo<std::int32_t>(ToDouble(text, decimalSeparator));
}

std::int16_t ToInt16(std::string_view text, char32_t decimalSeparator) {
    return RoundTo<std::int16_t>(ToDouble(text, decimalSeparator));
}

}  // namespace wxbrg
