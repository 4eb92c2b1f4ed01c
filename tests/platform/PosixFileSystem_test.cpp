#include "platform/posix/PosixFileSystem.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "tests/TemporaryFolder.h"
#include "tests/platform/OtherUser.h"
#include "tests/support/FailureMatcher.h"

/// Room for an exception, from the library. `errno` is set on the way, as an allocation may do that succeeds
/// in the end.
extern "C" void* __cxa_allocate_exception(std::size_t size) noexcept {
    using Allocate = void*(std::size_t);
    static auto* const allocate = reinterpret_cast<Allocate*>(dlsym(RTLD_NEXT, "__cxa_allocate_exception"));
    void* const room = allocate(size);
    errno = ENOMEM;
    return room;
}

namespace wxbrg {
namespace {

/// Matches a callable that throws a failure with the system's error behind it.
auto FailsBy(std::int32_t number, int error, const std::string& file) {
    return testing::Throws<Failure>(testing::AllOf(
        testing::Field(&Failure::Number, number),
        testing::Field(&Failure::Cause,
                       testing::AllOf(testing::Field(&FailureCause::kind, FailureCause::Kind::system),
                                      testing::Field(&FailureCause::error,
                                                     std::error_code(error, std::generic_category())),
                                      testing::Field(&FailureCause::file, file)))));
}

TEST(PosixFileSystem, TheSystemsErrorIsKeptFromTheMomentItArose) {
    const TemporaryFolder folder;
    PosixFileSystem system;
    const std::string missing = folder.NameOf("missing");
    EXPECT_THAT(
        [&] {
            system.Open(missing, FileAccess::read);
        },
        FailsBy(53, ENOENT, missing));
    EXPECT_THAT(
        [&] {
            system.Open(missing + "/file", FileAccess::empty);
        },
        FailsBy(76, ENOENT, missing + "/file"));
    EXPECT_THAT(
        [&] {
            system.Open(folder.Path().string(), FileAccess::read);
        },
        FailsBy(75, EISDIR, folder.Path().string()));
    const auto full = system.Open("/dev/full", FileAccess::append);
    EXPECT_THAT(
        [&] {
            full->Write("x");
        },
        FailsBy(61, ENOSPC, "/dev/full"));
}

TEST(PosixFileSystem, AFileWithoutRightsIs75WithItsCause) {
    const TemporaryFolder folder;
    const std::string file = folder.Write("private", "x");
    ASSERT_EQ(chmod(file.c_str(), 0600), 0);
    ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
    const OtherUser other;
    if (!other.IsInForce()) GTEST_SKIP() << "only the superuser can act as another user";
    PosixFileSystem system;
    EXPECT_THAT(
        [&] {
            system.Open(file, FileAccess::read);
        },
        FailsBy(75, EACCES, file));
}

/// Interrupts the process every millisecond until it goes, and writes a byte to a pipe at the fifth time.
class Interruptions {
  public:
    explicit Interruptions(int pipe) {
        count_ = 0;
        pipe_ = pipe;
        struct sigaction counting {};
        counting.sa_handler = [](int) {
            count_ = count_ + 1;
            if (count_ == 5 && write(pipe_, "x", 1) != 1) _exit(EXIT_FAILURE);
        };
        sigaction(SIGALRM, &counting, &before_);
        const struct itimerval everyMillisecond {
            {0, 1000}, { 0, 1000 }
        };
        setitimer(ITIMER_REAL, &everyMillisecond, nullptr);
    }
    ~Interruptions() {
        const struct itimerval never {};
        setitimer(ITIMER_REAL, &never, nullptr);
        sigaction(SIGALRM, &before_, nullptr);
    }
    Interruptions(const Interruptions&) = delete;
    Interruptions& operator=(const Interruptions&) = delete;

