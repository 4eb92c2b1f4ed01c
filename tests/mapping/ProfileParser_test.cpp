#include <gmock/gmock.h>

#include <array>

#include "mapping/RuleTable.h"
#include "support/Text.h"
#include "tests/mapping/ProfileFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* parser = "clsIOHandler.ParseMappingFile";

class ProfileParserTest : public ProfileTest {
  protected:
    /// The one box that a profile brings, which ends the run.
    void ExpectEnd(const std::string& profile, int number,
                   std::initializer_list<std::string_view> arguments) {
        const std::size_t before = Boxes().size();
        EXPECT_THAT(Parse(profile), EndedRun(RunEnding::endedByFailure, number)) << profile;
        ASSERT_EQ(Boxes().size(), before + 1) << profile;
        EXPECT_THAT(Boxes().back(), FailureBox(number, parser, TestText(number, arguments))) << profile;
    }
};

TEST_F(ProfileParserTest, TakesObjectAttributeAndConnectionRulesInTheirOrder) {
    EXPECT_EQ(
        Parse("OBJECT_MAPPING PROGRAM OBJECT_TYPE = 6 OBJECT_TYPE = 105 END\n"
              "ATTRIBUTE_MAPPING ROLE_DESCRIPTION ATTRIBUTE_TYPE = -1 END\n"
              "CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE = 2 CONNECTION_KIND = 4\n"
              "CONNECTION_TYPE = 3 TARGET_OBJECT_RULE = B SOURCE_OBJECT_TYPE = 4 TARGET_OBJECT_TYPE = 5\n"
              "CONNECTION_KIND = 2 CONNECTION_TYPE = 6 SOURCE_OBJECT_TYPE = 7 TARGET_OBJECT_TYPE = 8\n"
              "CONNECTION_KIND = 2 CONNECTION_TYPE = 9 END\n"),
        std::nullopt);
    EXPECT_EQ(Table(),
              "PROGRAM: type 6 type 105 attribute []\n"
              "ROLE_DESCRIPTION: attribute [-1]\n"
              "A: attribute [] step 1,4,3,2,[B] step 4,2,6,5,[] step 7,2,9,8,[]\n");
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_EQ(gBlock.gColProfileTokens.Count(), 57);
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
    EXPECT_EQ(gBlock.gFailureContext, "");
}

TEST_F(ProfileParserTest, ARuleEntersTheTableUnderItsNameInAnyCase) {
    Parse("OBJECT_MAPPING Activity OBJECT_TYPE = 335 END\n");
    ASSERT_NE(gBlock.gColMappingRule.Find("ACTIVITY"), nullptr);
    EXPECT_EQ(gBlock.gColMappingRule.Item("activity")->Name, "Activity");
}

/// A text that is wrong at its last token, and what the failure says.
struct WrongToken {
    std::string_view profile;
    int number;
    std::string_view token;
    std::string_view expected;
};

constexpr std::string_view oneStep =
    "CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE = 2 CONNECTION_KIND = 4 CONNECTION_TYPE "
    "= 3";
constexpr std::string_view stateZero = R"("OBJECT_MAPPING", "ATTRIBUTE_MAPPING", "CONNECTION_MAPPING")";

