#include "platform/posix/LockedFileUpdate.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <thread>

#include "tests/TemporaryFolder.h"

namespace wxbrg {
namespace {

using testing::AllOf;
using testing::HasSubstr;

/// What is wrong with the files that an act uses; empty for nothing.
template <class Act>
std::string CauseOf(const Act& act) {
    try {
        act();
    } catch (const FileUseError& error) {
        return error.what();
    }
    return {};
}

std::string NewBytes(const std::string&) {
    return "new";
}

/// How many descriptors of this process are open on a file.
std::ptrdiff_t DescriptorsOf(const std::filesystem::path& file) {
    std::ptrdiff_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code closedMeanwhile;
        if (std::filesystem::read_symlink(entry.path(), closedMeanwhile) == file) ++count;
    }
    return count;
}

class ReplacedFileTest : public testing::Test {
  protected:
    void Replace(const std::function<std::string(const std::string&)>& change) const {
        ReplaceFile(file_, change, std::chrono::minutes(1));
    }
    void ExpectRefused(const std::string& cause) const {
        EXPECT_THAT(CauseOf([&] {
                        Replace(NewBytes);
                    }),
                    HasSubstr(cause));
    }
    static void ExpectUnreadable(const std::filesystem::path& file, const std::string& cause) {
        EXPECT_THAT(CauseOf([&] {
                        ReadRegularFile(file);
                    }),
                    AllOf(HasSubstr(file.string().substr(0, 100)), HasSubstr(cause)));
    }

