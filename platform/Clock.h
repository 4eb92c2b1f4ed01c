#pragma once

namespace wxbrg {

/// A local date and time.
struct LocalTime {
    int year = 1970;
    int month = 1;    ///< 1 to 12
    int day = 1;      ///< 1 to 31
    int weekday = 4;  ///< 0 (Sunday) to 6
    int hour = 0;
    int minute = 0;
    int second = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    virtual LocalTime Now() const = 0;
};

}  // namespace wxbrg