TEST_F(ProfileParserTest, EachPlaceTellsWhatItExpects) {
    constexpr auto rows = std::to_array<WrongToken>({
        {"FOO", 2130, "FOO", stateZero},
        {"OBJECT_MAPPING =", 2140, "=", ""},
        {"OBJECT_MAPPING A END", 2130, "END", R"("OBJECT_TYPE")"},
        {"OBJECT_MAPPING A OBJECT_TYPE 5", 2150, "5", ""},
        {"OBJECT_MAPPING A OBJECT_TYPE = x", 2160, "x", ""},
        {"OBJECT_MAPPING A OBJECT_TYPE = 5 6", 2130, "6", R"("END", "OBJECT_TYPE")"},
        {"ATTRIBUTE_MAPPING 5", 2140, "5", ""},
        {"ATTRIBUTE_MAPPING A OBJECT_TYPE", 2130, "OBJECT_TYPE", R"("ATTRIBUTE_TYPE")"},
        {"ATTRIBUTE_MAPPING A ATTRIBUTE_TYPE x", 2150, "x", ""},
        {"ATTRIBUTE_MAPPING A ATTRIBUTE_TYPE = x", 2170, "x", ""},
        {"ATTRIBUTE_MAPPING A ATTRIBUTE_TYPE = 5 =", 2130, "=", R"("END")"},
        {"CONNECTION_MAPPING end", 2140, "END", ""},
        {"CONNECTION_MAPPING A END", 2130, "END", R"("SOURCE_OBJECT_TYPE")"},
        {"CONNECTION_MAPPING A SOURCE_OBJECT_TYPE 5", 2150, "5", ""},
        {"CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = x", 2160, "x", ""},
        {"CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 1 x", 2130, "x", R"("TARGET_OBJECT_TYPE")"},
        {"CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE 5", 2150, "5", ""},
        {"CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE = x", 2160, "x", ""},
        {"CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE = 2 x", 2130, "x",
         R"("CONNECTION_KIND")"},
        {"CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE = 2 CONNECTION_KIND 4", 2150, "4",
         ""},
        {"CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE = 2 CONNECTION_KIND = x", 2180, "x",
         ""},
        {"CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE = 2 CONNECTION_KIND = 4 x", 2130,
         "x", R"("CONNECTION_TYPE")"},
        {"CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE = 2 CONNECTION_KIND = 4 "
         "CONNECTION_TYPE 5",
         2150, "5", ""},
        {"CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE = 2 CONNECTION_KIND = 4 "
         "CONNECTION_TYPE = x",
         2190, "x", ""},
    });
    for (const WrongToken& row : rows) {
        const std::string profile = std::string(row.profile) + "\n";
        if (row.expected.empty())
            ExpectEnd(profile, row.number, {row.token});
        else
            ExpectEnd(profile, row.number, {row.token, row.expected});
    }
}

TEST_F(ProfileParserTest, BehindAStepTheListDoesNotNameTheEndThoughItIsAccepted) {
    const std::string step(oneStep);
    ExpectEnd(step + " x\n", 2130, {"x", R"("SOURCE_OBJECT_TYPE", "TARGET_OBJECT_RULE")"});
    EXPECT_EQ(Parse(step + " END\n"), std::nullopt);
}

TEST_F(ProfileParserTest, AStepGoesOnWithOneRuleAtMost) {
    const std::string step(oneStep);
    ExpectEnd(step + " TARGET_OBJECT_RULE x\n", 2150, {"x"});
    ExpectEnd(step + " TARGET_OBJECT_RULE = 7\n", 2140, {"7"});
    ExpectEnd(step + " TARGET_OBJECT_RULE = B TARGET_OBJECT_RULE\n", 2130,
              {"TARGET_OBJECT_RULE", R"("SOURCE_OBJECT_TYPE", "END")"});
    EXPECT_EQ(Parse(step + " TARGET_OBJECT_RULE = B END\n"), std::nullopt);
}

TEST_F(ProfileParserTest, ANumberIsNoNameAndAKeywordNeither) {
    ExpectEnd("OBJECT_MAPPING 22 OBJECT_TYPE = 1 END\n", 2140, {"22"});
    ExpectEnd("OBJECT_MAPPING ENDPOINT OBJECT_TYPE = 1 END\n", 2140, {"END"});
}

TEST_F(ProfileParserTest, ARuleCutOffByTheEndOfTheFileLeavesNoTrace) {
    EXPECT_EQ(Parse("OBJECT_MAPPING A OBJECT_TYPE = 5 END OBJECT_MAPPING B OBJECT_TYPE = 6\n"), std::nullopt);
    EXPECT_EQ(Table(), "A: type 5 attribute []\n");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ProfileParserTest, WhatWasReadBeforeAFailureStays) {
    EXPECT_THAT(Parse("OBJECT_MAPPING A OBJECT_TYPE = 5 END x\n"), EndedRun(RunEnding::endedByFailure, 2130));
    EXPECT_EQ(Table(), "A: type 5 attribute []\n");
}

