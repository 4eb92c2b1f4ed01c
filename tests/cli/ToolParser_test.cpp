#include "cli/ToolParser.h"

#include <gmock/gmock.h>

namespace wxbrg::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

ToolArguments Parsed(const std::vector<std::string>& arguments) {
    ToolArguments parsed;
    const ParseResult result = ParseTool(arguments, parsed);
    EXPECT_TRUE(result.parsed) << result.err;
    return parsed;
}

ParseResult Refused(const std::vector<std::string>& arguments) {
    ToolArguments parsed;
    ParseResult result = ParseTool(arguments, parsed);
    EXPECT_FALSE(result.parsed);
    return result;
}

TEST(ToolParser, ReadsEveryOptionOfAnExport) {
    const ToolArguments parsed =
        Parsed({"export",      "a.aml", "-o",     "b.wpx", "--model", "One",   "--model",    "Two",
                "--locale",    "1031",  "--user", "me",    "--types", "t.tsv", "--language", "DEU",
                "--code-page", "1252",  "--set",  "A=1",   "--set",   "B=2",   "--strict",   "--quiet"});
    EXPECT_EQ(parsed.subcommand, Subcommand::exportRun);
    const ExportArguments& given = parsed.exportRun;
    EXPECT_EQ(given.repository.file, "a.aml");
    EXPECT_EQ(given.repository.locale, 1031);
    EXPECT_EQ(given.repository.typesFile, "t.tsv");
    EXPECT_EQ(given.output, "b.wpx");
    EXPECT_THAT(given.models, ElementsAre("One", "Two"));
    EXPECT_EQ(given.user, "me");
    EXPECT_EQ(given.language, "DEU");
    EXPECT_EQ(given.codePage, 1252U);
    EXPECT_THAT(given.settings, ElementsAre("A=1", "B=2"));
    EXPECT_TRUE(given.strict);
    EXPECT_TRUE(given.quiet);
    EXPECT_FALSE(given.all);
}

TEST(ToolParser, ExportLeavesOpenWhatIsNotGiven) {
    const ExportArguments given = Parsed({"export", "--all", "-o", "b.wpx", "a.aml"}).exportRun;
    EXPECT_TRUE(given.all);
    EXPECT_FALSE(given.repository.locale.has_value());
    EXPECT_FALSE(given.codePage.has_value());
    EXPECT_THAT(given.models, IsEmpty());
    EXPECT_FALSE(given.strict);
    EXPECT_FALSE(given.quiet);
}

TEST(ToolParser, AModelOptionTakesOneTextOnly) {
    const ExportArguments given = Parsed({"export", "-o", "b.wpx", "--model", "One", "a.aml"}).exportRun;
    EXPECT_THAT(given.models, ElementsAre("One"));
    EXPECT_EQ(given.repository.file, "a.aml");
}

TEST(ToolParser, AModelMayHaveAnyName) {
    for (const std::string name : {"-x", "--all", "[a,b]", "a b", "{c1}"})
        EXPECT_THAT(Parsed({"export", "a.aml", "-o", "b.wpx", "--model", name}).exportRun.models,
                    ElementsAre(name));
}

TEST(ToolParser, ExportNeedsRepositoryAndOutput) {
    EXPECT_EQ(Refused({"export", "a.aml"}).exitStatus, 2);
    EXPECT_EQ(Refused({"export", "-o", "b.wpx"}).exitStatus, 2);
    EXPECT_THAT(Refused({"export", "a.aml"}).err, HasSubstr("--output"));
}

TEST(ToolParser, AllAndModelExcludeEachOther) {
    EXPECT_EQ(Refused({"export", "a.aml", "-o", "b.wpx", "--all", "--model", "x"}).exitStatus, 2);
}

TEST(ToolParser, AnExportAndModelsTakeAProfileOrTheBuiltInRules) {
    for (const std::string subcommand : {"export", "models"}) {
        const auto rules = [&](const std::vector<std::string>& more) {
            std::vector<std::string> arguments{subcommand, "a.aml"};
            if (subcommand == "export") arguments.insert(arguments.end(), {"-o", "b.wpx"});
            arguments.insert(arguments.end(), more.begin(), more.end());
            const ToolArguments parsed = Parsed(arguments);
            return subcommand == "export" ? parsed.exportRun.rules : parsed.models.rules;
        };
        EXPECT_EQ(rules({}).profile, std::nullopt);
        EXPECT_FALSE(rules({}).builtIn);
        EXPECT_EQ(rules({"--profile", "a.prf"}).profile, "a.prf");
        EXPECT_EQ(rules({"--profile", ""}).profile, "");
        EXPECT_TRUE(rules({"--default-rules"}).builtIn);
    }
    EXPECT_EQ(Refused({"export", "a.aml", "-o", "b.wpx", "--default-rules", "--profile", "x"}).exitStatus, 2);
    EXPECT_EQ(Refused({"models", "a.aml", "--profile", "x", "--default-rules"}).exitStatus, 2);
}

TEST(ToolParser, ReadsWhatIsToBeDoneWithProfiles) {
    EXPECT_EQ(Parsed({"profile", "print"}).subcommand, Subcommand::profile);
    EXPECT_EQ(Parsed({"profile", "print"}).profile.operation, ProfileOperation::print);
    EXPECT_TRUE(Parsed({"profile", "print", "--default"}).profile.rules.builtIn);
    EXPECT_EQ(Parsed({"profile", "print", "--profile", "a.prf"}).profile.rules.profile, "a.prf");
    const ProfileArguments check = Parsed({"profile", "check", "a.prf"}).profile;
    EXPECT_EQ(check.operation, ProfileOperation::check);
    EXPECT_EQ(check.file, "a.prf");
    const ProfileArguments diff = Parsed({"profile", "diff", "a.prf"}).profile;
    EXPECT_EQ(diff.operation, ProfileOperation::diff);
    EXPECT_EQ(diff.file, "a.prf");
    EXPECT_EQ(diff.base, std::nullopt);
    EXPECT_EQ(Parsed({"profile", "diff", "a.prf", "b.prf"}).profile.base, "b.prf");
}

