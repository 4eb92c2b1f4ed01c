// What every user locale promises.

#include <gtest/gtest.h>

#include <set>

#include "platform/posix/PosixUserLocale.h"
#include "platform/scripted/PlainUserLocale.h"
#include "support/Text.h"

namespace wxbrg {
namespace {

template <class Subject>
class UserLocaleContract : public testing::Test {
  protected:
    Subject subject_;
    UserLocale& locale_ = subject_;
};

using Subjects = testing::Types<PlainUserLocale, PosixUserLocale>;
TYPED_TEST_SUITE(UserLocaleContract, Subjects);

TYPED_TEST(UserLocaleContract, EachDayAndMonthHasANameOfItsOwn) {
    std::set<std::string> days;
    for (int day = 0; day <= 6; ++day) days.insert(this->locale_.DayName(day));
    EXPECT_EQ(days.size(), 7U);
    std::set<std::string> months;
    for (int month = 1; month <= 12; ++month) months.insert(this->locale_.MonthName(month));
    EXPECT_EQ(months.size(), 12U);
    for (const std::set<std::string>& names : {days, months})
        for (const std::string& name : names) {
            EXPECT_FALSE(name.empty());
            EXPECT_TRUE(IsUtf8(name)) << name;
        }
}

TYPED_TEST(UserLocaleContract, ThereIsADecimalSeparatorAndANumber) {
    EXPECT_NE(this->locale_.DecimalSeparator(), U'\0');
    EXPECT_NE(this->locale_.Number(), 0U);
}

TEST(PlainUserLocale, IsEnglishWithThePoint) {
    const PlainUserLocale locale;
    EXPECT_EQ(locale.DayName(0), "Sun");
    EXPECT_EQ(locale.DayName(6), "Sat");
    EXPECT_EQ(locale.MonthName(1), "Jan");
    EXPECT_EQ(locale.MonthName(12), "Dec");
    EXPECT_EQ(locale.DecimalSeparator(), U'.');
    EXPECT_EQ(locale.Number(), 1033U);
}

}  // namespace
}  // namespace wxbrg
