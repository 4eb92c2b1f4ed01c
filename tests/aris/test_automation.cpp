#include <gtest/gtest.h>

#include <filesystem>
#include <utility>

#include "aris/xml/XmlAutomation.h"
#include "tests/aris/OpenAml.h"

namespace wxbrg::test {

namespace {

ARISDatabase OpenWith(aris::Automation& automation, std::string_view database, std::string_view user = {}) {
    return automation.CreateObject(arisProgramId)
        ->GetComponent(arisReportComponent)
        ->OpenDatabase("server", database, "reg", user, "");
}

TEST(XmlAutomation, OpensTheFileOfTheDatabaseInItsFolder) {
    const TemporaryFolder folder;
    folder.Write("orders.aml", AmlOf({.databaseName = "Orders"}));
    folder.Write("staff.aml", AmlOf({.databaseName = "Staff"}));
    XmlAutomation automation(folder.Path().string(), {}, {});
    EXPECT_EQ(automation.Loaded(), nullptr);
    EXPECT_EQ(OpenWith(automation, "orders")->Name(english), "Orders");
    EXPECT_EQ(OpenWith(automation, "staff")->Name(english), "Staff");
}

TEST(XmlAutomation, KeepsWhatItHasOpened) {
    const TemporaryFolder folder;
    folder.Write("orders.aml", AmlOf({.databaseName = "Orders", .locales = {{1031, "Deutsch"}}}));
    folder.Write("staff.aml", AmlOf({.databaseName = "Staff", .locales = {{1033, "English"}}}));
    XmlAutomation automation(folder.Path().string(), {}, {});
    const ARISDatabase orders = OpenWith(automation, "orders");
    EXPECT_EQ(automation.Loaded()->Locales()[0].number, german);
    OpenWith(automation, "staff");
    EXPECT_EQ(automation.Loaded()->Locales()[0].number, english);
    XmlAutomation moved = std::move(automation);
    EXPECT_EQ(orders->Name(english), "Orders");
    EXPECT_EQ(moved.Loaded()->Locales()[0].number, english);
}

TEST(XmlAutomation, AnEmptyFolderIsTheWorkingDirectory) {
    const TemporaryFolder folder;
    folder.Write("orders.aml", AmlOf({.databaseName = "Orders"}));
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    XmlAutomation automation({}, {}, {});
    EXPECT_EQ(OpenWith(automation, "orders")->Name(english), "Orders");
    std::filesystem::current_path(before);
}

TEST(XmlAutomation, RunsUnderTheGivenUserElseTheExports) {
    const TemporaryFolder folder;
    folder.Write("orders.aml", AmlOf({.userName = "hazim"}));
    XmlAutomation automation(folder.Path().string(), {}, {});
    EXPECT_EQ(OpenWith(automation, "orders", "anna")->ActiveUser()->Name(english), "anna");
    EXPECT_EQ(OpenWith(automation, "orders")->ActiveUser()->Name(english), "hazim");
}

TEST(XmlAutomation, ADatabaseWithoutAFileIsNotFound) {
    const TemporaryFolder folder;
    XmlAutomation automation(folder.Path().string(), {}, {});
    try {
        OpenWith(automation, "none");
        ADD_FAILURE();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number, FailureKind::fileNotFound);
    }
    EXPECT_EQ(automation.Loaded(), nullptr);
}

TEST(XmlAutomation, OtherProgramsAndComponentsAreNotThere) {
    XmlAutomation automation({}, {}, {});
    EXPECT_FALSE(automation.CreateObject("Excel.Application"));
    EXPECT_FALSE(automation.CreateObject(arisProgramId)->GetComponent("Designer"));
}

TEST(XmlAutomation, ForAFileEveryDatabaseIsThatFile) {
    const TemporaryFolder folder;
    XmlAutomation automation =
        XmlAutomation::ForFile(folder.Write("repository.aml", AmlOf({.databaseName = "This"})));
    EXPECT_EQ(OpenWith(automation, "whatever")->Name(english), "This");
    EXPECT_EQ(OpenWith(automation, "")->Name(english), "This");
}

TEST(XmlAutomation, HandsTypesAndProgressOn) {
    const TemporaryFolder folder;
    RepositoryText content;
    content.root.models = {{.id = "M", .type = "MT_MINE", .name = "x"}};
    folder.Write("orders.aml", AmlOf(content));
    bool reported = false;
    XmlAutomation automation(folder.Path().string(), folder.Write("types.tsv", "MT\tMT_MINE\t13\tMine\n"),
                             [&](std::uint64_t, std::uint64_t) {
                                 reported = true;
                             });
    EXPECT_EQ(OpenWith(automation, "orders")->FindModels(1, 13, 1, english, "x", 0).Get(0)->Type(), "Mine");
    EXPECT_TRUE(reported);
}

TEST(CatalogueAutomation, OpensTheCatalogueUnderAnyDatabaseName) {
    OpenAml aml(RepositoryText{.databaseName = "This"});
    CatalogueAutomation automation(aml.Catalogue());
    EXPECT_EQ(OpenWith(automation, "another", "anna")->Name(english), "This");
    EXPECT_EQ(OpenWith(automation, "another", "anna")->ActiveUser()->Name(english), "anna");
    EXPECT_FALSE(automation.CreateObject("Excel.Application"));
}

}  // namespace

}  // namespace wxbrg::test