  private:
    static inline volatile std::sig_atomic_t count_ = 0;
    static inline volatile std::sig_atomic_t pipe_ = -1;
    struct sigaction before_ {};
};

TEST(PosixFileSystem, ReadingGoesOnBehindInterruptions) {
    const TemporaryFolder folder;
    const std::string file = folder.NameOf("pipe");
    std::array<int, 2> interrupted{};
    ASSERT_EQ(mkfifo(file.c_str(), S_IRWXU), 0);
    ASSERT_EQ(pipe(interrupted.data()), 0);
    const pid_t writer = fork();
    if (writer == 0) {
        const int end = open(file.c_str(), O_WRONLY);
        char byte = 0;
        const bool wasWaitedFor = read(interrupted[0], &byte, 1) == 1;
        _exit(wasWaitedFor && write(end, "bytes", 5) == 5 ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    PosixFileSystem system;
    const auto opened = system.Open(file, FileAccess::read);
    {
        const Interruptions interruptions(interrupted[1]);
        EXPECT_EQ(opened->ReadAll(), "bytes");
    }
    int status = -1;
    ASSERT_EQ(waitpid(writer, &status, 0), writer);
    EXPECT_EQ(status, 0);
    for (const int end : interrupted) close(end);
}

TEST(PosixFileSystem, AFullDiskIs61WithTheFilesName) {
    PosixFileSystem system;
    const auto file = system.Open("/dev/full", FileAccess::append);
    EXPECT_THAT(
        [&] {
            file->Write("x");
        },
        testing::Throws<Failure>(testing::Field(&Failure::Description, "disk full: /dev/full")));
    EXPECT_THAT(
        [&] {
            file->Write("x");
        },
        Fails(61));
    EXPECT_NO_THROW(file->Close());
}

/// The failure of opening a file.
Failure FailureOfOpening(const std::string& name) {
    try {
        PosixFileSystem().Open(name, FileAccess::read);
    } catch (const Failure& failure) {
        return failure;
    }
    return Failure(0);
}

TEST(PosixFileSystem, TooManyOpenFilesAreTheCauseOf75) {
    // To look at the first object of a type, the sanitizers need descriptors, which are gone later.
    EXPECT_EQ(FailureOfOpening("/none").Number, 53);
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit none{0, limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    const Failure thrown = FailureOfOpening("/dev/null");
    setrlimit(RLIMIT_NOFILE, &limit);
    EXPECT_THAT(
        [&] {
            throw thrown;
        },
        FailsBy(75, EMFILE, "/dev/null"));
}

TEST(PosixFileSystem, ANameInTheWorkingFolderIsFoundOr53) {
    PosixFileSystem system;
    EXPECT_THAT(
        [&] {
            system.Open("surely-no-such-file", FileAccess::read);
        },
        Fails(53));
    EXPECT_THAT(
        [&] {
            system.Open("", FileAccess::read);
        },
        Fails(53));
}

TEST(PosixFileSystem, ANameThatNoFileCanHaveIs75) {
    const TemporaryFolder folder;
    PosixFileSystem system;
    EXPECT_THAT(
        [&] {
            system.Open((folder / std::string(1000, 'x')).string(), FileAccess::empty);
        },
        Fails(75));
    EXPECT_THAT(
        [&] {
            system.Open((folder / "a").string() + std::string("\0b", 2), FileAccess::empty);
        },
        Fails(75));
    EXPECT_FALSE(std::filesystem::exists(folder / "a"));
}

TEST(PosixFileSystem, ALinkInACircleIs75) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink(folder / "a", folder / "a");
    EXPECT_THAT(
        [&] {
            PosixFileSystem().Open((folder / "a").string(), FileAccess::read);
        },
        Fails(75));
}

TEST(PosixFileSystem, AFileThatMayNotGrowAnyMoreIs75) {
    const TemporaryFolder folder;
    const auto file = PosixFileSystem().Open((folder / "a").string(), FileAccess::empty);
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit small{1000, limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_THAT(
        [&] {
            file->Write(std::string(2000, 'x'));
        },
        Fails(75));
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, before);
    EXPECT_EQ(std::filesystem::file_size(folder / "a"), 1000U);
}

TEST(PosixFileSystem, ReadsWhatHasNoSizeBeforehand) {
    EXPECT_FALSE(PosixFileSystem().Open("/proc/self/status", FileAccess::read)->ReadAll().empty());
}

TEST(PosixFileSystem, AClosedFileMayBeClosedAgainButNotUsed) {
    const TemporaryFolder folder;
    const auto file = PosixFileSystem().Open((folder / "a").string(), FileAccess::empty);
    file->Close();
    EXPECT_NO_THROW(file->Close());
    EXPECT_THAT(
        [&] {
            file->Write("x");
        },
        Fails(75));
}

TEST(PosixFileSystem, NoDescriptorStaysOpen) {
    const TemporaryFolder folder;
    const std::string name = (folder / "a").string();
    PosixFileSystem system;
    const int before = open("/dev/null", O_RDONLY);
    close(before);
    for (int i = 0; i < 10; ++i) {
        system.Open(name, FileAccess::append)->Write("x");
        system.Open(name, FileAccess::read)->Close();
        EXPECT_THAT(
            [&] {
                system.Open(folder.Path().string(), FileAccess::read);
            },
            Fails(75));
    }
    const int after = open("/dev/null", O_RDONLY);
    close(after);
    EXPECT_EQ(before, after);
}

}  // namespace
}  // namespace wxbrg
