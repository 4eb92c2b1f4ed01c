// The reading of a profile with places against that of a run.

#include "mapping/ProfileClauses.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "mapping/ProfileCheck.h"
#include "tests/mapping/ProfileFixture.h"
#include "tests/mapping/RandomProfile.h"

namespace wxbrg {
namespace {

class ProfileClausesTest : public ProfileTest {
  protected:
    /// A profile ends a run exactly where the reading with places says so, and gives the same rules
    /// elsewhere. Returns the number of the failure that ends the run, or 0.
    std::int32_t ExpectTheSameOf(const std::string& bytes) {
        const std::optional<RunEnd> end = Parse(bytes);
        // The text as the run has it: with line ends of its own.
        const std::string text = [&] {
            std::string read;
            RunIn("test.Caller", [&](Frame&) {
                read = gBlock.gIOHandler->ReadFile(profileName);
            });
            return read;
        }();
        const char32_t separator = userLocale_.DecimalSeparator();
        const ProfileClauses clauses = ReadClauses(ReadProfile(text, separator), separator);
        const auto told =
            std::find_if(clauses.findings.begin(), clauses.findings.end(), [](const ProfileFinding& finding) {
                return finding.endsWith != 0;
            });
        const std::int32_t number = end ? end->number : 0;
        EXPECT_EQ(told == clauses.findings.end() ? 0 : told->endsWith, number)
            << testing::PrintToString(text.substr(0, 3000));
        if (number == 0 && !text.empty()) {
            EXPECT_EQ(Whole(RulesOf(clauses)), Table()) << text;
        }
        return number;
    }
};

TEST_F(ProfileClausesTest, AgreesWithTheRunAboutProfilesWithAMistakeHereAndThere) {
    Engine engine(5);
    std::map<std::int32_t, int> endings;
    for (int i = 0; i < 3000; ++i) {
        ++endings[ExpectTheSameOf(RandomProfileText(engine))];
        ASSERT_FALSE(HasFailure()) << "profile " << i;
    }
    for (const std::int32_t number : {0, 6, 2130, 2140, 2150, 2160, 2170, 2180, 2190})
        EXPECT_GT(endings[number], 3) << number;
}

TEST_F(ProfileClausesTest, AgreesWithTheRunAboutAnyText) {
    Engine engine(6);
    for (int i = 0; i < 1000; ++i) {
        ExpectTheSameOf(RandomText(engine, 30));
        ASSERT_FALSE(HasFailure()) << "text " << i;
    }
}

TEST_F(ProfileClausesTest, AgreesWithTheRunAboutRulesThatStandTwice) {
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

TEST_F(ProfileClausesTest, BehindAMistakeItGoesOnWithTheNextRule) {
    const ProfileClauses clauses = ReadClauses(
        ReadProfile("OBJECT_MAPPING A x OBJECT_TYPE = 1 END OBJECT_MAPPING B OBJECT_TYPE = 2 END\n", U'.'),
        U'.');
    ASSERT_EQ(clauses.clauses.size(), 2U);
    EXPECT_FALSE(clauses.clauses[0].whole);
    EXPECT_TRUE(clauses.clauses[1].whole);
    EXPECT_EQ(clauses.findings.size(), 1U);
}

TEST_F(ProfileClausesTest, AValueOfTheWrongSortStandsForTheRightOne) {
    const ProfileClauses clauses = ReadClauses(
        ReadProfile("OBJECT_MAPPING A OBJECT_TYPE = x OBJECT_TYPE = y OBJECT_TYPE = 1 END\n", U'.'), U'.');
    ASSERT_EQ(clauses.clauses.size(), 1U);
    EXPECT_TRUE(clauses.clauses[0].whole);
    EXPECT_EQ(clauses.clauses[0].types.size(), 3U);
    EXPECT_EQ(clauses.findings.size(), 2U);
}

}  // namespace
}  // namespace wxbrg
