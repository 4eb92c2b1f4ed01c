// The rule names that profiles are checked against are those of the program's own sources.

#include "mapping/ProfileNames.h"

#include <gmock/gmock.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include "mapping/ProfileTable.h"
#include "mapping/RuleTable.h"

namespace wxbrg {
namespace {

using testing::Contains;
using testing::IsSupersetOf;
using testing::Not;
using testing::UnorderedElementsAreArray;

using Names = std::set<std::string>;

/// The literals of the sources that ask for rules: not the default table, nor what deals with profiles.
Names LiteralsOfTheLogic() {
    Names literals;
    const std::regex literal(R"re("([A-Za-z_]+)")re");
    for (const std::string room : {"mapping", "data", "model", "output", "run"})
        for (const auto& entry : std::filesystem::directory_iterator(WXBRG_SOURCE_FOLDER "/" + room)) {
            const std::string name = entry.path().filename().string();
            if (!name.ends_with(".cpp") || name.starts_with("Profile")) continue;
            std::ifstream stream(entry.path());
            const std::string text{std::istreambuf_iterator<char>(stream), {}};
            for (std::sregex_iterator found(text.begin(), text.end(), literal), end; found != end; ++found)
                literals.insert((*found)[1]);
        }
    return literals;
}

Names AskedFor() {
    Names names;
    for (const std::string_view name : NamesAskedFor()) names.emplace(name);
    return names;
}

/// The built-in rules that the logic does not ask for by name.
Names OnlyGoneOnTo() {
    Names names;
    for (const clsMappingRule& rule : BuiltInRules()) names.insert(rule.Name);
    for (const std::string& name : AskedFor()) names.erase(name);
    return names;
}

TEST(ProfileNames, EveryNameThatCountsAsAskedForStandsInTheLogic) {
    EXPECT_EQ(AskedFor().size(), 73U);
    EXPECT_THAT(LiteralsOfTheLogic(), IsSupersetOf(AskedFor()));
}

TEST(ProfileNames, NoOtherBuiltInRuleStandsInTheLogic) {
    const Names literals = LiteralsOfTheLogic();
    EXPECT_EQ(OnlyGoneOnTo().size(), 12U);
    for (const std::string& name : OnlyGoneOnTo()) EXPECT_THAT(literals, Not(Contains(name)));
}

/// Words of the logic that look like a name of a rule and are none: kinds of objects in notes and in the
/// definition file, and parts of generated names.
constexpr std::array notRules{
    "CONTROL_CONNECTOR", "DATA_CONNECTOR",
    "DATA_MEMBER",       "DATA_MEMBERs",
    "DATA_STRUCTURE",    "DATA_STRUCTURE_",
    "DATA_STRUCTUREs",   "PROCESS_ACTIVITY",
    "PROCESS_CATEGORY",  "PROCESS_CATEGORYs",
    "PROGRAM_ACTIVITY",  "PROGRAMs",
    "PERSONs",           "ROLEs",
    "ORGANIZATIONs",
};

TEST(ProfileNames, EveryNameInTheLogicHasABuiltInRule) {
    const std::regex rule(
        "(ACTIVITY|CONTROL|DATA|DOMAINTYPE|EVENT|FUNCTION|ORGANIZATION|PERSON|PROCESS|PROGRAM|"
        "ROLE)_[A-Za-z_]+|[A-Z]+_[A-Z_]+_[A-Z_]+");
    for (const std::string& literal : LiteralsOfTheLogic())
        if (std::regex_match(literal, rule) && !std::count(notRules.begin(), notRules.end(), literal)) {
            EXPECT_TRUE(BuiltInSort(literal)) << literal;
        }
}

TEST(ProfileNames, NamesAreKnownInAnyCase) {
    EXPECT_EQ(BuiltInSort("activity"), RuleSort::object);
    EXPECT_EQ(BuiltInSort("ACTIVITY_ACTIVITYNAME"), RuleSort::attribute);
    EXPECT_EQ(BuiltInSort("Event_Sends_Control_To_Function"), RuleSort::connection);
    EXPECT_EQ(BuiltInSort("ACTIVITY_COORDINATOR_OF_ROLE"), std::nullopt);
    EXPECT_TRUE(IsIdleBuiltIn("data_connector_description"));
    EXPECT_FALSE(IsIdleBuiltIn("CONTROL_CONNECTOR_DESCRIPTION"));
}

TEST(ProfileNames, EachSortHasItsKeyword) {
    EXPECT_EQ(KeywordOf(RuleSort::object), "OBJECT_MAPPING");
    EXPECT_EQ(KeywordOf(RuleSort::attribute), "ATTRIBUTE_MAPPING");
    EXPECT_EQ(KeywordOf(RuleSort::connection), "CONNECTION_MAPPING");
}

}  // namespace
}  // namespace wxbrg
