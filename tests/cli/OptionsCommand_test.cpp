#include "cli/OptionsCommand.h"

#include <gmock/gmock.h>

#include "cli/UsageError.h"
#include "options/OptionTable.h"
#include "tests/cli/TestToolEnvironment.h"

namespace wxbrg::cli {
namespace {

using testing::HasSubstr;

class OptionsCommandTest : public testing::Test {
  protected:
    int Run(OptionsAction action, const std::string& name = "", const std::string& value = "") {
        return RunOptionsCommand({action, name, value}, system.environment);
    }
    ProfileValue Stored(std::string_view name) const {
        return system.profileStore.Read(ProfileScope::user, programKey, name);
    }
    TestToolEnvironment system;
};

TEST_F(OptionsCommandTest, ListTellsValueAndOriginOfEachOption) {
    system.profileStore.Put(ProfileScope::user, programKey, "ConvertNames", 0);
    system.profileStore.Put(ProfileScope::machine, programKey, "ConvertNames", -1);
    system.profileStore.Put(ProfileScope::machine, programKey, "Language", std::string("DEU"));
    EXPECT_EQ(Run(OptionsAction::list), 0);
    EXPECT_EQ(system.out.str(),
              "ConvertNames\t0\tuser\n"
              "RemoveLineBreaks\t-1\tdefault\n"
              "FirstSuffixNumber\t0\tdefault\n"
              "UseDataConBendPoints\t-1\tdefault\n"
              "UseCtrlConBendPoints\t-1\tdefault\n"
              "UseDescriptionAttr\t-1\tdefault\n"
              "UseDocumentationAttr\t-1\tdefault\n"
              "UseOtherSettings\t0\tdefault\n"
              "DynamicStaffAssignment\t-1\tdefault\n"
              "FindDataFlowLoops\t-1\tdefault\n"
              "FindControlFlowLoops\t-1\tdefault\n"
              "StartConditions\t0\tdefault\n"
              "ExitConditions\t0\tdefault\n"
              "TransitionConditions\t0\tdefault\n"
              "DataTypeFromAttribute\t-1\tdefault\n"
              "Language\tDEU\tmachine\n"
              "RepositoryPath\t\tdefault\n");
}

TEST_F(OptionsCommandTest, GetPrintsTheValueInForce) {
    EXPECT_EQ(Run(OptionsAction::get, "Language"), 0);
    EXPECT_EQ(Run(OptionsAction::get, "startconditions"), 0);
    system.profileStore.Put(ProfileScope::user, programKey, "StartConditions", std::string("odd"));
    EXPECT_EQ(Run(OptionsAction::get, "StartConditions"), 0);
    EXPECT_EQ(system.out.str(), "ENU\n0\nodd\n");
}

TEST_F(OptionsCommandTest, SetStoresForTheUser) {
    EXPECT_EQ(Run(OptionsAction::set, "useothersettings", "-1"), 0);
    EXPECT_EQ(Run(OptionsAction::set, "RepositoryPath", "/data/aris"), 0);
    EXPECT_EQ(Stored("UseOtherSettings"), ProfileValue(-1));
    EXPECT_EQ(Stored("RepositoryPath"), ProfileValue(std::string("/data/aris")));
    EXPECT_EQ(system.out.str(), "");
    EXPECT_THAT(system.profileStore.Dump(ProfileScope::user, programKey), HasSubstr("UseOtherSettings=-1\n"));
}

TEST_F(OptionsCommandTest, ResetTakesOneOrAllAway) {
    Run(OptionsAction::set, "ConvertNames", "0");
    Run(OptionsAction::set, "FirstSuffixNumber", "5");
    Run(OptionsAction::set, "Language", "DEU");
    EXPECT_EQ(Run(OptionsAction::reset, "ConvertNames"), 0);
    EXPECT_EQ(Stored("ConvertNames"), ProfileValue());
    EXPECT_EQ(Stored("FirstSuffixNumber"), ProfileValue(5));
    EXPECT_EQ(Run(OptionsAction::reset), 0);
    EXPECT_EQ(system.profileStore.Dump(ProfileScope::user, programKey), "");
}

TEST_F(OptionsCommandTest, ResetLeavesTheMachinesValues) {
    system.profileStore.Put(ProfileScope::machine, programKey, "ConvertNames", 0);
    EXPECT_EQ(Run(OptionsAction::reset), 0);
    EXPECT_EQ(system.profileStore.Read(ProfileScope::machine, programKey, "ConvertNames"), ProfileValue(0));
}

TEST_F(OptionsCommandTest, UnknownNamesAreWrongUsage) {
    EXPECT_THROW(Run(OptionsAction::get, "Nonsense"), UsageError);
    EXPECT_THROW(Run(OptionsAction::set, "Nonsense", "1"), UsageError);
    EXPECT_THROW(Run(OptionsAction::set, "ConvertNames", "yes"), UsageError);
    EXPECT_THROW(Run(OptionsAction::set, "ConvertNames", "1"), UsageError);
    EXPECT_THROW(Run(OptionsAction::set, "FirstSuffixNumber", "-5"), UsageError);
    EXPECT_EQ(system.profileStore.Dump(ProfileScope::user, programKey), "");
    EXPECT_THROW(Run(OptionsAction::reset, "Nonsense"), UsageError);
}

/// A store that nothing can be written to.
class ReadOnlyStore : public MemoryProfileStore {
  public:
    bool Write(std::string_view, std::string_view, const ProfileValue&) override { return false; }
    bool Remove(std::string_view, std::string_view) override { return false; }
};

TEST(OptionsCommand, AStoreThatCannotBeWrittenIsAFailure) {
    ReadOnlyStore store;
    TestToolEnvironment system(store);
    EXPECT_EQ(RunOptionsCommand({OptionsAction::set, "ConvertNames", "0"}, system.environment), 1);
    EXPECT_THAT(system.err.str(), HasSubstr("ConvertNames could not be stored"));
    EXPECT_EQ(RunOptionsCommand({OptionsAction::reset, "Language", ""}, system.environment), 1);
    EXPECT_THAT(system.err.str(), HasSubstr("Language could not be taken away"));
}

/// A store that names its problems.
class AilingStore : public ReadOnlyStore {
  public:
    std::vector<std::string> ReadProblems() const override { return readProblems; }
    std::string TakeWriteProblem() override { return "The disk is full."; }

    std::vector<std::string> readProblems;
};

TEST(OptionsCommand, WhyTheStoreCannotBeWrittenIsSaid) {
    AilingStore store;
    TestToolEnvironment system(store);
    EXPECT_EQ(RunOptionsCommand({OptionsAction::set, "ConvertNames", "0"}, system.environment), 1);
    EXPECT_EQ(system.err.str(), "wxbrg: The option ConvertNames could not be stored: The disk is full.\n");
}

TEST(OptionsCommand, AStoreThatCannotBeReadEndsItBeforeItDoesAnything) {
    AilingStore store;
    store.readProblems = {"The one.", "The other."};
    TestToolEnvironment system(store);
    for (const OptionsAction action :
         {OptionsAction::list, OptionsAction::get, OptionsAction::set, OptionsAction::reset})
        EXPECT_THAT(
            [&] {
                RunOptionsCommand({action, "ConvertNames", "0"}, system.environment);
            },
            testing::ThrowsMessage<std::runtime_error>("The one.\nThe other."));
    EXPECT_EQ(system.out.str(), "");
}

}  // namespace
}  // namespace wxbrg::cli
