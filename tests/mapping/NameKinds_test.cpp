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
    static std::string Convert(NameKind kind, std::string_view text) {
        return ConvertARISName(text, kind, "");
    }
    /// The text of a person's login attribute, converted.
    static std::string ConvertLogin(std::string_view text) {
        return ConvertARISName(text, NameKind::personId, "PERSON_PersonName");
    }
};

TEST_F(NameKindsTest, ADescriptionHas254CharactersAndNoTabs) {
    EXPECT_EQ(Convert(NameKind::description, "a\tb\t\tc"), "a b  c");
    EXPECT_EQ(Convert(NameKind::description, "line\r\nline"), "line\r\nline");
    EXPECT_EQ(Convert(NameKind::description, Times(300, "x")), Times(254, "x"));
    EXPECT_EQ(Convert(NameKind::description, Times(300, "ä")), Times(254, "ä"));
    EXPECT_EQ(Convert(NameKind::description, "AND, OR; 1.5"), "AND, OR; 1.5");
}

TEST_F(NameKindsTest, ApostrophesAreDoubledBehindTheCut) {
    EXPECT_EQ(Convert(NameKind::description, Times(300, "'")), Times(508, "'"));
    EXPECT_EQ(Convert(NameKind::description, "it's"), "it''s");
}

TEST_F(NameKindsTest, ADocumentationHas4096CharactersAndNoTabs) {
    EXPECT_EQ(Convert(NameKind::documentation, "a\tb"), "a b");
    EXPECT_EQ(Convert(NameKind::documentation, Times(5000, "ä")), Times(4096, "ä"));
}

TEST_F(NameKindsTest, APersonFieldIsOneLineOf32Characters) {
    EXPECT_EQ(Convert(NameKind::personField, "a\r\nb\tc"), "a  b c");
    EXPECT_EQ(Convert(NameKind::personField, Times(33, "ä")), Times(32, "ä"));
    EXPECT_EQ(Convert(NameKind::personField, "O'Neil."), "O''Neil.");
}

TEST_F(NameKindsTest, AnObjectNameIsOneLineWithoutPointsAndRunsOfBlanks) {
    EXPECT_EQ(Convert(NameKind::objectName, "a\r\nb\tc   d"), "a b c d");
    EXPECT_EQ(Convert(NameKind::objectName, "No. 5"), "No_ 5");
    EXPECT_EQ(Convert(NameKind::objectName, Times(40, "ä")), Times(32, "ä"));
    EXPECT_EQ(Convert(NameKind::objectName, "  Sales  "), "Sales");
    EXPECT_EQ(Convert(NameKind::objectName, "A*B?;:$"), "A*B?;:$");
}

TEST_F(NameKindsTest, BlanksAreCollapsedBeforeTheCutAndTrimmedBehindIt) {
    EXPECT_EQ(Convert(NameKind::objectName, Times(31, "x") + "    y"), Times(31, "x"));
    EXPECT_EQ(Convert(NameKind::objectName, Times(30, "x") + "    yz"), Times(30, "x") + " y");
}

TEST_F(NameKindsTest, APersonIdentifierIsUpperCaseWithoutBlanks) {
    EXPECT_EQ(Convert(NameKind::personId, "Jürgen van Straßen"), "JÜRGEN_VAN_STRAßEN");
    EXPECT_EQ(Convert(NameKind::personId, "a<b>c[d]e\\f\"g;h\ri\nj\tk"), "A_B_C_D_E_F_G_H_I_J_K");
    EXPECT_EQ(Convert(NameKind::personId, "a  b"), "A__B");
    EXPECT_EQ(Convert(NameKind::personId, Times(40, "ä")), Times(32, "Ä"));
    EXPECT_EQ(Convert(NameKind::personId, "o'neil"), "O''NEIL");
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
    EXPECT_EQ(Convert(NameKind::personId, "jo.doe@site"), "JO.DOE_SITE");
    EXPECT_EQ(ConvertARISName("jo.doe@site", NameKind::personId, "PERSON_PHONE"), "JO.DOE_SITE");
    NewAttributeRule("ANY_LOGIN", "509");
    EXPECT_EQ(ConvertARISName("jo.doe@site", NameKind::personId, "ANY_LOGIN"), "JO.DOE");
}

