#include "cli/FolderFileSystem.h"

#include <gmock/gmock.h>

#include "cli/RepositoryFileAutomation.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/Failure.h"
#include "tests/TemporaryFolder.h"
#include "tests/cli/FakeCatalogue.h"

namespace wxbrg::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

class FolderFileSystemTest : public testing::Test {
  protected:
    Failure FailureOf(const std::string& name, FileAccess access) {
        try {
            files.Open(name, access)->ReadAll();
        } catch (const Failure& failure) {
            return failure;
        }
        ADD_FAILURE() << name << " could be opened";
        return Failure(0);
    }
    TemporaryFolder folder;
    PosixFileSystem system;
    FolderFileSystem files{system, folder.Path()};
};

TEST_F(FolderFileSystemTest, RelativeNamesCountFromTheFolder) {
    const std::unique_ptr<File> file = files.Open("out.wpx", FileAccess::empty);
    file->Write("text");
    file->Close();
    EXPECT_EQ(folder.Read("out.wpx"), "text");
    EXPECT_EQ(files.Open("out.wpx", FileAccess::read)->ReadAll(), "text");
}

TEST_F(FolderFileSystemTest, AbsoluteNamesStandForThemselves) {
    const TemporaryFolder other;
    EXPECT_EQ(files.Open(other.Write("x", "there"), FileAccess::read)->ReadAll(), "there");
}

TEST_F(FolderFileSystemTest, FailuresNameTheFileAsItWasAskedFor) {
    const Failure missing = FailureOf("out.wpx", FileAccess::read);
    EXPECT_EQ(missing.Number, FailureKind::fileNotFound);
    EXPECT_EQ(missing.Description, "file not found: out.wpx");
    const Failure noFolder = FailureOf("a/out.wpx", FileAccess::append);
    EXPECT_EQ(noFolder.Number, FailureKind::pathNotFound);
    EXPECT_EQ(noFolder.Description, "path not found: a/out.wpx");
}

TEST_F(FolderFileSystemTest, FailuresOfAnOpenFileDoSoToo) {
    folder.Write("out.wpx", "");
    const Failure unreadable = FailureOf("out.wpx", FileAccess::append);
    EXPECT_THAT(unreadable.Description, HasSubstr("out.wpx"));
    EXPECT_THAT(unreadable.Description, Not(HasSubstr(folder.Path().string())));
}

/// Knows nothing but how to fail with the name of the file.
std::unique_ptr<aris::Catalogue> FailToOpen(const aris::RepositoryRequest& request) {
    throw Failure::WithDescription(FailureKind::invalidFileFormat, request.file + ":3: no export");
}

TEST(RepositoryFileAutomation, AFailureToOpenNamesTheFileWithoutItsFolder) {
    RepositoryFileAutomation automation(FailToOpen, "/some/where/repository.aml");
    const ARISReportComponent report =
        automation.CreateObject(arisProgramId)->GetComponent(arisReportComponent);
    EXPECT_THAT(
        [&] {
            report->OpenDatabase("server", "db", "", "user", "");
        },
        testing::Throws<Failure>(
            testing::AllOf(testing::Field(&Failure::Number, FailureKind::invalidFileFormat),
                           testing::Field(&Failure::Description, "repository.aml:3: no export"))));
}

TEST(RepositoryFileAutomation, OtherProgramsAndComponentsAreNotThere) {
    RepositoryFileAutomation automation(FailToOpen, "repository.aml");
    EXPECT_FALSE(automation.CreateObject("ARIS.Application.6.0"));
    EXPECT_FALSE(automation.CreateObject(arisProgramId)->GetComponent("Explorer"));
}

}  // namespace
}  // namespace wxbrg::cli
