// What each kind of name does to a text.

#include <gmock/gmock.h>

#include "mapping/NameConversion.h"
#include "support/Text.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

std::string Times(std::size_t count, std::string_view text) {
    std::string result;
    for (; count > 0; --count) result += text;
    return result;
}

class NameKindsTest : public CoreTest {
  protected:
    static std::string Convert(std::string_view kind, std::string_view text) {
        return ConvertARISName(text, kind, "");
    }
    /// The text of a person's login attribute, converted.
    static std::string ConvertLogin(std::string_view text) {
        return ConvertARISName(text, "7", "PERSON_PersonName");
    }
};

TEST_F(NameKindsTest, ADescriptionHas254CharactersAndNoTabs) {
    EXPECT_EQ(Convert("2", "a\tb\t\tc"), "a b  c");
    EXPECT_EQ(Convert("2", "line\r\nline"), "line\r\nline");
    EXPECT_EQ(Convert("2", Times(300, "x")), Times(254, "x"));
    EXPECT_EQ(Convert("2", Times(300, "ä")), Times(254, "ä"));
    EXPECT_EQ(Convert("2", "AND, OR; 1.5"), "AND, OR; 1.5");
}

TEST_F(NameKindsTest, ApostrophesAreDoubledBehindTheCut) {
    EXPECT_EQ(Convert("2", Times(300, "'")), Times(508, "'"));
    EXPECT_EQ(Convert("2", "it's"), "it''s");
}

TEST_F(NameKindsTest, ADocumentationHas4096CharactersAndNoTabs) {
    EXPECT_EQ(Convert("3", "a\tb"), "a b");
    EXPECT_EQ(Convert("3", Times(5000, "ä")), Times(4096, "ä"));
}

TEST_F(NameKindsTest, APersonFieldIsOneLineOf32Characters) {
    EXPECT_EQ(Convert("5", "a\r\nb\tc"), "a  b c");
    EXPECT_EQ(Convert("5", Times(33, "ä")), Times(32, "ä"));
    EXPECT_EQ(Convert("5", "O'Neil."), "O''Neil.");
}

TEST_F(NameKindsTest, AnObjectNameIsOneLineWithoutPointsAndRunsOfBlanks) {
    EXPECT_EQ(Convert("6", "a\r\nb\tc   d"), "a b c d");
    EXPECT_EQ(Convert("6", "No. 5"), "No_ 5");
    EXPECT_EQ(Convert("6", Times(40, "ä")), Times(32, "ä"));
    EXPECT_EQ(Convert("6", "  Sales  "), "Sales");
    EXPECT_EQ(Convert("6", "A*B?;:$"), "A*B?;:$");
}

TEST_F(NameKindsTest, BlanksAreCollapsedBeforeTheCutAndTrimmedBehindIt) {
    EXPECT_EQ(Convert("6", Times(31, "x") + "    y"), Times(31, "x"));
    EXPECT_EQ(Convert("6", Times(30, "x") + "    yz"), Times(30, "x") + " y");
}

TEST_F(NameKindsTest, APersonIdentifierIsUpperCaseWithoutBlanks) {
    EXPECT_EQ(Convert("7", "Jürgen van Straßen"), "JÜRGEN_VAN_STRAßEN");
    EXPECT_EQ(Convert("7", "a<b>c[d]e\\f\"g;h\ri\nj\tk"), "A_B_C_D_E_F_G_H_I_J_K");
    EXPECT_EQ(Convert("7", "a  b"), "A__B");
    EXPECT_EQ(Convert("7", Times(40, "ä")), Times(32, "Ä"));
    EXPECT_EQ(Convert("7", "o'neil"), "O''NEIL");
}

TEST_F(NameKindsTest, ALoginLosesItsDomain) {
    EXPECT_EQ(ConvertLogin("jo.doe@site"), "JO.DOE");
    EXPECT_EQ(ConvertLogin("jo@home@site"), "JO_HOME");
    EXPECT_EQ(ConvertLogin("j@site"), "J");
    EXPECT_EQ(ConvertLogin("ä@site"), "Ä");
}

TEST_F(NameKindsTest, ALoginThatBeginsWithItsOnlyAtSignIsNotCut) {
    EXPECT_EQ(ConvertLogin("@site"), "_SITE");
    EXPECT_EQ(ConvertLogin("@"), "_");
    EXPECT_EQ(ConvertLogin("@a@b"), "_A");
}

