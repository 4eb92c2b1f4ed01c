#include "platform/scripted/PlainUserLocale.h"

#include <array>

namespace wxbrg {

namespace {

constexpr std::array dayNames{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr std::array monthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

}  // namespace

std::string PlainUserLocale::DayName(int weekday) const {
    return dayNames.at(static_cast<std::size_t>(weekday));
}

std::string PlainUserLocale::MonthName(int month) const {
    return monthNames.at(static_cast<std::size_t>(month) - 1);
}

}  // namespace wxbrg
