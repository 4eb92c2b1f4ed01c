// The connection with ARIS and the models that the command line selects.

#include <gmock/gmock.h>

#include <deque>
#include <string>
#include <vector>

#include "run/clsARIS_Interface.h"
#include "run/modGlobals.h"
#include "tests/run/ArisMocks.h"
#include "tests/run/RunFixture.h"

namespace wxbrg {
namespace {

using testing::_;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::NiceMock;
using testing::Return;
using testing::Throw;

constexpr std::string_view procedure = "clsARIS_Interface.RetrieveSelectedARISModels";

class SelectedModelsTest : public RunFixture {
  protected:
    SelectedModelsTest() {
        gBlock.gAutomation = &automation_;
        gBlock.gLocale = 1033;
        ON_CALL(automation_, CreateObject).WillByDefault(Return(ARISApplication(&application_)));
        ON_CALL(application_, GetComponent).WillByDefault(Return(ARISReportComponent(&component_)));
        ON_CALL(component_, OpenDatabase).WillByDefault(Return(ARISDatabase(&database_)));
    }

    /// From now on the database has models of this name, in this order, under any type.
    void Have(const std::string& name, const std::vector<std::string>& guids) {
        std::vector<ARISModel> found;
        for (const std::string& guid : guids) found.push_back(&models_.emplace_back(guid));
        ON_CALL(database_, FindModels(_, _, _, _, std::string_view(name), _))
            .WillByDefault(Return(ARISModelList(std::move(found))));
    }

    static std::optional<RunEnd> Retrieve() {
        return RunIn("test.P", [](Frame&) {
            gBlock.gARISInterface->RetrieveSelectedARISModels();
        });
    }
    static std::optional<RunEnd> Retrieve(const std::string& selection) {
        gBlock.gARISInterface->sSelection = selection;
        return Retrieve();
    }
    static std::vector<std::string> SelectedGuids() {
        std::vector<std::string> guids;
        for (const ARISModel& model : gBlock.gARISInterface->ColSelectedModels)
            guids.emplace_back(model->Guid());
        return guids;
    }
    /// Retrieves a selection that ends the run with 2020 about `item`.
    void ExpectBadItem(const std::string& selection, std::string_view item) {
        EXPECT_THAT(Retrieve(selection), EndedRun(RunEnding::endedByFailure, 2020));
        EXPECT_THAT(Boxes(), ElementsAre(FailureBox(2020, procedure, TestText(2020, {item}))));
    }

