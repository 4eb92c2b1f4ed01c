#include "mapping/ProfileText.h"

#include <gmock/gmock.h>

#include "mapping/ProfileCheck.h"
#include "mapping/RuleTable.h"
#include "tests/mapping/ProfileFixture.h"
#include "tests/mapping/RandomProfile.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

TEST(ProfileText, EveryTypeAttributeAndStepIsALine) {
    clsMappingRule object;
    object.Name = "A";
    object.ColObjectMapping.Add({5});
    object.ColObjectMapping.Add({-6});
    clsMappingRule attribute;
    attribute.Name = "B";
    attribute.AttributeMapping = "-1";
    clsMappingRule connection;
    connection.Name = "C";
    connection.ColConnectionMapping.Add({4, 3, 1, 2, ""});
    connection.ColConnectionMapping.Add({2, 6, 4, 5, "D"});
    EXPECT_EQ(ProfileText({object, attribute, connection}),
              "OBJECT_MAPPING A\n"
              "  OBJECT_TYPE = 5\n"
              "  OBJECT_TYPE = -6\n"
              "END\n"
              "ATTRIBUTE_MAPPING B\n"
              "  ATTRIBUTE_TYPE = -1\n"
              "END\n"
              "CONNECTION_MAPPING C\n"
              "  SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE = 2 CONNECTION_KIND = 4 CONNECTION_TYPE = 3\n"
              "  SOURCE_OBJECT_TYPE = 4 TARGET_OBJECT_TYPE = 5 CONNECTION_KIND = 2 CONNECTION_TYPE = 6 "
              "TARGET_OBJECT_RULE = D\n"
              "END\n");
}

TEST(ProfileText, ATableWithoutRulesIsEmpty) {
    EXPECT_EQ(ProfileText({}), "");
}

class PrintedProfileTest : public ProfileTest {
  protected:
    /// Reading what was printed gives the same table, in a run and in the reading with places.
    void ExpectToComeBack(const RuleTable& rules) {
        const std::string text = ProfileText(rules);
        EXPECT_EQ(Parse("\xEF\xBB\xBF" + text), std::nullopt) << text;
        EXPECT_EQ(Table(), Whole(rules));
        const ProfileRules read = ReadProfileRules(text, U'.');
        EXPECT_TRUE(read.mistakes.empty()) << text;
        EXPECT_EQ(Whole(read.rules), Whole(rules));
    }
};

TEST_F(PrintedProfileTest, ReadBackTheDefaultTableIsTheSame) {
    CreateDefaultMappingRules();
    const RuleTable rules = RulesOf(gBlock.gColMappingRule);
    ASSERT_EQ(rules.size(), 85U);
    ExpectToComeBack(rules);
}

TEST_F(PrintedProfileTest, ReadBackAnyTableIsTheSame) {
    Engine engine(9);
    int tables = 0;
    while (tables < 400) {
        const RuleTable rules = RandomTable(engine);
        if (rules.empty()) continue;
        ++tables;
        ExpectToComeBack(rules);
        ASSERT_FALSE(HasFailure()) << "table " << tables;
    }
}

TEST(RuleTables, TheBuiltInRulesAreThoseThatARunCreates) {
    const RuleTable rules = BuiltInRules();
    EXPECT_EQ(rules.size(), 85U);
    EXPECT_THAT(ProfileText(rules), StartsWith("OBJECT_MAPPING ACTIVITY\n  OBJECT_TYPE = 22\nEND\n"));
    EXPECT_TRUE(gBlock.gColMappingRule.IsEmpty());
}

TEST(RuleTables, AnEmptyProfileStandsForTheBuiltInRules) {
    EXPECT_EQ(ReadProfileRules("", U'.').rules.size(), 85U);
}

}  // namespace
}  // namespace wxbrg
