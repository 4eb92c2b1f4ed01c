// Files, the log, and what their failures look like.

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>

#include "run/LogLine.h"
#include "run/clsExceptionHandler.h"
#include "run/clsIOHandler.h"
#include "run/modGlobals.h"
#include "tests/run/RunFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Step = MemoryFileSystem::Step;

class FilesTest : public RunFixture {
  protected:
    FilesTest() { gBlock.gIOHandler->sOutputFileName = "out.wpx"; }

    /// What reading `bytes` as a file gives.
    std::string Read(const std::string& bytes) {
        fileSystem_.Put("in.txt", bytes);
        return gBlock.gIOHandler->ReadFile("in.txt");
    }
    /// Runs a body that ends the run with one box for a failure of the run-time.
    void ExpectUnknownFailure(const std::function<void(Frame&)>& body, int number,
                              std::string_view boxProcedure, std::string_view description) {
        EXPECT_THAT(RunIn("test.P", body), EndedRun(RunEnding::unknownFailure, number));
        EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(number, boxProcedure, description)));
    }
};

TEST_F(FilesTest, AllocatingAFileCreatesIt) {
    gBlock.gIOHandler->AllocateFile("new.txt");
    EXPECT_EQ(Bytes("new.txt"), "");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FilesTest, AllocatingAFileThatIsThereEmptiesIt) {
    fileSystem_.Put("old.txt", "content");
    gBlock.gIOHandler->AllocateFile("old.txt");
    EXPECT_EQ(Bytes("old.txt"), "");
}

TEST_F(FilesTest, AnEmptyNameMeansTheOutputFile) {
    fileSystem_.Put("out.wpx", "content");
    gBlock.gIOHandler->AllocateFile("");
    EXPECT_EQ(Bytes("out.wpx"), "");
    gBlock.gIOHandler->WriteFile("line", "");
    EXPECT_EQ(Bytes("out.wpx"), "line\r\n");
    EXPECT_EQ(gBlock.gIOHandler->ReadFile(""), "line\r\n");
}

TEST_F(FilesTest, WritingAppendsATextAndALineEnd) {
    fileSystem_.Put("a.txt", "first");
    gBlock.gIOHandler->WriteFile("second", "a.txt");
    gBlock.gIOHandler->WriteFile("", "a.txt");
    gBlock.gIOHandler->WriteFile("third\nand\r\nmore\r\n", "a.txt");
    EXPECT_EQ(Bytes("a.txt"), "firstsecond\r\n\r\nthird\nand\r\nmore\r\n\r\n");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FilesTest, WritingCreatesAFileThatIsMissing) {
    gBlock.gIOHandler->WriteFile("line", "new.txt");
    EXPECT_EQ(Bytes("new.txt"), "line\r\n");
}

TEST_F(FilesTest, WritesInTheCodePageWithAQuestionMarkForACharacterThatItLacks) {
    gBlock.gIOHandler->WriteFile("Größe € Ω", "a.txt");
    EXPECT_EQ(Bytes("a.txt"),
              "Gr\xF6\xDF"
              "e \x80 ?\r\n");
    EXPECT_EQ(codePage_.LackingCharacters(), 1);
}

TEST_F(FilesTest, ReadsEachLineWithALineEndOfItsOwn) {
    EXPECT_EQ(Read("one"), "one\r\n");
    EXPECT_EQ(Read("one\r\ntwo\r\n"), "one\r\ntwo\r\n");
    EXPECT_EQ(Read("one\ntwo\rthree"), "one\r\ntwo\r\nthree\r\n");
    EXPECT_EQ(Read("\n\r\r\n"), "\r\n\r\n\r\n");
    EXPECT_EQ(Read("\n\n"), "\r\n\r\n");
    EXPECT_EQ(Read("  blanks stay \n"), "  blanks stay \r\n");
}

TEST_F(FilesTest, AnEmptyFileReadsAsAnEmptyText) {
    EXPECT_EQ(Read(""), "");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FilesTest, ReadsInTheCodePageWithAReplacementForAByteThatItDoesNotKnow) {
    EXPECT_EQ(Read("Gr\xF6\xDF"
                   "e \x80 \x81"),
              "Größe € \uFFFD\r\n");
}

