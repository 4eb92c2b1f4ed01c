#include "mapping/DefaultMappingRules.h"

#include <gmock/gmock.h>

#include "mapping/RuleTable.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DefaultMappingRulesTest : public CoreTest {
  protected:
    /// The types of a rule, as "22, 18".
    static std::string Types(std::string_view name) {
        std::string text;
        for (const clsObjectMapping& mapping : gBlock.gColMappingRule.Item(name)->ColObjectMapping)
            text += (text.empty() ? "" : ", ") + std::to_string(mapping.ObjTypeNum);
        return text;
    }
    /// The steps of a rule, as "22, 4, 118, 22; 22, 4, 44, 18 > EVENT": source, direction, connection,
    /// target, and the rule that goes on.
    static std::string Steps(std::string_view name) {
        std::string text;
        for (const clsConnectionMapping& step : gBlock.gColMappingRule.Item(name)->ColConnectionMapping) {
            text += (text.empty() ? "" : "; ") + std::to_string(step.SourceObjTypeNum) + ", " +
                    std::to_string(step.CnxKind) + ", " + std::to_string(step.CnxTypeNum) + ", " +
                    std::to_string(step.TargetObjTypeNum);
            if (step.IsChainedConnection()) text += " > " + step.TargetObjRule;
        }
        return text;
    }
};