TEST_F(NameKindsTest, AProcessNameLosesTheCharactersOfPatterns) {
    EXPECT_EQ(Convert(NameKind::processName, "*?\";:.$"), "_______");
    EXPECT_EQ(Convert(NameKind::processName, "Order   entry"), "Order entry");
    EXPECT_EQ(Convert(NameKind::processName, "a-b (c), AND"), "a-b (c), AND");
    EXPECT_EQ(Convert(NameKind::processName, "a\tb"), "a\tb");
    EXPECT_EQ(Convert(NameKind::processName, Times(33, "x")), Times(32, "x"));
}

TEST_F(NameKindsTest, AnIdentifierLosesTheCharactersOfExpressions) {
    for (const char character : std::string_view("!'[]*+,-.;/:<=>()\\^\""))
        EXPECT_EQ(Convert(NameKind::identifier, std::string("a") + character + "b"), "a_b") << character;
    EXPECT_EQ(Convert(NameKind::identifier, "a\rb\nc\td"), "a_b_c_d");
    EXPECT_EQ(Convert(NameKind::identifier, "a#b$c%d&e?f@g{h}i|j~k_l"), "a#b$c%d&e?f@g{h}i|j~k_l");
    EXPECT_EQ(Convert(NameKind::identifier, "a   b"), "a b");
    EXPECT_EQ(Convert(NameKind::identifier, Times(40, "ä")), Times(32, "ä"));
}

TEST_F(NameKindsTest, AnIdentifierLosesReservedWordsAlsoInsideOthers) {
    EXPECT_EQ(Convert(NameKind::identifier, "AND IS LOWER MOD NOT NULL OR SUBSTR UPPER VALUE"),
              "_ _ _ _ _ _ _ _ _ _");
    EXPECT_EQ(Convert(NameKind::identifier, "MY_BLOCK MY_STRUCT"), "MY_ MY_");
    EXPECT_EQ(Convert(NameKind::identifier, "ORDER"), "_DER");
    EXPECT_EQ(Convert(NameKind::identifier, "VALUES"), "_S");
    EXPECT_EQ(Convert(NameKind::identifier, "STANDARD"), "ST_ARD");
}

TEST_F(NameKindsTest, ReservedWordsAreInUpperCaseAlone) {
    EXPECT_EQ(Convert(NameKind::identifier, "Order and Value"), "Order and Value");
    EXPECT_EQ(Convert(NameKind::identifier, "my_block"), "my_block");
}

TEST_F(NameKindsTest, ReservedWordsAreReplacedOnceInTheirOrder) {
    EXPECT_EQ(Convert(NameKind::identifier, "ANORD"), "AN_D");      // what OR leaves is not tested for AND
    EXPECT_EQ(Convert(NameKind::identifier, "LOWORER"), "LOW_ER");  // nor for LOWER
    EXPECT_EQ(Convert(NameKind::identifier, "ORBLOCK"), "_");       // but _BLOCK comes behind OR
    EXPECT_EQ(Convert(NameKind::identifier, "_BLOC_STRUCTK"), "_BLOC_K");
    EXPECT_EQ(Convert(NameKind::identifier, "-STRUCT"), "_");
    EXPECT_EQ(Convert(NameKind::identifier, "NORMAL"), "N_MAL");
}

TEST_F(NameKindsTest, ADigitInFrontTurnsTheFirstLiteralSCharIntoAnUnderscore) {
    EXPECT_EQ(Convert(NameKind::identifier, "1sChar"), "1_");
    EXPECT_EQ(Convert(NameKind::identifier, "9 sChar sChar"), "9 _ sChar");
    EXPECT_EQ(Convert(NameKind::identifier, "1st order"), "1st order");
    EXPECT_EQ(Convert(NameKind::identifier, "asChar"), "asChar");
    EXPECT_EQ(Convert(NameKind::identifier, "٣sChar"), "٣sChar");
    EXPECT_EQ(Convert(NameKind::identifier, " 1sChar"), "1sChar");
    EXPECT_EQ(Convert(NameKind::identifier, ""), "");
}

