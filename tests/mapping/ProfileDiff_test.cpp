#include "mapping/ProfileDiff.h"

#include <gtest/gtest.h>

#include "mapping/ProfileCheck.h"

namespace wxbrg {
namespace {

RuleTable Rules(std::string_view profile) {
    ProfileRules read = ReadProfileRules(profile, U'.');
    EXPECT_TRUE(read.mistakes.empty());
    return read.rules;
}

std::string Diff(std::string_view first, std::string_view second) {
    const RuleTable rules = Rules(first);
    return DifferenceText(DifferencesOf(rules, Rules(second)), rules.size());
}

TEST(ProfileDiff, TheSameTableHasNoDifference) {
    EXPECT_EQ(Diff("OBJECT_MAPPING A OBJECT_TYPE = 1 END\n", "OBJECT_MAPPING A OBJECT_TYPE = 1 END\n"),
              "Rules: 0 changed, 0 missing, 0 added, 1 the same\n");
}

TEST(ProfileDiff, CaseAndOrderOfRulesDoNotCount) {
    EXPECT_EQ(Diff("OBJECT_MAPPING A OBJECT_TYPE = 1 END ATTRIBUTE_MAPPING B ATTRIBUTE_TYPE = 2 END\n",
                   "attribute_mapping b attribute_type=2 end object_mapping a object_type=1 end\n"),
              "Rules: 0 changed, 0 missing, 0 added, 2 the same\n");
}

TEST(ProfileDiff, AddedMissingAndChangedRulesAreReportedWithTheirEntries) {
    EXPECT_EQ(Diff("OBJECT_MAPPING A OBJECT_TYPE = 1 END ATTRIBUTE_MAPPING B ATTRIBUTE_TYPE = 2 END\n"
                   "OBJECT_MAPPING C OBJECT_TYPE = 3 END\n",
                   "OBJECT_MAPPING D OBJECT_TYPE = 4 OBJECT_TYPE = 5 END\n"
                   "OBJECT_MAPPING A OBJECT_TYPE = 7 END OBJECT_MAPPING C OBJECT_TYPE = 3 END\n"),
              "A: changed\n"
              "  - OBJECT_TYPE = 1\n"
              "  + OBJECT_TYPE = 7\n"
              "B: missing\n"
              "  - ATTRIBUTE_TYPE = 2\n"
              "D: added\n"
              "  + OBJECT_TYPE = 4\n"
              "  + OBJECT_TYPE = 5\n"
              "Rules: 1 changed, 1 missing, 1 added, 1 the same\n");
}

TEST(ProfileDiff, OfAChangedRuleOnlyTheMiddleThatDiffersIsReported) {
    EXPECT_EQ(Diff("OBJECT_MAPPING A OBJECT_TYPE = 1 OBJECT_TYPE = 2 OBJECT_TYPE = 3 END\n",
                   "OBJECT_MAPPING A OBJECT_TYPE = 1 OBJECT_TYPE = 4 OBJECT_TYPE = 3 END\n"),
              "A: changed\n"
              "  - OBJECT_TYPE = 2\n"
              "  + OBJECT_TYPE = 4\n"
              "Rules: 1 changed, 0 missing, 0 added, 0 the same\n");
}

TEST(ProfileDiff, AnEntryMoreOrLessIsReported) {
    const std::string_view one = "OBJECT_MAPPING A OBJECT_TYPE = 1 END\n";
    const std::string_view two = "OBJECT_MAPPING A OBJECT_TYPE = 1 OBJECT_TYPE = 1 END\n";
    const std::string changed = "Rules: 1 changed, 0 missing, 0 added, 0 the same\n";
    EXPECT_EQ(Diff(one, two), "A: changed\n  + OBJECT_TYPE = 1\n" + changed);
    EXPECT_EQ(Diff(two, one), "A: changed\n  - OBJECT_TYPE = 1\n" + changed);
}

TEST(ProfileDiff, TheOrderOfStepsCounts) {
    const std::string step1 =
        "SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE = 2 CONNECTION_KIND = 4 CONNECTION_TYPE = 3";
    const std::string step2 = step1 + " TARGET_OBJECT_RULE = B";
    EXPECT_EQ(Diff("CONNECTION_MAPPING A " + step1 + " " + step2 + " END\n",
                   "CONNECTION_MAPPING A " + step2 + " " + step1 + " END\n"),
              "A: changed\n  - " + step1 + "\n  - " + step2 + "\n  + " + step2 + "\n  + " + step1 +
                  "\nRules: 1 changed, 0 missing, 0 added, 0 the same\n");
}

TEST(ProfileDiff, ARuleOfAnotherSortIsAChange) {
    EXPECT_EQ(Diff("OBJECT_MAPPING A OBJECT_TYPE = 1 END\n", "ATTRIBUTE_MAPPING A ATTRIBUTE_TYPE = 1 END\n"),
              "A: changed\n"
              "  - OBJECT_TYPE = 1\n"
              "  + ATTRIBUTE_TYPE = 1\n"
              "Rules: 1 changed, 0 missing, 0 added, 0 the same\n");
}

}  // namespace
}  // namespace wxbrg
