// The choice of the output file.

#include <gmock/gmock.h>

#include <string>

#include "run/clsIOHandler.h"
#include "run/modGlobals.h"
#include "tests/run/RunFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::string_view procedure = "clsIOHandler.FileSelectDialog";
constexpr std::string_view key = R"(Software\IDS Scheer\Aris\5.0\ToolIntegration\quenby)";

class FileSelectDialogTest : public RunFixture {
  protected:
    std::optional<RunEnd> Select(std::string_view answers) {
        Answer(answers);
        return RunIn("test.P", [&](Frame&) {
            selected_ = gBlock.gIOHandler->FileSelectDialog();
        });
    }
    void Store(std::string_view name, const ProfileValue& value) {
        profileStore_.Put(ProfileScope::user, key, name, value);
    }

    std::string selected_;
};

TEST_F(FileSelectDialogTest, ShowsASaveDialogForDefinitionFiles) {
    EXPECT_EQ(Select("file out.wpx"), std::nullopt);
    ASSERT_THAT(fileDialog_.shown, SizeIs(1));
    const FileDialogSettings& settings = fileDialog_.shown.front();
    EXPECT_EQ(settings.flags, 567318);
    EXPECT_EQ(settings.initialDirectory, "");
    EXPECT_EQ(settings.fileName, "*.wpx");
    EXPECT_EQ(settings.filter, "Workplex Files (*.wpx)|*.wpx|All Files (*.*)|*.*");
    EXPECT_EQ(settings.defaultExtension, "wpx");
    EXPECT_EQ(settings.filterIndex, 1);
}

TEST_F(FileSelectDialogTest, TheHelpIsThePageAboutTheOutputFile) {
    gBlock.gHelpFile = "wxbrgDEU.hlp";
    Select("file out.wpx");
    fileDialog_.shown.front().help();
    EXPECT_THAT(helpViewer_.shown, ElementsAre("wxbrgDEU.hlp#50100"));
}

TEST_F(FileSelectDialogTest, BeginsWithFolderAndNameOfTheToolIntegration) {
    Store("OutputPath", std::string("/exports"));
    Store("OutputFileName", std::string("orders.wpx"));
    Select("file out.wpx");
    EXPECT_THAT(fileDialog_.shown,
                ElementsAre(testing::AllOf(Field(&FileDialogSettings::initialDirectory, "/exports"),
                                           Field(&FileDialogSettings::fileName, "orders.wpx"))));
    EXPECT_THAT(profileStore_.writes, IsEmpty());
}

TEST_F(FileSelectDialogTest, TheMachinesFolderCountsWhereTheUserHasNone) {
    profileStore_.Put(ProfileScope::machine, key, "OutputPath", std::string("/shared"));
    Select("file out.wpx");
    EXPECT_EQ(fileDialog_.shown.front().initialDirectory, "/shared");
}

TEST_F(FileSelectDialogTest, AnEmptyStoredNameCountsAsNone) {
    Store("OutputPath", std::string());
    Store("OutputFileName", std::string());
    profileStore_.Put(ProfileScope::machine, key, "OutputFileName", std::string("machine.wpx"));
    Select("file out.wpx");
    EXPECT_EQ(fileDialog_.shown.front().initialDirectory, "");
    EXPECT_EQ(fileDialog_.shown.front().fileName, "*.wpx");
}

TEST_F(FileSelectDialogTest, AStoredNumberCountsAsItsDecimalText) {
    Store("OutputPath", 2024);
    Store("OutputFileName", -17);
    Select("file out.wpx");
    EXPECT_EQ(fileDialog_.shown.front().initialDirectory, "2024");
    EXPECT_EQ(fileDialog_.shown.front().fileName, "-17");
}

TEST_F(FileSelectDialogTest, AStored0IsANameToo) {
    Store("OutputPath", 0);
    Store("OutputFileName", 0);
    Select("file out.wpx");
    EXPECT_EQ(fileDialog_.shown.front().initialDirectory, "0");
    EXPECT_EQ(fileDialog_.shown.front().fileName, "0");
}

