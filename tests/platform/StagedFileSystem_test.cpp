#include "platform/posix/StagedFileSystem.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <vector>

#include "platform/posix/PosixFileSystem.h"
#include "tests/TemporaryFolder.h"
#include "tests/platform/OtherUser.h"
#include "tests/support/FailureMatcher.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* accessList = "system.posix_acl_access";

class NoStop : public StopRequests {
  public:
    int Signal() const override { return 0; }
};

class StagedFileSystemTest : public testing::Test {
  protected:
    std::unique_ptr<StagedFiles> Stage(bool mayReplace = true) {
        return StageFiles(system_, {{"out", file_, StagedPlace::file, mayReplace}}, stop_);
    }
    static void Write(StagedFiles& staged, std::string_view bytes) {
        const std::unique_ptr<File> file = staged.Open("out", FileAccess::empty);
        file->Write(bytes);
        file->Close();
    }
    struct stat State() const {
        struct stat state {};
        EXPECT_EQ(stat(file_.c_str(), &state), 0);
        return state;
    }
    /// The attribute of the file; empty for none.
    std::string AccessList() const {
        std::string list(1024, '\0');
        const ssize_t size = getxattr(file_.c_str(), accessList, list.data(), list.size());
        list.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
        return list;
    }

    const TemporaryFolder folder_;
    const std::string file_ = folder_.NameOf("out.wpx");
    PosixFileSystem system_;
    const NoStop stop_;
};

TEST_F(StagedFileSystemTest, KeepsThePermissionsOfTheEarlierFile) {
    folder_.Write("out.wpx", "earlier");
    ASSERT_EQ(chmod(file_.c_str(), 0640), 0);
    const auto staged = Stage();
    Write(*staged, "new");
    EXPECT_THAT(staged->PutInPlace(), IsEmpty());
    EXPECT_EQ(folder_.Read("out.wpx"), "new");
    EXPECT_EQ(State().st_mode & 0777U, 0640U);
}

TEST_F(StagedFileSystemTest, KeepsTheAccessListOfTheEarlierFile) {
    folder_.Write("out.wpx", "earlier");
    // Version 2, then tag, permissions and number: the owner, the user 12345, the group, the mask, the
    // others.
    const std::string list(
        "\2\0\0\0\1\0\6\0\xFF\xFF\xFF\xFF\2\0\4\0\x39\x30\0\0\4\0\4\0\xFF\xFF\xFF\xFF"
        "\x10\0\4\0\xFF\xFF\xFF\xFF\x20\0\0\0\xFF\xFF\xFF\xFF",
        44);
    if (setxattr(file_.c_str(), accessList, list.data(), list.size(), 0) != 0 && errno == ENOTSUP)
        GTEST_SKIP() << "this file system has no access lists";
    ASSERT_EQ(AccessList(), list);
    const auto staged = Stage();
    Write(*staged, "new");
    EXPECT_THAT(staged->PutInPlace(), IsEmpty());
    EXPECT_EQ(folder_.Read("out.wpx"), "new");
    EXPECT_EQ(AccessList(), list);
}

TEST_F(StagedFileSystemTest, WhoMayNotGiveFilesAwayIsToldThatTheOwnerChanged) {
    folder_.Write("out.wpx", "earlier");
    ASSERT_EQ(chmod(folder_.Path().c_str(), 0777), 0);
    ASSERT_EQ(chmod(file_.c_str(), 0666), 0);
    const OtherUser other;
    if (!other.IsInForce()) GTEST_SKIP() << "only the superuser can act as another user";
    const auto staged = Stage();
    Write(*staged, "new");
    EXPECT_THAT(staged->PutInPlace(), ElementsAre(file_ + ": its owner is now another one."));
    EXPECT_EQ(State().st_uid, geteuid());
    EXPECT_EQ(State().st_mode & 0777U, 0666U);
}

TEST_F(StagedFileSystemTest, AFileThatMustNotBeReplacedIsKeptAlsoWhereItComesDuringTheRun) {
    const auto staged = Stage(false);
    Write(*staged, "new");
    folder_.Write("out.wpx", "of another program");
    EXPECT_THAT(
        [&] {
            staged->PutInPlace();
        },
        Fails(75));
    EXPECT_EQ(folder_.Read("out.wpx"), "of another program");
    EXPECT_THAT(staged->Abandon(), ElementsAre(file_ + ".partial"));
    EXPECT_EQ(folder_.Read("out.wpx.partial"), "new");
}

}  // namespace
}  // namespace wxbrg
