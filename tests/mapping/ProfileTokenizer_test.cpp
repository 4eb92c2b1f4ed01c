#include "mapping/ProfileTokenizer.h"

#include <gmock/gmock.h>

#include "support/Text.h"
#include "tests/mapping/PlainProfile.h"
#include "tests/mapping/ProfileFixture.h"
#include "tests/mapping/RandomProfile.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using ProfileTokenizerTest = ProfileTest;

TEST_F(ProfileTokenizerTest, BlanksAndLineBreaksAloneGiveNoTokens) {
    EXPECT_THAT(Tokens(""), IsEmpty());
    EXPECT_THAT(Tokens("   "), IsEmpty());
    EXPECT_THAT(Tokens(" \r\n\t\r\n  \n\r "), IsEmpty());
}

TEST_F(ProfileTokenizerTest, KeywordEqualsSignAndNumberNeedNoBlanksBetween) {
    EXPECT_THAT(Tokens("OBJECT_TYPE=22\r\n"), ElementsAre("keyword OBJECT_TYPE", "equals =", "number 22"));
}

TEST_F(ProfileTokenizerTest, KeywordsAreKnownInAnyCaseAndAllElseKeepsItsCase) {
    EXPECT_THAT(Tokens("object_Mapping Activity end \r\n"),
                ElementsAre("keyword OBJECT_MAPPING", "word Activity", "keyword END"));
}

TEST_F(ProfileTokenizerTest, EveryKeywordIsKnown) {
    for (const std::string keyword :
         {"OBJECT_MAPPING", "ATTRIBUTE_MAPPING", "CONNECTION_MAPPING", "OBJECT_TYPE", "ATTRIBUTE_TYPE",
          "SOURCE_OBJECT_TYPE", "TARGET_OBJECT_TYPE", "CONNECTION_KIND", "CONNECTION_TYPE",
          "TARGET_OBJECT_RULE", "END"})
        EXPECT_THAT(Tokens(keyword + "\r\n"), ElementsAre("keyword " + keyword));
}

TEST_F(ProfileTokenizerTest, AKeywordIsKnownAtTheBeginningOfALongerWord) {
    EXPECT_THAT(Tokens("ENDPOINT\r\n"), ElementsAre("keyword END", "word POINT"));
    EXPECT_THAT(Tokens("Object_Type_22 x\r\n"), ElementsAre("keyword OBJECT_TYPE", "word _22", "word x"));
    EXPECT_THAT(Tokens("ENDEND22 \r\n"), ElementsAre("keyword END", "keyword END", "number 22"));
}

TEST_F(ProfileTokenizerTest, AKeywordInsideAWordIsNoKeyword) {
    EXPECT_THAT(Tokens("THE_END\r\n"), ElementsAre("word THE_END"));
}

TEST_F(ProfileTokenizerTest, AKeywordAtTheVeryEndNeedsNoSeparator) {
    EXPECT_THAT(Tokens("x END"), ElementsAre("word x", "keyword END"));
}

TEST_F(ProfileTokenizerTest, AWordEndsAtTheEqualsSign) {
    EXPECT_THAT(Tokens("a=b==c\t"),
                ElementsAre("word a", "equals =", "word b", "equals =", "equals =", "word c"));
}

TEST_F(ProfileTokenizerTest, BlankTabCarriageReturnAndLineFeedEachEndAWord) {
    EXPECT_THAT(Tokens("a b\tc\rd\ne\r\n"), ElementsAre("word a", "word b", "word c", "word d", "word e"));
}

TEST_F(ProfileTokenizerTest, ALastWordWithoutASeparatorBehindItIsLost) {
    EXPECT_THAT(Tokens("a b"), ElementsAre("word a"));
    EXPECT_THAT(Tokens("a b  "), ElementsAre("word a"));
    EXPECT_THAT(Tokens("a b\t"), ElementsAre("word a", "word b"));
}

TEST_F(ProfileTokenizerTest, NumbersHaveASignAFractionOrAnExponent) {
    EXPECT_THAT(Tokens("-1 +2 9.5 1e2 .5 5. -1E-2 \n"),
                ElementsAre("number -1", "number +2", "number 9.5", "number 1e2", "number .5", "number 5.",
                            "number -1E-2"));
    EXPECT_THAT(
        Tokens("22x 1,5 - 0x10 1e 1.2.3 --1 \n"),
        ElementsAre("word 22x", "word 1,5", "word -", "word 0x10", "word 1e", "word 1.2.3", "word --1"));
}

