#pragma once

#include <array>
#include <string_view>

#include "platform/UserLocale.h"

namespace wxbrg {

/// What the environment (LC_ALL, LC_TIME, LC_NUMERIC, LC_CTYPE, LANG) says of the user's language and region
/// at the moment of its making. The process's own locale is neither used nor changed. A locale that is not
/// installed counts as "C".
class PosixUserLocale : public UserLocale {
  public:
    /// Throws `std::invalid_argument` when the system cannot convert from the character set of the locale.
    PosixUserLocale();

    std::string DayName(int weekday) const override {
        return dayNames_.at(static_cast<std::size_t>(weekday));
    }
    std::string MonthName(int month) const override {
        return monthNames_.at(static_cast<std::size_t>(month) - 1);
    }
    char32_t DecimalSeparator() const override { return decimalSeparator_; }
    std::uint32_t Number() const override { return number_; }

  private:
    std::array<std::string, 7> dayNames_;
    std::array<std::string, 12> monthNames_;
    char32_t decimalSeparator_;
    std::uint32_t number_;
};

/// The number (LCID) of a locale's name such as "de_DE.UTF-8"; 1033 where it is not known.
std::uint32_t LocaleNumber(std::string_view name);

}  // namespace wxbrg
