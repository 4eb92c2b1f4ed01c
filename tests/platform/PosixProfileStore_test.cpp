#include "platform/posix/PosixProfileStore.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>

#include "platform/posix/Utf16.h"
#include "tests/TemporaryFolder.h"
#include "tests/platform/EnvironmentVariable.h"

namespace wxbrg {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::string_view key = R"(Software\Example)";

/// The name of a value that one of several writers writes.
std::string NameOf(int writer, int value) {
    return std::to_string(writer) + "/" + std::to_string(value);
}

class PosixProfileStoreTest : public testing::Test {
  protected:
    PosixProfileStoreTest()
        : file_(folder_ / "made" / "for" / "it" / "registry.reg"), store_({file_, folder_ / "machine.reg"}) {}

    ProfileValue User(std::string_view name) const { return store_.Read(ProfileScope::user, key, name); }

    TemporaryFolder folder_;
    std::filesystem::path file_;
    PosixProfileStore store_;

    /// A store that has read nothing yet.
    PosixProfileStore Fresh() const { return PosixProfileStore({file_, folder_ / "machine.reg"}); }
    void WriteUsers(const std::string& bytes) const {
        std::filesystem::create_directories(file_.parent_path());
        WriteBytes(file_, bytes);
    }
};

std::string WithNumber(const std::string& number) {
    return "REGEDIT4\n[HKEY_CURRENT_USER\\Software\\Example]\n\"Number\"=dword:" + number + "\n";
}

TEST_F(PosixProfileStoreTest, WritingMakesTheFoldersForTheUserAlone) {
    ASSERT_TRUE(store_.Write(key, "Number", 10));
    EXPECT_EQ(ReadBytes(file_),
              "REGEDIT4\n\n[HKEY_CURRENT_USER\\Software\\Example]\n\"Number\"=dword:0000000a\n");
    EXPECT_EQ(std::filesystem::status(folder_ / "made").permissions(), std::filesystem::perms::owner_all);
}

TEST_F(PosixProfileStoreTest, ReadingAndRemovingMakeNothing) {
    EXPECT_EQ(User("Number"), ProfileValue());
    EXPECT_TRUE(store_.Remove(key, "Number"));
    EXPECT_FALSE(std::filesystem::exists(folder_ / "made"));
}

TEST_F(PosixProfileStoreTest, AnotherStoreOnTheSameFileSeesWhatWasWritten) {
    store_.Write(key, "Number", 10);
    EXPECT_EQ(PosixProfileStore({file_, {}}).Read(ProfileScope::user, key, "Number"), ProfileValue(10));
}

TEST_F(PosixProfileStoreTest, AFileOfAnotherFormIsNeitherReadNorChanged) {
    std::filesystem::create_directories(file_.parent_path());
    for (const std::string& bytes :
         {std::string("\0\0\0\0", 4), std::string("\x7F\x45LF\x02\x01"),
          std::string("[HKEY_CURRENT_USER\\Software\\Example]\n\"Number\"=dword:1\n")}) {
        WriteBytes(file_, bytes);
        PosixProfileStore store = Fresh();
        EXPECT_EQ(store.Read(ProfileScope::user, key, "Number"), ProfileValue());
        EXPECT_THAT(store.ReadProblems(),
                    ElementsAre(AllOf(HasSubstr(file_.string()), HasSubstr("REGEDIT4"))));
        EXPECT_FALSE(store.Write(key, "Number", 10));
        EXPECT_FALSE(store.Remove(key, "Number"));
        EXPECT_EQ(store.TakeWriteProblem(), store.ReadProblems().front());
        EXPECT_EQ(ReadBytes(file_), bytes);
    }
}

TEST_F(PosixProfileStoreTest, ADamagedFileKeepsWhatCannotBeRead) {
    std::filesystem::create_directories(file_.parent_path());
    const std::string damaged =
        "REGEDIT4\n[HKEY_CURRENT_USER\\Software\\Example]\n\"Number\"=dword:zz\n\"Text\"="
        "\"whole\"\n\xFF\xFE\n";
    WriteBytes(file_, damaged);
    EXPECT_EQ(User("Number"), ProfileValue());
    EXPECT_EQ(User("Text"), ProfileValue("whole"));
    EXPECT_TRUE(store_.Write(key, "Number", 1));
    EXPECT_EQ(ReadBytes(file_), damaged + "\"Number\"=dword:00000001\n");
}

TEST_F(PosixProfileStoreTest, AnEmptyFileIsAnEmptyStore) {
    std::filesystem::create_directories(file_.parent_path());
    WriteBytes(file_, "");
    EXPECT_TRUE(store_.Write(key, "Number", 1));
    EXPECT_EQ(User("Number"), ProfileValue(1));
}

TEST_F(PosixProfileStoreTest, AFolderInPlaceOfTheFileHoldsNothingAndTakesNothing) {
    std::filesystem::create_directories(file_);
    EXPECT_EQ(User("Number"), ProfileValue());
    EXPECT_FALSE(store_.Write(key, "Number", 1));
}

TEST_F(PosixProfileStoreTest, AFileInPlaceOfTheFolderIsNoFailureOfTheProgram) {
    WriteBytes(folder_ / "made", "x");
    EXPECT_EQ(User("Number"), ProfileValue());
    EXPECT_FALSE(store_.Write(key, "Number", 1));
    EXPECT_EQ(ReadBytes(folder_ / "made"), "x");
    EXPECT_THAT(store_.ReadProblems(), ElementsAre(HasSubstr("Not a directory")));
}

TEST_F(PosixProfileStoreTest, WhatIsNotThereIsNoProblem) {
    EXPECT_THAT(store_.ReadProblems(), IsEmpty());
    EXPECT_EQ(store_.TakeWriteProblem(), "");
}

TEST_F(PosixProfileStoreTest, EachFileThatCannotBeReadIsAProblem) {
    std::filesystem::create_directories(file_);
    std::filesystem::create_directory(folder_ / "machine.reg");
    EXPECT_THAT(store_.ReadProblems(), ElementsAre(HasSubstr(file_.string() + " is a folder"),
                                                   HasSubstr("machine.reg is a folder")));
}

TEST_F(PosixProfileStoreTest, AFileIsReadOnceAndChangesOfOthersDoNotMixIn) {
    WriteUsers(WithNumber("1"));
    EXPECT_EQ(User("Number"), ProfileValue(1));
    WriteUsers(WithNumber("2"));
    EXPECT_EQ(User("Number"), ProfileValue(1));
    EXPECT_EQ(Fresh().Read(ProfileScope::user, key, "Number"), ProfileValue(2));
}

TEST_F(PosixProfileStoreTest, WhatIsWrittenCountsAtOnceAndKeepsTheChangesOfOthersInTheFile) {
    WriteUsers(WithNumber("1"));
    EXPECT_EQ(User("Number"), ProfileValue(1));
    WriteUsers(WithNumber("2"));
    EXPECT_TRUE(store_.Write(key, "Other", 3));
    EXPECT_EQ(User("Other"), ProfileValue(3));
    EXPECT_EQ(User("Number"), ProfileValue(1));
    EXPECT_EQ(ReadBytes(file_), WithNumber("2") + "\"Other\"=dword:00000003\n");
    EXPECT_TRUE(store_.Remove(key, "Number"));
    EXPECT_EQ(User("Number"), ProfileValue());
}

TEST_F(PosixProfileStoreTest, AFileOfTodaysRegistryEditorServes) {
    const std::string head =
        "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\Software\\Example]\r\n";
    WriteUsers(Utf16OfUtf8("\xEF\xBB\xBF" + head));
    EXPECT_TRUE(store_.Write(key, "Number", 3));
    EXPECT_EQ(ReadBytes(file_), Utf16OfUtf8("\xEF\xBB\xBF" + head + "\"Number\"=dword:00000003\r\n"));
}

TEST_F(PosixProfileStoreTest, TheFirstFailureToWriteIsKeptUntilItIsTaken) {
    std::filesystem::create_directories(file_);
    EXPECT_FALSE(store_.Write(key, "Number", 1));
    std::filesystem::remove(file_);
    EXPECT_TRUE(store_.Write(key, "Number", 1));
    EXPECT_THAT(store_.TakeWriteProblem(), HasSubstr("is a folder"));
    EXPECT_EQ(store_.TakeWriteProblem(), "");
}

TEST_F(PosixProfileStoreTest, ALockHeldByAnotherIsWaitedForOnce) {
    std::filesystem::create_directories(file_.parent_path());
    const std::string lock = file_.string() + ".lock";
    const int held = open(lock.c_str(), O_RDONLY | O_CREAT, 0600);
    ASSERT_EQ(flock(held, LOCK_EX), 0);
    PosixProfileStore store({file_, {}}, std::chrono::milliseconds(20));
    EXPECT_FALSE(store.Write(key, "Number", 1));
    EXPECT_FALSE(store.Write(key, "Other", 1));
    EXPECT_THAT(store.TakeWriteProblem(),
                HasSubstr(lock + " is held by process " + std::to_string(getpid())));
    ASSERT_EQ(close(held), 0);
    EXPECT_TRUE(store.Write(key, "Number", 1));
}

TEST_F(PosixProfileStoreTest, WithoutAUsersFileNothingIsStored) {
    PosixProfileStore store({{}, folder_ / "machine.reg"});
    EXPECT_EQ(store.Read(ProfileScope::user, key, "Number"), ProfileValue());
    EXPECT_THAT(store.ReadProblems(), IsEmpty());
    EXPECT_FALSE(store.Write(key, "Number", 1));
    EXPECT_THAT(store.TakeWriteProblem(), HasSubstr("Set HOME"));
    EXPECT_TRUE(store.Remove(key, "Number"));
}

TEST_F(PosixProfileStoreTest, ValuesOfOtherRootsAreNotTheUsers) {
    std::filesystem::create_directories(file_.parent_path());
    WriteBytes(file_, "REGEDIT4\n[HKEY_LOCAL_MACHINE\\Software\\Example]\n\"Number\"=dword:1\n");
    EXPECT_EQ(User("Number"), ProfileValue());
    EXPECT_EQ(store_.Read(ProfileScope::machine, key, "Number"), ProfileValue());
}

TEST_F(PosixProfileStoreTest, ManyThreadsAtOnceLoseNothing) {
    constexpr int writers = 8;
    constexpr int values = 25;
    std::vector<std::thread> threads;
    for (int writer = 0; writer < writers; ++writer)
        threads.emplace_back([this, writer] {
            PosixProfileStore own({file_, {}});
            for (int value = 0; value < values; ++value) own.Write(key, NameOf(writer, value), value);
        });
    for (std::thread& thread : threads) thread.join();
    for (int writer = 0; writer < writers; ++writer)
        for (int value = 0; value < values; ++value)
            EXPECT_EQ(User(NameOf(writer, value)), ProfileValue(value));
}

TEST_F(PosixProfileStoreTest, ManyProcessesAtOnceLoseNothing) {
    constexpr int writers = 6;
    constexpr int values = 25;
    std::vector<pid_t> processes;
    for (int writer = 0; writer < writers; ++writer) {
        const pid_t process = fork();
        ASSERT_GE(process, 0);
        if (process != 0) {
            processes.push_back(process);
            continue;
        }
        bool stored = true;
        for (int value = 0; value < values; ++value)
            stored = store_.Write(key, NameOf(writer, value), value) && stored;
        _exit(stored ? 0 : 1);
    }
    for (const pid_t process : processes) {
        int status = -1;
        ASSERT_EQ(waitpid(process, &status, 0), process);
        EXPECT_EQ(status, 0);
    }
    for (int writer = 0; writer < writers; ++writer)
        for (int value = 0; value < values; ++value)
            EXPECT_EQ(User(NameOf(writer, value)), ProfileValue(value));
}

TEST(DefaultProfileStoreFiles, FollowTheEnvironment) {
    const EnvironmentVariable home("HOME", "/home/someone");
    {
        const EnvironmentVariable folder("XDG_CONFIG_HOME", "/elsewhere");
        EXPECT_EQ(DefaultProfileStoreFiles().user, "/elsewhere/wxbrg/registry.reg");
    }
    {
        std::string deep;
        for (int i = 0; i < 60'000; ++i) deep += "/a";
        const EnvironmentVariable folder("XDG_CONFIG_HOME", deep);
        PosixProfileStore store(DefaultProfileStoreFiles());
        EXPECT_THAT(store.ReadProblems(), ElementsAre(HasSubstr("File name too long")));
        EXPECT_FALSE(store.Write(key, "Number", 1));
    }
    for (const std::optional<std::string>& none :
         {std::optional<std::string>(), std::optional<std::string>(""),
          std::optional<std::string>("relative")}) {
        const EnvironmentVariable folder("XDG_CONFIG_HOME", none);
        EXPECT_EQ(DefaultProfileStoreFiles().user, "/home/someone/.config/wxbrg/registry.reg");
    }
    EXPECT_EQ(DefaultProfileStoreFiles().machine, "/etc/xdg/wxbrg/registry.reg");
}

TEST(DefaultProfileStoreFiles, WithoutAHomeInTheEnvironmentTheSystemKnowsOne) {
    const EnvironmentVariable home("HOME", std::nullopt);
    const EnvironmentVariable folder("XDG_CONFIG_HOME", std::nullopt);
    EXPECT_THAT(DefaultProfileStoreFiles().user.string(), testing::EndsWith("/.config/wxbrg/registry.reg"));
}

}  // namespace
}  // namespace wxbrg
