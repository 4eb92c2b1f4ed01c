#include "platform/posix/LockedFileUpdate.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <atomic>
#include <thread>

#include "tests/TemporaryFolder.h"

namespace wxbrg {
namespace {

using Bytes = std::optional<std::string>;

class ReplacedFileTest : public testing::Test {
  protected:
    TemporaryFolder folder_;
    std::filesystem::path file_ = folder_ / "file";
};

TEST_F(ReplacedFileTest, TheChangeSeesTheBytesAndGivesTheNewOnes) {
    WriteBytes(file_, "old");
    EXPECT_TRUE(ReplaceFile(file_, [](const std::string& bytes) {
        return Bytes(bytes + " and new");
    }));
    EXPECT_EQ(ReadBytes(file_), "old and new");
}

TEST_F(ReplacedFileTest, AMissingFileCountsAsEmptyAndIsMade) {
    EXPECT_EQ(ReadRegularFile(file_), Bytes(""));
    EXPECT_TRUE(ReplaceFile(file_, [](const std::string& bytes) {
        return Bytes(bytes + "new");
    }));
    EXPECT_EQ(ReadBytes(file_), "new");
}

TEST_F(ReplacedFileTest, WithoutAChangeTheFileStaysTheSameFile) {
    WriteBytes(file_, "old");
    struct stat before {};
    ASSERT_EQ(stat(file_.c_str(), &before), 0);
    EXPECT_FALSE(ReplaceFile(file_, [](const std::string&) {
        return Bytes();
    }));
    EXPECT_TRUE(ReplaceFile(file_, [](const std::string& bytes) {
        return Bytes(bytes);
    }));
    struct stat after {};
    ASSERT_EQ(stat(file_.c_str(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
    EXPECT_EQ(ReadBytes(file_), "old");
}

TEST_F(ReplacedFileTest, PermissionsStay) {
    WriteBytes(file_, "old");
    using std::filesystem::perms;
    const perms wanted = perms::owner_read | perms::owner_write | perms::group_read | perms::group_write;
    std::filesystem::permissions(file_, wanted);
    EXPECT_TRUE(ReplaceFile(file_, [](const std::string&) {
        return Bytes("new");
    }));
    EXPECT_EQ(std::filesystem::status(file_).permissions(), wanted);
}

TEST_F(ReplacedFileTest, ALinkStaysALink) {
    std::filesystem::create_directory(folder_ / "far");
    WriteBytes(folder_ / "far" / "real", "old");
    std::filesystem::create_symlink(folder_ / "far" / "real", file_);
    EXPECT_TRUE(ReplaceFile(file_, [](const std::string&) {
        return Bytes("new");
    }));
    EXPECT_TRUE(std::filesystem::is_symlink(file_));
    EXPECT_EQ(ReadBytes(folder_ / "far" / "real"), "new");
}

TEST_F(ReplacedFileTest, WhatABrokenOffWriterLeftIsNoHindrance) {
    WriteBytes(file_, "old");
    WriteBytes(folder_ / "file.new", "half");
    EXPECT_TRUE(ReplaceFile(file_, [](const std::string&) {
        return Bytes("new");
    }));
    EXPECT_EQ(ReadBytes(file_), "new");
    EXPECT_FALSE(std::filesystem::exists(folder_ / "file.new"));
}

TEST_F(ReplacedFileTest, ALockThatMayOnlyBeReadIsEnough) {
    WriteBytes(folder_ / "file.lock", "");
    std::filesystem::permissions(folder_ / "file.lock", std::filesystem::perms::owner_read);
    EXPECT_TRUE(ReplaceFile(file_, [](const std::string&) {
        return Bytes("new");
    }));
}

TEST_F(ReplacedFileTest, WhatIsNoRegularFileIsNotRead) {
    EXPECT_EQ(ReadRegularFile(folder_.Path()), Bytes());
    ASSERT_EQ(mkfifo(file_.c_str(), S_IRWXU), 0);
    EXPECT_EQ(ReadRegularFile(file_), Bytes());
    EXPECT_FALSE(ReplaceFile(file_, [](const std::string&) {
        return Bytes("new");
    }));
}

TEST_F(ReplacedFileTest, AReaderSeesOneWholeStateOrTheOther) {
    const std::string one(100'000, '1');
    const std::string two(200'000, '2');
    WriteBytes(file_, one);
    std::atomic<bool> done = false;
    std::thread writer([&] {
        for (int i = 0; i < 40; ++i)
            ReplaceFile(file_, [&](const std::string& bytes) {
                return Bytes(bytes == one ? two : one);
            });
        done = true;
    });
    int reads = 0;
    for (; !done || reads == 0; ++reads) {
        const Bytes seen = ReadRegularFile(file_);
        EXPECT_TRUE(seen == one || seen == two);
    }
    writer.join();
}

}  // namespace
}  // namespace wxbrg
