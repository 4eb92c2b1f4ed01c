#pragma once

#include <cstdint>
#include <string>

namespace wxbrg {

/// What the user's language and region decide.
class UserLocale {
  public:
    virtual ~UserLocale() = default;
    /// Abbreviated name of a weekday, 0 (Sunday) to 6, in the system's language.
    virtual std::string DayName(int weekday) const = 0;
    /// Abbreviated name of a month, 1 to 12, in the system's language.
    virtual std::string MonthName(int month) const = 0;
    /// Decimal separator of numbers; the point where the locale says nothing.
    virtual char32_t DecimalSeparator() const = 0;
    /// The locale's number (LCID); 1033 where it is not known.
    virtual std::uint32_t Number() const = 0;
};

}  // namespace wxbrg
