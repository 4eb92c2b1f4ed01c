#pragma once

#include "platform/UserLocale.h"

namespace wxbrg {

/// The same on every machine: English names, the point, and the number of English as in the United States.
class PlainUserLocale : public UserLocale {
  public:
    std::string DayName(int weekday) const override;
    std::string MonthName(int month) const override;
    char32_t DecimalSeparator() const override { return U'.'; }
    std::uint32_t Number() const override { return 1033; }
};

}  // namespace wxbrg
