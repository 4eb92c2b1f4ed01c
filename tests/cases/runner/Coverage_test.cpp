#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>

#include "tests/cases/runner/Case.h"
#include "tests/cases/runner/Facts.h"
#include "tests/cases/runner/Lists.h"
#include "tests/cases/runner/Variation.h"

namespace wxbrg::cases {
namespace {

/// Fails for each fact that is neither shown nor excused, and for each excuse without need.
void ExpectShownOrExcused(const char* kind, const Facts& facts, const Facts& shown) {
    Facts excused;
    for (const Excuse& excuse : ReadExcuses())
        if (excuse.kind == kind) excused.insert(excuse.fact);
    for (const std::string& fact : facts) {
        if (shown.contains(fact))
            EXPECT_FALSE(excused.contains(fact)) << kind << " " << fact << " is excused and shown";
        else
            EXPECT_TRUE(excused.contains(fact))
                << "No case shows the " << kind << " " << fact << ", and tests/cases/excuses has no reason.";
    }
    for (const std::string& fact : excused)
        EXPECT_TRUE(facts.contains(fact)) << "There is no " << kind << " " << fact << " to be excused.";
    for (const std::string& fact : shown)
        EXPECT_TRUE(facts.contains(fact)) << "There is no " << kind << " " << fact << " to be shown.";
}

Facts ListedAsShown(const char* kind) {
    Facts shown;
    for (const ShownFact& row : ReadShown())
        if (row.kind == kind && !IsPending(row.caseName)) shown.insert(row.fact);
    return shown;
}

/// What a replay leaves beside the stored options, which name what the test itself has changed.
Files ResultOf(ReplayOutcome outcome) {
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    outcome.files.erase(optionsName);
    return outcome.files;
}

TEST(Coverage, EveryMessageIsShown) {
    ExpectShownOrExcused(factKind::message, MessageNumbers(), ShownMessageNumbers());
}

TEST(Coverage, EveryRuleIsShown) {
    ExpectShownOrExcused(factKind::rule, RuleNames(), ListedAsShown(factKind::rule));
}

TEST(Coverage, EveryOptionIsShown) {
    ExpectShownOrExcused(factKind::option, OptionNames(), ListedAsShown(factKind::option));
}

TEST(Coverage, EveryKeywordOfTheDefinitionFileIsShown) {
    const Facts keywords = OutputKeywords();
    ExpectShownOrExcused(factKind::keyword, keywords, ShownKeywords(keywords));
}

TEST(Coverage, TheBuiltInRulesAsAProfileChangeNothingButTheHeader) {
    const Case& simple = *FindCase("model_becomes_a_process_with_activities_and_a_connector");
    Files expected = ExpectedFiles(simple);
    expected.erase(optionsName);
    const std::string builtIn = "*  Default mapping rules used ";
    std::string& definitions = expected.at("out.wpx");
    const std::size_t at = definitions.find(builtIn);
    ASSERT_NE(at, std::string::npos);
    definitions.replace(at, builtIn.size(), "*  Mapping rules taken from profile ");
    EXPECT_EQ(ResultOf(ReplayWith(simple, "profile.prf", BuiltInProfile(""))), expected);
}

TEST(Coverage, EachRuleListedAsShownMattersToItsCase) {
    std::map<std::string, Files> withAllRules;
    for (const ShownFact& row : ReadShown()) {
        if (row.kind != factKind::rule) continue;
        const Case& shown = *FindCase(row.caseName);
        ASSERT_FALSE(std::filesystem::exists(shown.folder / "profile.prf"))
            << row.caseName << " has a profile of its own, so it cannot show the built-in rule " << row.fact;
        if (!withAllRules.contains(row.caseName))
            withAllRules[row.caseName] = ResultOf(ReplayWith(shown, "profile.prf", BuiltInProfile("")));
        EXPECT_NE(ResultOf(ReplayWith(shown, "profile.prf", BuiltInProfile(row.fact))),
                  withAllRules[row.caseName])
            << row.caseName << " ends alike where the rule " << row.fact << " finds nothing.";
    }
}

TEST(Coverage, EachOptionListedAsShownMattersToItsCase) {
    for (const ShownFact& row : ReadShown()) {
        if (row.kind != factKind::option) continue;
        const Case& shown = *FindCase(row.caseName);
        Files expected = ExpectedFiles(shown);
        expected.erase(optionsName);
        const std::string options = ReadFile(shown.folder / "options");
        EXPECT_NE(ResultOf(ReplayWith(shown, "options", OptionsWithOther(options, row.fact))), expected)
            << row.caseName << " ends alike with another value of " << row.fact;
    }
}

}  // namespace
}  // namespace wxbrg::cases