    std::deque<SelectableModel> models_;
    NiceMock<MockDatabase> database_;
    NiceMock<MockReportComponent> component_;
    NiceMock<MockApplication> application_;
    NiceMock<MockAutomation> automation_;
};

TEST_F(SelectedModelsTest, StartsArisAndOpensTheDatabaseOfTheCommandLine) {
    Have("Order", {"g1"});
    gBlock.gARISInterface->sServer = "host";
    gBlock.gARISInterface->sDatabase = "Orders";
    gBlock.gARISInterface->sRegistry = "reg";
    gBlock.gARISInterface->sUser = "anna";
    EXPECT_CALL(automation_, CreateObject(std::string_view("ARIS.Application.5.0")));
    EXPECT_CALL(application_, GetComponent(std::string_view("Report")));
    EXPECT_CALL(component_,
                OpenDatabase(std::string_view("host"), std::string_view("Orders"), std::string_view("reg"),
                             std::string_view("anna"), std::string_view("")));
    EXPECT_EQ(Retrieve("g1,Order,13"), std::nullopt);
    EXPECT_EQ(gBlock.gARISInterface->oApplication.Get(), &application_);
    EXPECT_EQ(gBlock.gARISInterface->oReportComponent.Get(), &component_);
    EXPECT_EQ(gBlock.gARISInterface->Database.Get(), &database_);
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(SelectedModelsTest, AsksForEachItemsModelsByTypeLocaleAndName) {
    gBlock.gLocale = 1031;
    Have("Order, as we like it", {});
    Have("Order", {"g1"});
    EXPECT_CALL(database_, FindModels(1, 13, 1, 1031, std::string_view("Order"), 0));
    EXPECT_EQ(Retrieve("g1,Order,13"), std::nullopt);
    EXPECT_THAT(SelectedGuids(), ElementsAre("g1"));
    EXPECT_EQ(gBlock.gRunReport.modelsSelected, 1);
}

TEST_F(SelectedModelsTest, KeepsTheOrderOfTheCommandLine) {
    Have("A", {"ga"});
    Have("B", {"gb"});
    Have("C", {"gc"});
    EXPECT_EQ(Retrieve("gc,C,13;ga,A,13;gb,B,13"), std::nullopt);
    EXPECT_THAT(SelectedGuids(), ElementsAre("gc", "ga", "gb"));
    EXPECT_EQ(gBlock.gRunReport.modelsSelected, 3);
}

TEST_F(SelectedModelsTest, TellsModelsOfOneNameApartByTheirGuid) {
    Have("A", {"g1", "g2", "g3"});
    EXPECT_EQ(Retrieve("g2,A,13"), std::nullopt);
    EXPECT_THAT(SelectedGuids(), ElementsAre("g2"));
}

TEST_F(SelectedModelsTest, TakesTheFirstOfSeveralModelsWithTheGuid) {
    Have("A", {"g0", "g1", "g1"});
    EXPECT_EQ(Retrieve("g1,A,13"), std::nullopt);
    EXPECT_EQ(gBlock.gARISInterface->ColSelectedModels.Item("g1").Get(), &models_[1]);
    EXPECT_EQ(gBlock.gARISInterface->ColSelectedModels.Count(), 1);
}

TEST_F(SelectedModelsTest, AModelThatIsNoLongerThereIsPassedOverWithoutAWord) {
    Have("A", {"g1"});
    EXPECT_EQ(Retrieve("gone,Gone,13;g1,A,13;other,A,13"), std::nullopt);
    EXPECT_THAT(SelectedGuids(), ElementsAre("g1"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(SelectedModelsTest, AGuidThatDiffersInCaseIsAnotherModel) {
    Have("A", {"g1"});
    ExpectBadItem("G1,A,13", "G1,A,13");
}

TEST_F(SelectedModelsTest, WhereNoModelRemainsTheLastItemIsAtFault) {
    ExpectBadItem("gone,Gone,13;gone2,Gone,13", "gone2,Gone,13");
}

TEST_F(SelectedModelsTest, AnEmptySelectionIsWrongAndKeepsThePlaceholderOfItsItem) {
    ExpectBadItem("", "%1$s");
}

TEST_F(SelectedModelsTest, AnItemWithoutAGuidIsWrong) {
    ExpectBadItem(",A,13", ",A,13");
}

TEST_F(SelectedModelsTest, AnItemWithoutANameIsWrong) {
    ExpectBadItem("g1,,13", "g1,,13");
}

TEST_F(SelectedModelsTest, AnItemWithoutANumberForItsTypeIsWrong) {
    Have("A", {"g1"});
    ExpectBadItem("g1,A,EPC", "g1,A,EPC");
}

TEST_F(SelectedModelsTest, AnItemWithAnEmptyTypeIsWrong) {
    Have("A", {"g1"});
    ExpectBadItem("g1,A,", "g1,A,");
}

TEST_F(SelectedModelsTest, TheLastPartOfAShortItemStandsForThoseMissing) {
    Have("A", {"g1"});
    ExpectBadItem("g1,A", "g1,A");
    Have("13", {"g1"});
    EXPECT_EQ(Retrieve("g1,13"), std::nullopt);
    EXPECT_THAT(SelectedGuids(), ElementsAre("g1"));
}

TEST_F(SelectedModelsTest, AWrongItemEndsTheRunWhateverWasFoundBefore) {
    Have("A", {"g1"});
    EXPECT_CALL(database_, FindModels).Times(1);
    ExpectBadItem("g1,A,13;g2,,13;g3,A,13", "g2,,13");
    EXPECT_EQ(gBlock.gRunReport.modelsSelected, 0);
}

TEST_F(SelectedModelsTest, ASemicolonAtTheEndMakesAnEmptyItemThatIsWrong) {
    Have("A", {"g1"});
    ExpectBadItem("g1,A,13;", "%1$s");
}

TEST_F(SelectedModelsTest, TypesAreNumbersAsTheUserWritesThem) {
    Have("A", {"g1"});
    EXPECT_CALL(database_, FindModels(1, 13, 1, 1033, std::string_view("A"), 0)).Times(3);
    EXPECT_EQ(Retrieve("g1,A, 13 "), std::nullopt);
    gBlock.gARISInterface->ColSelectedModels = {};
    EXPECT_EQ(Retrieve("g1,A,1.3e1"), std::nullopt);
    gBlock.gARISInterface->ColSelectedModels = {};
    EXPECT_EQ(Retrieve("g1,A,+12.6"), std::nullopt);
}

TEST_F(SelectedModelsTest, ATypeBeyond32BitsOverflows) {
    EXPECT_THAT(Retrieve("g1,A,2147483648"), EndedRun(RunEnding::unknownFailure, 6));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(6, procedure, "overflow")));
}

TEST_F(SelectedModelsTest, AModelThatIsSelectedTwiceIsADuplicateKey) {
    Have("A", {"g1"});
    EXPECT_THAT(Retrieve("g1,A,13;g1,A,13"), EndedRun(RunEnding::unknownFailure, 457));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(457, procedure, "duplicate key")));
}

TEST_F(SelectedModelsTest, GuidsThatDifferInCaseAloneCollideAsKeys) {
    Have("A", {"g1", "G1"});
    EXPECT_THAT(Retrieve("g1,A,13;G1,A,13"), EndedRun(RunEnding::unknownFailure, 457));
}

TEST_F(SelectedModelsTest, WithoutAnApplicationTheRunEndsBeforeAnythingIsOpened) {
    EXPECT_CALL(automation_, CreateObject).WillOnce(Return(ARISApplication()));
    EXPECT_CALL(component_, OpenDatabase).Times(0);
    EXPECT_THAT(Retrieve("g1,A,13"), EndedRun(RunEnding::endedByFailure, 2010));
    EXPECT_THAT(Boxes(), ElementsAre(FailureBox(2010, procedure, TestText(2010))));
}

TEST_F(SelectedModelsTest, AnApplicationThatFailsToStartIsAnUnknownFailureInItsOwnWords) {
    EXPECT_CALL(automation_, CreateObject)
        .WillOnce(Throw(Failure::WithDescription(429, "no such component")));
    EXPECT_THAT(Retrieve("g1,A,13"), EndedRun(RunEnding::unknownFailure, 429));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(429, procedure, "no such component")));
}

