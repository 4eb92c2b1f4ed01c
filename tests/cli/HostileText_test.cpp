#include <gmock/gmock.h>

#include <sstream>

#include "support/TerminalText.h"
#include "support/Text.h"
#include "tests/cli/ProgramFixture.h"

namespace wxbrg::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

/// What a terminal would obey, and what would forge a line, as far as XML takes it.
const std::string hostileXml =
    "\x7F\u009B31m\u009D0;t\u0085\u2028\u2029\u202E\u2066\u200F\u061C&#10;FORGED &#13;FORGED "
    "&#13;&#10;FORGED";
/// Likewise with what arguments and files take besides.
const std::string hostile =
    "\x1B[2J\x07\x7F\u009B31m\u0085\u2028\u2029\u202E\u2066\u200F\u061C\xFF\nFORGED \rFORGED \r\nFORGED";

/// Expects printable text, in lines that the program has begun.
void ExpectPrintable(const std::string& text, const std::string& what) {
    EXPECT_TRUE(IsUtf8(text)) << what;
    for (const char32_t character : ToCharacters(text)) {
        const bool shown = character == U'\n' || IsPrintable(character);
        EXPECT_TRUE(shown) << what << ": " << static_cast<unsigned>(character);
    }
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        EXPECT_THAT(line, Not(testing::StartsWith("FORGED"))) << what;
}

class HostileText : public ProgramTest {
  protected:
    HostileText() {
        WriteOneModel();
        WriteExport("names.aml", {{"{m1}", "One" + hostileXml}, {"{m2}", "Two" + hostileXml}});
    }

    /// Runs the program, which is to end so, and expects both outputs to be printable.
    ProcessResult ExpectPrintableRun(const std::vector<std::string>& arguments, int status,
                                     const std::string& input = {}) const {
        const ProcessResult result = Run(arguments, input);
        std::string called;
        for (const std::string& argument : arguments) called += Printable(argument) + ' ';
        EXPECT_EQ(result.status, status) << called << Printable(result.err);
        ExpectPrintable(result.out, called);
        ExpectPrintable(result.err, called);
        return result;
    }
    /// Runs the interactive export on "one.aml".
    ProcessResult Answer(const std::string& input, int status,
                         const std::string& selected = "{m1},Orders,13") {
        return ExpectPrintableRun({"/DB=one", "/SEL=" + selected, "/LOC=1033"}, status, input);
    }
    void WriteProfile(const std::string& name, const std::string& rule) const {
        folder.Write(name, Run({"profile", "print", "--default"}).out + rule);
    }
};

TEST_F(HostileText, InTheListOfModels) {
    folder.Write("types.tsv", "MT\tMT_NEW\t900\n");
    EXPECT_THAT(ExpectPrintableRun({"models", "names.aml"}, 0).out, HasSubstr("\\u{9B}31m"));
    ExpectPrintableRun({"models", "names.aml", "--all", "--locale", "1031"}, 0);
    ExpectPrintableRun({"models", hostile}, 1);
    ExpectPrintableRun({"models", "names.aml", "--types", hostile}, 1);
    folder.Write("bad.tsv", hostile + "\tMT_NEW\t900\n");
    ExpectPrintableRun({"models", "names.aml", "--types", "bad.tsv"}, 1);
    folder.Write(hostile, "<" + hostile);
    ExpectPrintableRun({"models", hostile}, 1);
}

TEST_F(HostileText, InWhatAnExportListsAndSumsUp) {
    const ProcessResult several = ExpectPrintableRun({"export", "names.aml", "-o", "out.wpx"}, 2);
    EXPECT_THAT(several.err, HasSubstr("{m1}  One\\u{7F}"));
    ExpectPrintableRun({"export", "names.aml", "-o", "out.wpx", "--model", "{m1}"}, 0);
    ExpectPrintableRun({"export", "one.aml", "-o", hostile + ".wpx"}, 0);
    WriteExport("types.aml", {{"{m1}", "One", "MT_EEPC"}, {"{m2}", "Two", "MT_" + hostileXml}});
    EXPECT_THAT(ExpectPrintableRun({"export", "types.aml", "-o", "out.wpx", "--all"}, 0).out,
                HasSubstr("type MT_\\u{7F}"));
    ExpectPrintableRun({"export", "types.aml", "-o", "out.wpx", "--model", "{m2}"}, 2);
}

