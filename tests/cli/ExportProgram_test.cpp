#include <gmock/gmock.h>

#include "tests/cli/ProgramFixture.h"

namespace wxbrg::cli {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using ExportProgram = ProgramTest;

TEST_F(ExportProgram, WritesDefinitionFileLogAndSummary) {
    WriteOneModel();
    const ProcessResult result = Run({"export", "one.aml", "-o", "out.wpx"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_THAT(result.out,
                AllOf(HasSubstr("out.wpx"), HasSubstr("Processes:              1\n"), HasSubstr("Time:")));
    EXPECT_THAT(folder.Read("out.wpx"), HasSubstr("'Orders'"));
    EXPECT_THAT(folder.Read("out.log"), HasSubstr("WXB03110I "));
}

TEST_F(ExportProgram, QuietPrintsNothing) {
    WriteOneModel();
    const ProcessResult result = Run({"export", "one.aml", "-o", "out.wpx", "--quiet"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_TRUE(Exists("out.wpx"));
}

TEST_F(ExportProgram, TheOutputHasTheNameThatWasGiven) {
    WriteOneModel();
    EXPECT_EQ(Run({"export", "one.aml", "-o", "plain"}).status, 0);
    EXPECT_TRUE(Exists("plain"));
    EXPECT_TRUE(Exists("p.log"));
    EXPECT_FALSE(Exists("plain.wpx"));
}

TEST_F(ExportProgram, TheNamedModelsAreExported) {
    WriteExport("two.aml", {{"{m1}", "Orders"}, {"{m2}", "Returns"}});
    EXPECT_EQ(Run({"export", "two.aml", "-o", "out.wpx", "--model", "Returns"}).status, 0);
    EXPECT_THAT(folder.Read("out.wpx"), AllOf(HasSubstr("'Returns'"), Not(HasSubstr("'Orders'"))));
    EXPECT_EQ(Run({"export", "two.aml", "-o", "out.wpx", "--all"}).status, 0);
    EXPECT_THAT(folder.Read("out.wpx"), AllOf(HasSubstr("'Returns'"), HasSubstr("'Orders'")));
}

TEST_F(ExportProgram, SeveralModelsWithoutAChoiceAreListed) {
    WriteExport("two.aml", {{"{m1}", "Orders"}, {"{m2}", "Returns"}});
    const ProcessResult result = Run({"export", "two.aml", "-o", "out.wpx"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, AllOf(HasSubstr("{m1}  Orders"), HasSubstr("{m2}  Returns")));
    EXPECT_FALSE(Exists("out.wpx"));
}

TEST_F(ExportProgram, ModelNamesThatTheArisCommandLineCannotHoldAreNoMatter) {
    WriteExport("odd.aml", {{"{m1}", "a, b; c/DB=d"}, {"{m2}", "Returns"}});
    EXPECT_EQ(Run({"export", "odd.aml", "-o", "out.wpx", "--model", "a, b; c/DB=d"}).status, 0);
}

TEST_F(ExportProgram, ALanguageThatTheExportDoesNotHoldIsRefusedWithThoseItHolds) {
    WriteOneModel();
    const ProcessResult result = Run({"export", "one.aml", "-o", "out.wpx", "--locale", "1036"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, AllOf(HasSubstr("1033  English"), HasSubstr("1031  German")));
    EXPECT_EQ(Run({"export", "one.aml", "-o", "out.wpx", "--locale", "1031"}).status, 0);
}

TEST_F(ExportProgram, AnUnknownOptionIsRefusedWithTheNamesAndAValueWithThoseItTakes) {
    WriteOneModel();
    for (const auto& [setting, told] :
         {std::pair<std::string, std::string>{"Convert=0", "ConvertNames\n  RemoveLineBreaks"},
          {"ConvertNames=1", "-1 (on) or 0 (off)"},
          {"FirstSuffixNumber=-1", "from 0 to 2147483647"}}) {
        const ProcessResult result = Run({"export", "one.aml", "-o", "out.wpx", "--set", setting});
        EXPECT_EQ(result.status, 2) << setting;
        EXPECT_THAT(result.err, HasSubstr(told));
    }
    EXPECT_FALSE(Exists("out.wpx"));
}

TEST_F(ExportProgram, OptionsComeFromTheCommandLineElseFromTheStore) {
    WriteExport("one.aml", {{"{m1}", "New.orders"}});
    const auto exported = [&](const std::vector<std::string>& more) {
        std::vector<std::string> arguments{"export", "one.aml", "-o", "out.wpx"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        EXPECT_EQ(Run(arguments).status, 0);
        return folder.Read("out.wpx");
    };
    EXPECT_THAT(exported({}), HasSubstr("'New_orders'"));
    EXPECT_THAT(exported({"--set", "ConvertNames=0"}), HasSubstr("'New.orders'"));
    EXPECT_EQ(Run({"options", "set", "ConvertNames", "0"}).status, 0);
    EXPECT_THAT(exported({}), HasSubstr("'New.orders'"));
    EXPECT_THAT(exported({"--set", "ConvertNames=-1"}), HasSubstr("'New_orders'"));
    EXPECT_EQ(Run({"options", "get", "ConvertNames"}).out, "0\n");
}

TEST_F(ExportProgram, AnExportStoresNothing) {
    WriteOneModel();
    EXPECT_EQ(Run({"export", "one.aml", "-o", "out.wpx", "--set", "ConvertNames=0"}).status, 0);
    EXPECT_TRUE(std::filesystem::is_empty(folder / "settings"));
}

TEST_F(ExportProgram, TheLanguageOfTheNotesCanBeChosen) {
    WriteOneModel();
    EXPECT_EQ(Run({"export", "one.aml", "-o", "english.wpx"}).status, 0);
    EXPECT_EQ(Run({"export", "one.aml", "-o", "artificial.wpx", "--language", "TST"}).status, 0);
    EXPECT_THAT(folder.Read("artificial.log"), HasSubstr("WXB03110I 3110|"));
    EXPECT_THAT(folder.Read("english.log"), Not(HasSubstr("3110|")));
}

TEST_F(ExportProgram, AMissingLanguageLibraryIsToldInABox) {
    WriteOneModel();
    const ProcessResult result = Run({"export", "one.aml", "-o", "out.wpx", "--language", "XYZ"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("wxbrgXYZ.dll"));
    EXPECT_EQ(result.out, "");
    EXPECT_FALSE(Exists("out.wpx"));
}

TEST_F(ExportProgram, FilesAreInTheCodePageThatWasAskedFor) {
    WriteExport("one.aml", {{"{m1}", "Größe"}});
    const std::vector<std::string> arguments{"export", "one.aml",        "-o",         "out.wpx",
                                             "--set",  "ConvertNames=0", "--code-page"};
    auto with = [&](const std::string& codePage) {
        std::vector<std::string> all = arguments;
        all.push_back(codePage);
        return Run(all);
    };
    EXPECT_EQ(with("1252").status, 0);
    EXPECT_THAT(folder.Read("out.wpx"), HasSubstr("'Gr\xF6\xDF"
                                                  "e'"));
    EXPECT_EQ(with("65001").status, 0);
    EXPECT_THAT(folder.Read("out.wpx"), HasSubstr("'Größe'"));
    EXPECT_EQ(with("4711").status, 2);
}

TEST_F(ExportProgram, CharactersThatTheCodePageLacksAreCountedOnce) {
    WriteExport("one.aml", {{"{m1}", "Ω"}});
    const std::vector<std::string> arguments{"export",      "one.aml", "-o",    "out.wpx",
                                             "--code-page", "1252",    "--set", "ConvertNames=0"};
    const ProcessResult told = Run(arguments);
    EXPECT_THAT(told.out, HasSubstr("Characters lost:"));
    EXPECT_EQ(told.err, "");
    std::vector<std::string> quiet = arguments;
    quiet.emplace_back("--quiet");
    EXPECT_THAT(Run(quiet).err, HasSubstr("1252 lacks"));
}

TEST_F(ExportProgram, WhatWasOddAboutTheRepositoryIsTold) {
    std::string aml = SmallExport({{"{m1}", "Orders"}});
    const std::string end = "</Model>";
    aml.insert(aml.find(end), R"(<ObjOcc ObjOcc.ID="x" ObjDef.IdRef="ObjDef.none"/>)");
    aml.insert(aml.find("<ObjDef "), R"(<ObjDef ObjDef.ID="odd" TypeNum="OT_ODD"/>)");
    folder.Write("one.aml", aml);
    const ProcessResult result = Run({"export", "one.aml", "-o", "out.wpx"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, AllOf(HasSubstr("object type OT_ODD"), HasSubstr("References to nothing:  1")));
}

TEST_F(ExportProgram, FurtherTypesMakeUnknownOnesKnown) {
    WriteExport("odd.aml", {{"{m1}", "Orders", "MT_HOUSE_STYLE"}});
    EXPECT_EQ(Run({"export", "odd.aml", "-o", "out.wpx"}).status, 2);
    folder.Write("types.tsv", "MT\tMT_HOUSE_STYLE\t13\tHouse style\tknown\n");
    EXPECT_EQ(Run({"export", "odd.aml", "-o", "out.wpx", "--types", "types.tsv"}).status, 0);
    EXPECT_THAT(Run({"models", "odd.aml", "--types", "types.tsv"}).out, HasSubstr("{m1}\t13\tHouse style\t"));
}

TEST_F(ExportProgram, TheUserIsNamedInTheDefinitionFile) {
    WriteOneModel();
    EXPECT_EQ(Run({"export", "one.aml", "-o", "out.wpx"}).status, 0);
    EXPECT_THAT(folder.Read("out.wpx"), HasSubstr("modeller"));
    EXPECT_EQ(Run({"export", "one.aml", "-o", "out.wpx", "--user", "somebody else"}).status, 0);
    EXPECT_THAT(folder.Read("out.wpx"), HasSubstr("somebody else"));
}

TEST_F(ExportProgram, ARepositoryThatCannotBeReadIsTold) {
    folder.Write("text.aml", "no XML at all");
    folder.Write("other.aml", "<other/>");
    folder.Write("empty.aml", "");
    std::filesystem::create_directory(folder / "folder.aml");
    for (const std::string file : {"missing.aml", "text.aml", "other.aml", "empty.aml", "folder.aml"}) {
        const ProcessResult result = Run({"export", file, "-o", "out.wpx"});
        EXPECT_EQ(result.status, 1) << file;
        EXPECT_THAT(result.err, AllOf(StartsWith("wxbrg: "), HasSubstr(file)));
        EXPECT_EQ(result.out, "");
    }
    EXPECT_FALSE(Exists("out.wpx"));
}

TEST_F(ExportProgram, TheRepositoryIsNeverOverwritten) {
    WriteOneModel();
    const std::string before = folder.Read("one.aml");
    const ProcessResult result = Run({"export", "one.aml", "-o", "./one.aml"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, HasSubstr("overwrite"));
    EXPECT_EQ(folder.Read("one.aml"), before);
}

TEST_F(ExportProgram, StrictMakesAWarningAnExitStatus) {
    // Of several process models assigned to a function only the first counts, with a note that warns.
    WriteExport("one.aml", {{"m1", "Orders", "MT_EEPC", "m2 m3"}, {"m2", "Returns"}, {"m3", "Refunds"}});
    std::vector<std::string> arguments{"export", "one.aml", "-o", "out.wpx", "--model", "Orders"};
    EXPECT_EQ(Run(arguments).status, 0);
    EXPECT_THAT(folder.Read("out.log"), HasSubstr("WXB03000E "));
    arguments.emplace_back("--strict");
    const ProcessResult strict = Run(arguments);
    EXPECT_EQ(strict.status, 3);
    EXPECT_THAT(strict.out, HasSubstr("1 exclamation"));
}

TEST_F(ExportProgram, StrictWithoutAWarningIsNormal) {
    WriteOneModel();
    EXPECT_EQ(Run({"export", "one.aml", "-o", "out.wpx", "--strict"}).status, 0);
}

TEST_F(ExportProgram, AssignedProcessesAreCountedBesideTheSelectedModels) {
    WriteExport("one.aml", {{"m1", "Orders", "MT_EEPC", "m2"}, {"m2", "Returns"}});
    EXPECT_THAT(Run({"export", "one.aml", "-o", "out.wpx", "--model", "m1"}).out,
                AllOf(HasSubstr("Models selected:        1\n"), HasSubstr("Processes:              2\n")));
}

}  // namespace
}  // namespace wxbrg::cli