TEST_F(ProfileParserTest, ASecondObjectRuleOfANameWarnsInItsOwnSpellingAndTheFirstStays) {
    EXPECT_EQ(Parse("OBJECT_MAPPING Role OBJECT_TYPE = 78 END OBJECT_MAPPING rOLE OBJECT_TYPE = 1 END\n"
                    "OBJECT_MAPPING C OBJECT_TYPE = 9 END\n"),
              std::nullopt);
    EXPECT_THAT(Boxes(), ElementsAre(WarningBox(2110, parser, TestText(2110, {"rOLE"}))));
    EXPECT_EQ(Table(), "Role: type 78 attribute []\nC: type 9 attribute []\n");
    EXPECT_EQ(gBlock.gFailureContext, "");
}

TEST_F(ProfileParserTest, ASecondConnectionRuleOfANameWarnsChainedOrNot) {
    const std::string step(oneStep);
    EXPECT_EQ(Parse(step + " END " + step + " END " + step + " TARGET_OBJECT_RULE = B END\n"), std::nullopt);
    EXPECT_THAT(Boxes(), ElementsAre(WarningBox(2110, parser, TestText(2110, {"A"})),
                                     WarningBox(2110, parser, TestText(2110, {"A"}))));
    EXPECT_EQ(Table(), "A: attribute [] step 1,4,3,2,[]\n");
}

TEST_F(ProfileParserTest, ASecondAttributeRuleOfANameIsAnUnknownFailure) {
    EXPECT_THAT(
        Parse("ATTRIBUTE_MAPPING A ATTRIBUTE_TYPE = 1 END ATTRIBUTE_MAPPING a ATTRIBUTE_TYPE = 2 END\n"),
        EndedRun(RunEnding::unknownFailure, 457));
    ASSERT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(Table(), "A: attribute [1]\n");
}

TEST_F(ProfileParserTest, AnAttributeRuleMayTakeTheNameOfNoOtherSort) {
    EXPECT_THAT(Parse("OBJECT_MAPPING A OBJECT_TYPE = 1 END ATTRIBUTE_MAPPING a ATTRIBUTE_TYPE = 2 END\n"),
                EndedRun(RunEnding::unknownFailure, 457));
    EXPECT_EQ(Parse("ATTRIBUTE_MAPPING A ATTRIBUTE_TYPE = 2 END OBJECT_MAPPING a OBJECT_TYPE = 1 END\n"),
              std::nullopt);
}

TEST_F(ProfileParserTest, ANumberBeyond32BitsEndsTheRunAsItIsRead) {
    EXPECT_EQ(Parse("OBJECT_MAPPING A OBJECT_TYPE = -2147483648 OBJECT_TYPE = 2147483647 END\n"),
              std::nullopt);
    EXPECT_THAT(Parse("OBJECT_MAPPING A OBJECT_TYPE = 2147483648 END\n"),
                EndedRun(RunEnding::unknownFailure, 6));
    for (int i = 0; i < 4; ++i) {
        std::string step(oneStep);
        std::size_t at = 0;
        for (int skipped = 0; skipped <= i; ++skipped) at = step.find("= ", at) + 2;
        step.replace(at, 1, "99999999999");
        EXPECT_THAT(Parse(step + " END\n"), EndedRun(RunEnding::unknownFailure, 6)) << step;
    }
}

TEST_F(ProfileParserTest, AnAttributeIsKeptAsTextAndConvertedWhereItIsRead) {
    EXPECT_EQ(
        Parse("ATTRIBUTE_MAPPING A ATTRIBUTE_TYPE = 9.5 END ATTRIBUTE_MAPPING B ATTRIBUTE_TYPE = 1e2 END\n"
              "ATTRIBUTE_MAPPING C ATTRIBUTE_TYPE = 99999999999 END\n"),
        std::nullopt);
    EXPECT_EQ(gBlock.gColMappingRule.Item("A")->AttributeMapping, "9.5");
    EXPECT_EQ(AttributeNumber(*gBlock.gColMappingRule.Item("A")), 10);
    EXPECT_EQ(AttributeNumber(*gBlock.gColMappingRule.Item("B")), 100);
    EXPECT_THROW(AttributeNumber(*gBlock.gColMappingRule.Item("C")), Failure);
}

