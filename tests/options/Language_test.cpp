// Message texts: which library they come from, and how arguments come into them.

#include <gmock/gmock.h>

#include <string>

#include "options/MessageTexts.h"
#include "run/LogLine.h"
#include "run/modGlobals.h"
#include "tests/run/RunFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view programKey = R"(Software\Quenby\Tarnlight Workflow Aris Bridge\CurrentVersion)";
constexpr std::size_t longestText = 4095;

class LoadLanguageTest : public RunFixture {
  protected:
    LoadLanguageTest() {
        gBlock.gResourceLibrary = nullptr;
        languageLibraries_.Put("wxbrgDEU.dll", {{1020, "deutsch"}});
        languageLibraries_.Put("wxbrg7.dll", {{1020, "seven"}});
    }
    void Store(ProfileScope scope, const ProfileValue& value) {
        profileStore_.Put(scope, programKey, "Language", value);
    }
};

TEST_F(LoadLanguageTest, TakesEnglishWhereNoneIsStored) {
    EXPECT_TRUE(LoadLocalizedResources());
    EXPECT_THAT(languageLibraries_.asked, ElementsAre("wxbrgENU.dll"));
    EXPECT_EQ(GetStringFromResourceFile(1020), TestText(1020));
    EXPECT_EQ(gBlock.gHelpFile, "wxbrgENU.hlp");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(LoadLanguageTest, TakesTheStoredLanguageForTextsAndHelp) {
    Store(ProfileScope::user, std::string("DEU"));
    EXPECT_TRUE(LoadLocalizedResources());
    EXPECT_EQ(GetStringFromResourceFile(1020), "deutsch");
    EXPECT_EQ(gBlock.gHelpFile, "wxbrgDEU.hlp");
}

TEST_F(LoadLanguageTest, TakesTheMachinesLanguageWhereTheUserHasNone) {
    Store(ProfileScope::machine, std::string("DEU"));
    EXPECT_TRUE(LoadLocalizedResources());
    EXPECT_EQ(GetStringFromResourceFile(1020), "deutsch");
}

TEST_F(LoadLanguageTest, AnEmptyStoredLanguageCountsAsNone) {
    Store(ProfileScope::user, std::string());
    Store(ProfileScope::machine, std::string("DEU"));
    EXPECT_TRUE(LoadLocalizedResources());
    EXPECT_THAT(languageLibraries_.asked, ElementsAre("wxbrgENU.dll"));
}

TEST_F(LoadLanguageTest, AStoredNumberIsALanguageLikeItsDigits) {
    Store(ProfileScope::user, 7);
    EXPECT_TRUE(LoadLocalizedResources());
    EXPECT_EQ(GetStringFromResourceFile(1020), "seven");
}

TEST_F(LoadLanguageTest, AMissingLibraryIsReportedWithItsNameAndThereAreNoTexts) {
    Store(ProfileScope::user, std::string("FRA"));
    EXPECT_FALSE(LoadLocalizedResources());
    EXPECT_THAT(Boxes(),
                ElementsAre(Box("The Language Resource file 'wxbrgFRA.dll' could not be found.", 65552)));
    EXPECT_EQ(gBlock.gHelpFile, "wxbrgFRA.hlp");
    EXPECT_EQ(GetStringFromResourceFile(1020), "");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
    EXPECT_EQ(gBlock.gRunReport.boxes.critical, 1);
}

TEST_F(LoadLanguageTest, TheStoredTagIsKnownWithoutLoadingIt) {
    EXPECT_EQ(StoredLanguage(profileStore_), "ENU");
    Store(ProfileScope::machine, std::string("DEU"));
    EXPECT_EQ(StoredLanguage(profileStore_), "DEU");
    Store(ProfileScope::user, std::string("FRA"));
    EXPECT_EQ(StoredLanguage(profileStore_), "FRA");
    EXPECT_THAT(languageLibraries_.asked, IsEmpty());
}

class TextTest : public RunFixture {
  protected:
    /// From now on this is the text of number 1.
    void Have(const std::string& text) {
        languageLibraries_.Put("wxbrgENU.dll", {{1, text}});
        gBlock.gResourceLibrary = languageLibraries_.Load("wxbrgENU.dll");
    }
};

TEST_F(TextTest, WithoutALibraryIsEmpty) {
    gBlock.gResourceLibrary = nullptr;
    EXPECT_EQ(GetStringFromResourceFile(1020), "");
    EXPECT_EQ(GetNLSString(1020, "a"), "");
    EXPECT_EQ(GetNLSMessage(64, 3110, "a", "", "", ""), "WXB03110I ");
}

TEST_F(TextTest, OfANumberThatIsMissingSaysSoAndNoFailureComesUp) {
    EXPECT_EQ(GetStringFromResourceFile(77), "Error :\r\nThe Resource ID '77' was not found");
    EXPECT_EQ(GetStringFromResourceFile(-1), "Error :\r\nThe Resource ID '-1' was not found");
    EXPECT_EQ(GetNLSString(77, "a", "b"), "Error :\r\nThe Resource ID '77' was not found");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(TextTest, IsCutAt4095Bytes) {
    Have(std::string(longestText, 'x'));
    EXPECT_EQ(GetStringFromResourceFile(1), std::string(longestText, 'x'));
    Have(std::string(longestText + 1, 'x'));
    EXPECT_EQ(GetStringFromResourceFile(1), std::string(longestText, 'x'));
}

TEST_F(TextTest, IsCutBehindAWholeCharacter) {
    Have(std::string(longestText - 1, 'x') + "ä");
    EXPECT_EQ(GetStringFromResourceFile(1), std::string(longestText - 1, 'x'));
}

TEST_F(TextTest, ArgumentsMayMakeALongerText) {
    Have("%1$s");
    EXPECT_EQ(GetNLSString(1, std::string(longestText + 10, 'x')), std::string(longestText + 10, 'x'));
}

TEST_F(TextTest, TakesItsArgumentsInTurn) {
    Have("%4$s %3$s %2$s %1$s");
    EXPECT_EQ(GetNLSString(1, "a", "b", "c", "d"), "d c b a");
    EXPECT_EQ(GetNLSString(1, "a", "b", "c"), "%4$s c b a");
    EXPECT_EQ(GetNLSString(1, "a", "b"), "%4$s %3$s b a");
    EXPECT_EQ(GetNLSString(1, "a"), "%4$s %3$s %2$s a");
    EXPECT_EQ(GetNLSString(1), "%4$s %3$s %2$s %1$s");
    EXPECT_EQ(Get_NLS_String_Message(1), "%4$s %3$s %2$s %1$s");
}

TEST_F(TextTest, AnEmptyArgumentEndsTheReplacing) {
    Have("%1$s %2$s %3$s %4$s");
    EXPECT_EQ(GetNLSString(1, "", "b", "c", "d"), "%1$s %2$s %3$s %4$s");
    EXPECT_EQ(GetNLSString(1, "a", "", "c", "d"), "a %2$s %3$s %4$s");
    EXPECT_EQ(GetNLSString(1, "a", "b", "", "d"), "a b %3$s %4$s");
}

TEST_F(TextTest, EveryPlaceholderOfAnArgumentIsReplacedAndNothingLikeIt) {
    Have("%1$s%1$s %1$S %1 $s %1$d %5$s");
    EXPECT_EQ(GetNLSString(1, "a", "b", "c", "d"), "aa %1$S %1 $s %1$d %5$s");
}

TEST_F(TextTest, APlaceholderInAnArgumentIsReplacedByTheLaterOnesAlone) {
    Have("%1$s|%2$s");
    EXPECT_EQ(GetNLSString(1, "%1$s", "b"), "%1$s|b");
    EXPECT_EQ(GetNLSString(1, "%2$s", "b"), "b|b");
    EXPECT_EQ(GetNLSString(1, "a", "%1$s"), "a|%1$s");
}

TEST_F(TextTest, ALineOfTheLogBeginsWithItsMessageNumber) {
    EXPECT_EQ(GetNLSMessage(64, 3110, "5", "", "", ""), "WXB03110I 3110|5|%2$s|%3$s|%4$s");
    EXPECT_EQ(GetNLSMessage(48, 3000, "a", "b", "c", "d"), "WXB03000E 3000|a|b|c|d");
}

TEST_F(TextTest, ALineOfTheLogWithoutATextTakesTwoLines) {
    EXPECT_EQ(GetNLSMessage(64, 3999, "a", "", "", ""),
              "WXB03999I Error :\r\nThe Resource ID '3999' was not found");
}

}  // namespace
}  // namespace wxbrg