TEST_F(FilesTest, AByteOrderMarkMakesAFileUtf8AndIsDropped) {
    EXPECT_EQ(Read("\xEF\xBB\xBFGröße Ω\n"), "Größe Ω\r\n");
    EXPECT_EQ(Read("\xEF\xBB\xBF"), "");
    EXPECT_EQ(Read("\xEF\xBB\xBFx\xFF"), "x\uFFFD\r\n");
    EXPECT_EQ(Read("\xEF\xBB"), "ï»\r\n");
}

TEST_F(FilesTest, FilesAreOpenedUnderTheNextFreeNumber) {
    std::int16_t first = 0;
    std::int16_t second = 0;
    std::int16_t third = 0;
    gBlock.gIOHandler->OpenFile("a.txt", FileMode::write, first);
    gBlock.gIOHandler->OpenFile("b.txt", FileMode::append, second);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 2);
    gBlock.gIOHandler->CloseFile(first);
    gBlock.gIOHandler->OpenFile("a.txt", FileMode::read, third);
    EXPECT_EQ(third, 1);
}

TEST_F(FilesTest, ModesOpenForReadingForWritingAnewAndForAppending) {
    fileSystem_.Put("a.txt", "content");
    std::int16_t number = 0;
    gBlock.gIOHandler->OpenFile("a.txt", 1, number);
    EXPECT_EQ(Bytes("a.txt"), "content");
    gBlock.gIOHandler->OpenFile("a.txt", 3, number);
    EXPECT_EQ(Bytes("a.txt"), "content");
    gBlock.gIOHandler->OpenFile("a.txt", 2, number);
    EXPECT_EQ(Bytes("a.txt"), "");
}

TEST_F(FilesTest, AModeThatIsNoneEndsTheRunAndOpensNothing) {
    for (const std::int16_t mode : std::initializer_list<std::int16_t>{0, 4, -1}) {
        std::int16_t number = 0;
        const auto end = RunIn("test.P", [&](Frame&) {
            gBlock.gIOHandler->OpenFile("a.txt", mode, number);
        });
        EXPECT_THAT(end, EndedRun(RunEnding::endedByFailure, 2000));
        EXPECT_EQ(number, 0);
        EXPECT_THAT(Boxes().back(),
                    FailureBox(2000, "clsIOHandler.OpenFile", TestText(2000, {std::to_string(mode)})));
    }
    EXPECT_EQ(Boxes().size(), 3);
    EXPECT_EQ(Bytes("a.txt"), "(no such file)");
}

