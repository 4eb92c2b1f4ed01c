// What every clock promises.

#include <gtest/gtest.h>

#include <ctime>

#include "platform/posix/SystemClock.h"
#include "platform/scripted/FixedClock.h"
#include "tests/platform/EnvironmentVariable.h"

namespace wxbrg {
namespace {

/// Seconds since 1970 of a local time that is taken for universal time.
std::time_t SecondsOf(const LocalTime& time) {
    std::tm parts{};
    parts.tm_year = time.year - 1900;
    parts.tm_mon = time.month - 1;
    parts.tm_mday = time.day;
    parts.tm_hour = time.hour;
    parts.tm_min = time.minute;
    parts.tm_sec = time.second;
    return timegm(&parts);
}

void ExpectRealTime(const LocalTime& time) {
    const std::time_t seconds = SecondsOf(time);
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    EXPECT_EQ(time.year, parts.tm_year + 1900);
    EXPECT_EQ(time.month, parts.tm_mon + 1);
    EXPECT_EQ(time.day, parts.tm_mday);
    EXPECT_EQ(time.weekday, parts.tm_wday);
}

template <class Subject>
Clock& Make();

template <>
Clock& Make<SystemClock>() {
    static SystemClock clock;
    return clock;
}

template <>
Clock& Make<FixedClock>() {
    static FixedClock clock(LocalTime{2001, 2, 28, 3, 23, 59, 58});
    return clock;
}

template <class Subject>
class ClockContract : public testing::Test {
  protected:
    Clock& clock_ = Make<Subject>();
};

using Clocks = testing::Types<SystemClock, FixedClock>;
TYPED_TEST_SUITE(ClockContract, Clocks);

TYPED_TEST(ClockContract, TheTimeIsOneThatThereIsAndItsWeekdayFits) {
    ExpectRealTime(this->clock_.Now());
}

TYPED_TEST(ClockContract, TimeDoesNotRunBackward) {
    const LocalTime first = this->clock_.Now();
    EXPECT_LE(SecondsOf(first), SecondsOf(this->clock_.Now()));
}

TEST(SystemClock, TellsTheTimeOfTheUsersZone) {
    // A zone without a summer time, 5 hours and 30 minutes before universal time.
    const EnvironmentVariable zone("TZ", "XYZ-05:30");
    const std::time_t before = std::time(nullptr) + 19800;
    const std::time_t told = SecondsOf(SystemClock().Now());
    EXPECT_LE(before, told);
    EXPECT_LE(told, std::time(nullptr) + 19800);
}

TEST(FixedClock, StandsStill) {
    EXPECT_EQ(Make<FixedClock>().Now().second, 58);
    EXPECT_EQ(Make<FixedClock>().Now().weekday, 3);
}

}  // namespace
}  // namespace wxbrg
