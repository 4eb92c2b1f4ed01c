#include "platform/posix/SystemClock.h"

#include <ctime>

namespace wxbrg {

LocalTime SystemClock::Now() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    tzset();
    localtime_r(&now, &local);
    LocalTime time;
    time.year = local.tm_year + 1900;
    time.month = local.tm_mon + 1;
    time.day = local.tm_mday;
    time.weekday = local.tm_wday;
    time.hour = local.tm_hour;
    time.minute = local.tm_min;
    time.second = local.tm_sec;
    return time;
}

}  // namespace wxbrg
