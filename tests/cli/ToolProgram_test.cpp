#include <gmock/gmock.h>

#include "tests/cli/ProgramFixture.h"

namespace wxbrg::cli {
namespace {

using testing::AllOf;
using testing::HasSubstr;

using ToolProgram = ProgramTest;

TEST_F(ToolProgram, WithoutArgumentsItShowsItsHelp) {
    const ProcessResult result = Run({});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, AllOf(HasSubstr("export"), HasSubstr("replay")));
    EXPECT_EQ(result.err, "");
}

TEST_F(ToolProgram, HelpAndVersionGoToTheStandardOutput) {
    EXPECT_EQ(Run({"--version"}).out, "wxbrg " WXBRG_VERSION "\n");
    EXPECT_THAT(Run({"export", "--help"}).out, HasSubstr("--code-page"));
    EXPECT_EQ(Run({"export", "--help"}).status, 0);
}

TEST_F(ToolProgram, AnUnknownWordIsWrongUsageThatNamesTheNearestSubcommand) {
    const ProcessResult result = Run({"exprot", "a.aml"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, AllOf(HasSubstr("\"exprot\""), HasSubstr("\"export\"")));
}

TEST_F(ToolProgram, WrongUsageIsToldOnTheStandardError) {
    const ProcessResult result = Run({"models"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, HasSubstr("FILE"));
}

TEST_F(ToolProgram, ModelsPrintsALineForEachProcessModel) {
    WriteExport("two.aml", {{"{m1}", "Orders"}, {"{m2}", "Staff", "MT_ORG_CHRT"}, {"{m3}", "Returns"}});
    const ProcessResult processes = Run({"models", "two.aml"});
    EXPECT_EQ(processes.status, 0);
    EXPECT_EQ(processes.err, "");
    EXPECT_EQ(processes.out, "{m1}\t13\tEPC\tSales\tOrders\n{m3}\t13\tEPC\tSales\tReturns\n");
    EXPECT_EQ(Run({"models", "two.aml", "--all"}).out,
              "{m1}\t13\tEPC\tSales\tOrders\n"
              "{m2}\t1\tOrganizational chart\tSales\tStaff\n"
              "{m3}\t13\tEPC\tSales\tReturns\n");
}

TEST_F(ToolProgram, ModelsTellsGroupsFromTheOutsideInAndKeepsToOneLine) {
    std::string aml = SmallExport({{"{m1}", "Orders&#9;and&#10;returns"}});
    const std::string group = "<Group Group.ID=\"Group.1\">";
    aml.replace(aml.find(group), group.size(),
                "<Group Group.ID=\"Group.2\"><AttrDef AttrDef.Type=\"AT_NAME\"><AttrValue LocaleId=\"1033\">"
                "Europe</AttrValue></AttrDef>" +
                    group);
    aml.replace(aml.find("</Group></Group>"), 8, "</Group></Group>");
    folder.Write("one.aml", aml);
    EXPECT_EQ(Run({"models", "one.aml"}).out, "{m1}\t13\tEPC\tEurope/Sales\tOrders and returns\n");
}

TEST_F(ToolProgram, ModelsTakesNamesInTheLanguageThatWasAskedFor) {
    std::string aml = SmallExport({{"{m1}", "Orders"}});
    const std::string english = "<AttrValue LocaleId=\"1033\">Orders";
    aml.replace(aml.find(english), english.size(), "<AttrValue LocaleId=\"1033\">Sales orders");
    folder.Write("one.aml", aml);
    EXPECT_THAT(Run({"models", "one.aml"}).out, HasSubstr("\tSales orders\n"));
    EXPECT_THAT(Run({"models", "one.aml", "--locale", "1031"}).out, HasSubstr("\tOrders\n"));
    EXPECT_EQ(Run({"models", "one.aml", "--locale", "1"}).status, 2);
}

TEST_F(ToolProgram, ModelsOfARepositoryThatCannotBeReadIsAFailure) {
    const ProcessResult result = Run({"models", "missing.aml"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("missing.aml"));
}

TEST_F(ToolProgram, OptionsLastFromOneRunToTheNext) {
    EXPECT_EQ(Run({"options", "set", "FirstSuffixNumber", "12"}).status, 0);
    EXPECT_EQ(Run({"options", "set", "Language", "DEU"}).status, 0);
    EXPECT_EQ(Run({"options", "get", "FirstSuffixNumber"}).out, "12\n");
    EXPECT_THAT(Run({"options"}).out,
                AllOf(HasSubstr("FirstSuffixNumber\t12\tuser\n"), HasSubstr("Language\tDEU\tuser\n"),
                      HasSubstr("ConvertNames\t-1\t")));
    EXPECT_EQ(Run({"options", "reset", "Language"}).status, 0);
    EXPECT_THAT(Run({"options", "list"}).out,
                AllOf(HasSubstr("FirstSuffixNumber\t12\tuser\n"), HasSubstr("Language\tENU\t")));
    EXPECT_EQ(Run({"options", "reset"}).status, 0);
    EXPECT_EQ(Run({"options", "get", "FirstSuffixNumber"}).out, "0\n");
}

TEST_F(ToolProgram, OptionsOfUnknownNamesAreWrongUsageThatListsTheNames) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"options", "get", "X"},
                                                      {"options", "set", "X", "1"},
                                                      {"options", "reset", "X"}}) {
        const ProcessResult result = Run(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.err, AllOf(HasSubstr("ConvertNames"), HasSubstr("RepositoryPath")));
    }
}