TEST_F(FilesTest, ClosingNumber0IsIgnored) {
    gBlock.gIOHandler->CloseFile(0);
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(FilesTest, AFileThatCannotBeOpenedEndsTheRunWithItsName) {
    ExpectUnknownFailure(
        [](Frame&) {
            gBlock.gIOHandler->WriteFile("line", "no/where.txt");
        },
        76, "clsIOHandler.OpenFile", "path not found: no/where.txt");
}

TEST_F(FilesTest, AFileThatIsNotThereToReadEndsTheRunWithItsName) {
    ExpectUnknownFailure(
        [](Frame&) {
            gBlock.gIOHandler->ReadFile("none.txt");
        },
        53, "clsIOHandler.OpenFile", "file not found: none.txt");
}

TEST_F(FilesTest, AFileThatMustNotBeWrittenEndsTheRunWithItsName) {
    fileSystem_.MakeFail("out.wpx", Step::open, FailureKind::fileAccess);
    ExpectUnknownFailure(
        [](Frame&) {
            gBlock.gIOHandler->AllocateFile("");
        },
        75, "clsIOHandler.OpenFile", "file access error: out.wpx");
}

TEST_F(FilesTest, AFullDiskEndsTheRunWithTheFilesNameAndWhatWasWrittenStands) {
    gBlock.gIOHandler->WriteFile("block", "");
    fileSystem_.MakeFail("out.wpx", Step::write, FailureKind::diskFull);
    ExpectUnknownFailure(
        [](Frame&) {
            gBlock.gIOHandler->WriteFile("next", "");
        },
        61, "clsIOHandler.WriteFile", "disk full: out.wpx");
    EXPECT_EQ(Bytes("out.wpx"), "block\r\n");
}

TEST_F(FilesTest, AFullDiskThatShowsAtClosingEndsTheRunWithTheFilesName) {
    fileSystem_.MakeFail("out.wpx", Step::close, FailureKind::diskFull);
    ExpectUnknownFailure(
        [](Frame&) {
            gBlock.gIOHandler->WriteFile("block", "");
        },
        61, "clsIOHandler.CloseFile", "disk full: out.wpx");
}

TEST_F(FilesTest, AFileThatCannotBeReadEndsTheRunWithItsName) {
    fileSystem_.Put("in.txt", "text");
    fileSystem_.MakeFail("in.txt", Step::read, FailureKind::fileAccess);
    ExpectUnknownFailure(
        [](Frame&) {
            gBlock.gIOHandler->ReadFile("in.txt");
        },
        75, "clsIOHandler.ReadFile", "file access error: in.txt");
}

TEST_F(FilesTest, AFileThatIsThereExists) {
    fileSystem_.Put("folder/in.txt", "");
    EXPECT_TRUE(gBlock.gIOHandler->FileExists("folder/in.txt"));
    EXPECT_EQ(gBlock.gFailureContext, "Open file");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FilesTest, AFileThatIsNotThereDoesNotExist) {
    fileSystem_.MakeFolder("folder");
    EXPECT_FALSE(gBlock.gIOHandler->FileExists("folder/in.txt"));
    EXPECT_EQ(gBlock.gFailureContext, "failed");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
    EXPECT_EQ(Bytes("folder/in.txt"), "(no such file)");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(FilesTest, LookingForAFileInAFolderThatIsNotThereEndsTheRun) {
    ExpectUnknownFailure(
        [](Frame&) {
            gBlock.gIOHandler->FileExists("no/in.txt");
        },
        76, "clsIOHandler.FileExists", "path not found: no/in.txt");
}

TEST_F(FilesTest, LookingForAFileThatMustNotBeReadEndsTheRun) {
    fileSystem_.MakeFolder("folder");
    ExpectUnknownFailure(
        [](Frame&) {
            gBlock.gIOHandler->FileExists("folder");
        },
        75, "clsIOHandler.FileExists", "file access error: folder");
}

TEST_F(FilesTest, ALineOfTheLogIsAppendedToTheLogAlone) {
    gBlock.gIOHandler->sLogFileName = "out.log";
    gBlock.gIOHandler->WriteLog("first");
    gBlock.gIOHandler->WriteLog("second");
    EXPECT_EQ(Bytes("out.log"), "first\r\nsecond\r\n");
    EXPECT_EQ(Bytes("out.wpx"), "(no such file)");
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(FilesTest, ANoteIsWrittenToTheLogAtOnceAndCounted) {
    gBlock.gIOHandler->sLogFileName = "out.log";
    WriteNote(Message::furtherModel, "Order", "EPC");
    EXPECT_EQ(Bytes("out.log"), "WXB03020I 3020|Order|EPC|%3$s|%4$s\r\n");
    WriteNote(Message::severalDataCompared, "Order");
    EXPECT_EQ(Bytes("out.log"),
              "WXB03020I 3020|Order|EPC|%3$s|%4$s\r\nWXB03120E 3120|Order|%2$s|%3$s|%4$s\r\n");
    EXPECT_EQ(gBlock.gRunReport.notes.information, 1);
    EXPECT_EQ(gBlock.gRunReport.notes.exclamation, 1);
    EXPECT_EQ(gBlock.gRunReport.notes.critical, 0);
}

TEST_F(FilesTest, ANoteWhoseTextIsMissingTakesTwoLinesOfTheLog) {
    gBlock.gIOHandler->sLogFileName = "out.log";
    WriteNoteLine(3999, Severity::information, {"Order"});
    EXPECT_EQ(Bytes("out.log"), "WXB03999I Error :\r\nThe Resource ID '3999' was not found\r\n");
}

TEST_F(FilesTest, ALogThatCannotBeWrittenEndsTheRunAndTheNoteIsNotCounted) {
    gBlock.gIOHandler->sLogFileName = "out.log";
    fileSystem_.MakeFail("out.log", Step::write, FailureKind::diskFull);
    ExpectUnknownFailure(
        [](Frame&) {
            WriteNote(Message::processCreated, "Order");
        },
        61, "clsIOHandler.WriteFile", "disk full: out.log");
    EXPECT_EQ(gBlock.gRunReport.notes.information, 0);
}

}  // namespace
}  // namespace wxbrg
