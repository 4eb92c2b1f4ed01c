// Whole runs over a small export: the order of things, and their reports.

#include "run/RunExport.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "aris/xml/XmlAutomation.h"
#include "aris/xml/XmlRepository.h"
#include "run/clsARIS_Interface.h"
#include "run/modGlobals.h"
#include "tests/TemporaryFolder.h"
#include "tests/cli/SmallExport.h"
#include "tests/run/RunFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr std::string_view programKey = R"(Software\Quenby\Tarnlight Workflow Aris Bridge\CurrentVersion)";
constexpr std::string_view profile = "/program/wxbrg.prf";

/// The model "Order" has a function that "Check" is assigned to; "Return" stands for itself.
std::string OrderExport() {
    return cli::SmallExport({{.guid = "m1", .name = "Order", .assigned = "m2"},
                             {.guid = "m2", .name = "Check"},
                             {.guid = "m3", .name = "Return"}});
}

std::string NoteOfFound(const std::string& process) {
    return "WXB03050I 3050|" + process + "|%2$s|%3$s|%4$s\r\n";
}

/// The notes of a process with one activity while its properties are set up.
std::string NotesOfSetup(const std::string& process, const std::string& activityKind) {
    return "WXB03060I 3060|Check order|Function|" + activityKind + "|%4$s\r\nWXB03090I 3090|" + activityKind +
           "|'Check order'|%3$s|%4$s\r\nWXB03090I 3090|PROCESS|'" + process + "'|%3$s|%4$s\r\n";
}

const std::string noteOfCategory = "WXB03040I 3040|Sales|%2$s|%3$s|%4$s\r\n";
const std::string noteOfCategorySetup = "WXB03090I 3090|PROCESS_CATEGORY|'Sales'|%3$s|%4$s\r\n";

class RunExportTest : public RunFixture {
  protected:
    RunExportTest() : file_((folder_ / "Orders.aml").string()) {
        WriteBytes(file_, OrderExport());
        request_.commandLine = "/USR=anna /DB=Orders /SEL=m1,Order,13 /LOC=1033";
    }

    RunReport Run(std::string_view answers) {
        Answer(answers);
        XmlAutomation automation = XmlAutomation::ForFile(file_);
        return RunExport(request_, platform_, automation);
    }

    TemporaryFolder folder_;
    std::string file_;
};

TEST_F(RunExportTest, TellsWhatItDidAfterANormalEnd) {
    const RunReport report = Run("options ok\nfile out.wpx");
    EXPECT_EQ(report.ending, RunEnding::normal);
    EXPECT_EQ(report.number, 0);
    EXPECT_EQ(report.procedure, "");
    EXPECT_EQ(report.error, "");
    EXPECT_EQ(report.modelsSelected, 1);
    EXPECT_EQ(report.processes, 2);
    EXPECT_EQ(report.objectsWritten, 5);
    EXPECT_EQ(report.notes.information, 12);
    EXPECT_EQ(report.notes.exclamation, 0);
    EXPECT_EQ(report.boxes.critical, 0);
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_EQ(script_.Remaining(), 0);
}

TEST_F(RunExportTest, BuildsTheSelectedModelsFirstAndThenWhatTheyLeadTo) {
    Run("options ok\nfile out.wpx");
    EXPECT_EQ(Bytes("out.log"), noteOfCategory + noteOfCategorySetup + NoteOfFound("Order") +
                                    NotesOfSetup("Order", "PROCESS_ACTIVITY") + noteOfCategory +
                                    NoteOfFound("Check") + NotesOfSetup("Check", "PROGRAM_ACTIVITY") +
                                    "WXB03110I 3110|5|%2$s|%3$s|%4$s\r\n");
}

TEST_F(RunExportTest, WritesAtOnceWhereTheSelectedModelsLeadNowhere) {
    request_.commandLine = "/SEL=m3,Return,13;m2,Check,13 /LOC=1033";
    const RunReport report = Run("options ok\nfile out.wpx");
    EXPECT_EQ(report.modelsSelected, 2);
    EXPECT_EQ(Bytes("out.log"), noteOfCategory + noteOfCategorySetup + NoteOfFound("Return") +
                                    NoteOfFound("Check") + NotesOfSetup("Return", "PROGRAM_ACTIVITY") +
                                    NotesOfSetup("Check", "PROGRAM_ACTIVITY") +
                                    "WXB03110I 3110|5|%2$s|%3$s|%4$s\r\n");
}

