#include "support/Text.h"

#include <gmock/gmock.h>

#include "tests/support/FailureMatcher.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;

/// One character of each length: 1, 2, 3 and 4 bytes.
constexpr std::string_view mixed = "aä€😀";

/// Texts that are no UTF-8: a lone continuation, a cut character, overlong forms, a surrogate, beyond 10FFFF.
const std::vector<std::string> broken = {
    "\x80",         "\xC3",         "\xE2\x82",         "\xF0\x9F\x98",
    "\xC0\x80",     "\xC1\xBF",     "\xE0\x9F\xBF",     "\xF0\x8F\xBF\xBF",
    "\xED\xA0\x80", "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80",
    "\xFF",         "\xC3("};

std::vector<char32_t> Characters(std::string_view text) {
    std::vector<char32_t> characters;
    for (std::size_t position = 0; position < text.size();)
        characters.push_back(TakeCharacter(text, position));
    return characters;
}

TEST(CharacterCount, CountsCodePoints) {
    EXPECT_EQ(CharacterCount(""), 0U);
    EXPECT_EQ(CharacterCount("order"), 5U);
    EXPECT_EQ(CharacterCount(mixed), 4U);
    EXPECT_EQ(CharacterCount("e\u0301"), 2U);
}

TEST(CharacterCount, CountsEachByteThatBeginsNoCharacter) {
    EXPECT_EQ(CharacterCount("a\x80\xFFz"), 4U);
    EXPECT_EQ(CharacterCount("\xE2\x82"), 2U);
    EXPECT_EQ(CharacterCount("\xC3("), 2U);
}

TEST(Left, CountsCharacters) {
    EXPECT_EQ(Left(mixed, 0), "");
    EXPECT_EQ(Left(mixed, 2), "aä");
    EXPECT_EQ(Left(mixed, 3), "aä€");
    EXPECT_EQ(Left(mixed, 4), mixed);
    EXPECT_EQ(Left(mixed, 100), mixed);
    EXPECT_EQ(Left("", 3), "");
}

TEST(WithoutLast, CountsCharacters) {
    EXPECT_EQ(WithoutLast(mixed, 0), mixed);
    EXPECT_EQ(WithoutLast(mixed, 1), "aä€");
    EXPECT_EQ(WithoutLast(mixed, 4), "");
    EXPECT_EQ(WithoutLast("out.wpx", 4), "out");
}

TEST(WithoutLast, IsFailure5WhenTheTextIsTooShort) {
    EXPECT_THAT(
        [] {
            WithoutLast("äöü", 4);
        },
        Fails(FailureKind::invalidCall));
    EXPECT_THAT(
        [] {
            WithoutLast("", 1);
        },
        Fails(FailureKind::invalidCall));
}

