#include "support/TerminalText.h"

#include <gmock/gmock.h>

#include "support/Text.h"

namespace wxbrg {
namespace {

TEST(Printable, ShowsControlCharactersByTheirNumbers) {
    EXPECT_EQ(Printable("a\x1B[2J"), "a\\u{1B}[2J");
    EXPECT_EQ(Printable(std::string_view("\0\r\n\x1F\x7F", 5)), "\\u{0}\\u{D}\\u{A}\\u{1F}\\u{7F}");
    EXPECT_EQ(Printable("\u0080\u0085\u009B\u009F"), "\\u{80}\\u{85}\\u{9B}\\u{9F}");
}

TEST(Printable, ShowsSeparatorsAndControlsOfTheWritingDirectionByTheirNumbers) {
    EXPECT_EQ(Printable("\u2028\u2029\u202A\u202E"), "\\u{2028}\\u{2029}\\u{202A}\\u{202E}");
    EXPECT_EQ(Printable("\u2066\u2069\u200E\u200F\u061C"), "\\u{2066}\\u{2069}\\u{200E}\\u{200F}\\u{61C}");
}

TEST(Printable, LeavesEverythingElseAsItIs) {
    const std::string text = "a\tb \u00A0ü\u200D\u2027\u2030\u2065\u206A\u3042\U0001F600\uFFFD\\u{1B}";
    EXPECT_EQ(Printable(text), text);
    EXPECT_EQ(Printable(""), "");
}

TEST(Printable, ShowsABrokenByteAsNoCharacterOfATextIsShown) {
    EXPECT_EQ(Printable("a\xFF\xC3"), "a\\u{FFFD}\\u{FFFD}");
    EXPECT_EQ(Printable("\xED\xA0\x80"), "\\u{FFFD}\\u{FFFD}\\u{FFFD}");
}

TEST(Printable, ChangesNothingThatItHasShown) {
    const std::string shown = Printable("\x1B\u202E\xFF\n");
    EXPECT_EQ(Printable(shown), shown);
}

TEST(Printable, AgreesWithIsPrintableOnEveryCharacter) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character >= 0xD800 && character <= 0xDFFF) continue;
        const std::string text = FromCharacters(std::u32string_view(&character, 1));
        ASSERT_EQ(Printable(text) == text, IsPrintable(character)) << static_cast<unsigned>(character);
    }
}

TEST(PrintableLines, KeepsTheLineEndsOfItsOwnAndNoOthers) {
    EXPECT_EQ(PrintableLines("a\r\nb\nc\rd\r\n", "\r\n"), "a\nb\\u{A}c\\u{D}d\n");
    EXPECT_EQ(PrintableLines("a\nb\r\n\x1B", "\n"), "a\nb\\u{D}\n\\u{1B}");
    EXPECT_EQ(PrintableLines("", "\n"), "");
    EXPECT_EQ(PrintableLines("a\n\nb", "\n", "> "), "> a\n\n> b");
}

TEST(PrintableField, HoldsNeitherTabsNorLineBreaks) {
    EXPECT_EQ(PrintableField("a\tb\r\nc\nd\re\u2028"), "a b c d e\\u{2028}");
}

TEST(PrintableInQuotes, ShowsNothingThatATerminalWouldObey) {
    EXPECT_EQ(PrintableInQuotes("a\x1B[2J\"\n"), "\"a\\u{1B}[2J\"\\u{A}\"");
}

}  // namespace
}  // namespace wxbrg