TEST_F(RunExportTest, FindsTheModelsBeforeTheOptionsAreShown) {
    std::int32_t selected = 0;
    optionsFormView_.use = [&](OptionsFormEvents& form) {
        selected = gBlock.gARISInterface->ColSelectedModels.Count();
        EXPECT_THAT(fileDialog_.shown, IsEmpty());
        form.Ok();
    };
    EXPECT_EQ(Run("file out.wpx").ending, RunEnding::normal);
    EXPECT_EQ(selected, 1);
    EXPECT_EQ(optionsFormView_.timesShown, 1);
}

TEST_F(RunExportTest, BeginsGeneratedNamesWithTheStoredSuffixBeforeTheFileIsAskedFor) {
    profileStore_.Put(ProfileScope::user, programKey, "FirstSuffixNumber", 42);
    bool asked = false;
    fileDialog_.whenShown = [&] {
        asked = true;
        EXPECT_EQ(gBlock.gDataStructureNamePrefix, "DATA_STRUCTURE_");
        EXPECT_EQ(gBlock.gNextDataStructureSuffix, 42);
        EXPECT_TRUE(gBlock.gColMappingRule.IsEmpty());
        EXPECT_TRUE(gBlock.gColPROCESS.IsEmpty());
    };
    Run("options ok\nfile out.wpx");
    EXPECT_TRUE(asked);
}

TEST_F(RunExportTest, WritesTheSectionsInTheirOrderBehindTheHeader) {
    Run("options ok\nfile out.wpx");
    std::string bytes = Bytes("out.wpx");
    EXPECT_THAT(bytes, StartsWith("/*\r\n*  \r\n*  WPX definitions generated by ARIS to Tarnlight Workflow "
                                  "Bridge on 2026 Sat Nov 21  12:43:05\r\n"));
    std::size_t position = 0;
    for (const char* section : {"CODEPAGE 1252\r\n", "*  DATA_STRUCTUREs\r\n", "*  PROCESS_CATEGORYs\r\n",
                                "*  PROGRAMs\r\n", "*  PERSONs\r\n", "*  ROLEs\r\n", "*  ORGANIZATIONs\r\n",
                                "*  PROCESSES\r\n", "PROCESS 'Order'", "PROCESS 'Check'"}) {
        const std::size_t found = bytes.find(section, position);
        ASSERT_NE(found, std::string::npos) << section;
        position = found;
    }
}

TEST_F(RunExportTest, TwoRunsGiveTheSameBytes) {
    Run("options ok\nfile out.wpx");
    Run("options ok\nfile again.wpx");
    EXPECT_EQ(Bytes("again.wpx"), Bytes("out.wpx"));
    EXPECT_EQ(Bytes("again.log"), Bytes("out.log"));
}

TEST_F(RunExportTest, ModelsHandedOverGiveTheSameBytesAsTheCommandLine) {
    Run("options ok\nfile out.wpx");
    const std::unique_ptr<aris::Catalogue> catalogue = OpenXmlRepository({file_, {}, {}});
    request_.commandLine = "no command line";
    request_.selection = ExportSelection{.user = "anna",
                                         .database = "Orders",
                                         .server = "",
                                         .registry = "",
                                         .locale = 1033,
                                         .models = {catalogue->Models().Get(0)}};
    CatalogueAutomation automation(*catalogue);
    Answer("options ok\nfile handed.wpx");
    EXPECT_EQ(RunExport(request_, platform_, automation).ending, RunEnding::normal);
    EXPECT_EQ(Bytes("handed.wpx"), Bytes("out.wpx"));
    EXPECT_EQ(Bytes("handed.log"), Bytes("out.log"));
}