TEST_F(FileSelectDialogTest, EmptiesOutputAndLogAndKeepsTheirNames) {
    fileSystem_.Put("folder/out.wpx", "old output");
    fileSystem_.Put("folder/out.log", "old log");
    EXPECT_EQ(Select("file folder/out.wpx"), std::nullopt);
    EXPECT_EQ(selected_, "folder/out.wpx");
    EXPECT_EQ(gBlock.gIOHandler->sOutputFileName, "folder/out.wpx");
    EXPECT_EQ(gBlock.gIOHandler->sLogFileName, "folder/out.log");
    EXPECT_EQ(Bytes("folder/out.wpx"), "");
    EXPECT_EQ(Bytes("folder/out.log"), "");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FileSelectDialogTest, TheLogsNameReplacesTheLastFourCharacters) {
    Select("file out.defin");
    EXPECT_EQ(gBlock.gIOHandler->sLogFileName, "out.d.log");
    Select("file Größe.äöü");
    EXPECT_EQ(gBlock.gIOHandler->sLogFileName, "Größe.log");
    Select("file .wpx");
    EXPECT_EQ(gBlock.gIOHandler->sLogFileName, ".log");
}

TEST_F(FileSelectDialogTest, ANameWithoutAPointGetsTheExtensionOfTheDialog) {
    fileSystem_.MakeFolder("folder.d");
    EXPECT_EQ(Select("file folder.d/out"), std::nullopt);
    EXPECT_EQ(gBlock.gIOHandler->sOutputFileName, "folder.d/out.wpx");
    EXPECT_EQ(gBlock.gIOHandler->sLogFileName, "folder.d/out.log");
}

TEST_F(FileSelectDialogTest, CancelAndNoShowsTheDialogAgainWithAllItsSettings) {
    Store("OutputPath", std::string("/exports"));
    EXPECT_EQ(Select("file cancel:no\nfile cancel:no\nfile out.wpx"), std::nullopt);
    EXPECT_EQ(selected_, "out.wpx");
    EXPECT_THAT(Boxes(), ElementsAre(QuestionBox(32755, procedure), QuestionBox(32755, procedure)));
    ASSERT_THAT(fileDialog_.shown, SizeIs(3));
    EXPECT_EQ(fileDialog_.shown.back().flags, 567318);
    EXPECT_EQ(fileDialog_.shown.back().initialDirectory, "/exports");
    EXPECT_EQ(fileDialog_.shown.back().fileName, "*.wpx");
}

TEST_F(FileSelectDialogTest, CancelAndYesEndsTheRunAndTouchesNoFile) {
    fileSystem_.Put("out.wpx", "old output");
    EXPECT_THAT(Select("file cancel:no\nfile cancel:yes"), EndedRun(RunEnding::endedByFailure, 32755));
    EXPECT_EQ(Bytes("out.wpx"), "old output");
    EXPECT_EQ(gBlock.gIOHandler->sOutputFileName, "");
    EXPECT_EQ(gBlock.gCurrentProcedure, procedure);
}

TEST_F(FileSelectDialogTest, ANameThatIsTooShortForALogIsEmptiedAndEndsTheRun) {
    fileSystem_.Put("a.b", "old output");
    EXPECT_THAT(Select("file a.b"), EndedRun(RunEnding::unknownFailure, 5));
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(5, procedure, "invalid call or missing key")));
    EXPECT_EQ(Bytes("a.b"), "");
}

TEST_F(FileSelectDialogTest, AnOutputThatCannotBeMadeEndsTheRunWithItsName) {
    EXPECT_THAT(Select("file no/out.wpx"), EndedRun(RunEnding::unknownFailure, 76));
    EXPECT_THAT(Boxes(),
                ElementsAre(UnknownFailureBox(76, "clsIOHandler.OpenFile", "path not found: no/out.wpx")));
}

TEST_F(FileSelectDialogTest, ALogThatCannotBeMadeEndsTheRunWithItsNameAndTheOutputIsEmpty) {
    fileSystem_.Put("out.wpx", "old output");
    fileSystem_.MakeFail("out.log", MemoryFileSystem::Step::open, FailureKind::fileAccess);
    EXPECT_THAT(Select("file out.wpx"), EndedRun(RunEnding::unknownFailure, 75));
    EXPECT_THAT(Boxes(),
                ElementsAre(UnknownFailureBox(75, "clsIOHandler.OpenFile", "file access error: out.log")));
    EXPECT_EQ(Bytes("out.wpx"), "");
}

}  // namespace
}  // namespace wxbrg
