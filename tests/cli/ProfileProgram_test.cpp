#include <gmock/gmock.h>
#include <sys/stat.h>

#include "tests/cli/ProgramFixture.h"

namespace wxbrg::cli {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

/// The program in a folder of its own, so that a profile can stand beside it.
class ProfileProgram : public ProgramTest {
  protected:
    void SetUp() override {
        const std::filesystem::path program = WXBRG_PROGRAM;
        for (const std::string name : {"wxbrg", "wxbrgENU.dll"})
            std::filesystem::copy_file(program.parent_path() / name, folder / ("bin/" + name));
        WriteOneModel();
    }
    ProfileProgram() { std::filesystem::create_directory(folder / "bin"); }

    ProcessResult RunHere(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), (folder / "bin/wxbrg").string());
        return RunProcess(arguments, {"", folder.Path(), environment});
    }
    /// Writes a profile of the built-in rules with one text in place of another.
    void WriteChanged(const std::string& name, const std::string& from, const std::string& to) const {
        std::string text = Run({"profile", "print", "--default"}).out;
        const std::size_t at = text.find(from);
        ASSERT_NE(at, std::string::npos) << from;
        folder.Write(name, text.replace(at, from.size(), to));
    }
    void WriteBeside(const std::string& text) const { folder.Write("bin/wxbrg.prf", text); }

    static constexpr const char* noFunctions = "OBJECT_MAPPING ACTIVITY\n  OBJECT_TYPE = 9999\nEND\n";
    static constexpr const char* functions = "OBJECT_MAPPING ACTIVITY\n  OBJECT_TYPE = 22\nEND\n";
    static constexpr const char* rulesLine = "*  Default mapping rules used";
    static constexpr const char* profileLine = "*  Mapping rules taken from profile";
};

