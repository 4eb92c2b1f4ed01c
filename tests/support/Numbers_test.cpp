#include "support/Numbers.h"

#include <gmock/gmock.h>

#include <cmath>

#include "tests/support/FailureMatcher.h"

namespace wxbrg {
namespace {

constexpr auto int32Max = std::numeric_limits<std::int32_t>::max();
constexpr auto int32Min = std::numeric_limits<std::int32_t>::min();

TEST(IsNumeric, TakesDigitsSignSeparatorAndExponent) {
    for (const char* text : {"0", "007", "1033", "-5", "+5", "1.5", ".5", "5.", "-.5", "1e3", "1E3", "1e+3",
                             "1e-3", "1.5e2", "  12", "12  ", "  12  ", "99999999999999999999"})
        EXPECT_TRUE(IsNumeric(text, U'.')) << '"' << text << '"';
}

TEST(IsNumeric, TakesNothingElse) {
    for (const char* text :
         {"",       " ",     ".",   "-",   "+",    "--5",       "- 5", "5-", "1 2",   "1.2.3", "1,5",
          "1,000",  "1'000", "$5",  "5 €", "0x1F", "&H1F",      "e5",  "1e", "1e+",   "1e1.5", "1e 5",
          "twelve", "NaN",   "inf", "\t5", "5\n",  "5\xC2\xA0", "٣",   "５", "1_000", "1f"})
        EXPECT_FALSE(IsNumeric(text, U'.')) << '"' << text << '"';
}

TEST(IsNumeric, TakesTheDecimalSeparatorItIsGiven) {
    EXPECT_TRUE(IsNumeric("1,5", U','));
    EXPECT_FALSE(IsNumeric("1.5", U','));
    EXPECT_TRUE(IsNumeric("1٫5", U'٫'));
    EXPECT_FALSE(IsNumeric("1.5", U'٫'));
}

TEST(ToInt32, ReadsWholeNumbers) {
    EXPECT_EQ(ToInt32("1033", U'.'), 1033);
    EXPECT_EQ(ToInt32(" -17 ", U'.'), -17);
    EXPECT_EQ(ToInt32("+0042", U'.'), 42);
    EXPECT_EQ(ToInt32("1.2e3", U'.'), 1200);
    EXPECT_EQ(ToInt32("120E-1", U'.'), 12);
    EXPECT_EQ(ToInt32("1,4e1", U','), 14);
}

TEST(ToInt32, RoundsToTheNearestAndATieToTheEvenNumber) {
    EXPECT_EQ(ToInt32("1033.5", U'.'), 1034);
    EXPECT_EQ(ToInt32("0.5", U'.'), 0);
    EXPECT_EQ(ToInt32("1.5", U'.'), 2);
    EXPECT_EQ(ToInt32("2.5", U'.'), 2);
    EXPECT_EQ(ToInt32("2.5000001", U'.'), 3);
    EXPECT_EQ(ToInt32("-0.5", U'.'), 0);
    EXPECT_EQ(ToInt32("-1.5", U'.'), -2);
    EXPECT_EQ(ToInt32("-2.5", U'.'), -2);
    EXPECT_EQ(ToInt32("-2.6", U'.'), -3);
}

TEST(ToInt32, IsFailure13ForATextThatIsNoNumber) {
    for (const char* text : {"", "x", "1e", "1,5"})
        EXPECT_THAT(
            [&] {
                ToInt32(text, U'.');
            },
            Fails(FailureKind::typeMismatch))
            << text;
}

TEST(ToInt32, IsFailure6BeyondThirtyTwoBitsAfterRounding) {
    EXPECT_EQ(ToInt32("2147483647.4", U'.'), int32Max);
    EXPECT_EQ(ToInt32("-2147483648.5", U'.'), int32Min);
    const std::string largeInDigits = "1" + std::string(700, '0') + "e-100";
    for (const std::string& text :
         {std::string("2147483647.5"), std::string("2147483648"), std::string("-2147483649"),
          std::string("1e10"), std::string("1e400"), std::string("-1e400"),
          std::string("1e99999999999999999999"), std::string("0.001e999999"), largeInDigits})
        EXPECT_THAT(
            [&] {
                ToInt32(text, U'.');
            },
            Fails(FailureKind::overflow))
            << text;
}

TEST(ToInt32, ReadsAVanishingNumberAsZero) {
    EXPECT_EQ(ToInt32("1e-400", U'.'), 0);
    EXPECT_EQ(ToInt32("-1e-400", U'.'), 0);
    EXPECT_EQ(ToInt32("0." + std::string(400, '0') + "1", U'.'), 0);
    EXPECT_EQ(ToInt32("." + std::string(400, '0') + "1e+10", U'.'), 0);
    EXPECT_EQ(ToInt32("1e-99999999999999999999", U'.'), 0);
    EXPECT_EQ(ToInt32("0e99999999999999999999", U'.'), 0);
    EXPECT_EQ(ToInt32("0." + std::string(400, '0') + "15e401", U'.'), 2);
}

TEST(ToInt16, HasItsOwnRange) {
    EXPECT_EQ(ToInt16("32767.4", U'.'), 32767);
    EXPECT_EQ(ToInt16("-32768.5", U'.'), -32768);
    for (const char* text : {"32767.5", "32768", "-32769", "70000"})
        EXPECT_THAT(
            [&] {
                ToInt16(text, U'.');
            },
            Fails(FailureKind::overflow))
            << text;
}

TEST(NarrowTo, KeepsWhatFits) {
    EXPECT_EQ(NarrowTo<std::int16_t>(32767), 32767);
    EXPECT_EQ(NarrowTo<std::int16_t>(-32768), -32768);
    EXPECT_EQ(NarrowTo<std::int32_t>(std::int64_t{int32Min}), int32Min);
}

TEST(NarrowTo, TakesNumbersWithoutSign) {
    EXPECT_EQ(NarrowTo<std::int16_t>(std::size_t{32767}), 32767);
    EXPECT_EQ(NarrowTo<std::uint32_t>(std::size_t{4294967295}), 4294967295U);
    EXPECT_THAT(
        [] {
            NarrowTo<std::int16_t>(std::size_t{32768});
        },
        Fails(FailureKind::overflow));
    EXPECT_THAT(
        [] {
            NarrowTo<std::uint32_t>(-1);
        },
        Fails(FailureKind::overflow));
}

TEST(NarrowTo, IsFailure6ForWhatDoesNotFit) {
    EXPECT_THAT(
        [] {
            NarrowTo<std::int16_t>(32768);
        },
        Fails(FailureKind::overflow));
    EXPECT_THAT(
        [] {
            NarrowTo<std::int16_t>(-32769);
        },
        Fails(FailureKind::overflow));
    EXPECT_THAT(
        [] {
            NarrowTo<std::int32_t>(std::int64_t{int32Max} + 1);
        },
        Fails(FailureKind::overflow));
}

TEST(CheckedArithmetic, GivesSumsAndDifferencesUpToTheEdge) {
    EXPECT_EQ(AddChecked(int32Max - 1, 1), int32Max);
    EXPECT_EQ(AddChecked(int32Min, int32Max), -1);
    EXPECT_EQ(SubtractChecked(int32Min + 1, 1), int32Min);
    EXPECT_EQ(SubtractChecked(-1, int32Min), int32Max);
}

TEST(CheckedArithmetic, IsFailure6BeyondTheEdge) {
    EXPECT_THAT(
        [] {
            AddChecked(int32Max, 1);
        },
        Fails(FailureKind::overflow));
    EXPECT_THAT(
        [] {
            AddChecked(int32Min, -1);
        },
        Fails(FailureKind::overflow));
    EXPECT_THAT(
        [] {
            SubtractChecked(int32Min, 1);
        },
        Fails(FailureKind::overflow));
    EXPECT_THAT(
        [] {
            SubtractChecked(0, int32Min);
        },
        Fails(FailureKind::overflow));
}

TEST(FloorTo, GoesDownward) {
    EXPECT_EQ(FloorTo<std::int32_t>(2.9), 2);
    EXPECT_EQ(FloorTo<std::int32_t>(-2.1), -3);
    EXPECT_EQ(FloorTo<std::int16_t>(32767.9), 32767);
    EXPECT_EQ(FloorTo<std::int32_t>(-2147483648.0), int32Min);
}

TEST(FloorTo, IsFailure6OutsideItsRangeAndForNoNumber) {
    EXPECT_THAT(
        [] {
            FloorTo<std::int16_t>(32768.0);
        },
        Fails(FailureKind::overflow));
    EXPECT_THAT(
        [] {
            FloorTo<std::int16_t>(-32768.1);
        },
        Fails(FailureKind::overflow));
    EXPECT_THAT(
        [] {
            FloorTo<std::int32_t>(std::nan(""));
        },
        Fails(FailureKind::overflow));
    EXPECT_THAT(
        [] {
            FloorTo<std::int32_t>(INFINITY);
        },
        Fails(FailureKind::overflow));
}

TEST(RoundTo, GoesToTheNearestAndATieToTheEvenNumber) {
    EXPECT_EQ(RoundTo<std::int16_t>(2.5), 2);
    EXPECT_EQ(RoundTo<std::int16_t>(3.5), 4);
    EXPECT_EQ(RoundTo<std::int16_t>(-3.5), -4);
    EXPECT_EQ(RoundTo<std::int32_t>(0.49999999999999994), 0);
    EXPECT_EQ(RoundTo<std::int32_t>(-1e-20), 0);
}

TEST(RoundTo, IsFailure6OutsideItsRange) {
    EXPECT_THAT(
        [] {
            RoundTo<std::int16_t>(32767.5);
        },
        Fails(FailureKind::overflow));
    EXPECT_THAT(
        [] {
            RoundTo<std::int32_t>(1e300);
        },
        Fails(FailureKind::overflow));
}

}  // namespace
}  // namespace wxbrg
