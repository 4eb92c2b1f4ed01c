#include "platform/RunStack.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <fstream>
#include <stdexcept>
#include <system_error>
#include <thread>
#include <vector>

namespace wxbrg {
namespace {

/// Uses up at least `bytes` of the stack, touching all of it. Returns what it takes to keep the compiler from
/// leaving the recursion out.
[[gnu::noinline]] std::size_t UseStack(std::size_t bytes) {
    constexpr std::size_t size = 4096;
    volatile char block[size];
    for (std::size_t i = 0; i < size; i += 512) block[i] = static_cast<char>(i);
    const std::size_t below = bytes > size ? UseStack(bytes - size) : 0;
    return below + static_cast<std::size_t>(block[512] == static_cast<char>(512)) * size;
}

/// The address space that this process uses, in bytes.
rlim_t AddressSpaceInUse() {
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

/// Runs `body` in a child process that can get no more than `more` bytes of address space, and gives the
/// exit status that it returns.
template <class Body>
int StatusUnderLimit(rlim_t more, Body body) {
    const pid_t process = fork();
    if (process == 0) {
        const rlim_t all = AddressSpaceInUse() + more;
        const rlimit limit{all, all};
        try {
            _exit(setrlimit(RLIMIT_AS, &limit) == 0 ? body() : 99);
        } catch (const std::exception& failure) {
            ADD_FAILURE() << failure.what();
            _exit(98);
        }
    }
    int status = -1;
    return waitpid(process, &status, 0) == process && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(RunStack, DeepRecursionHasRoom) {
    constexpr std::size_t deep = std::size_t{100} << 20U;
    std::size_t used = 0;
    OnReservedStack(runStackSize, [&](const char*) {
        used = UseStack(deep);
    });
    EXPECT_GE(used, deep);
}

TEST(RunStack, TheEndThatIsToldLiesBelowTheBodysVariables) {
    constexpr std::size_t size = std::size_t{64} << 20U;
    OnReservedStack(size, [&](const char* end) {
        const char* const here = static_cast<const char*>(__builtin_frame_address(0));
        ASSERT_NE(end, nullptr);
        ASSERT_LT(end, here);
        const auto room = static_cast<std::size_t>(here - end);
        EXPECT_LE(room, size);
        EXPECT_GE(room, size - (std::size_t{1} << 20U));
    });
}

TEST(RunStack, TheStackCanBeUsedDownToItsEnd) {
    OnReservedStack(std::size_t{16} << 20U, [](const char* end) {
        const char* const here = static_cast<const char*>(__builtin_frame_address(0));
        const auto room = static_cast<std::size_t>(here - end);
        EXPECT_GT(UseStack(room / 2), 0U);
        volatile char& lowest = *const_cast<char*>(end);
        lowest = 'x';
        EXPECT_EQ(lowest, 'x');
    });
}

TEST(RunStack, ASmallStackIsAsSmallAsItIsAskedFor) {
    constexpr std::size_t size = std::size_t{256} << 10U;
    OnReservedStack(size, [&](const char* end) {
        EXPECT_LE(static_cast<const char*>(__builtin_frame_address(0)) - end,
                  static_cast<std::ptrdiff_t>(size));
    });
}

TEST(RunStack, AnExceptionOfTheBodyComesOut) {
    try {
        OnReservedStack(runStackSize, [](const char*) {
            throw std::out_of_range("from within");
        });
        FAIL() << "nothing came out";
    } catch (const std::out_of_range& failure) {
        EXPECT_STREQ(failure.what(), "from within");
    }
}

TEST(RunStack, RunsMayFollowEachOtherAndNest) {
    int runs = 0;
    for (int i = 0; i < 50; ++i)
        OnReservedStack(runStackSize, [&](const char*) {
            ++runs;
        });
    OnReservedStack(runStackSize, [&](const char* outer) {
        OnReservedStack(std::size_t{16} << 20U, [&](const char* inner) {
            EXPECT_NE(outer, inner);
            ++runs;
        });
    });
    EXPECT_EQ(runs, 51);
}

TEST(RunStack, TheBodyIsOverWhenItComesBack) {
    std::atomic<bool> over = false;
    OnReservedStack(runStackSize, [&](const char*) {
        for (int turn = 0; turn < 1000; ++turn) std::this_thread::yield();
        over = true;
    });
    EXPECT_TRUE(over);
}

#ifndef __SANITIZE_ADDRESS__  // needs more address space than any limit worth the name

TEST(RunStack, WithoutMuchAddressSpaceTheStackIsSmallerAndLeavesRoomForTheHeap) {
    const int status = StatusUnderLimit(rlim_t{2} << 30U, [] {
        int result = 1;
        OnReservedStack(runStackSize, [&](const char* end) {
            const auto room = static_cast<const char*>(__builtin_frame_address(0)) - end;
            const bool some = room > (std::ptrdiff_t{128} << 20U) && room <= (std::ptrdiff_t{1} << 30U);
            const std::vector<char> heap(std::size_t{1} << 30U, 'x');
            result = some && heap.back() == 'x' ? 0 : 2;
        });
        return result;
    });
    EXPECT_EQ(status, 0);
}

TEST(RunStack, WithNextToNoAddressSpaceTheStackIsStillOfEightMebibytes) {
    const int status = StatusUnderLimit(rlim_t{24} << 20U, [] {
        int result = 1;
        OnReservedStack(runStackSize, [&](const char* end) {
            const auto room = static_cast<const char*>(__builtin_frame_address(0)) - end;
            result = room > (std::ptrdiff_t{7} << 20U) ? 0 : 2;
        });
        return result;
    });
    EXPECT_EQ(status, 0);
}

TEST(RunStack, WithoutAddressSpaceForAnyStackItThrows) {
    const int status = StatusUnderLimit(rlim_t{1} << 20U, [] {
        try {
            OnReservedStack(runStackSize, [](const char*) {});
        } catch (const std::system_error&) {
            return 0;
        }
        return 1;
    });
    EXPECT_EQ(status, 0);
}

#endif

}  // namespace
}  // namespace wxbrg