TEST(Trim, TakesAwayBlanksAtBothEndsOnly) {
    EXPECT_EQ(Trim("  a  b  "), "a  b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(TrimLeft("  a  "), "a  ");
    EXPECT_EQ(TrimLeft("   "), "");
}

TEST(Trim, LeavesOtherWhiteSpace) {
    for (const std::string text : {"\ta\t", "\na\r", "\u00A0a\u00A0", "\u3000a"}) {
        EXPECT_EQ(Trim(text), text);
        EXPECT_EQ(TrimLeft(text), text);
    }
}

TEST(Replace, ReplacesEveryOccurrenceFromTheStart) {
    EXPECT_EQ(Replace("a-b-c", "-", "+"), "a+b+c");
    EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
    EXPECT_EQ(Replace("über", "ü", "ue"), "ueber");
    EXPECT_EQ(Replace("abc", "abc", ""), "");
    EXPECT_EQ(Replace("", "a", "b"), "");
}

TEST(Replace, DoesNotLookAtWhatItPutIn) {
    EXPECT_EQ(Replace("x", "x", "xx"), "xx");
    EXPECT_EQ(Replace("%1%2", "%1", "%2"), "%2%2");
    EXPECT_EQ(Replace("aabb", "ab", ""), "ab");
}

TEST(Replace, RegardsCase) {
    EXPECT_EQ(Replace("Aa", "a", "b"), "Ab");
}

TEST(Replace, ChangesNothingForAnEmptyText) {
    EXPECT_EQ(Replace("abc", "", "x"), "abc");
}

TEST(InQuotes, ShowsTheTextAsItIs) {
    EXPECT_EQ(InQuotes(""), "\"\"");
    EXPECT_EQ(InQuotes("a \"b\"\n"), "\"a \"b\"\n\"");
}

TEST(ShortInQuotes, ShowsSixtyCharactersAtMost) {
    const std::string sixty = std::string(59, 'x') + "ü";
    EXPECT_EQ(ShortInQuotes(sixty), "\"" + sixty + "\"");
    EXPECT_EQ(ShortInQuotes(sixty + "y"), "\"" + sixty + "...\"");
}

TEST(CollapseBlanks, MakesEachRunOneBlank) {
    EXPECT_EQ(CollapseBlanks("  a   b c  "), " a b c ");
    EXPECT_EQ(CollapseBlanks("    "), " ");
    EXPECT_EQ(CollapseBlanks("a \t  b"), "a \t b");
    EXPECT_EQ(CollapseBlanks(""), "");
}

TEST(RemoveLineBreaks, MakesEachBreakOneBlank) {
    EXPECT_EQ(RemoveLineBreaks("a\r\nb\rc\nd"), "a b c d");
    EXPECT_EQ(RemoveLineBreaks("\n\r"), "  ");
    EXPECT_EQ(RemoveLineBreaks("\r\n\r\n"), "  ");
    EXPECT_EQ(RemoveLineBreaks("\r\r\n"), "  ");
    EXPECT_EQ(RemoveLineBreaks("end\r"), "end ");
    EXPECT_EQ(RemoveLineBreaks("a\vb\u2028c"), "a\vb\u2028c");
}

TEST(CharacterLength, TellsTheBytesOfTheFirstCharacter) {
    EXPECT_EQ(CharacterLength("az"), 1U);
    EXPECT_EQ(CharacterLength("äz"), 2U);
    EXPECT_EQ(CharacterLength("€z"), 3U);
    EXPECT_EQ(CharacterLength("😀z"), 4U);
    for (const std::string& text : broken) EXPECT_EQ(CharacterLength(text), 1U);
}

TEST(TakeCharacter, WalksThroughATextByCharacters) {
    EXPECT_THAT(Characters(mixed), ElementsAre(U'a', U'ä', U'€', U'😀'));
    EXPECT_THAT(Characters("\U0010FFFF\uD7FF\uE000"), ElementsAre(0x10FFFF, 0xD7FF, 0xE000));
}

TEST(TakeCharacter, ReadsAByteThatBeginsNoCharacterAsTheReplacementCharacter) {
    EXPECT_THAT(Characters("a\xFFz"), ElementsAre(U'a', 0xFFFD, U'z'));
    EXPECT_THAT(Characters("\xE2\x82"), ElementsAre(0xFFFD, 0xFFFD));
    EXPECT_THAT(Characters("\xC3("), ElementsAre(0xFFFD, U'('));
    EXPECT_THAT(Characters("\xED\xA0\x80"), ElementsAre(0xFFFD, 0xFFFD, 0xFFFD));
}

TEST(IsUtf8, TellsValidText) {
    EXPECT_TRUE(IsUtf8(""));
    EXPECT_TRUE(IsUtf8(mixed));
    EXPECT_TRUE(IsUtf8(std::string("\0x", 2)));
    for (const std::string& text : broken) {
        EXPECT_FALSE(IsUtf8(text)) << testing::PrintToString(text);
        EXPECT_FALSE(IsUtf8("ä" + text));
    }
}

TEST(AppendCharacter, WritesEachLength) {
    std::string text;
    for (const char32_t character : {U'a', U'ä', U'€', U'😀'}) AppendCharacter(text, character);
    EXPECT_EQ(text, mixed);
}

TEST(AppendCharacter, TakesEveryCodePointBackAndForth) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character == 0xD800) character = 0xE000;
        std::string text;
        AppendCharacter(text, character);
        ASSERT_THAT(Characters(text), ElementsAre(character));
    }
}

TEST(AppendCharacter, WritesTheReplacementCharacterForWhatIsNone) {
    for (const char32_t character : {0xD800U, 0xDFFFU, 0x110000U, 0xFFFFFFFFU}) {
        std::string text;
        AppendCharacter(text, character);
        EXPECT_EQ(text, "\uFFFD");
    }
}

TEST(WithinBytes, KeepsWholeCharacters) {
    EXPECT_EQ(WithinBytes(mixed, 100), mixed);
    EXPECT_EQ(WithinBytes(mixed, 10), mixed);
    EXPECT_EQ(WithinBytes(mixed, 9), "aä€");
    EXPECT_EQ(WithinBytes(mixed, 6), "aä€");
    EXPECT_EQ(WithinBytes(mixed, 5), "aä");
    EXPECT_EQ(WithinBytes(mixed, 2), "a");
    EXPECT_EQ(WithinBytes(mixed, 0), "");
    EXPECT_EQ(WithinBytes("", 5), "");
    EXPECT_EQ(WithinBytes("\xFFz", 1), "\xFF");
}

}  // namespace
}  // namespace wxbrg