    TemporaryFolder folder_;
    std::filesystem::path file_ = folder_ / "file";
};

TEST_F(ReplacedFileTest, TheChangeSeesTheBytesAndGivesTheNewOnes) {
    WriteBytes(file_, "old");
    Replace([](const std::string& bytes) {
        return bytes + " and new";
    });
    EXPECT_EQ(ReadBytes(file_), "old and new");
}

TEST_F(ReplacedFileTest, AMissingFileCountsAsEmptyAndIsMade) {
    EXPECT_EQ(ReadRegularFile(file_), "");
    Replace([](const std::string& bytes) {
        return bytes + "new";
    });
    EXPECT_EQ(ReadBytes(file_), "new");
}

TEST_F(ReplacedFileTest, WithoutAChangeTheFileStaysTheSameFile) {
    WriteBytes(file_, "old");
    struct stat before {};
    ASSERT_EQ(stat(file_.c_str(), &before), 0);
    EXPECT_THROW(Replace([](const std::string&) -> std::string {
                     throw std::runtime_error("no");
                 }),
                 std::runtime_error);
    Replace([](const std::string& bytes) {
        return bytes;
    });
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
    Replace([](const std::string&) {
        return std::string("new");
    });
    EXPECT_EQ(std::filesystem::status(file_).permissions(), wanted);
}

TEST_F(ReplacedFileTest, ALinkStaysALink) {
    std::filesystem::create_directory(folder_ / "far");
    WriteBytes(folder_ / "far" / "real", "old");
    std::filesystem::create_symlink(folder_ / "far" / "real", file_);
    Replace([](const std::string&) {
        return std::string("new");
    });
    EXPECT_TRUE(std::filesystem::is_symlink(file_));
    EXPECT_EQ(ReadBytes(folder_ / "far" / "real"), "new");
}

TEST_F(ReplacedFileTest, WhatABrokenOffWriterLeftIsNoHindrance) {
    WriteBytes(file_, "old");
    WriteBytes(folder_ / "file.new", "half");
    Replace([](const std::string&) {
        return std::string("new");
    });
    EXPECT_EQ(ReadBytes(file_), "new");
    EXPECT_FALSE(std::filesystem::exists(folder_ / "file.new"));
}

TEST_F(ReplacedFileTest, ALockThatMayOnlyBeReadIsEnough) {
    WriteBytes(folder_ / "file.lock", "");
    std::filesystem::permissions(folder_ / "file.lock", std::filesystem::perms::owner_read);
    Replace([](const std::string&) {
        return std::string("new");
    });
}

TEST_F(ReplacedFileTest, WhatIsNoRegularFileIsNotRead) {
    ExpectUnreadable(folder_.Path(), "is a folder");
    ASSERT_EQ(mkfifo(file_.c_str(), S_IRWXU), 0);
    ExpectUnreadable(file_, "is no regular file");
    ExpectRefused("file is no regular file");
}

TEST_F(ReplacedFileTest, WhatIsThereButCannotBeReadIsNamedWithItsCause) {
    std::filesystem::create_symlink("/proc/self/mem", file_);
    ExpectUnreadable(file_, "Input/output error. Check the disk and its connection.");
    std::filesystem::create_symlink("circle", folder_ / "circle");
    ExpectUnreadable(folder_ / "circle", "symbolic links");
    WriteBytes(folder_ / "plain", "");
    ExpectUnreadable(folder_ / "plain" / "file", "Not a directory");
    std::filesystem::create_symlink("nowhere", folder_ / "dangling");
    ExpectUnreadable(folder_ / "dangling", "a link on its way leads nowhere");
    ExpectUnreadable(folder_ / "dangling" / "below" / "file", "a link on its way leads nowhere");
    EXPECT_EQ(ReadRegularFile(folder_ / "none" / "below" / "file"), "");
    EXPECT_EQ(ReadRegularFile("no such file"), "");
}

TEST_F(ReplacedFileTest, WithoutAFreeDescriptorTheLimitIsTheCause) {
    // To look at the first object of a type, the sanitizers need descriptors, which are gone later.
    std::filesystem::create_symlink("circle", folder_ / "circle");
    ExpectUnreadable(folder_ / "circle", "symbolic links");
    WriteBytes(file_, "old");
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none{0, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    const std::string cause = CauseOf([&] {
        ReadRegularFile(file_);
    });
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_THAT(cause, AllOf(HasSubstr("Too many open files"), HasSubstr("raise the limit")));
}

TEST_F(ReplacedFileTest, MoreThan16MiBAreNeitherReadNorWritten) {
    WriteBytes(file_, std::string(largestUsableFile, 'x'));
    EXPECT_EQ(ReadRegularFile(file_).size(), largestUsableFile);
    EXPECT_THAT(CauseOf([&] {
                    Replace([](const std::string& bytes) {
                        return bytes + "x";
                    });
                }),
                HasSubstr("more than 16 MiB"));
    std::filesystem::resize_file(file_, largestUsableFile + 1);
    ExpectUnreadable(file_, "more than 16 MiB");
}

TEST_F(ReplacedFileTest, ALockThatIsNotReleasedIsNamed) {
    const std::string lock = folder_.Write("file.lock", "");
    const int held = open(lock.c_str(), O_RDONLY);
    ASSERT_EQ(flock(held, LOCK_EX), 0);
    EXPECT_THROW(ReplaceFile(file_, NewBytes, std::chrono::milliseconds(30)), FileLockedError);
    EXPECT_THAT(CauseOf([&] {
                    ReplaceFile(file_, NewBytes, std::chrono::milliseconds());
                }),
                HasSubstr(lock + " is held by process " + std::to_string(getpid())));
    ASSERT_EQ(close(held), 0);
    Replace(NewBytes);
}

TEST_F(ReplacedFileTest, ALockThatIsReleasedInTimeIsNoFailure) {
    const int held = open(folder_.Write("file.lock", "").c_str(), O_RDONLY);
    ASSERT_EQ(flock(held, LOCK_EX), 0);
    std::thread replacing([&] {
        Replace(NewBytes);
    });
    while (DescriptorsOf(folder_ / "file.lock") < 2) std::this_thread::yield();
    ASSERT_EQ(close(held), 0);
    replacing.join();
    EXPECT_EQ(ReadBytes(file_), "new");
}

TEST_F(ReplacedFileTest, OnlyARegularFileCanBeALock) {
    ASSERT_EQ(mkfifo((folder_ / "file.lock").c_str(), S_IRWXU), 0);
    ExpectRefused("file.lock is no regular file");
    std::filesystem::remove(folder_ / "file.lock");
    std::filesystem::create_directory(folder_ / "file.lock");
    ExpectRefused("file.lock cannot be opened as a lock file: Is a directory");
}

TEST_F(ReplacedFileTest, APathTooLongForTheSystemIsRefusedAtOnce) {
    std::string name = folder_.Path();
    for (int i = 0; i < 60'000; ++i) name += "/a";
    file_ = name;
    ExpectRefused("File name too long. Use a shorter name or path.");
    ExpectUnreadable(file_, "File name too long");
}

TEST_F(ReplacedFileTest, ARelativeFolderIsMadeToo) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder_.Path());
    file_ = "a//b/file";
    Replace(NewBytes);
    EXPECT_EQ(ReadBytes("a/b/file"), "new");
    std::filesystem::current_path(before);
}

TEST_F(ReplacedFileTest, WhatStandsInTheWayOfTheNewFileIsNamed) {
    WriteBytes(file_, "old");
    std::filesystem::create_directory(folder_ / "file.new");
    ExpectRefused("file.new cannot be taken away: Is a directory");
    EXPECT_EQ(ReadBytes(file_), "old");
}

TEST_F(ReplacedFileTest, AReaderSeesOneWholeStateOrTheOther) {
    const std::string one(100'000, '1');
    const std::string two(200'000, '2');
    WriteBytes(file_, one);
    std::atomic<bool> done = false;
    std::thread writer([&] {
        for (int i = 0; i < 40; ++i)
            Replace([&](const std::string& bytes) {
                return bytes == one ? two : one;
            });
        done = true;
    });
    int reads = 0;
    for (; !done || reads == 0; ++reads) {
        const std::string seen = ReadRegularFile(file_);
        EXPECT_TRUE(seen == one || seen == two);
    }
    writer.join();
}

}  // namespace
}  // namespace wxbrg