TEST_F(ProfileParserTest, TypesMayHaveAFractionOrAnExponent) {
    EXPECT_EQ(Parse("OBJECT_MAPPING A OBJECT_TYPE = 9.5 OBJECT_TYPE = 8.5 OBJECT_TYPE = 1e2 END\n"),
              std::nullopt);
    EXPECT_EQ(Table(), "A: type 10 type 8 type 100 attribute []\n");
}

TEST_F(ProfileParserTest, AnyDirectionIsTakenHere) {
    EXPECT_EQ(Parse("CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 1 TARGET_OBJECT_TYPE = 2 CONNECTION_KIND = 3\n"
                    "CONNECTION_TYPE = 3 TARGET_OBJECT_RULE = NO_SUCH_RULE END\n"),
              std::nullopt);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ProfileParserTest, WithoutAProfileTheDefaultRulesCount) {
    EXPECT_EQ(RunIn("test.Caller",
                    [](Frame&) {
                        gBlock.gIOHandler->ParseMappingFile();
                    }),
              std::nullopt);
    EXPECT_EQ(gBlock.gColMappingRule.Count(), 85);
    EXPECT_FALSE(gBlock.gIOHandler->MappingProfileFound);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ProfileParserTest, AnEmptyProfileWarnsAndTheDefaultRulesCount) {
    EXPECT_EQ(Parse(""), std::nullopt);
    EXPECT_THAT(Boxes(), ElementsAre(WarningBox(2210, parser, TestText(2210))));
    EXPECT_EQ(gBlock.gColMappingRule.Count(), 85);
    EXPECT_TRUE(gBlock.gIOHandler->MappingProfileFound);
}

TEST_F(ProfileParserTest, AProfileOfBlanksIsATableWithoutRulesThatFailsAtTheFirstLookup) {
    for (const std::string profile : {" ", "\r\n", " \t\r\n \n"}) {
        EXPECT_EQ(Parse(profile), std::nullopt);
        EXPECT_TRUE(gBlock.gColMappingRule.IsEmpty());
    }
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_THAT(RunIn("test.Lookup",
                      [](Frame& frame) {
                          FetchRule(frame, "PROCESS_CATEGORY_ObjectName");
                      }),
                EndedRun(RunEnding::endedByFailure, 2100));
}

TEST_F(ProfileParserTest, AProfileIsNoOverlay) {
    EXPECT_EQ(Parse("OBJECT_MAPPING ACTIVITY OBJECT_TYPE = 22 END\n"), std::nullopt);
    EXPECT_EQ(gBlock.gColMappingRule.Count(), 1);
}

TEST_F(ProfileParserTest, LineEndsAreOfAnyKindAndTheLastLineNeedsNone) {
    for (const std::string end : {"\r\n", "\r", "\n"}) {
        const std::string profile =
            "OBJECT_MAPPING" + end + "A" + end + "OBJECT_TYPE=5" + end + "OBJECT_TYPE=6 END";
        EXPECT_EQ(Parse(profile), std::nullopt);
        EXPECT_EQ(Table(), "A: type 5 type 6 attribute []\n");
    }
    EXPECT_THAT(Parse("OBJECT_MAPPING A OBJECT_TYPE = word"), EndedRun(RunEnding::endedByFailure, 2160));
}

TEST_F(ProfileParserTest, AProfileElsewhereIsTakenInPlaceOfTheOneBesideTheProgram) {
    fileSystem_.Put("/site/ours.prf", "OBJECT_MAPPING OURS OBJECT_TYPE = 5 END\n");
    platform_.mappingProfile = "/site/ours.prf";
    EXPECT_EQ(Parse("OBJECT_MAPPING BESIDE OBJECT_TYPE = 5 END\n"), std::nullopt);
    EXPECT_EQ(Table(), "OURS: type 5 attribute []\n");
    EXPECT_TRUE(gBlock.gIOHandler->MappingProfileFound);
}

TEST_F(ProfileParserTest, WithAnEmptyNameNoProfileIsLookedFor) {
    platform_.mappingProfile = "";
    EXPECT_EQ(Parse("OBJECT_MAPPING BESIDE OBJECT_TYPE = 5 END\n"), std::nullopt);
    EXPECT_EQ(gBlock.gColMappingRule.Count(), 85);
    EXPECT_FALSE(gBlock.gIOHandler->MappingProfileFound);
}

}  // namespace
}  // namespace wxbrg
