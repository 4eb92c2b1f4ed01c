#include <gmock/gmock.h>

#include "tests/cli/ProgramFixture.h"

namespace wxbrg::cli {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr const char* normalExit = "{\"exit\": \"normal\"}\n";

/// Replays the folder "case" into the folder "out".
class ReplayProgram : public ProgramTest {
  protected:
    ReplayProgram() {
        WriteExport("case/repository.aml", {{"{m1}", "New.orders"}});
        folder.Write("case/command", "/USR=me /DB=any /SVR=host /REG= /SEL={m1},New.orders,13 /LOC=1033\n");
        folder.Write("case/options", "Language=s:TST\nUseOtherSettings=0\n");
        folder.Write("case/answers", "options ok\nfile result.wpx\n");
    }
    ProcessResult Replay() const { return Run({"replay", "case", "--out", "out"}); }
    void ExpectBad(const std::string& text) const {
        const ProcessResult result = Replay();
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.err, HasSubstr(text));
        EXPECT_THAT(result.out, Not(HasSubstr("exit")));
    }
};

TEST_F(ReplayProgram, WritesTheFilesOfTheRunAndTheOptionsBehindIt) {
    const ProcessResult result = Replay();
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, normalExit);
    EXPECT_THAT(folder.Read("out/result.wpx"), AllOf(HasSubstr("'New_orders'"), HasSubstr("= me")));
    EXPECT_THAT(folder.Read("out/result.log"), HasSubstr("WXB03110I 3110|"));
    EXPECT_EQ(folder.Read("out/options"), "Language=s:TST\nUseOtherSettings=0\n");
}

TEST_F(ReplayProgram, TheCauseOfAFailureIsNamedBehindTheTranscript) {
    folder.Write("case/answers", "options ok\nfile none/result.wpx\n");
    const ProcessResult result = Replay();
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("{\"exit\": \"unknown failure\", \"number\": 76, "));
    EXPECT_THAT(result.err, HasSubstr("none/result.wpx: No such file or directory (2). "));
}

TEST_F(ReplayProgram, OptionsOfTheCaseCountAndThoseOfTheUserDoNot) {
    EXPECT_EQ(Run({"options", "set", "ConvertNames", "0"}).status, 0);
    EXPECT_EQ(Replay().out, normalExit);
    EXPECT_THAT(folder.Read("out/result.wpx"), HasSubstr("'New_orders'"));
    folder.Write("case/machine-options", "ConvertNames=0\n");
    EXPECT_EQ(Replay().out, normalExit);
    EXPECT_THAT(folder.Read("out/result.wpx"), HasSubstr("'New.orders'"));
    EXPECT_EQ(folder.Read("out/options"), "Language=s:TST\nUseOtherSettings=0\n");
}

TEST_F(ReplayProgram, OptionsThatTheDialogStoresAreInTheCaseNotWithTheUser) {
    folder.Write("case/answers", "options click:cbConvertARISNames\noptions ok\nfile result.wpx\n");
    EXPECT_EQ(Replay().out, normalExit);
    EXPECT_THAT(folder.Read("out/options"), AllOf(HasSubstr("ConvertNames=0\nDataTypeFromAttribute=-1\n"),
                                                  HasSubstr("Language=s:TST\n")));
    EXPECT_TRUE(std::filesystem::is_empty(folder / "settings"));
}

TEST_F(ReplayProgram, BoxesAreTranscribedWithTheirAnswers) {
    folder.Write("case/answers", "options ok\nfile cancel:no\nfile result\n");
    EXPECT_EQ(
        Replay().out,
        R"({"box": {"title": "ARIS to Tarnlight Workflow Bridge", "text": )"
        R"("1010|WXB32755Q |clsIOHandler.FileSelectDialog|%3$s|%4$s\r\n\r\n1030|%1$s|%2$s|%3$s|%4$s\r\n", )"
        R"("buttons": 65572, "answer": 7}})"
        "\n" +
            std::string(normalExit));
    EXPECT_TRUE(Exists("out/result.wpx"));
}

TEST_F(ReplayProgram, ANameThatIsAFileOfTheCaseIsRefusedAndTheNextAnswerCounts) {
    folder.Write("case/answers", "options ok\nfile case/repository.aml\nfile case/options\n");
    const std::string before = folder.Read("case/repository.aml");
    const ProcessResult result = Run({"replay", "case", "--out", "."});
    EXPECT_EQ(result.out, "{\"refused\": {\"name\": \"case/repository.aml\", \"reason\": \"input\"}}\n" +
                              std::string(normalExit));
    EXPECT_EQ(folder.Read("case/repository.aml"), before);
    EXPECT_TRUE(Exists("case/options.wpx"));
}

