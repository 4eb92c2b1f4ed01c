#include "platform/terminal/form/ScreenText.h"

#include <gmock/gmock.h>

#include <string>

namespace wxbrg {
namespace {

using testing::ElementsAre;

std::vector<std::u32string> Wrapped(std::u32string_view text, std::size_t width) {
    std::vector<std::u32string> lines;
    for (const TextPart& part : WrapText(text, width))
        lines.emplace_back(text.substr(part.start, part.length));
    return lines;
}

TEST(ScreenText, ALineThatFitsStays) {
    EXPECT_THAT(Wrapped(U"twelve cells", 12), ElementsAre(U"twelve cells"));
}

TEST(ScreenText, BreaksAtTheLastBlankThatFits) {
    EXPECT_THAT(Wrapped(U"one two three", 9), ElementsAre(U"one two", U"three"));
    EXPECT_THAT(Wrapped(U"one two three", 7), ElementsAre(U"one two", U"three"));
    EXPECT_THAT(Wrapped(U"one two three", 6), ElementsAre(U"one", U"two", U"three"));
}

TEST(ScreenText, BlanksAtABreakAreLeftOut) {
    EXPECT_THAT(Wrapped(U"one    two ", 5), ElementsAre(U"one", U"two"));
}

TEST(ScreenText, AWordThatIsTooLongIsBroken) {
    EXPECT_THAT(Wrapped(U"a Kontrollflussverbindung", 10),
                ElementsAre(U"a", U"Kontrollfl", U"ussverbind", U"ung"));
}

TEST(ScreenText, AnEmptyTextIsOneEmptyLine) {
    EXPECT_THAT(Wrapped(U"", 10), ElementsAre(U""));
    EXPECT_THAT(Wrapped(U"   ", 10), ElementsAre(U""));
}

TEST(ScreenText, ComesToAnEndWithoutAnyWidth) {
    EXPECT_THAT(Wrapped(U"ab", 0), ElementsAre(U"a", U"b"));
}

TEST(ScreenText, EastAsianCharactersTakeTwoCells) {
    EXPECT_EQ(CellsOf(U"ÄB"), 2U);
    EXPECT_EQ(CellsOf(U"名前"), 4U);
    EXPECT_THAT(Wrapped(U"名前変換", 5), ElementsAre(U"名前", U"変換"));
}

TEST(ScreenText, CombiningMarksTakeNone) {
    EXPECT_EQ(CellsOf(U"u\u0308"), 1U);
}

TEST(ScreenText, CutsAtAWidth) {
    EXPECT_EQ(CutToWidth(U"abcdef", 4), U"abcd");
    EXPECT_EQ(CutToWidth(U"名前", 3), U"名");
    EXPECT_EQ(CutToWidth(U"abc", 4), U"abc");
}

}  // namespace
}  // namespace wxbrg