TEST_F(RunExportTest, OptionsThatAreNotChangedAreNotStored) {
    Run("options ok\nfile out.wpx");
    EXPECT_THAT(profileStore_.writes, IsEmpty());
}

TEST_F(RunExportTest, CancellingTheOptionsAndYesEndsTheRunBeforeTheFileDialog) {
    const RunReport report = Run("options cancel:yes");
    EXPECT_EQ(report.ending, RunEnding::endedByFailure);
    EXPECT_EQ(report.number, 999);
    EXPECT_EQ(report.procedure, "frmExportOptions.cmdCancel_Click");
    EXPECT_EQ(report.boxes.question, 1);
    EXPECT_EQ(report.modelsSelected, 1);
    EXPECT_EQ(report.objectsWritten, 0);
    EXPECT_THAT(Boxes(), ElementsAre(QuestionBox(999, "frmExportOptions.cmdCancel_Click")));
    EXPECT_THAT(fileDialog_.shown, IsEmpty());
}

TEST_F(RunExportTest, CancellingBothDialogsAndNoGoesOn) {
    const RunReport report =
        Run("options cancel:no\noptions cancel:no\noptions ok\nfile cancel:no\nfile out.wpx");
    EXPECT_EQ(report.ending, RunEnding::normal);
    EXPECT_EQ(report.boxes.question, 3);
    EXPECT_THAT(fileDialog_.shown, SizeIs(2));
}

TEST_F(RunExportTest, CancellingTheFileDialogAndYesEndsTheRun) {
    const RunReport report = Run("options ok\nfile cancel:yes");
    EXPECT_EQ(report.ending, RunEnding::endedByFailure);
    EXPECT_EQ(report.number, 32755);
    EXPECT_EQ(report.procedure, "clsIOHandler.FileSelectDialog");
}

TEST_F(RunExportTest, AnOutputThatIsThereIsEmptiedAlsoWhenTheRunFailsLater) {
    fileSystem_.Put("out.wpx", "old output");
    fileSystem_.Put("out.log", "old log");
    fileSystem_.Put(std::string(profile), "OBJECT_MAPPING PROCESS OBJECT_TYPE = 13 END ");
    const RunReport report = Run("options ok\nfile out.wpx");
    EXPECT_EQ(report.ending, RunEnding::endedByFailure);
    EXPECT_EQ(report.number, 2100);
    EXPECT_EQ(Bytes("out.wpx"), "");
    EXPECT_EQ(Bytes("out.log"), noteOfCategory);
    ASSERT_THAT(Boxes(), SizeIs(1));
    EXPECT_EQ(Boxes().front().buttons, 65552);
    EXPECT_THAT(Boxes().front().text, StartsWith("1000|WXB02100C |" + report.procedure + "|"));
}

TEST_F(RunExportTest, AFullDiskEndsTheRunWithTheFilesNameAndWithoutTheLastNote) {
    fileSystem_.MakeFail("out.wpx", MemoryFileSystem::Step::write, FailureKind::diskFull);
    const RunReport report = Run("options ok\nfile out.wpx");
    EXPECT_EQ(report.ending, RunEnding::unknownFailure);
    EXPECT_EQ(report.number, 61);
    EXPECT_EQ(report.procedure, "clsIOHandler.WriteFile");
    EXPECT_EQ(report.objectsWritten, 0);
    EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(61, "clsIOHandler.WriteFile", "disk full: out.wpx")));
    EXPECT_THAT(Bytes("out.log"), testing::EndsWith(NotesOfSetup("Check", "PROGRAM_ACTIVITY")));
}

TEST_F(RunExportTest, AnExportThatCannotBeReadEndsTheRunBeforeTheOptionsAreShown) {
    file_ = (folder_ / "none.aml").string();
    const RunReport report = Run("");
    EXPECT_EQ(report.ending, RunEnding::unknownFailure);
    EXPECT_EQ(report.number, 53);
    EXPECT_EQ(report.procedure, "clsARIS_Interface.RetrieveSelectedARISModels");
    ASSERT_THAT(Boxes(), SizeIs(1));
    EXPECT_THAT(Boxes().front().text, HasSubstr("none.aml"));
    EXPECT_EQ(optionsFormView_.timesShown, 0);
}