TEST_F(NameKindsTest, OnlyTheLoginAttributeLosesItsDomain) {
    EXPECT_EQ(Convert("7", "jo.doe@site"), "JO.DOE_SITE");
    EXPECT_EQ(ConvertARISName("jo.doe@site", "7", "PERSON_PHONE"), "JO.DOE_SITE");
    NewAttributeRule("ANY_LOGIN", "509");
    EXPECT_EQ(ConvertARISName("jo.doe@site", "7", "ANY_LOGIN"), "JO.DOE");
}

TEST_F(NameKindsTest, AProcessNameLosesTheCharactersOfPatterns) {
    EXPECT_EQ(Convert("8", "*?\";:.$"), "_______");
    EXPECT_EQ(Convert("8", "Order   entry"), "Order entry");
    EXPECT_EQ(Convert("8", "a-b (c), AND"), "a-b (c), AND");
    EXPECT_EQ(Convert("8", "a\tb"), "a\tb");
    EXPECT_EQ(Convert("8", Times(33, "x")), Times(32, "x"));
}

TEST_F(NameKindsTest, AnIdentifierLosesTheCharactersOfExpressions) {
    for (const char character : std::string_view("!'[]*+,-.;/:<=>()\\^\""))
        EXPECT_EQ(Convert("9", std::string("a") + character + "b"), "a_b") << character;
    EXPECT_EQ(Convert("9", "a\rb\nc\td"), "a_b_c_d");
    EXPECT_EQ(Convert("9", "a#b$c%d&e?f@g{h}i|j~k_l"), "a#b$c%d&e?f@g{h}i|j~k_l");
    EXPECT_EQ(Convert("9", "a   b"), "a b");
    EXPECT_EQ(Convert("9", Times(40, "ä")), Times(32, "ä"));
}

TEST_F(NameKindsTest, AnIdentifierLosesReservedWordsAlsoInsideOthers) {
    EXPECT_EQ(Convert("9", "AND IS LOWER MOD NOT NULL OR SUBSTR UPPER VALUE"), "_ _ _ _ _ _ _ _ _ _");
    EXPECT_EQ(Convert("9", "MY_BLOCK MY_STRUCT"), "MY_ MY_");
    EXPECT_EQ(Convert("9", "ORDER"), "_DER");
    EXPECT_EQ(Convert("9", "VALUES"), "_S");
    EXPECT_EQ(Convert("9", "STANDARD"), "ST_ARD");
}

TEST_F(NameKindsTest, ReservedWordsAreInUpperCaseAlone) {
    EXPECT_EQ(Convert("9", "Order and Value"), "Order and Value");
    EXPECT_EQ(Convert("9", "my_block"), "my_block");
}

TEST_F(NameKindsTest, ReservedWordsAreReplacedOnceInTheirOrder) {
    EXPECT_EQ(Convert("9", "ANORD"), "AN_D");      // what OR leaves is not tested for AND
    EXPECT_EQ(Convert("9", "LOWORER"), "LOW_ER");  // nor for LOWER
    EXPECT_EQ(Convert("9", "ORBLOCK"), "_");       // but _BLOCK comes behind OR
    EXPECT_EQ(Convert("9", "_BLOC_STRUCTK"), "_BLOC_K");
    EXPECT_EQ(Convert("9", "-STRUCT"), "_");
    EXPECT_EQ(Convert("9", "NORMAL"), "N_MAL");
}

TEST_F(NameKindsTest, ADigitInFrontTurnsTheFirstLiteralSCharIntoAnUnderscore) {
    EXPECT_EQ(Convert("9", "1sChar"), "1_");
    EXPECT_EQ(Convert("9", "9 sChar sChar"), "9 _ sChar");
    EXPECT_EQ(Convert("9", "1st order"), "1st order");
    EXPECT_EQ(Convert("9", "asChar"), "asChar");
    EXPECT_EQ(Convert("9", "٣sChar"), "٣sChar");
    EXPECT_EQ(Convert("9", " 1sChar"), "1sChar");
    EXPECT_EQ(Convert("9", ""), "");
}

