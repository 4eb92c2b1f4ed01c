#include "cli/ModelChoice.h"

#include <gmock/gmock.h>

#include "cli/OpenRepository.h"
#include "cli/UsageError.h"
#include "tests/cli/FakeCatalogue.h"

namespace wxbrg::cli {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::ThrowsMessage;

constexpr std::int32_t english = 1033;
constexpr std::int32_t german = 1031;
constexpr std::int32_t processType = 13;
constexpr std::int32_t otherType = 1;

bool IsProcess(std::int32_t type) {
    return type == processType;
}

class ModelChoiceTest : public testing::Test {
  protected:
    void AddProcess(const std::string& guid, const std::string& name) {
        catalogue.Add(guid, processType, {{english, name}, {german, name + " (de)"}});
    }
    void AddOther(const std::string& guid, const std::string& name) {
        catalogue.Add(guid, otherType, {{english, name}});
    }
    std::vector<std::string> Choose(const ModelChoice& choice, std::int32_t locale = english) const {
        std::vector<std::string> guids;
        for (const ARISModel& model : ChooseModels(choice, catalogue, locale, IsProcess))
            guids.emplace_back(model->Guid());
        return guids;
    }
    template <class Matcher>
    void ExpectRefused(const ModelChoice& choice, const Matcher& text) const {
        EXPECT_THAT(
            [&] {
                Choose(choice);
            },
            ThrowsMessage<UsageError>(text));
    }

    FakeCatalogue catalogue;
};

TEST_F(ModelChoiceTest, TheOnlyProcessModelNeedsNoName) {
    AddOther("{o}", "Organization");
    AddProcess("{p}", "Orders");
    EXPECT_THAT(Choose({}), ElementsAre("{p}"));
}

TEST_F(ModelChoiceTest, SeveralProcessModelsAreListedToChooseFrom) {
    AddProcess("{p1}", "Orders");
    AddOther("{o}", "Organization");
    AddProcess("{p2}", "Returns\nin two lines");
    ExpectRefused({}, AllOf(HasSubstr("{p1}  Orders"), HasSubstr("{p2}  Returns in two lines"),
                            HasSubstr("--model"), HasSubstr("--all"), Not(HasSubstr("{o}"))));
}

TEST_F(ModelChoiceTest, ALongListIsCutWithACount) {
    for (int i = 0; i < 60; ++i) AddProcess("{p" + std::to_string(i) + "}", "Orders");
    ExpectRefused({}, AllOf(HasSubstr("{p49}"), Not(HasSubstr("{p50}")), HasSubstr("10 more")));
}

TEST_F(ModelChoiceTest, ARepositoryWithoutProcessModelIsRefused) {
    ExpectRefused({}, HasSubstr("no model at all"));
    AddOther("{o}", "Organization");
    ExpectRefused({}, HasSubstr("models --all"));
    ExpectRefused({{}, true}, HasSubstr("nothing to export"));
}

TEST_F(ModelChoiceTest, AllTakesTheProcessModelsInTheirOrder) {
    AddProcess("{p2}", "B");
    AddOther("{o}", "O");
    AddProcess("{p1}", "A");
    EXPECT_THAT(Choose({{}, true}), ElementsAre("{p2}", "{p1}"));
}

TEST_F(ModelChoiceTest, NamedModelsComeInTheOrderOfTheirNames) {
    AddProcess("{p1}", "A");
    AddProcess("{p2}", "B");
    EXPECT_THAT(Choose({{"B", "{p1}"}, false}), ElementsAre("{p2}", "{p1}"));
}

TEST_F(ModelChoiceTest, AModelNamedTwiceIsTakenOnce) {
    AddProcess("{p1}", "A");
    EXPECT_THAT(Choose({{"A", "{p1}", "A"}, false}), ElementsAre("{p1}"));
}

TEST_F(ModelChoiceTest, NamesAreThoseOfTheLanguage) {
    AddProcess("{p1}", "A");
    EXPECT_THAT(Choose({{"A (de)"}, false}, german), ElementsAre("{p1}"));
    ExpectRefused({{"A (de)"}, false}, HasSubstr("A (de)"));
}

TEST_F(ModelChoiceTest, ANameOfSeveralModelsIsRefusedWithTheirGuids) {
    AddProcess("{p1}", "A");
    AddProcess("{p2}", "A");
    AddProcess("{p3}", "B");
    ExpectRefused({{"A"}, false}, AllOf(HasSubstr("{p1}"), HasSubstr("{p2}"), Not(HasSubstr("{p3}"))));
    EXPECT_THAT(Choose({{"{p2}"}, false}), ElementsAre("{p2}"));
}

TEST_F(ModelChoiceTest, AGuidGoesBeforeAName) {
    AddProcess("A", "B");
    AddProcess("B", "C");
    EXPECT_THAT(Choose({{"B"}, false}), ElementsAre("B"));
}

TEST_F(ModelChoiceTest, GuidsCompareWithCase) {
    AddProcess("{ab}", "A");
    ExpectRefused({{"{AB}"}, false}, HasSubstr("{AB}"));
}

TEST_F(ModelChoiceTest, AnUnknownNameIsRefusedWithWhatThereIs) {
    AddProcess("{p1}", "A");
    ExpectRefused({{"X"}, false}, AllOf(HasSubstr("\"X\""), HasSubstr("{p1}  A")));
}

TEST_F(ModelChoiceTest, AModelOfAnotherTypeIsRefusedWithItsType) {
    AddProcess("{p1}", "A");
    AddOther("{o1}", "O");
    ExpectRefused({{"O"}, false}, AllOf(HasSubstr("(1)"), HasSubstr("no process type")));
    ExpectRefused({{"{o1}"}, false}, HasSubstr("no process type"));
}

TEST_F(ModelChoiceTest, AProcessModelGoesBeforeAnotherOfTheSameName) {
    AddOther("{o1}", "A");
    AddProcess("{p1}", "A");
    EXPECT_THAT(Choose({{"A"}, false}), ElementsAre("{p1}"));
}

TEST(ChooseLocale, TakesTheFirstWhereNoneIsWanted) {
    FakeCatalogue catalogue;
    catalogue.AddLocale(german, "German");
    catalogue.AddLocale(english, "");
    EXPECT_EQ(ChooseLocale(catalogue, std::nullopt), german);
    EXPECT_EQ(ChooseLocale(catalogue, english), english);
}

TEST(ChooseLocale, RefusesOneThatIsNotHeldAndListsThoseThatAre) {
    FakeCatalogue catalogue;
    catalogue.AddLocale(german, "German");
    catalogue.AddLocale(english, "");
    EXPECT_THAT(
        [&] {
            ChooseLocale(catalogue, 1036);
        },
        ThrowsMessage<UsageError>(
            AllOf(HasSubstr("1036"), HasSubstr("1031  German"), HasSubstr("\n  1033"))));
}

TEST(ChooseLocale, TakesTheUsersWordWhereTheExportNamesNone) {
    const FakeCatalogue catalogue;
    EXPECT_EQ(ChooseLocale(catalogue, 1036), 1036);
    EXPECT_THAT(
        [&] {
            ChooseLocale(catalogue, std::nullopt);
        },
        ThrowsMessage<UsageError>(HasSubstr("--locale")));
}

}  // namespace
}  // namespace wxbrg::cli