TEST_F(ReplayProgram, ARunThatDoesNotEndNormallyIsStillExitStatus0) {
    folder.Write("case/answers", "options cancel:yes\n");
    const ProcessResult cancelled = Replay();
    EXPECT_EQ(cancelled.status, 0);
    EXPECT_THAT(cancelled.out,
                testing::EndsWith(R"({"exit": "ended by failure", "number": 999, "procedure": )"
                                  "\"frmExportOptions.cmdCancel_Click\"}\n"));
    EXPECT_EQ(folder.Read("out/options"), "Language=s:TST\nUseOtherSettings=0\n");
    folder.Write("case/command", "/DB=any /LOC=x\n");
    const ProcessResult failed = Replay();
    EXPECT_EQ(failed.status, 0);
    EXPECT_THAT(failed.out, testing::EndsWith(R"({"exit": "unknown failure", "number": 13, "procedure": )"
                                              "\"clsARIS_Interface.SaveCommandlineArguments\"}\n"));
}

TEST_F(ReplayProgram, AMissingLanguageLibraryIsAWayToEnd) {
    folder.Write("case/options", "Language=s:XYZ\n");
    const ProcessResult result = Replay();
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out,
                AllOf(HasSubstr("wxbrgXYZ.dll"), HasSubstr("{\"exit\": \"no language library\"}\n")));
}

TEST_F(ReplayProgram, WhatTheRunTellsDoesNotDependOnWhereTheFoldersLie) {
    folder.Write("case/answers", "options ok\nfile none/result.wpx\n");
    EXPECT_THAT(Replay().out, HasSubstr("path not found: none/result.wpx\""));
    folder.Write("case/repository.aml", "<AML>");
    const ProcessResult broken = Replay();
    EXPECT_EQ(broken.status, 0);
    EXPECT_THAT(broken.out, AllOf(HasSubstr("WXB00321C "), HasSubstr("repository.aml"),
                                  Not(HasSubstr("case/repository.aml"))));
}

TEST_F(ReplayProgram, FilesAreInTheCodePageOfTheCase) {
    folder.Write("case/code-page", "1252\n");
    WriteExport("case/repository.aml", {{"{m1}", "Größe"}});
    folder.Write("case/command", "/DB=any /SEL={m1},Größe,13 /LOC=1033\n");
    EXPECT_EQ(Replay().out, normalExit);
    EXPECT_THAT(folder.Read("out/result.wpx"), AllOf(HasSubstr("CODEPAGE 1252"), HasSubstr("Gr\xF6\xDF")));
}

TEST_F(ReplayProgram, AnswersThatRunOutOrAreOfTheWrongKindMakeABadCase) {
    folder.Write("case/answers", "options ok\n");
    ExpectBad("answers");
    folder.Write("case/answers", "file result.wpx\n");
    ExpectBad("line 1");
    folder.Write("case/answers", "options ok\nfile cancel:no\noptions ok\n");
    ExpectBad("line 3");
    folder.Write("case/answers", "options click:nothing\n");
    ExpectBad("nothing");
    folder.Write("case/answers", "perhaps\n");
    ExpectBad("perhaps");
}

TEST_F(ReplayProgram, AnswersThatAreLeftAreNoMatter) {
    folder.Write("case/answers", "options ok\nfile result.wpx\nfile more.wpx\n");
    EXPECT_EQ(Replay().out, normalExit);
    EXPECT_FALSE(Exists("out/more.wpx"));
}

TEST_F(ReplayProgram, ABadCaseIsToldWithTheFile) {
    folder.Write("case/options", "ConvertNames\n");
    ExpectBad("options: line 1");
    folder.Write("case/options", "");
    folder.Write("case/code-page", "4711\n");
    ExpectBad("4711");
    std::filesystem::remove(folder / "case/command");
    ExpectBad("command");
    std::filesystem::remove_all(folder / "case");
    ExpectBad("case");
}

TEST_F(ReplayProgram, TheMappingProfileOfTheCaseCounts) {
    folder.Write("case/profile.prf", "OBJECT_MAPPING ACTIVITY OBJECT_TYPE = 22 END");
    const ProcessResult result = Replay();
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("WXB02100C"));
    EXPECT_THAT(result.out, HasSubstr("ended by failure"));
}

TEST_F(ReplayProgram, NothingIsWrittenOutsideTheFolderOfTheOutput) {
    folder.Write("case/answers", "options ok\nfile ../result.wpx\n");
    ExpectBad("leads out");
    const ProcessResult inside = Run({"replay", "case", "--out", "./case"});
    EXPECT_EQ(inside.status, 2);
    EXPECT_EQ(folder.Read("case/options"), "Language=s:TST\nUseOtherSettings=0\n");
}

TEST_F(ReplayProgram, TheCaseStaysAsItIs) {
    EXPECT_EQ(Replay().status, 0);
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder / "case"))
        names.push_back(entry.path().filename().string());
    EXPECT_THAT(names, testing::UnorderedElementsAre("repository.aml", "command", "options", "answers"));
}

}  // namespace
}  // namespace wxbrg::cli