TEST_F(ProfileProgram, AnExportTakesItsRulesFromTheNamedProfile) {
    WriteChanged("ours.prf", functions, noFunctions);
    EXPECT_EQ(RunHere({"export", "one.aml", "-o", "out.wpx"}).status, 0);
    EXPECT_THAT(folder.Read("out.wpx"), AllOf(HasSubstr(rulesLine), HasSubstr("ACTIVITY 'Check order'")));
    const ProcessResult result = RunHere({"export", "one.aml", "-o", "out.wpx", "--profile", "ours.prf"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_THAT(folder.Read("out.wpx"), AllOf(HasSubstr(profileLine), Not(HasSubstr("Check order"))));
}

TEST_F(ProfileProgram, TheNamedProfileGoesBeforeTheOneBesideTheProgram) {
    WriteBeside("no profile at all\n");
    WriteChanged("ours.prf", functions, functions);
    EXPECT_EQ(RunHere({"export", "one.aml", "-o", "out.wpx"}).status, 1);
    EXPECT_EQ(RunHere({"export", "one.aml", "-o", "out.wpx", "--profile", "ours.prf"}).status, 0);
}

TEST_F(ProfileProgram, WithDefaultRulesTheProfileBesideTheProgramDoesNotCount) {
    WriteChanged("bin/wxbrg.prf", functions, noFunctions);
    EXPECT_EQ(RunHere({"export", "one.aml", "-o", "out.wpx"}).status, 0);
    EXPECT_THAT(folder.Read("out.wpx"), AllOf(HasSubstr(profileLine), Not(HasSubstr("Check order"))));
    EXPECT_EQ(RunHere({"export", "one.aml", "-o", "out.wpx", "--default-rules"}).status, 0);
    EXPECT_THAT(folder.Read("out.wpx"), AllOf(HasSubstr(rulesLine), HasSubstr("Check order")));
}

TEST_F(ProfileProgram, AProfileSaysForAnExportAndForModelsWhatIsAProcess) {
    WriteChanged("ours.prf", "OBJECT_MAPPING PROCESS\n  OBJECT_TYPE = 13\n", "OBJECT_MAPPING PROCESS\n");
    EXPECT_THAT(RunHere({"models", "one.aml"}).out, HasSubstr("Orders"));
    EXPECT_THAT(RunHere({"models", "one.aml", "--profile", "ours.prf"}).out, IsEmpty());
    const ProcessResult none = RunHere({"export", "one.aml", "-o", "out.wpx", "--profile", "ours.prf"});
    EXPECT_EQ(none.status, 2);
    EXPECT_FALSE(Exists("out.wpx"));
    WriteBeside(folder.Read("ours.prf"));
    EXPECT_THAT(RunHere({"models", "one.aml"}).out, IsEmpty());
    EXPECT_THAT(RunHere({"models", "one.aml", "--default-rules"}).out, HasSubstr("Orders"));
}

TEST_F(ProfileProgram, AProfileThatIsWrongIsToldInABoxWhereARunReadsIt) {
    folder.Write("ours.prf", "OBJECT_MAPPING 5\n");
    const ProcessResult result = RunHere({"export", "one.aml", "-o", "out.wpx", "--profile", "ours.prf"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("WXB02140C"));
}

TEST_F(ProfileProgram, AProfileThatCannotBeReadIsWrongUsageThatNamesIt) {
    std::filesystem::create_directory(folder / "dir.prf");
    for (const std::string file : {"missing.prf", "dir.prf", "none/x.prf", ""})
        for (std::vector<std::string> arguments :
             {std::vector<std::string>{"export", "one.aml", "-o", "out.wpx", "--profile"},
              {"models", "one.aml", "--profile"},
              {"profile", "print", "--profile"},
              {"profile", "check"},
              {"profile", "diff"},
              {"profile", "diff", "/dev/null"}}) {
            arguments.push_back(file);
            const ProcessResult result = RunHere(arguments);
            EXPECT_EQ(result.status, 2) << arguments[1] << " " << file;
            EXPECT_THAT(result.err, AllOf(StartsWith("wxbrg: The "), HasSubstr("profile"), HasSubstr(file)));
            EXPECT_EQ(result.out, "");
        }
    EXPECT_FALSE(Exists("out.wpx"));
}

TEST_F(ProfileProgram, PrintsTheBuiltInRules) {
    WriteBeside("no profile at all\n");
    const ProcessResult result = RunHere({"profile", "print", "--default"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_THAT(result.out, AllOf(StartsWith(functions),
                                  EndsWith("TARGET_OBJECT_RULE = RULE_SENDS_CONTROL_TO_FUNCTION\nEND\n")));
}

TEST_F(ProfileProgram, PrintsTheRulesInForce) {
    const std::string builtIn = RunHere({"profile", "print", "--default"}).out;
    EXPECT_EQ(RunHere({"profile", "print"}).out, builtIn);
    WriteBeside("object_mapping Role object_type=1 end");
    EXPECT_EQ(RunHere({"profile", "print"}).out, "OBJECT_MAPPING Role\n  OBJECT_TYPE = 1\nEND\n");
    WriteBeside("");
    EXPECT_EQ(RunHere({"profile", "print"}).out, builtIn);
}

TEST_F(ProfileProgram, PrintsANamedProfile) {
    folder.Write("ours.prf",
                 "\xEF\xBB\xBF"
                 "attribute_mapping größe attribute_type = 9.5 end");
    EXPECT_EQ(RunHere({"profile", "print", "--profile", "ours.prf"}).out,
              "ATTRIBUTE_MAPPING größe\n  ATTRIBUTE_TYPE = 9.5\nEND\n");
}

TEST_F(ProfileProgram, OfRulesThatStandTwiceTheFirstIsPrinted) {
    folder.Write("ours.prf", "OBJECT_MAPPING A OBJECT_TYPE = 1 END OBJECT_MAPPING a OBJECT_TYPE = 2 END\n");
    const ProcessResult result = RunHere({"profile", "print", "--profile", "ours.prf"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "OBJECT_MAPPING A\n  OBJECT_TYPE = 1\nEND\n");
}

TEST_F(ProfileProgram, WhatCannotBeReadAsAProfileIsToldWithItsPlaceInsteadOfPrinted) {
    folder.Write("ours.prf", "OBJECT_MAPPING ROLE\n  OBJECT_TYPE 78\nEND\n");
    const std::string complaint =
        "ours.prf:2:15: error: expected \"=\" and not \"78\" (a run ends here with 2150)\n";
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"profile", "print", "--profile", "ours.prf"},
          {"profile", "diff", "ours.prf"},
          {"profile", "diff", "/dev/null", "ours.prf"}}) {
        const ProcessResult result = RunHere(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.err, complaint);
        EXPECT_EQ(result.out, "");
    }
    WriteBeside(folder.Read("ours.prf"));
    const ProcessResult beside = RunHere({"profile", "print"});
    EXPECT_EQ(beside.status, 1);
    EXPECT_THAT(beside.err, HasSubstr("bin/wxbrg.prf:2:15: error: "));
}

TEST_F(ProfileProgram, ACutOffRuleIsToldInsteadOfLeftOut) {
    folder.Write("ours.prf", "OBJECT_MAPPING ROLE\n  OBJECT_TYPE = 78\n");
    const ProcessResult result = RunHere({"profile", "print", "--profile", "ours.prf"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, StartsWith("ours.prf:1:16: error: the rule \"ROLE\" is cut off"));
}

TEST_F(ProfileProgram, CheckOfACleanProfileEndsWithZero) {
    folder.Write("ours.prf", RunHere({"profile", "print", "--default"}).out);
    const ProcessResult result = RunHere({"profile", "check", "ours.prf"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "ours.prf: 0 errors, 0 warnings\n");
    EXPECT_EQ(result.err, "");
}

TEST_F(ProfileProgram, CheckOfADoubtfulProfileEndsWithThree) {
    WriteChanged("ours.prf", "ATTRIBUTE_MAPPING ACTIVITY_DESCRIPTION\n  ATTRIBUTE_TYPE = 9\n",
                 "ATTRIBUTE_MAPPING ACTIVITY_DESCRIPTION\n  ATTRIBUTE_TYPE = 9.5\n");
    const ProcessResult result = RunHere({"profile", "check", "ours.prf"});
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.out, AllOf(HasSubstr(":20: warning: 9.5 is read as 10; write 10\n"),
                                  EndsWith("ours.prf: 0 errors, 1 warning\n")));
}

TEST_F(ProfileProgram, CheckOfAWrongProfileEndsWithOneAndTellsInTheOrderOfTheFile) {
    WriteChanged("ours.prf", functions, "OBJECT_MAPPING ACTIVITY\n  OBJECT_TYPE = +\nEND\nEND\n");
    const ProcessResult result = RunHere({"profile", "check", "ours.prf"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, AllOf(StartsWith("ours.prf:2:17: error: expected the number of an object type"),
                                  HasSubstr("\nours.prf:4:1: error: expected OBJECT_MAPPING"),
                                  EndsWith("ours.prf: 2 errors, 0 warnings\n")));
    EXPECT_EQ(result.err, "");
}

TEST_F(ProfileProgram, CheckReadsAnEmptyFileAndAPipe) {
    folder.Write("empty.prf", "");
    EXPECT_EQ(RunHere({"profile", "check", "empty.prf"}).status, 1);
    const ProcessResult pipe =
        RunProcess({"bash", "-c", "\"$0\" profile check <(\"$0\" profile print --default)", WXBRG_PROGRAM},
                   {"", folder.Path(), environment});
    EXPECT_EQ(pipe.status, 0) << pipe.out << pipe.err;
}

TEST_F(ProfileProgram, APipeThatWouldBeOpenedTwiceIsRefused) {
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), S_IRWXU), 0);
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"profile", "check", "pipe"},
          {"export", "one.aml", "-o", "out.wpx", "--profile", "pipe"}}) {
        const ProcessResult named = RunHere(arguments);
        EXPECT_EQ(named.status, 2);
        EXPECT_THAT(named.err, HasSubstr("The mapping profile pipe is a pipe"));
    }
    const ProcessResult unnamed = RunProcess(
        {"bash", "-c", "\"$0\" export one.aml -o out.wpx --profile <(\"$0\" profile print --default)",
         WXBRG_PROGRAM},
        {"", folder.Path(), environment});
    EXPECT_EQ(unnamed.status, 2);
    EXPECT_THAT(unnamed.err, HasSubstr(" is a pipe, and an export reads the profile more than once"));
}