TEST_F(NameKindsTest, AnActivityNameIsAnIdentifier) {
    EXPECT_EQ(Convert("1", "Check: ORDER's (new)  item"), "Check_ _DER_s _new_ item");
    EXPECT_EQ(Convert("1", Times(40, "x")), Times(32, "x"));
}

TEST_F(NameKindsTest, AMemberNameLosesOneUnderscoreInFront) {
    EXPECT_EQ(Convert("4", "_Order"), "Order");
    EXPECT_EQ(Convert("4", "__Order"), "_Order");
    EXPECT_EQ(Convert("4", "_"), "");
    EXPECT_EQ(Convert("4", "a_b"), "a_b");
    EXPECT_EQ(Convert("4", " _a"), "_a");
    EXPECT_EQ(Convert("4", "_BLOCK"), "BLOCK");
    EXPECT_EQ(Convert("4", "_" + Times(40, "x")), Times(32, "x"));
}

TEST_F(NameKindsTest, ACompareOperatorChangesOnlyUnequal) {
    EXPECT_EQ(Convert("10", "!="), "<>");
    EXPECT_EQ(Convert("10", "a!=b!=c"), "a<>b<>c");
    for (const char* kept : {"=", "<>", "<", ">=", "==", "!", "LIKE"}) EXPECT_EQ(Convert("10", kept), kept);
    EXPECT_EQ(Convert("10", "  "), "");
}

struct TypeRow {
    const char* word;
    const char* dataType;
};

TEST_F(NameKindsTest, DataTypesGoByTheTable) {
    constexpr auto rows = std::to_array<TypeRow>({{"Boolean", "STRING"},
                                                  {"Hex", "LONG"},
                                                  {"Integer", "LONG"},
                                                  {"Number (n)", "LONG"},
                                                  {"Okt", "LONG"},
                                                  {"Smallint", "LONG"},
                                                  {"Decimal (n,m)", "FLOAT"},
                                                  {"Float", "FLOAT"},
                                                  {"Real", "FLOAT"},
                                                  {"Number (n,m)", "FLOAT"},
                                                  {"4000|%1$s|%2$s|%3$s|%4$s", "FLOAT"},
                                                  {"4010|%1$s|%2$s|%3$s|%4$s", "LONG"},
                                                  {"4020|%1$s|%2$s|%3$s|%4$s", "STRING"},
                                                  {" Integer  ", "LONG"},
                                                  {"integer", "STRING"},
                                                  {"INTEGER", "STRING"},
                                                  {"smallint", "STRING"},
                                                  {"Number(n)", "STRING"},
                                                  {"\tInteger", "STRING"},
                                                  {"Date", "STRING"},
                                                  {"", "STRING"}});
    for (const TypeRow& row : rows) EXPECT_EQ(Convert("11", row.word), row.dataType) << row.word;
}

TEST_F(NameKindsTest, DataTypesOfTheRunsLanguageComeBehindThoseOfAris) {
    texts = {{4000, "Gleitkomma"}, {4010, "Ganzzahl"}, {4020, "Text"}};
    EXPECT_EQ(Convert("11", "Gleitkomma"), "FLOAT");
    EXPECT_EQ(Convert("11", " Ganzzahl"), "LONG");
    EXPECT_EQ(Convert("11", "Text"), "STRING");
    texts = {{4000, "Integer"}, {4010, "Float"}, {4020, "Text"}};
    EXPECT_EQ(Convert("11", "Integer"), "LONG");
    EXPECT_EQ(Convert("11", "Float"), "FLOAT");
}

TEST_F(NameKindsTest, BlankMeansTheSpaceAlone) {
    EXPECT_EQ(Convert("6", "\u00A0a\u00A0\u00A0b\u00A0"), "\u00A0a\u00A0\u00A0b\u00A0");
    EXPECT_EQ(Convert("5", "\u2003x"), "\u2003x");
}

TEST_F(NameKindsTest, CharactersAreCodePoints) {
    EXPECT_EQ(CharacterCount(Convert("6", Times(40, "😀"))), 32U);
    EXPECT_EQ(Convert("5", Times(31, "x") + "e\u0301"), Times(31, "x") + "e");
}

TEST_F(NameKindsTest, UpperCaseMapsOneCharacterToOne) {
    EXPECT_EQ(Convert("7", "ßᾳǆŉ"), "ßᾼǄŉ");
}

}  // namespace
}  // namespace wxbrg::test