TEST(ToolParser, ProfilesNeedAWordAndItsArguments) {
    EXPECT_EQ(Refused({"profile"}).exitStatus, 2);
    EXPECT_EQ(Refused({"profile", "show"}).exitStatus, 2);
    EXPECT_EQ(Refused({"profile", "check"}).exitStatus, 2);
    EXPECT_EQ(Refused({"profile", "diff"}).exitStatus, 2);
    EXPECT_EQ(Refused({"profile", "print", "--default", "--profile", "x"}).exitStatus, 2);
}

TEST(ToolParser, NumbersMustBeNumbers) {
    EXPECT_THAT(Refused({"export", "a.aml", "-o", "b.wpx", "--locale", "en"}).err, HasSubstr("--locale"));
    EXPECT_THAT(Refused({"export", "a.aml", "-o", "b.wpx", "--code-page", "-1"}).err,
                HasSubstr("--code-page"));
    EXPECT_EQ(Refused({"models", "a.aml", "--locale", "99999999999"}).exitStatus, 2);
}

TEST(ToolParser, ReadsModels) {
    const ToolArguments parsed = Parsed({"models", "a.aml", "--all", "--locale", "1033"});
    EXPECT_EQ(parsed.subcommand, Subcommand::models);
    EXPECT_EQ(parsed.models.repository.file, "a.aml");
    EXPECT_EQ(parsed.models.repository.locale, 1033);
    EXPECT_TRUE(parsed.models.all);
}

TEST(ToolParser, OptionsAloneLists) {
    EXPECT_EQ(Parsed({"options"}).options.action, OptionsAction::list);
    EXPECT_EQ(Parsed({"options", "list"}).options.action, OptionsAction::list);
    EXPECT_EQ(Parsed({"options"}).subcommand, Subcommand::options);
}

TEST(ToolParser, ReadsTheActionsOfOptions) {
    const OptionsArguments get = Parsed({"options", "get", "ConvertNames"}).options;
    EXPECT_EQ(get.action, OptionsAction::get);
    EXPECT_EQ(get.name, "ConvertNames");
    const OptionsArguments set = Parsed({"options", "set", "FirstSuffixNumber", "7"}).options;
    EXPECT_EQ(set.action, OptionsAction::set);
    EXPECT_EQ(set.name, "FirstSuffixNumber");
    EXPECT_EQ(set.value, "7");
    EXPECT_EQ(Parsed({"options", "reset"}).options.name, "");
    EXPECT_EQ(Parsed({"options", "reset", "Language"}).options.action, OptionsAction::reset);
    EXPECT_EQ(Parsed({"options", "reset", "Language"}).options.name, "Language");
}

TEST(ToolParser, AStoredValueMayBeNegative) {
    EXPECT_EQ(Parsed({"options", "set", "ConvertNames", "-1"}).options.value, "-1");
}

TEST(ToolParser, ActionsOfOptionsNeedTheirArguments) {
    EXPECT_EQ(Refused({"options", "get"}).exitStatus, 2);
    EXPECT_EQ(Refused({"options", "set", "ConvertNames"}).exitStatus, 2);
    EXPECT_EQ(Refused({"options", "show"}).exitStatus, 2);
}

TEST(ToolParser, ReadsReplay) {
    const ToolArguments parsed = Parsed({"replay", "case", "--out", "dir"});
    EXPECT_EQ(parsed.subcommand, Subcommand::replay);
    EXPECT_EQ(parsed.replay.caseFolder, "case");
    EXPECT_EQ(parsed.replay.outFolder, "dir");
    EXPECT_EQ(Refused({"replay", "case"}).exitStatus, 2);
}

TEST(ToolParser, NothingIsAnsweredByTheHelp) {
    const ParseResult result = Refused({});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.out, HasSubstr("export"));
    EXPECT_EQ(result.out, Refused({"--help"}).out);
    EXPECT_EQ(result.err, "");
}

TEST(ToolParser, EachSubcommandHasItsOwnHelp) {
    for (const std::string& name : SubcommandNames()) {
        const ParseResult result = Refused({name, "--help"});
        EXPECT_EQ(result.exitStatus, 0) << name;
        EXPECT_THAT(result.out, HasSubstr("wxbrg " + name));
        EXPECT_EQ(result.err, "") << name;
    }
    EXPECT_THAT(Refused({"options", "set", "--help"}).out, HasSubstr("VALUE"));
}

TEST(ToolParser, VersionNamesTheProgram) {
    const ParseResult result = Refused({"--version"});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(result.out, "wxbrg " WXBRG_VERSION "\n");
}

TEST(ToolParser, AnErrorSaysWhatToDo) {
    const ParseResult result = Refused({"export", "--nonsense"});
    EXPECT_EQ(result.exitStatus, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, testing::StartsWith("wxbrg: "));
    EXPECT_THAT(result.err, HasSubstr("--help"));
}

TEST(ToolParser, SlashesAreNoOptions) {
    EXPECT_EQ(Parsed({"models", "/tmp/a.aml"}).models.repository.file, "/tmp/a.aml");
}

TEST(SubcommandNames, AreThoseThatThereAre) {
    EXPECT_THAT(SubcommandNames(), ElementsAre("export", "models", "profile", "options", "replay"));
}

}  // namespace
}  // namespace wxbrg::cli