TEST_F(NameKindsTest, AnActivityNameIsAnIdentifier) {
    EXPECT_EQ(Convert(NameKind::activityName, "Check: ORDER's (new)  item"), "Check_ _DER_s _new_ item");
    EXPECT_EQ(Convert(NameKind::activityName, Times(40, "x")), Times(32, "x"));
}

TEST_F(NameKindsTest, AMemberNameLosesOneUnderscoreInFront) {
    EXPECT_EQ(Convert(NameKind::memberName, "_Order"), "Order");
    EXPECT_EQ(Convert(NameKind::memberName, "__Order"), "_Order");
    EXPECT_EQ(Convert(NameKind::memberName, "_"), "");
    EXPECT_EQ(Convert(NameKind::memberName, "a_b"), "a_b");
    EXPECT_EQ(Convert(NameKind::memberName, " _a"), "_a");
    EXPECT_EQ(Convert(NameKind::memberName, "_BLOCK"), "BLOCK");
    EXPECT_EQ(Convert(NameKind::memberName, "_" + Times(40, "x")), Times(32, "x"));
}

TEST_F(NameKindsTest, ACompareOperatorChangesOnlyUnequal) {
    EXPECT_EQ(Convert(NameKind::compareOperator, "!="), "<>");
    EXPECT_EQ(Convert(NameKind::compareOperator, "a!=b!=c"), "a<>b<>c");
    for (const char* kept : {"=", "<>", "<", ">=", "==", "!", "LIKE"})
        EXPECT_EQ(Convert(NameKind::compareOperator, kept), kept);
    EXPECT_EQ(Convert(NameKind::compareOperator, "  "), "");
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
    for (const TypeRow& row : rows)
        EXPECT_EQ(Convert(NameKind::dataType, row.word), row.dataType) << row.word;
}

TEST_F(NameKindsTest, DataTypesOfTheRunsLanguageComeBehindThoseOfAris) {
    texts = {{4000, "Gleitkomma"}, {4010, "Ganzzahl"}, {4020, "Text"}};
    EXPECT_EQ(Convert(NameKind::dataType, "Gleitkomma"), "FLOAT");
    EXPECT_EQ(Convert(NameKind::dataType, " Ganzzahl"), "LONG");
    EXPECT_EQ(Convert(NameKind::dataType, "Text"), "STRING");
    texts = {{4000, "Integer"}, {4010, "Float"}, {4020, "Text"}};
    EXPECT_EQ(Convert(NameKind::dataType, "Integer"), "LONG");
    EXPECT_EQ(Convert(NameKind::dataType, "Float"), "FLOAT");
}

TEST_F(NameKindsTest, BlankMeansTheSpaceAlone) {
    EXPECT_EQ(Convert(NameKind::objectName, "\u00A0a\u00A0\u00A0b\u00A0"), "\u00A0a\u00A0\u00A0b\u00A0");
    EXPECT_EQ(Convert(NameKind::personField, "\u2003x"), "\u2003x");
}

TEST_F(NameKindsTest, CharactersAreCodePoints) {
    EXPECT_EQ(CharacterCount(Convert(NameKind::objectName, Times(40, "😀"))), 32U);
    EXPECT_EQ(Convert(NameKind::personField, Times(31, "x") + "e\u0301"), Times(31, "x") + "e");
}

TEST_F(NameKindsTest, UpperCaseMapsOneCharacterToOne) {
    EXPECT_EQ(Convert(NameKind::personId, "ßᾳǆŉ"), "ßᾼǄŉ");
}

}  // namespace
}  // namespace wxbrg::test