TEST_F(ProfileProgram, DiffTellsWhatAProfileChangesAgainstTheBuiltInRules) {
    WriteChanged("ours.prf", functions, noFunctions);
    const ProcessResult result = RunHere({"profile", "diff", "ours.prf"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out,
              "--- built-in rules\n"
              "+++ ours.prf\n"
              "ACTIVITY: changed\n"
              "  - OBJECT_TYPE = 22\n"
              "  + OBJECT_TYPE = 9999\n"
              "Rules: 1 changed, 0 missing, 0 added, 84 the same\n");
}

TEST_F(ProfileProgram, DiffTellsWhatAProfileChangesAgainstAnother) {
    folder.Write("ours.prf", "OBJECT_MAPPING A OBJECT_TYPE = 1 END\n");
    folder.Write("theirs.prf", "OBJECT_MAPPING A OBJECT_TYPE = 1 END OBJECT_MAPPING B OBJECT_TYPE = 2 END\n");
    EXPECT_EQ(RunHere({"profile", "diff", "ours.prf", "theirs.prf"}).out,
              "--- theirs.prf\n"
              "+++ ours.prf\n"
              "B: missing\n"
              "  - OBJECT_TYPE = 2\n"
              "Rules: 0 changed, 1 missing, 0 added, 1 the same\n");
    EXPECT_EQ(RunHere({"profile", "diff", "ours.prf", "ours.prf"}).status, 0);
}

}  // namespace
}  // namespace wxbrg::cli