TEST_F(HostileText, InTheListOfLanguages) {
    std::string text = folder.Read("one.aml");
    text.replace(text.find(">English<"), 9, ">" + hostileXml + "<");
    folder.Write("languages.aml", text);
    EXPECT_THAT(ExpectPrintableRun({"models", "languages.aml", "--locale", "7"}, 2).err,
                HasSubstr("1033  \\u{7F}"));
}

TEST_F(HostileText, InArgumentsOfAnExport) {
    ExpectPrintableRun({"export", "one.aml", "-o", hostile + "/out.wpx"}, 2);
    for (const std::string option : {"--model", "--profile", "--set", "--locale", "--code-page"})
        ExpectPrintableRun({"export", "one.aml", "-o", "out.wpx", option, hostile}, 2);
    ExpectPrintableRun({"export", "one.aml", "-o", "out.wpx", "--set", "ConvertNames=" + hostile}, 2);
    ExpectPrintableRun({"export", "one.aml", "-o", "out.wpx", "--set", hostile + "=1"}, 2);
    ExpectPrintableRun({"export", "one.aml", "-o", "out.wpx", "--user", hostile}, 0);
    ExpectPrintableRun({"export", "one.aml", "-o", "out.wpx", "--language", hostile}, 1);
    ExpectPrintableRun({"export", "one.aml", "-o", "out.wpx", hostile}, 2);
    ExpectPrintableRun({"export", "one.aml", "-o", "out.wpx", "--" + hostile}, 2);
    ExpectPrintableRun({hostile}, 2);
    ExpectPrintableRun({"--" + hostile}, 2);
}

TEST_F(HostileText, InProfiles) {
    const std::string rule = "\x1B[2J\x7F\u009B\u202E\xFF";
    WriteProfile("broken.prf", "OBJECT_MAPPING " + rule + "\n  " + rule + " = " + rule + "\nEND\n");
    WriteProfile("added.prf", "OBJECT_MAPPING " + rule + "\n  OBJECT_TYPE = 22\nEND\n");
    WriteProfile("again.prf", "OBJECT_MAPPING ACTIVITY\n  OBJECT_TYPE = 22\nEND\n");
    WriteProfile("number.prf", "CONNECTION_MAPPING X\n  SOURCE_OBJECT_TYPE = " + rule + "\nEND\n");
    for (const std::string name : {"broken.prf", "added.prf", "again.prf", "number.prf"}) {
        ProcessResult checked = Run({"profile", "check", name});
        ExpectPrintable(checked.out + checked.err, "check " + name);
        checked = Run({"profile", "diff", name});
        ExpectPrintable(checked.out + checked.err, "diff " + name);
        ExpectPrintable(Run({"profile", "print", "--profile", name}).err, "print " + name);
        const ProcessResult run = Run({"export", "one.aml", "-o", "out.wpx", "--profile", name});
        ExpectPrintable(run.out + run.err, "export by " + name);
    }
    EXPECT_THAT(Run({"profile", "diff", "added.prf"}).out, HasSubstr("\\u{1B}[2J"));
    for (const std::string command : {"check", "diff"}) ExpectPrintableRun({"profile", command, hostile}, 2);
    folder.Write(hostile, "OBJECT_MAPPING\n");
    ExpectPrintableRun({"profile", "check", hostile}, 1);
    ExpectPrintableRun({"profile", "diff", "again.prf", hostile}, 1);
}

