#include "tests/cases/runner/Lists.h"

#include <gmock/gmock.h>

#include <set>
#include <stdexcept>
#include <utility>

#include "tests/cases/runner/Case.h"

namespace wxbrg::cases {
namespace {

TEST(Lists, EachPendingCaseIsThereAndStandsOnce) {
    std::set<std::string> names;
    for (const PendingCase& pending : ReadPending()) {
        EXPECT_NE(FindCase(pending.name), nullptr) << pending.name;
        EXPECT_TRUE(names.insert(pending.name).second) << pending.name << " stands twice";
    }
}

TEST(Lists, EachFactIsExcusedOrShownByOneCaseThatIsThere) {
    std::set<std::pair<std::string, std::string>> facts;
    for (const Excuse& excuse : ReadExcuses())
        EXPECT_TRUE(facts.emplace(excuse.kind, excuse.fact).second) << excuse.fact << " stands twice";
    for (const ShownFact& shown : ReadShown()) {
        EXPECT_TRUE(facts.emplace(shown.kind, shown.fact).second) << shown.fact << " stands twice";
        EXPECT_NE(FindCase(shown.caseName), nullptr) << shown.caseName;
        EXPECT_THAT(shown.kind, testing::AnyOf(factKind::rule, factKind::option));
    }
}

TEST(Lists, CasesHaveNamesOfTheirOwn) {
    std::set<std::string> names;
    for (const Case& each : AllCases())
        EXPECT_TRUE(names.insert(each.name).second) << each.name << " is the name of two cases";
}

TEST(Lists, ARangeOfMessageNumbersIsAnExcuseForEach) {
    std::vector<std::string> captions;
    for (const Excuse& excuse : ReadExcuses())
        if (excuse.kind == factKind::message && excuse.fact.starts_with("5000"))
            captions.push_back(excuse.fact);
    EXPECT_THAT(captions, testing::ElementsAre("50000", "50001", "50002", "50003", "50004", "50005", "50006",
                                               "50007", "50008", "50009"));
}

TEST(Lists, AListIsReadInColumnsBetweenTabs) {
    EXPECT_THAT(ParseList("list", "# comment\n\nname\t\ta reason \r\nother\tone\n", 2),
                testing::ElementsAre(ListLine{"name", "a reason"}, ListLine{"other", "one"}));
}

TEST(Lists, ALineOfOtherColumnsIsReportedWithItsPlace) {
    try {
        ParseList("list", "# comment\na\tb\na b\n", 2);
        FAIL() << "nothing was thrown";
    } catch (const std::invalid_argument& error) {
        EXPECT_STREQ(error.what(), "list:3 has not 2 columns with tabs between them");
    }
}

}  // namespace
}  // namespace wxbrg::cases