TEST_F(ToolProgram, AStoreThatCannotBeWrittenIsToldAndAFailure) {
    std::filesystem::create_directories(folder / "settings/wxbrg/registry.reg.lock");
    const ProcessResult result = Run({"options", "set", "ConvertNames", "0"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, AllOf(HasSubstr("ConvertNames could not be stored: "),
                                  HasSubstr("registry.reg.lock cannot be opened as a lock file")));
}

TEST_F(ToolProgram, AnOutputThatCannotBeWrittenIsAFailure) {
    WriteOneModel();
    const ProcessResult result = RunProcess({"sh", "-c", "\"$0\" models one.aml > /dev/full", WXBRG_PROGRAM},
                                            {"", folder.Path(), environment});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("standard output"));
}

TEST_F(ToolProgram, TheMappingProfileBesideTheProgramSaysWhatIsAProcess) {
    WriteOneModel();
    const std::filesystem::path program = WXBRG_PROGRAM;
    for (const std::string name : {"wxbrg", "wxbrgENU.dll"})
        std::filesystem::copy_file(program.parent_path() / name, folder / name);
    const auto models = [&](const std::string& profile) {
        folder.Write("wxbrg.prf", profile);
        return RunProcess({(folder / "wxbrg").string(), "models", "one.aml"},
                          {"", folder.Path(), environment});
    };
    EXPECT_EQ(models("OBJECT_MAPPING PROCESS OBJECT_TYPE = 13 END\n").out.empty(), false);
    EXPECT_EQ(models("OBJECT_MAPPING PROCESS OBJECT_TYPE = 9999 END\n").out, "");
    const ProcessResult without = models("OBJECT_MAPPING ACTIVITY OBJECT_TYPE = 22 END\n");
    EXPECT_EQ(without.status, 1);
    EXPECT_THAT(without.err, HasSubstr("WXB02100C"));
}

TEST_F(ToolProgram, InstalledItRunsWithItsLanguagesManualPageAndCompletion) {
    WriteOneModel();
    const ProcessResult installed =
        RunProcess({WXBRG_CMAKE, "--install", WXBRG_BUILD_FOLDER, "--prefix", (folder / "prefix").string()});
    ASSERT_EQ(installed.status, 0) << installed.err;
    const ProcessResult result = RunProcess(
        {(folder / "prefix/bin/wxbrg").string(), "export", "one.aml", "-o", "out.wpx", "--language", "DEU"},
        {"", folder.Path(), environment});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(Exists("prefix/share/man/man1/wxbrg.1"));
    EXPECT_TRUE(Exists("prefix/share/bash-completion/completions/wxbrg"));
}

}  // namespace
}  // namespace wxbrg::cli