TEST_F(DefaultMappingRulesTest, ThereAre85RulesWith108StepsOfWhich15AreChained) {
    EXPECT_EQ(gBlock.gColMappingRule.Count(), 85);
    std::size_t types = 0;
    std::size_t attributes = 0;
    std::size_t connections = 0;
    std::int32_t steps = 0;
    std::int32_t chained = 0;
    for (const Ref<clsMappingRule>& rule : gBlock.gColMappingRule) {
        types += rule->ColObjectMapping.IsEmpty() ? 0 : 1;
        attributes += rule->AttributeMapping.empty() ? 0 : 1;
        connections += rule->ColConnectionMapping.IsEmpty() ? 0 : 1;
        steps += rule->ColConnectionMapping.Count();
        for (const clsConnectionMapping& step : rule->ColConnectionMapping)
            chained += step.IsChainedConnection() ? 1 : 0;
    }
    EXPECT_EQ(types, 8U);
    EXPECT_EQ(attributes, 44U);
    EXPECT_EQ(connections, 33U);
    EXPECT_EQ(steps, 108);
    EXPECT_EQ(chained, 15);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(DefaultMappingRulesTest, NamesThatNoLogicReadsAreNotAmongThem) {
    EXPECT_EQ(gBlock.gColMappingRule.Find("ACTIVITY_COORDINATOR_OF_ROLE"), nullptr);
    EXPECT_EQ(gBlock.gColMappingRule.Find("CONTROL_CONNECTOR_OTHER_SETTINGS"), nullptr);
}

TEST_F(DefaultMappingRulesTest, ARuleIsFoundInAnyCase) {
    EXPECT_EQ(gBlock.gColMappingRule.Item("activity_description")->Name, "ACTIVITY_DESCRIPTION");
    EXPECT_EQ(gBlock.gColMappingRule.Item("ACTIVITY_ACTIVITYNAME")->Name, "ACTIVITY_ActivityName");
}

TEST_F(DefaultMappingRulesTest, AnObjectRuleHasItsTypesAndNothingElse) {
    const Ref<clsMappingRule> activity = gBlock.gColMappingRule.Item("ACTIVITY");
    EXPECT_EQ(Types("ACTIVITY"), "22");
    EXPECT_EQ(activity->AttributeMapping, "");
    EXPECT_TRUE(activity->ColConnectionMapping.IsEmpty());
}

struct NamedRow {
    std::string_view rule;
    std::string_view content;
};

TEST_F(DefaultMappingRulesTest, ObjectRulesNameTheirTypesInTheOrderOfSearch) {
    constexpr auto rows =
        std::to_array<NamedRow>({{"ACTIVITY", "22"},
                                 {"CONTROL_OBJECT", "18"},
                                 {"DATA_OBJECT", "17, 11, 19, 14, 111, 26"},
                                 {"ORGANIZATION", "43"},
                                 {"PERSON", "46"},
                                 {"PROGRAM", "6, 105, 37"},
                                 {"PROCESS", "13, 50, 134, 154, 140, 14, 103, 100, 138, 18, 51, 124, 12"},
                                 {"ROLE", "78"}});
    for (const NamedRow& row : rows) EXPECT_EQ(Types(row.rule), row.content) << row.rule;
}

struct AttributeGroup {
    std::string_view attribute;
    std::vector<std::string_view> rules;
};

TEST_F(DefaultMappingRulesTest, AttributeRulesHoldTheirNumberAsText) {
    const std::vector<AttributeGroup> groups = {
        {"-1",
         {"ACTIVITY_ActivityName", "DATA_MEMBER_MemberName", "DATA_STRUCTURE_ObjectName",
          "ORGANIZATION_ObjectName", "PERSON_LAST_NAME", "PROCESS_ProcessName", "PROCESS_CATEGORY_ObjectName",
          "PROGRAM_ObjectName", "ROLE_ObjectName"}},
        {"8",
         {"ACTIVITY_DOCUMENTATION", "DATA_MEMBER_DOCUMENTATION", "DATA_STRUCTURE_DOCUMENTATION",
          "PROCESS_DOCUMENTATION", "PROCESS_CATEGORY_DOCUMENTATION", "PROGRAM_DOCUMENTATION"}},
        {"9",
         {"ACTIVITY_DESCRIPTION", "CONTROL_CONNECTOR_DESCRIPTION", "DATA_CONNECTOR_DESCRIPTION",
          "DATA_MEMBER_DESCRIPTION", "DATA_STRUCTURE_DESCRIPTION", "ORGANIZATION_DESCRIPTION",
          "PERSON_DESCRIPTION", "PROCESS_DESCRIPTION", "PROCESS_CATEGORY_DESCRIPTION", "PROGRAM_DESCRIPTION",
          "ROLE_DESCRIPTION"}},
        {"123", {"DOMAINTYPE_DOM_TYPE"}},
        {"245", {"PERSON_PHONE"}},
        {"246", {"PERSON_SECOND_PHONE"}},
        {"494", {"DATA_MEMBER_TYPE"}},
        {"497", {"EVENT_COMPARE_OPERATOR"}},
        {"498", {"EVENT_COMPARE_VALUE"}},
        {"509", {"PERSON_PersonName"}},
        {"985",
         {"ACTIVITY_START_CONDITION", "CONTROL_CONNECTOR_CONDITION", "DATA_MEMBER_SIZE_OF_ARRAY",
          "PERSON_OTHER_SETTINGS", "PROCESS_OTHER_SETTINGS", "PROGRAM_OTHER_SETTINGS"}},
        {"986", {"ACTIVITY_EXIT_CONDITION"}},
        {"1207", {"ACTIVITY_START_MODE"}},
        {"1208", {"ACTIVITY_EXIT_MODE"}},
        {"1209", {"ACTIVITY_OTHER_SETTINGS"}},
        {"1243", {"PERSON_FIRST_NAME"}},
    };
    for (const AttributeGroup& row : groups)
        for (const std::string_view rule : row.rules)
            EXPECT_EQ(gBlock.gColMappingRule.Item(rule)->AttributeMapping, row.attribute) << rule;
}

constexpr std::string_view programData =
    "6, 2, 317, 17; 6, 2, 317, 11; 6, 4, 125, 17; 6, 4, 125, 11; 6, 4, 125, 19; 6, 4, 125, 14; "
    "37, 4, 125, 17; 37, 4, 125, 11; 37, 4, 125, 19; 37, 4, 125, 14; "
    "105, 4, 60, 17; 105, 4, 60, 11; 105, 4, 60, 19; 105, 4, 60, 14";

constexpr auto stepRules = std::to_array<NamedRow>(
    {{"ACTIVITY_PROGRAM", "22, 2, 221, 6; 22, 2, 147, 105; 22, 2, 221, 37"},
     {"ACTIVITY_PERSON", "22, 2, 65, 46; 22, 2, 10, 46"},
     {"ACTIVITY_MEMBER_OF_ROLE", "22, 2, 218, 78; 22, 2, 220, 78"},
     {"ACTIVITY_ORGANIZATION", "22, 2, 65, 43; 22, 2, 10, 43"},
     {"DATA_MEMBER_HAS_DOMAINTYPE", "19, 4, 121, 20; 19, 4, 121, 185 > UNIT_NUM_HAS_DOMAINTYPE"},
     {"UNIT_NUM_HAS_DOMAINTYPE", "185, 4, 121, 20"},
     {"DATA_STRUCTURE_MEMBER",
      "17, 2, 78, 19; 17, 2, 80, 19; 17, 2, 79, 19; 11, 2, 78, 19; 11, 2, 80, 19; 11, 2, 79, 19; "
      "111, 2, 269, 19; 17, 2, 270, 111; 11, 2, 270, 111; 14, 4, 85, 17; 14, 4, 85, 111; 14, 4, 85, 14"},
     {"ORGANIZATION_MANAGER",
      "43, 2, 395, 46; 43, 2, 9, 45 > POSITION_IS_OCCUPIED_BY_PERSON; "
      "43, 2, 8, 45 > POSITION_IS_OCCUPIED_BY_PERSON"},
     {"ORGANIZATION_PARENT_ORGANIZATION",
      "43, 2, 9, 43; 43, 2, 8, 43; 43, 2, 211, 43; 43, 2, 3, 43; 43, 2, 7, 43"},
     {"ORGANIZATION_RELATED_PERSON", "43, 2, 6, 46"},
     {"PERSON_SUBSTITUTE", "46, 2, 318, 46"},
     {"PERSON_RELATED_ROLE", "46, 4, 61, 78"},
     {"PERSON_RELATED_ORGANIZATION", "46, 4, 6, 43"},
     {"ROLE_RELATED_PERSON", "78, 2, 61, 46"},
     {"ROLE_COORDINATOR", "78, 2, 395, 46"},
     {"ATTRIBUTETYPEGROUP_SENDS_DATA_TO_FUNCTION", "111, 4, 49, 22"},
     {"CLUSTER_SENDS_DATA_TO_FUNCTION", "14, 4, 49, 22"},
     {"ENTITY_TYPE_SENDS_DATA_TO_FUNCTION", "17, 4, 49, 22"},
     {"ERM_ATTRIBUTE_SENDS_DATA_TO_FUNCTION", "19, 4, 49, 22"},
     {"EVENT_IS_COMPARED_WITH_DATA",
      "18, 2, 75, 19; 18, 2, 319, 19; 18, 2, 322, 19; 18, 2, 75, 17; 18, 2, 75, 11; 18, 2, 75, 14"},
     {"EVENT_RECEIVES_CONTROL_FROM_RULE", "18, 2, 117, 50"},
     {"EVENT_SENDS_CONTROL_TO_FUNCTION", "18, 4, 43, 22; 18, 4, 48, 50 > RULE_SENDS_CONTROL_TO_FUNCTION"},
     {"FUNCTION_RECEIVES_CONTROL_FROM_RULE",
      "22, 2, 43, 50; 22, 2, 43, 18 > EVENT_RECEIVES_CONTROL_FROM_RULE"},
     {"FUNCTION_RECEIVES_DATA",
      "22, 2, 49, 17; 22, 2, 49, 11; 22, 2, 49, 19; 22, 2, 49, 14; 22, 2, 49, 111; 22, 2, 408, 26"},
     {"FUNCTION_SENDS_CONTROL_TO_FUNCTION",
      "22, 4, 118, 22; 22, 4, 44, 18 > EVENT_SENDS_CONTROL_TO_FUNCTION; "
      "22, 4, 116, 50 > RULE_SENDS_CONTROL_TO_FUNCTION"},
     {"FUNCTION_SENDS_DATA",
      "22, 4, 50, 17; 22, 4, 50, 11; 22, 4, 50, 19; 22, 4, 50, 14; 22, 4, 50, 111; 22, 4, 407, 26"},
     {"FUNCTION_SENDS_DATA_TO_FUNCTION",
      "22, 4, 50, 17 > ENTITY_TYPE_SENDS_DATA_TO_FUNCTION; "
      "22, 4, 50, 11 > RELATION_TYPE_SENDS_DATA_TO_FUNCTION; "
      "22, 4, 50, 19 > ERM_ATTRIBUTE_SENDS_DATA_TO_FUNCTION; "
      "22, 4, 50, 14 > CLUSTER_SENDS_DATA_TO_FUNCTION; "
      "22, 4, 50, 111 > ATTRIBUTETYPEGROUP_SENDS_DATA_TO_FUNCTION; "
      "22, 4, 407, 26 > INFO_FLOW_SENDS_DATA_TO_FUNCTION"},
     {"INFO_FLOW_SENDS_DATA_TO_FUNCTION", "26, 4, 408, 22"},
     {"POSITION_IS_OCCUPIED_BY_PERSON", "45, 2, 210, 46"},
     {"PROGRAM_RECEIVES_DATA", programData},
     {"PROGRAM_SENDS_DATA", programData},
     {"RELATION_TYPE_SENDS_DATA_TO_FUNCTION", "11, 4, 49, 22"},
     {"RULE_SENDS_CONTROL_TO_FUNCTION",
      "50, 4, 43, 22; 50, 4, 117, 18 > EVENT_SENDS_CONTROL_TO_FUNCTION; "
      "50, 4, 54, 50 > RULE_SENDS_CONTROL_TO_FUNCTION"}});

TEST_F(DefaultMappingRulesTest, ConnectionRulesHoldTheirStepsInTheOrderOfSearch) {
    EXPECT_EQ(stepRules.size(), 33U);
    for (const NamedRow& row : stepRules) EXPECT_EQ(Steps(row.rule), row.content) << row.rule;
}

TEST_F(DefaultMappingRulesTest, ANameThatIsTakenBringsAWarningAndTheFirstRuleStays) {
    gBlock.gColMappingRule = {};
    NewTypeRule("activity", {4711});
    CreateDefaultMappingRules();
    EXPECT_THAT(Boxes(), ElementsAre("E2110 in modMappingRule.CreateDefaultMappingRules: ACTIVITY"));
    EXPECT_EQ(gBlock.gColMappingRule.Count(), 85);
    EXPECT_EQ(Types("ACTIVITY"), "4711");
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
}

TEST(ConnectionMapping, IsChainedExactlyWhenARuleIsNamed) {
    clsConnectionMapping step;
    EXPECT_FALSE(step.IsChainedConnection());
    step.TargetObjRule = " ";
    EXPECT_TRUE(step.IsChainedConnection());
    step.TargetObjRule = "RULE";
    EXPECT_TRUE(step.IsChainedConnection());
}

TEST(MappingRule, BeginsEmpty) {
    const clsMappingRule rule;
    EXPECT_EQ(rule.Name, "");
    EXPECT_EQ(rule.AttributeMapping, "");
    EXPECT_TRUE(rule.ColObjectMapping.IsEmpty());
    EXPECT_TRUE(rule.ColConnectionMapping.IsEmpty());
}

}  // namespace
}  // namespace wxbrg::test