TEST_F(ProfileTokenizerTest, NumbersHaveTheDecimalSeparatorOfTheUser) {
    userLocale_.decimalSeparator = U',';
    EXPECT_THAT(Tokens("1,5 1.5 \n"), ElementsAre("number 1,5", "word 1.5"));
}

TEST_F(ProfileTokenizerTest, CharactersAreCountedAndNotBytes) {
    const std::string umlauts = [] {
        std::string text;
        for (int i = 0; i < 20000; ++i) text += "ü";
        return text;
    }();
    EXPECT_THAT(Tokens(umlauts + " "), IsEmpty());
    EXPECT_THAT(Tokens(umlauts + "\t"), ElementsAre("word " + umlauts));
}

TEST_F(ProfileTokenizerTest, ASeparatorBehindPosition32767OfTheRestEndsTheRun) {
    const std::string atLimit = std::string(32766, 'x');
    EXPECT_THAT(Tokens(atLimit + "\n"), ElementsAre("word " + atLimit));
    EXPECT_THAT(Tokens(atLimit + "x\n"), ElementsAre("failure 6"));
    EXPECT_THAT(Boxes(),
                ElementsAre(UnknownFailureBox(6, "clsIOHandler.TokenizeMappingProfile", "overflow")));
}

TEST_F(ProfileTokenizerTest, AnyOneSeparatorThatComesTooLateEndsTheRun) {
    // The word ends at once; it is the tab that stands too far away.
    const std::string filling(32760, '\n');
    EXPECT_THAT(Tokens("abcde" + filling + "\tx\n"), ElementsAre("word abcde", "word x"));
    EXPECT_THAT(Tokens("abcde" + filling + "\n\n\tx\n"), ElementsAre("failure 6"));
    EXPECT_THAT(Tokens("END" + filling + filling + "\tx\n"), ElementsAre("keyword END", "word x"));
}

TEST_F(ProfileTokenizerTest, ASeparatorThatDoesNotComeAtAllDoesNoHarm) {
    std::string text;
    for (int i = 0; i < 20000; ++i) text += "ab\r\n";
    EXPECT_EQ(Tokens(text).size(), 20000U);
}

TEST_F(ProfileTokenizerTest, AProfileOfMegabytesTakesTimeInItsLength) {
    // Cutting each token off the front of the text would copy hundreds of gigabytes here.
    std::string text;
    for (int i = 0; i < 100000; ++i) text += "OBJECT_TYPE = 22\r\n";
    EXPECT_EQ(Tokens(text).size(), 300000U);
}