TEST_F(HostileText, WhatIsReadBackStaysAsItIs) {
    WriteProfile("added.prf", "OBJECT_MAPPING X\u202EY\n  OBJECT_TYPE = 22\nEND\n");
    EXPECT_THAT(Run({"profile", "print", "--profile", "added.prf"}).out, HasSubstr("X\u202EY"));
}

TEST_F(HostileText, InStoredOptions) {
    const std::string value = "\x1B[2J\u009B\u202E\nFORGED\tx";
    ASSERT_EQ(Run({"options", "set", "RepositoryPath", value}).status, 0);
    EXPECT_EQ(ExpectPrintableRun({"options", "get", "RepositoryPath"}, 0).out,
              "\\u{1B}[2J\\u{9B}\\u{202E}\\u{A}FORGED\tx\n");
    EXPECT_THAT(ExpectPrintableRun({"options", "list"}, 0).out,
                HasSubstr("RepositoryPath\t\\u{1B}[2J\\u{9B}\\u{202E} FORGED x\tuser\n"));
    for (const std::string action : {"get", "reset", hostile.c_str()})
        ExpectPrintableRun({"options", action, hostile}, 2);
    ExpectPrintableRun({"options", "set", hostile, "1"}, 2);
    ExpectPrintableRun({"options", "set", "ConvertNames", hostile}, 2);
    ExpectPrintableRun({"options", "set", "RepositoryPath", hostile}, 1);
}

TEST_F(HostileText, InWhatReplayReports) {
    for (const std::string& answers : {"file ../" + hostile, hostile, std::string("box ok\n")}) {
        folder.Write("case" + hostile + "/answers", answers);
        ExpectPrintable(Run({"replay", "case" + hostile, "--out", "out"}).err, "replay");
        folder.Write("case" + hostile + "/repository.aml", folder.Read("one.aml"));
        folder.Write("case" + hostile + "/command", "/DB=one /SEL={m1},Orders,13 /LOC=1033");
        ExpectPrintable(Run({"replay", "case" + hostile, "--out", "out" + hostile}).err, "replay");
    }
    ExpectPrintableRun({"replay", hostile, "--out", "out"}, 2);
}

TEST_F(HostileText, InBoxesAndPromptsOfTheInteractiveRun) {
    Answer("o\nresult\ny\n", 0);
    // A box about a model, a database and a language that are not there.
    Answer("\n\n\n", 1, hostile + "," + hostile + ",13");
    ExpectPrintableRun({"/DB=" + hostile, "/SEL={m1},Orders,13", "/LOC=1033"}, 1, "\n\n");
    ExpectPrintableRun({"/DB=one", "/SEL={m1},Orders,13", "/LOC=" + hostile}, 1, "\n\n");
    // Answers to the file dialog: a pattern, a folder that is not there, a folder, a file that is there.
    const std::string name = "\x1B[2J\x7F\u009B\u202E\u2028\xFF";
    std::filesystem::create_directory(folder / (name + ".wpx"));
    folder.Write("there" + name + ".wpx", "");
    Answer("o\n" + name + "*\n" + name + "/x\n" + name + "\nthere" + name + "\nn\nnew" + name + "\ny\n", 0);
    // What the dialogs propose, and commands that are none.
    const std::string stored = "\x1B[2J\u009B\u202E";
    folder.Write("settings/wxbrg/registry.reg",
                 "REGEDIT4\n\n[HKEY_CURRENT_USER\\Software\\IDS Scheer\\Aris\\5.0\\ToolIntegration\\quenby]\n"
                 "\"OutputPath\"=\"" +
                     stored + "\"\n\"OutputFileName\"=\"" + stored + "\"\n");
    const ProcessResult proposed = Answer(name + "\nh" + name + "\no\nc\ny\n", 130);
    EXPECT_THAT(proposed.out, HasSubstr("Folder: \\u{1B}[2J"));
    EXPECT_THAT(proposed.out, HasSubstr("Enter: \\u{1B}[2J"));
}

}  // namespace
}  // namespace wxbrg::cli
