#include <gmock/gmock.h>

#include "tests/mapping/ProfileFixture.h"

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

}  // namespace
}  // namespace wxbrg
