#include "mapping/ProfileReading.h"

#include <gmock/gmock.h>

#include "tests/mapping/ProfileFixture.h"
#include "tests/mapping/RandomProfile.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;

/// The places of the tokens, as "3:14 END".
std::vector<std::string> Places(std::string_view text) {
    std::vector<std::string> places;
    for (const ProfileToken& token : ReadProfile(text, U'.').tokens)
        places.push_back(std::to_string(token.place.line) + ":" + std::to_string(token.place.column) + " " +
                         token.written);
    return places;
}

TEST(ProfileReading, EveryTokenHasItsLineAndColumn) {
    EXPECT_THAT(
        Places("OBJECT_MAPPING ROLE\r\n  Object_Type=78\r\nEND\r\n"),
        ElementsAre("1:1 OBJECT_MAPPING", "1:16 ROLE", "2:3 Object_Type", "2:14 =", "2:15 78", "3:1 END"));
}

TEST(ProfileReading, AnyLineEndEndsALine) {
    EXPECT_THAT(Places("a\rb\nc\r\nd\n\re\n"), ElementsAre("1:1 a", "2:1 b", "3:1 c", "4:1 d", "6:1 e"));
}

TEST(ProfileReading, ColumnsCountCharacters) {
    EXPECT_THAT(Places("größe \tü x\n"), ElementsAre("1:1 größe", "1:8 ü", "1:10 x"));
}

TEST(ProfileReading, TheEndIsBehindTheLastCharacter) {
    EXPECT_EQ(ReadProfile("", U'.').end, (TextPlace{1, 1}));
    EXPECT_EQ(ReadProfile("END  ", U'.').end, (TextPlace{1, 6}));
    EXPECT_EQ(ReadProfile("END\r\n", U'.').end, (TextPlace{2, 1}));
}

TEST(ProfileReading, TokensTellWhetherTheyFollowEachOtherAtOnce) {
    const ProfileReading reading = ReadProfile("ENDPOINT END POINT\n", U'.');
    ASSERT_EQ(reading.tokens.size(), 4U);
    EXPECT_EQ(reading.tokens[0].end, reading.tokens[1].begin);
    EXPECT_LT(reading.tokens[2].end, reading.tokens[3].begin);
}

TEST(ProfileReading, AWordTooFarFromASeparatorIsTold) {
    EXPECT_EQ(ReadProfile(std::string(32766, 'x') + "\n", U'.').overflow, std::nullopt);
    EXPECT_EQ(ReadProfile("END\n  " + std::string(32767, 'x') + "\n", U'.').overflow, (TextPlace{2, 3}));
}

/// Both readings of a text, that of a run and the one with places.
class TwoReadingsTest : public ProfileTest {
  protected:
    void ExpectTheSameOf(const std::string& text) {
        const ProfileReading reading = ReadProfile(text, userLocale_.DecimalSeparator());
        std::vector<std::string> read;
        for (const ProfileToken& token : reading.tokens) read.push_back(TokenText(token.type, token.value));
        if (reading.overflow) read = {"failure 6"};
        EXPECT_EQ(read, Tokens(text)) << testing::PrintToString(text.substr(0, 2000));
    }
};

TEST_F(TwoReadingsTest, FindTheSameTokensInAnyText) {
    Engine engine(20);
    for (int i = 0; i < 3000; ++i) {
        ExpectTheSameOf(RandomText(engine, 30));
        ASSERT_FALSE(HasFailure()) << "text " << i;
    }
}

TEST_F(TwoReadingsTest, FindTheSameTokensInLongTexts) {
    Engine engine(21);
    int overflows = 0;
    for (int i = 0; i < 60; ++i) {
        const std::string text = RandomLongText(engine);
        ExpectTheSameOf(text);
        ASSERT_FALSE(HasFailure()) << "text " << i;
        if (ReadProfile(text, U'.').overflow) ++overflows;
    }
    EXPECT_GT(overflows, 6);
    EXPECT_LT(overflows, 54);
}

TEST_F(TwoReadingsTest, FindTheSameTokensWithTheDecimalCommaOfTheUser) {
    userLocale_.decimalSeparator = U',';
    Engine engine(22);
    for (int i = 0; i < 300; ++i) ExpectTheSameOf(RandomText(engine, 30));
}

TEST_F(TwoReadingsTest, FindTheSameTokensWhereBytesAreNoText) {
    for (const std::string text : {"\xFF\xFE END\n", "a\xC3\n", "\x80=1\n"}) ExpectTheSameOf(text);
}

}  // namespace
}  // namespace wxbrg