TEST_F(ProfileTokenizerTest, RestoresTheNameOfItsCaller) {
    Tokens("a b\n");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

/// The places of the tokens, as "3:14 END".
std::vector<std::string> Places(std::string_view text) {
    std::vector<std::string> places;
    for (const clsMappingRuleToken& token : TokenizeProfile(text, U'.').tokens)
        places.push_back(std::to_string(token.place.line) + ":" + std::to_string(token.place.column) + " " +
                         token.written);
    return places;
}

TEST(ProfilePlaces, EveryTokenHasItsLineAndColumn) {
    EXPECT_THAT(
        Places("OBJECT_MAPPING ROLE\r\n  Object_Type=78\r\nEND\r\n"),
        ElementsAre("1:1 OBJECT_MAPPING", "1:16 ROLE", "2:3 Object_Type", "2:14 =", "2:15 78", "3:1 END"));
}

TEST(ProfilePlaces, AnyLineEndEndsALine) {
    EXPECT_THAT(Places("a\rb\nc\r\nd\n\re\n"), ElementsAre("1:1 a", "2:1 b", "3:1 c", "4:1 d", "6:1 e"));
}

TEST(ProfilePlaces, ColumnsCountCharacters) {
    EXPECT_THAT(Places("größe \tü x\n"), ElementsAre("1:1 größe", "1:8 ü", "1:10 x"));
}

TEST(ProfilePlaces, TheEndIsBehindTheLastCharacter) {
    EXPECT_EQ(TokenizeProfile("", U'.').end, (TextPlace{1, 1}));
    EXPECT_EQ(TokenizeProfile("END  ", U'.').end, (TextPlace{1, 6}));
    EXPECT_EQ(TokenizeProfile("END\r\n", U'.').end, (TextPlace{2, 1}));
}

TEST(ProfilePlaces, TokensTellWhetherTheyFollowEachOtherAtOnce) {
    const ProfileTokens profile = TokenizeProfile("ENDPOINT END POINT\n", U'.');
    ASSERT_EQ(profile.tokens.size(), 4U);
    EXPECT_EQ(profile.tokens[0].end, profile.tokens[1].begin);
    EXPECT_LT(profile.tokens[2].end, profile.tokens[3].begin);
}

TEST(ProfilePlaces, AWordTooFarFromASeparatorIsReported) {
    EXPECT_EQ(TokenizeProfile(std::string(32766, 'x') + "\n", U'.').overflow, std::nullopt);
    EXPECT_EQ(TokenizeProfile("END\n  " + std::string(32767, 'x') + "\n", U'.').overflow, (TextPlace{2, 3}));
}

/// Tokens as in the plain model.
plain::Token Plain(const clsMappingRuleToken& token) {
    const std::string text = ProfileTest::TokenText(token.TokenType, token.TokenValue);
    return {text.substr(0, text.find(' ')), token.TokenValue, token.written, token.begin, token.place};
}

/// What a run and the check take from a text against the plain model of it.
class TokenModelTest : public ProfileTest {
  protected:
    /// Returns whether a run overflows.
    bool ExpectTheSameOf(const std::string& text) {
        const char32_t separator = userLocale_.DecimalSeparator();
        const plain::Tokens expected = plain::Tokenize(text, separator);
        ExpectTheRun(expected, text);
        ExpectPlaces(expected, text);
        return expected.overflow.has_value();
    }

  private:
    static void ExpectTheRun(const plain::Tokens& expected, const std::string& text) {
        std::vector<std::string> tokens;
        for (const plain::Token& token : expected.tokens) tokens.push_back(token.kind + " " + token.value);
        if (expected.overflow) tokens = {"failure 6"};
        EXPECT_EQ(Tokens(text), tokens) << testing::PrintToString(text.substr(0, 2000));
    }
    void ExpectPlaces(const plain::Tokens& expected, const std::string& text) {
        const ProfileTokens profile = TokenizeProfile(text, userLocale_.DecimalSeparator());
        std::vector<plain::Token> tokens;
        for (const clsMappingRuleToken& token : profile.tokens) {
            tokens.push_back(Plain(token));
            EXPECT_EQ(token.end, token.begin + CharacterCount(token.written));
        }
        EXPECT_TRUE(tokens == expected.tokens) << testing::PrintToString(text.substr(0, 2000));
        EXPECT_EQ(profile.end, expected.end);
        EXPECT_EQ(profile.overflow, expected.overflow);
    }
};

TEST_F(TokenModelTest, HoldsForAnyText) {
    Engine engine(20);
    for (int i = 0; i < 3000; ++i) {
        ExpectTheSameOf(RandomText(engine, 30));
        ASSERT_FALSE(HasFailure()) << "text " << i;
    }
}

TEST_F(TokenModelTest, HoldsForLongTexts) {
    Engine engine(21);
    int overflows = 0;
    for (int i = 0; i < 60; ++i) {
        if (ExpectTheSameOf(RandomLongText(engine))) ++overflows;
        ASSERT_FALSE(HasFailure()) << "text " << i;
    }
    EXPECT_GT(overflows, 6);
    EXPECT_LT(overflows, 54);
}

TEST_F(TokenModelTest, HoldsForTheDecimalCommaOfTheUser) {
    userLocale_.decimalSeparator = U',';
    Engine engine(22);
    for (int i = 0; i < 300; ++i) ExpectTheSameOf(RandomText(engine, 30));
}

TEST_F(TokenModelTest, HoldsWhereBytesAreNoText) {
    for (const std::string text : {"\xFF\xFE END\n", "a\xC3\n", "\x80=1\n"}) ExpectTheSameOf(text);
}

}  // namespace
}  // namespace wxbrg
