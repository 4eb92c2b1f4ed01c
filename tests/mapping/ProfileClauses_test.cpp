#include "mapping/ProfileClauses.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "mapping/ProfileCheck.h"
#include "tests/mapping/PlainProfile.h"
#include "tests/mapping/ProfileFixture.h"
#include "tests/mapping/RandomProfile.h"

namespace wxbrg {
namespace {

/// What a run and the check take from a profile against the plain model of it.
class ProfileModelTest : public ProfileTest {
  protected:
    /// Returns the number of the failure that ends the run, or 0. The profile is not empty.
    std::int32_t ExpectTheSameOf(const std::string& bytes) {
        const std::string text = Read(bytes);
        if (text.empty()) return 0;
        const plain::Reading expected = plain::Read(text, userLocale_.DecimalSeparator());
        ExpectTheRun(expected, bytes);
        ExpectTheCheck(expected, text);
        return expected.endsWith;
    }

  private:
    /// The text as the run has it: with line ends of its own.
    std::string Read(const std::string& bytes) {
        fileSystem_.Put(profileName, bytes);
        std::string text;
        RunIn("test.Caller", [&](Frame&) {
            text = gBlock.gIOHandler->ReadFile(profileName);
        });
        return text;
    }
    void ExpectTheRun(const plain::Reading& expected, const std::string& bytes) {
        const std::size_t before = Boxes().size();
        const std::optional<RunEnd> end = Parse(bytes);
        EXPECT_EQ(end ? end->number : 0, expected.endsWith) << testing::PrintToString(bytes.substr(0, 3000));
        std::vector<std::string> boxes;
        for (std::size_t i = before; i < Boxes().size(); ++i) boxes.push_back(Boxes()[i].text);
        EXPECT_EQ(boxes, BoxTexts(expected));
        EXPECT_EQ(Table(), Whole(expected.rules)) << bytes.substr(0, 3000);
        EXPECT_EQ(gBlock.gFailureContext, AddsGuarded(expected) ? "" : "Open file");
    }
    /// Whether a rule comes to the table by the way that clears the context of failures. Else it is the one
    /// that reading the file has left.
    static bool AddsGuarded(const plain::Reading& reading) {
        return !reading.doubledNames.empty() ||
               std::any_of(reading.rules.begin(), reading.rules.end(), [](const clsMappingRule& rule) {
                   return rule.AttributeMapping.empty();
               });
    }
    void ExpectTheCheck(const plain::Reading& expected, const std::string& text) {
        const char32_t separator = userLocale_.DecimalSeparator();
        const ProfileClauses clauses = ReadClauses(TokenizeProfile(text, separator), separator);
        const auto reported =
            std::find_if(clauses.findings.begin(), clauses.findings.end(), [](const ProfileFinding& finding) {
                return finding.endsWith != 0;
            });
        EXPECT_EQ(reported == clauses.findings.end() ? 0 : reported->endsWith, expected.endsWith)
            << testing::PrintToString(text.substr(0, 3000));
        if (expected.endsWith == 0) {
            EXPECT_EQ(Whole(RulesOf(clauses)), Whole(expected.rules)) << text;
        }
    }

    /// The texts of the boxes that a run brings.
    static std::vector<std::string> BoxTexts(const plain::Reading& reading) {
        constexpr std::string_view parser = "clsIOHandler.ParseMappingFile";
        const std::int32_t number = reading.endsWith;
        std::vector<std::string> texts;
        for (const std::string& name : reading.doubledNames)
            texts.push_back(WarningBoxText(2110, parser, TestText(2110, {name})));
        if (number == 0) return texts;
        if (reading.arguments.empty())
            texts.push_back(UnknownFailureBoxText(
                number, reading.failsInTokenizer ? "clsIOHandler.TokenizeMappingProfile" : parser,
                Failure(number).Description));
        else if (reading.arguments.size() == 1)
            texts.push_back(FailureBoxText(number, parser, TestText(number, {reading.arguments[0]})));
        else
            texts.push_back(FailureBoxText(number, parser,
                                           TestText(number, {reading.arguments[0], reading.arguments[1]})));
        return texts;
    }
};

TEST_F(ProfileModelTest, HoldsForProfilesWithAMistakeHereAndThere) {
    Engine engine(5);
    std::map<std::int32_t, int> endings;
    for (int i = 0; i < 3000; ++i) {
        ++endings[ExpectTheSameOf(RandomProfileText(engine))];
        ASSERT_FALSE(HasFailure()) << "profile " << i;
    }
    for (const std::int32_t number : {0, 6, 2130, 2140, 2150, 2160, 2170, 2180, 2190})
        EXPECT_GT(endings[number], 3) << number;
}

TEST_F(ProfileModelTest, HoldsForAnyText) {
    Engine engine(6);
    for (int i = 0; i < 1000; ++i) {
        ExpectTheSameOf(RandomText(engine, 30));
        ASSERT_FALSE(HasFailure()) << "text " << i;
    }
}

TEST_F(ProfileModelTest, HoldsForRulesThatStandTwice) {
    Engine engine(7);
    std::map<std::int32_t, int> endings;
    for (int i = 0; i < 300; ++i) {
        RuleTable rules = RandomTable(engine);
        const RuleTable more = RandomTable(engine);
        rules.insert(rules.end(), more.begin(), more.end());
        for (clsMappingRule& rule : rules)
            rule.Name = "RULE_" + rule.Name.substr(rule.Name.find_last_of("_", rule.Name.size() - 2) + 1);
        ++endings[ExpectTheSameOf(ProfileText(rules))];
        ASSERT_FALSE(HasFailure()) << "table " << i;
    }
    EXPECT_GT(endings[0], 20);
    EXPECT_GT(endings[457], 20);
}

TEST(ProfileClauses, BehindAMistakeItGoesOnWithTheNextRule) {
    const ProfileClauses clauses = ReadClauses(
        TokenizeProfile("OBJECT_MAPPING A x OBJECT_TYPE = 1 END OBJECT_MAPPING B OBJECT_TYPE = 2 END\n",
                        U'.'),
        U'.');
    ASSERT_EQ(clauses.clauses.size(), 2U);
    EXPECT_FALSE(clauses.clauses[0].whole);
    EXPECT_TRUE(clauses.clauses[1].whole);
    EXPECT_EQ(clauses.findings.size(), 1U);
}

TEST(ProfileClauses, AValueOfTheWrongSortStandsForTheRightOne) {
    const ProfileClauses clauses = ReadClauses(
        TokenizeProfile("OBJECT_MAPPING A OBJECT_TYPE = x OBJECT_TYPE = y OBJECT_TYPE = 1 END\n", U'.'),
        U'.');
    ASSERT_EQ(clauses.clauses.size(), 1U);
    EXPECT_TRUE(clauses.clauses[0].whole);
    EXPECT_EQ(clauses.clauses[0].types.size(), 3U);
    EXPECT_EQ(clauses.findings.size(), 2U);
}

}  // namespace
}  // namespace wxbrg
