#include "mapping/ProfileCheck.h"

#include <gmock/gmock.h>

#include "mapping/ProfileText.h"
#include "mapping/RuleTable.h"
#include "support/Text.h"

namespace wxbrg {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

std::string TextOf(const ProfileFinding& finding) {
    return std::to_string(finding.place.line) + ":" + std::to_string(finding.place.column) +
           (finding.severity == FindingSeverity::error ? " error: " : " warning: ") + finding.text;
}

/// The findings, as "3:14 error: text".
std::vector<std::string> Findings(std::string_view text) {
    std::vector<std::string> reported;
    for (const ProfileFinding& finding : CheckProfile(text, U'.')) reported.push_back(TextOf(finding));
    return reported;
}

/// A profile of the built-in rules without those of some names, behind a text of its own.
std::string With(const std::string& own, std::initializer_list<std::string_view> without = {}) {
    RuleTable rules = BuiltInRules();
    for (const std::string_view name : without)
        std::erase_if(rules, [&](const clsMappingRule& rule) {
            return UpperCase(rule.Name) == name;
        });
    return own + "\n" + ProfileText(rules);
}

constexpr const char* step =
    "SOURCE_OBJECT_TYPE = 22 TARGET_OBJECT_TYPE = 46 CONNECTION_KIND = 2 CONNECTION_TYPE = 65";

TEST(ProfileCheck, ShowsNothingThatATerminalWouldObey) {
    EXPECT_THAT(Findings("\x1B[2J\x07\xC2\x9B"
                         "5m\n"),
                Contains(HasSubstr("not \"\\u{1B}[2J\\u{7}\\u{9B}5m\"")));
}

TEST(ProfileCheck, TheBuiltInRulesAreClean) {
    EXPECT_THAT(Findings(ProfileText(BuiltInRules())), IsEmpty());
}

TEST(ProfileCheck, AnEmptyFileAndOneOfBlanksAreErrors) {
    EXPECT_THAT(Findings(""),
                ElementsAre(AllOf(StartsWith("1:1 error: "), HasSubstr("empty"), HasSubstr("2210"))));
    EXPECT_THAT(Findings(" \r\n\t\r\n"), ElementsAre(AllOf(StartsWith("1:1 error: "), HasSubstr("no rule"))));
}

TEST(ProfileCheck, AMistakeIsReportedWithWhatWasExpected) {
    EXPECT_THAT(
        Findings(With("RULES", {})),
        ElementsAre("1:1 error: expected OBJECT_MAPPING, ATTRIBUTE_MAPPING or CONNECTION_MAPPING and not "
                    "\"RULES\" (a run ends here with 2130)"));
    EXPECT_THAT(Findings(With("OBJECT_MAPPING ROLE\n  OBJECT_TYPE 78\nEND", {"ROLE"})),
                ElementsAre("2:15 error: expected \"=\" and not \"78\" (a run ends here with 2150)"));
    EXPECT_THAT(
        Findings(
            With("ATTRIBUTE_MAPPING ROLE_DESCRIPTION\n  ATTRIBUTE_TYPE = nine\nEND", {"ROLE_DESCRIPTION"})),
        ElementsAre("2:20 error: expected the number of an attribute type, or -1 for the name, and not "
                    "\"nine\" (a run ends here with 2170)"));
    EXPECT_THAT(Findings(With("OBJECT_MAPPING ROLE OBJECT_TYPE = x END", {"ROLE"})),
                ElementsAre(AllOf(HasSubstr("number of an object type"), HasSubstr("2160"))));
    EXPECT_THAT(
        Findings(With("CONNECTION_MAPPING ACTIVITY_PERSON SOURCE_OBJECT_TYPE = 22 TARGET_OBJECT_TYPE = 46\n"
                      "CONNECTION_KIND = in CONNECTION_TYPE = does END",
                      {"ACTIVITY_PERSON"})),
        ElementsAre(
            AllOf(StartsWith("2:19 error: "), HasSubstr("direction, 2 for incoming"), HasSubstr("2180")),
            AllOf(StartsWith("2:40 error: "), HasSubstr("connection type"), HasSubstr("2190"))));
}

TEST(ProfileCheck, BehindAStepTheEndIsAmongWhatIsExpected) {
    EXPECT_THAT(
        Findings(
            With(std::string("CONNECTION_MAPPING ACTIVITY_PERSON ") + step + " x END", {"ACTIVITY_PERSON"})),
        ElementsAre(HasSubstr("expected END, SOURCE_OBJECT_TYPE or TARGET_OBJECT_RULE and not \"x\"")));
}

TEST(ProfileCheck, AnEmptyRuleIsReportedAsSuch) {
    EXPECT_THAT(
        Findings(With("OBJECT_MAPPING ROLE\nEND", {"ROLE"})),
        ElementsAre("2:1 error: the rule \"ROLE\" is empty; give it OBJECT_TYPE in front of END, or take it "
                    "out (a run ends here with 2130)"));
    EXPECT_THAT(Findings(With("ATTRIBUTE_MAPPING ROLE_DESCRIPTION END", {"ROLE_DESCRIPTION"})),
                ElementsAre(HasSubstr("is empty; give it ATTRIBUTE_TYPE")));
    EXPECT_THAT(Findings(With("CONNECTION_MAPPING ACTIVITY_PERSON END", {"ACTIVITY_PERSON"})),
                ElementsAre(HasSubstr("is empty; give it SOURCE_OBJECT_TYPE")));
}

TEST(ProfileCheck, ARuleThatIsNotClosedIsReportedWhereTheNextOneBegins) {
    EXPECT_THAT(
        Findings(With("OBJECT_MAPPING ROLE OBJECT_TYPE = 78", {"ROLE"})),
        ElementsAre("2:1 error: the rule \"ROLE\" is not closed; put END in front of OBJECT_MAPPING (a run "
                    "ends here with 2130)"));
}

TEST(ProfileCheck, ARuleCutOffByTheEndOfTheFileIsReported) {
    const std::string text = With("", {"ROLE"}) + "OBJECT_MAPPING ROLE OBJECT_TYPE = 78\n";
    EXPECT_THAT(Findings(text), ElementsAre(AllOf(HasSubstr(":16 error: the rule \"ROLE\" is cut off"))));
    EXPECT_THAT(Findings(With("") + "OBJECT_MAPPING\n"),
                ElementsAre(HasSubstr(":1 error: a rule without a name is cut off")));
}

TEST(ProfileCheck, MistakesAreAllToldInOneGo) {
    EXPECT_THAT(
        Findings(With("x\nOBJECT_MAPPING ROLE END\nEND\nOBJECT_MAPPING 5 OBJECT_TYPE = y END", {"ROLE"})),
        ElementsAre(StartsWith("1:1 error"), StartsWith("2:21 error"), StartsWith("3:1 error"),
                    StartsWith("4:16 error"), StartsWith("4:32 error")));
}

TEST(ProfileCheck, ANameThatBeginsWithAKeywordIsSplit) {
    EXPECT_THAT(
        Findings(With("OBJECT_MAPPING EndPoint OBJECT_TYPE = 1 END")),
        ElementsAre("1:16 error: the name \"EndPoint\" begins with the keyword END and is split behind it; "
                    "choose a name that does not begin so (a run ends here with 2140)"));
    EXPECT_THAT(Findings(With(std::string("CONNECTION_MAPPING ACTIVITY_PERSON ") + step +
                                  " TARGET_OBJECT_RULE = END_RULE END",
                              {"ACTIVITY_PERSON"})),
                Contains(HasSubstr("the name \"END_RULE\" begins with the keyword END")));
}

TEST(ProfileCheck, AKeywordThatRunsIntoTheNextWordIsDoubtful) {
    EXPECT_THAT(Findings(With("OBJECT_MAPPINGROLE OBJECT_TYPE = 78 END", {"ROLE"})),
                ElementsAre("1:1 warning: \"OBJECT_MAPPINGROLE\" is read as two words; put a blank behind "
                            "\"OBJECT_MAPPING\""));
}

TEST(ProfileCheck, AMissingRuleThatTheExportAsksForIsReportedAtTheEnd) {
    const std::string text = With("", {"ROLE_DESCRIPTION"});
    const std::string end = std::to_string(std::count(text.begin(), text.end(), '\n') + 1);
    EXPECT_THAT(Findings(text),
                ElementsAre(AllOf(StartsWith(end + ":1 error: the rule \"ROLE_DESCRIPTION\" is missing"),
                                  HasSubstr("2100"))));
}

TEST(ProfileCheck, AMissingRuleThatNothingAsksForIsNoMatter) {
    EXPECT_THAT(Findings(With("", {"DATA_CONNECTOR_DESCRIPTION"})), IsEmpty());
}

TEST(ProfileCheck, ARuleThatNothingAsksForIsDoubtful) {
    EXPECT_THAT(Findings(With("ATTRIBUTE_MAPPING CONTROL_CONNECTOR_OTHER_SETTINGS ATTRIBUTE_TYPE = 1 END")),
                ElementsAre(StartsWith(
                    "1:19 warning: nothing asks for the rule \"CONTROL_CONNECTOR_OTHER_SETTINGS\"")));
}

TEST(ProfileCheck, ARuleThatNoStepGoesOnToAnyMoreIsDoubtful) {
    const std::string text = With(
        "CONNECTION_MAPPING DATA_MEMBER_HAS_DOMAINTYPE SOURCE_OBJECT_TYPE = 19\n"
        "TARGET_OBJECT_TYPE = 20 CONNECTION_KIND = 4 CONNECTION_TYPE = 121 END",
        {"DATA_MEMBER_HAS_DOMAINTYPE"});
    EXPECT_THAT(Findings(text),
                ElementsAre(HasSubstr("nothing asks for the rule \"UNIT_NUM_HAS_DOMAINTYPE\"")));
}

TEST(ProfileCheck, ARuleOfTheWrongSortIsReportedWithTheRightOne) {
    EXPECT_THAT(
        Findings(With("OBJECT_MAPPING Role_Description OBJECT_TYPE = 9 END", {"ROLE_DESCRIPTION"})),
        ElementsAre(
            AllOf(StartsWith("1:16 error: the rule \"Role_Description\" has to begin with ATTRIBUTE_MAPPING"),
                  HasSubstr("13"))));
    EXPECT_THAT(Findings(With("ATTRIBUTE_MAPPING ROLE ATTRIBUTE_TYPE = 9 END", {"ROLE"})),
                ElementsAre(HasSubstr("has to begin with OBJECT_MAPPING; a run looks for types")));
    EXPECT_THAT(
        Findings(With("ATTRIBUTE_MAPPING ACTIVITY_PERSON ATTRIBUTE_TYPE = 9 END", {"ACTIVITY_PERSON"})),
        ElementsAre(HasSubstr("has to begin with CONNECTION_MAPPING; a run looks for connections")));
}

TEST(ProfileCheck, AChainedRuleThatIsMissingIsReported) {
    EXPECT_THAT(Findings(With("", {"UNIT_NUM_HAS_DOMAINTYPE"})),
                ElementsAre(AllOf(
                    HasSubstr("error: the rule \"UNIT_NUM_HAS_DOMAINTYPE\", with which this step goes on"),
                    HasSubstr("is missing"), HasSubstr("2100"))));
}

TEST(ProfileCheck, AChainThatLeadsNowhereIsReported) {
    const std::string rule =
        std::string("CONNECTION_MAPPING ACTIVITY_PERSON\n") + step + "\nTARGET_OBJECT_RULE = ";
    EXPECT_THAT(
        Findings(With(rule + "ROLE END", {"ACTIVITY_PERSON"})),
        ElementsAre(AllOf(StartsWith("3:22 error: "), HasSubstr("has to begin with CONNECTION_MAPPING"))));
    EXPECT_THAT(
        Findings(With(rule + "ROLE_RELATED_PERSON END", {"ACTIVITY_PERSON"})),
        ElementsAre(AllOf(StartsWith("3:22 warning: "), HasSubstr("no step from objects of the type 46"))));
}

TEST(ProfileCheck, StepsThatCanTurnInACircleAreReportedWithTheCircle) {
    const std::string text = With(
        "CONNECTION_MAPPING PERSON_SUBSTITUTE\n"
        "SOURCE_OBJECT_TYPE = 46 TARGET_OBJECT_TYPE = 43 CONNECTION_KIND = 4 CONNECTION_TYPE = 6\n"
        "TARGET_OBJECT_RULE = UNIT_MEMBERS\nEND\n"
        "CONNECTION_MAPPING UNIT_MEMBERS\n"
        "SOURCE_OBJECT_TYPE = 43 TARGET_OBJECT_TYPE = 46 CONNECTION_KIND = 2 CONNECTION_TYPE = 6\n"
        "TARGET_OBJECT_RULE = person_substitute\nEND",
        {"PERSON_SUBSTITUTE"});
    EXPECT_THAT(
        Findings(text),
        ElementsAre("3:22 warning: from here the steps can turn in a circle: PERSON_SUBSTITUTE -> "
                    "UNIT_MEMBERS -> PERSON_SUBSTITUTE. A run ends with 2230 where the connections of a "
                    "model do so"));
}

TEST(ProfileCheck, ARuleThatGoesOnWithItselfIsACircle) {
    EXPECT_THAT(
        Findings(With("CONNECTION_MAPPING PERSON_SUBSTITUTE SOURCE_OBJECT_TYPE = 46 TARGET_OBJECT_TYPE = 46\n"
                      "CONNECTION_KIND = 2 CONNECTION_TYPE = 318 TARGET_OBJECT_RULE = PERSON_SUBSTITUTE END",
                      {"PERSON_SUBSTITUTE"})),
        ElementsAre(HasSubstr("PERSON_SUBSTITUTE -> PERSON_SUBSTITUTE")));
}

TEST(ProfileCheck, ChainsBetweenOtherTypesMakeNoCircle) {
    // The rule goes on with itself from units, but has steps from persons alone to there.
    EXPECT_THAT(
        Findings(
            With("CONNECTION_MAPPING PERSON_SUBSTITUTE SOURCE_OBJECT_TYPE = 46 TARGET_OBJECT_TYPE = 43\n"
                 "CONNECTION_KIND = 2 CONNECTION_TYPE = 318 TARGET_OBJECT_RULE = PERSON_SUBSTITUTE\n"
                 "SOURCE_OBJECT_TYPE = 43 TARGET_OBJECT_TYPE = 46 CONNECTION_KIND = 2 CONNECTION_TYPE = 6\n"
                 "END",
                 {"PERSON_SUBSTITUTE"})),
        IsEmpty());
}

TEST(ProfileCheck, OtherConnectionsInTheBuiltInCirclesOfControlFlowAreNoMatter) {
    const std::string text =
        Replace(ProfileText(BuiltInRules()), "CONNECTION_TYPE = 54", "CONNECTION_TYPE = 55");
    EXPECT_THAT(Findings(text), IsEmpty());
}

TEST(ProfileCheck, ADirectionOtherThan2And4IsReported) {
    EXPECT_THAT(
        Findings(With("CONNECTION_MAPPING ACTIVITY_PERSON SOURCE_OBJECT_TYPE = 22 TARGET_OBJECT_TYPE = 46\n"
                      "CONNECTION_KIND = 3 CONNECTION_TYPE = 65 END",
                      {"ACTIVITY_PERSON"})),
        ElementsAre(AllOf(StartsWith("2:19 error: the direction 3 does not exist"), HasSubstr("2030"))));
}

TEST(ProfileCheck, ANumberOutsideItsRangeIsReported) {
    EXPECT_THAT(
        Findings(With("OBJECT_MAPPING ROLE OBJECT_TYPE = 2147483648 END", {"ROLE"})),
        ElementsAre(AllOf(StartsWith("1:35 error: 2147483648 is outside"), HasSubstr("ends here with 6"))));
    EXPECT_THAT(
        Findings(With("ATTRIBUTE_MAPPING ROLE_DESCRIPTION ATTRIBUTE_TYPE = 1e99 END", {"ROLE_DESCRIPTION"})),
        ElementsAre(AllOf(HasSubstr("1e99 is outside"), HasSubstr("ends with 6 where it asks"))));
}

TEST(ProfileCheck, ANumberThatNoTypeHasIsDoubtful) {
    EXPECT_THAT(
        Findings(With("OBJECT_MAPPING ROLE OBJECT_TYPE = 78 OBJECT_TYPE = 0 OBJECT_TYPE = -1 END", {"ROLE"})),
        ElementsAre(HasSubstr("1:52 warning: no type of ARIS has the number 0"),
                    HasSubstr("1:68 warning: no type of ARIS has the number -1")));
    EXPECT_THAT(
        Findings(With("ATTRIBUTE_MAPPING ROLE_DESCRIPTION ATTRIBUTE_TYPE = -2 END", {"ROLE_DESCRIPTION"})),
        ElementsAre(HasSubstr("the number -2")));
}

TEST(ProfileCheck, ANumberThatIsReadAsAnotherIsDoubtful) {
    EXPECT_THAT(
        Findings(With("ATTRIBUTE_MAPPING ROLE_DESCRIPTION ATTRIBUTE_TYPE = 9.5 END", {"ROLE_DESCRIPTION"})),
        ElementsAre(StartsWith("1:53 warning: 9.5 is read as 10; write 10")));
    EXPECT_THAT(Findings(With("OBJECT_MAPPING ROLE OBJECT_TYPE = 1e2 END", {"ROLE"})),
                ElementsAre(HasSubstr("1e2 is read as 100")));
    EXPECT_THAT(Findings(With("OBJECT_MAPPING ROLE OBJECT_TYPE = +78 END", {"ROLE"})), IsEmpty());
}

TEST(ProfileCheck, ASecondRuleOfANameIsReported) {
    const std::string twice =
        "OBJECT_MAPPING ROLE OBJECT_TYPE = 78 END\nOBJECT_MAPPING role OBJECT_TYPE = 1 END";
    EXPECT_THAT(
        Findings(With(twice, {"ROLE"})),
        ElementsAre("2:16 error: the rule \"role\" is in line 1 already; take one of the two out. A run "
                    "warns with 2110 and takes the first one"));
    const std::string attribute = "ATTRIBUTE_MAPPING ROLE_DESCRIPTION ATTRIBUTE_TYPE = 9 END\n";
    EXPECT_THAT(Findings(With(attribute + attribute, {"ROLE_DESCRIPTION"})),
                ElementsAre(AllOf(StartsWith("2:19 error: "), HasSubstr("ends here with 457"))));
}

TEST(ProfileCheck, ATypeOrStepThatStandsTwiceInARuleIsDoubtful) {
    EXPECT_THAT(
        Findings(With("OBJECT_MAPPING ROLE\nOBJECT_TYPE = 78\nOBJECT_TYPE = 78\nEND", {"ROLE"})),
        ElementsAre("3:15 warning: the type 78 is in this rule already, in line 2; take one of the two out"));
    EXPECT_THAT(
        Findings(With(std::string("CONNECTION_MAPPING ACTIVITY_PERSON\n") + step + "\n" + step + "\nEND",
                      {"ACTIVITY_PERSON"})),
        ElementsAre(
            "3:22 warning: the same step is in this rule already, in line 2; take one of the two out"));
}

TEST(ProfileCheck, ASeparatorTooFarAwayIsReported) {
    const std::string text =
        With("OBJECT_MAPPING ROLE OBJECT_TYPE = 78 END" + std::string(33000, '\n'), {"ROLE"}) + "\t\n";
    EXPECT_THAT(Findings(text), ElementsAre(AllOf(StartsWith("1:16 error: of blanks, tabs, line ends"),
                                                  HasSubstr("ends here with 6"))));
}

TEST(ProfileCheck, EveryErrorThatEndsTheReadingMakesTheProfileUnreadable) {
    for (const ProfileFinding& finding :
         CheckProfile("x OBJECT_MAPPING A OBJECT_TYPE = 99999999999 END\n", U'.'))
        EXPECT_EQ(finding.unreadable, finding.endsWith != 0) << finding.text;
    EXPECT_EQ(ReadProfileRules("x OBJECT_MAPPING A OBJECT_TYPE = 99999999999 END\n", U'.').mistakes.size(),
              2U);
}

}  // namespace
}  // namespace wxbrg