TEST_F(SelectedModelsTest, AnAutomationNumberOfArisIsShownAsOverflow) {
    EXPECT_CALL(component_, OpenDatabase)
        .WillOnce(Throw(Failure::WithDescription(-2147220991, "wrong password")));
    EXPECT_THAT(Retrieve("g1,A,13"), EndedRun(RunEnding::unknownFailure, 6));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(6, procedure, "overflow")));
}

TEST_F(SelectedModelsTest, WithoutAReportComponentTheObjectIsNotSet) {
    EXPECT_CALL(application_, GetComponent).WillOnce(Return(ARISReportComponent()));
    EXPECT_THAT(Retrieve("g1,A,13"), EndedRun(RunEnding::unknownFailure, 91));
}

TEST_F(SelectedModelsTest, WithoutADatabaseTheObjectIsNotSet) {
    EXPECT_CALL(component_, OpenDatabase).WillOnce(Return(ARISDatabase()));
    EXPECT_THAT(Retrieve("g1,A,13"), EndedRun(RunEnding::unknownFailure, 91));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(91, procedure, "object not set")));
}

class HandedOverModelsTest : public SelectedModelsTest {
  protected:
    std::optional<RunEnd> HandOver(const std::vector<ARISModel>& models) {
        request_.selection = ExportSelection{};
        request_.selection->models = models;
        return Retrieve();
    }

    SelectableModel first_{"g;1,/x"};
    SelectableModel second_{"a"};
};

TEST_F(HandedOverModelsTest, AreSelectedAsTheyAreInTheirOrder) {
    EXPECT_CALL(component_, OpenDatabase);
    EXPECT_CALL(database_, FindModels).Times(0);
    EXPECT_EQ(HandOver({&first_, &second_}), std::nullopt);
    EXPECT_THAT(SelectedGuids(), ElementsAre("g;1,/x", "a"));
    EXPECT_EQ(gBlock.gARISInterface->ColSelectedModels.Item("g;1,/x").Get(), &first_);
    EXPECT_EQ(gBlock.gRunReport.modelsSelected, 2);
}

TEST_F(HandedOverModelsTest, LeaveTheSelectionOfTheCommandLineUnread) {
    gBlock.gARISInterface->sSelection = "wrong";
    EXPECT_EQ(HandOver({&second_}), std::nullopt);
    EXPECT_THAT(SelectedGuids(), ElementsAre("a"));
}

TEST_F(HandedOverModelsTest, EndTheRunWhenThereIsNone) {
    EXPECT_THAT(HandOver({}), EndedRun(RunEnding::endedByFailure, 2020));
    EXPECT_THAT(Boxes(), ElementsAre(FailureBox(2020, procedure, TestText(2020))));
}

TEST_F(HandedOverModelsTest, AreADuplicateKeyWhenOneStandsThereTwice) {
    EXPECT_THAT(HandOver({&second_, &first_, &second_}), EndedRun(RunEnding::unknownFailure, 457));
}

}  // namespace
}  // namespace wxbrg