TEST_F(RunExportTest, AnswersThatDoNotFitAreAnErrorOfTheRun) {
    const RunReport report = Run("options ok\noptions ok");
    EXPECT_EQ(report.ending, RunEnding::error);
    EXPECT_THAT(report.error, HasSubstr("the file dialog came"));
    EXPECT_EQ(report.procedure, "clsIOHandler.FileSelectDialog");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(RunExportTest, LeavesAFreshGlobalBlock) {
    Run("options click:cbWriteOtherSettings\noptions ok\nfile out.wpx");
    EXPECT_EQ(gBlock.gPlatform, nullptr);
    EXPECT_EQ(gBlock.gResourceLibrary, nullptr);
    EXPECT_EQ(gBlock.gHelpFile, "");
    EXPECT_FALSE(gBlock.gExceptionHandler);
    EXPECT_FALSE(gBlock.gIOHandler);
    EXPECT_FALSE(gBlock.gOptionsForm);
    EXPECT_FALSE(gBlock.gOptUseOtherSettings);
    EXPECT_TRUE(gBlock.gColMappingRule.IsEmpty());
    EXPECT_TRUE(gBlock.gColPROCESS.IsEmpty());
    EXPECT_EQ(gBlock.gDataStructureNamePrefix, "");
    EXPECT_EQ(gBlock.gCurrentProcedure, "");
    EXPECT_EQ(gBlock.gRunReport.objectsWritten, 0);
}

class ReadProcessTypesTest : public RunFixture {};

TEST_F(ReadProcessTypesTest, TellsTheDefaultTypesInTheOrderOfTheRule) {
    const ProcessTypes result = ReadProcessTypes(platform_);
    EXPECT_EQ(result.report.ending, RunEnding::normal);
    EXPECT_THAT(result.types, ElementsAre(13, 50, 134, 154, 140, 14, 103, 100, 138, 18, 51, 124, 12));
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_EQ(gBlock.gPlatform, nullptr);
}

TEST_F(ReadProcessTypesTest, TellsTheTypesOfTheProfile) {
    fileSystem_.Put(std::string(profile), "OBJECT_MAPPING process OBJECT_TYPE = 61 OBJECT_TYPE = 13 END ");
    EXPECT_THAT(ReadProcessTypes(platform_).types, ElementsAre(61, 13));
}

TEST_F(ReadProcessTypesTest, AProfileWithoutTheRuleEndsWithItsBox) {
    fileSystem_.Put(std::string(profile), "OBJECT_MAPPING ROLE OBJECT_TYPE = 78 END ");
    const ProcessTypes result = ReadProcessTypes(platform_);
    EXPECT_EQ(result.report.ending, RunEnding::endedByFailure);
    EXPECT_EQ(result.report.number, 2100);
    EXPECT_THAT(result.types, IsEmpty());
    ASSERT_THAT(Boxes(), SizeIs(1));
    EXPECT_THAT(Boxes().front().text, testing::EndsWith(TestText(2100, {"PROCESS"})));
}

TEST_F(ReadProcessTypesTest, AProfileThatCannotBeReadEndsWithItsBox) {
    fileSystem_.Put(std::string(profile), "OBJECT_MAPPING = ");
    const ProcessTypes result = ReadProcessTypes(platform_);
    EXPECT_NE(result.report.ending, RunEnding::normal);
    EXPECT_THAT(result.types, IsEmpty());
    EXPECT_THAT(Boxes(), SizeIs(1));
}

TEST_F(ReadProcessTypesTest, WithoutALanguageLibraryNothingIsRead) {
    profileStore_.Put(ProfileScope::user, programKey, "Language", std::string("DEU"));
    const ProcessTypes result = ReadProcessTypes(platform_);
    EXPECT_EQ(result.report.ending, RunEnding::noLanguageLibrary);
    EXPECT_THAT(result.types, IsEmpty());
    EXPECT_THAT(Boxes(), SizeIs(1));
}

}  // namespace
}  // namespace wxbrg
