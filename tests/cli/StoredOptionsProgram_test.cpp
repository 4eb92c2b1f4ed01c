// What the built program does with stored options that cannot be used.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/cli/ProgramFixture.h"

namespace wxbrg::cli {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class StoredOptionsProgram : public ProgramTest {
  protected:
    StoredOptionsProgram() { WriteExport("orders.aml", {{"{m1}", "New.orders"}}); }

    std::string Store() const { return (folder / "settings/wxbrg/registry.reg").string(); }
    void WriteStore(const std::string& values) const { folder.Write("settings/wxbrg/registry.reg", values); }
    /// A folder in place of the store.
    void BlockStore() const { std::filesystem::create_directories(Store()); }

    ProcessResult Export(const std::vector<std::string>& more = {}) const {
        std::vector<std::string> arguments{"export", "orders.aml", "-o", "result.wpx", "--quiet"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return Run(arguments);
    }
    ProcessResult Answer(const std::string& input) const {
        return Run({"/USR=me", "/DB=orders", "/SVR=host", "/REG=", "/SEL={m1},New.orders,13", "/LOC=1033"},
                   input);
    }
};

constexpr const char* namesStay =
    "REGEDIT4\n[HKEY_CURRENT_USER\\Software\\Quenby\\Tarnlight Workflow Aris Bridge\\CurrentVersion]\n"
    "\"ConvertNames\"=dword:00000000\n\"Language\"=\"ZZZ\"\n";

TEST_F(StoredOptionsProgram, AStoreThatCannotBeReadEndsEachCommandBeforeItDoesAnything) {
    BlockStore();
    folder.Write("site.prf", "");
    const std::vector<std::vector<std::string>> commands{{"export", "orders.aml", "-o", "result.wpx"},
                                                         {"models", "orders.aml"},
                                                         {"profile", "print"},
                                                         {"profile", "check", "site.prf"},
                                                         {"profile", "diff", "site.prf"},
                                                         {"options"},
                                                         {"options", "get", "ConvertNames"},
                                                         {"options", "set", "ConvertNames", "0"},
                                                         {"options", "reset"}};
    for (const std::vector<std::string>& command : commands) {
        const ProcessResult result = Run(command);
        EXPECT_EQ(result.status, 1) << testing::PrintToString(command);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, StartsWith("wxbrg: " + Store() + " is a folder, not a file. Move it away."));
        EXPECT_EQ(result.err.find("--no-stored-options") != std::string::npos, command[0] != "options");
    }
    EXPECT_FALSE(Exists("result.wpx"));
}

TEST_F(StoredOptionsProgram, APipeInPlaceOfTheStoreOrItsLockStopsNothing) {
    std::filesystem::create_directories(folder / "settings/wxbrg");
    ASSERT_EQ(mkfifo((Store() + ".lock").c_str(), S_IRWXU), 0);
    const ProcessResult set = Run({"options", "set", "ConvertNames", "0"});
    EXPECT_EQ(set.status, 1);
    EXPECT_THAT(set.err, HasSubstr("could not be stored: " + Store() + ".lock is no regular file"));
    ASSERT_EQ(mkfifo(Store().c_str(), S_IRWXU), 0);
    EXPECT_EQ(Export().status, 1);
}

TEST_F(StoredOptionsProgram, APathBeyondWhatTheSystemTakesEndsAtOnce) {
    std::string deep;
    for (int i = 0; i < 60'000; ++i) deep += "/a";
    environment["XDG_CONFIG_HOME"] = deep;
    const ProcessResult result = Run({"options", "set", "ConvertNames", "0"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("File name too long. Use a shorter name or path."));
    EXPECT_LT(result.err.size(), 1000U);
}

TEST_F(StoredOptionsProgram, OnRequestTheStoredOptionsDoNotCount) {
    WriteStore(namesStay);
    EXPECT_EQ(Export().status, 1);
    EXPECT_EQ(Export({"--no-stored-options"}).status, 0);
    EXPECT_THAT(folder.Read("result.wpx"), HasSubstr("'New_orders'"));
    EXPECT_EQ(Export({"--no-stored-options", "--set", "ConvertNames=0"}).status, 0);
    EXPECT_THAT(folder.Read("result.wpx"), HasSubstr("'New.orders'"));
}

TEST_F(StoredOptionsProgram, OnRequestAStoreThatCannotBeReadIsNoHindrance) {
    BlockStore();
    folder.Write("site.prf", "");
    EXPECT_EQ(Export({"--no-stored-options"}).status, 0);
    EXPECT_EQ(Run({"models", "orders.aml", "--no-stored-options"}).status, 0);
    EXPECT_EQ(Run({"profile", "print", "--no-stored-options"}).status, 0);
    EXPECT_THAT(Run({"profile", "check", "site.prf", "--no-stored-options"}).err, Not(HasSubstr("registry")));
    EXPECT_THAT(Run({"profile", "diff", "site.prf", "--no-stored-options"}).err, Not(HasSubstr("registry")));
}

TEST_F(StoredOptionsProgram, AnInteractiveRunShowsThatTheStoreCannotBeReadAndGoesOnWithTheDefaults) {
    BlockStore();
    const ProcessResult result = Answer("o\nresult\ny\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("wxbrg: The default options count: " + Store() + " is a folder"));
    EXPECT_THAT(folder.Read("result.wpx"), HasSubstr("'New_orders'"));
}

TEST_F(StoredOptionsProgram, ApplyAndOkShowThatStoringFailedAndTheChangeCountsForTheRun) {
    BlockStore();
    const ProcessResult result = Answer("1\na\n2\no\nresult\ny\n");
    EXPECT_EQ(result.status, 0);
    const std::string shown =
        "The options count for this run, but they are not stored: " + Store() + " is a folder";
    const std::size_t first = result.out.find(shown);
    ASSERT_NE(first, std::string::npos);
    EXPECT_NE(result.out.find(shown, first + 1), std::string::npos);
    EXPECT_THAT(result.out, Not(HasSubstr("Stored.")));
    EXPECT_THAT(folder.Read("result.wpx"), HasSubstr("'New.orders'"));
}

}  // namespace
}  // namespace wxbrg::cli
