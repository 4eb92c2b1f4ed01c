#include "platform/posix/Signals.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <string>

namespace wxbrg {
namespace {

/// In a process of its own: what a write beyond the limit on a file's size comes to.
[[noreturn]] void WriteBeyondTheLimit(const std::string& file) {
    SetSignals();
    const rlimit none{0, 0};
    setrlimit(RLIMIT_FSIZE, &none);
    FILE* const opened = std::fopen(file.c_str(), "w");
    const bool failed = opened != nullptr && write(fileno(opened), "x", 1) < 0 && errno == EFBIG;
    _exit(failed ? 0 : 1);
}

TEST(Signals, AFileThatMeetsTheLimitOnItsSizeIsAFailedWrite) {
    const std::string file = testing::TempDir() + "wxbrg_signals";
    EXPECT_EXIT(WriteBeyondTheLimit(file), testing::ExitedWithCode(0), "");
}

TEST(Signals, ThoseThatEndTheProgramStayAsTheCallerHasThem) {
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE}) {
        EXPECT_EXIT(
            {
                SetSignals();
                std::raise(number);
                _exit(0);
            },
            testing::KilledBySignal(number), "");
        EXPECT_EXIT(
            {
                std::signal(number, SIG_IGN);
                SetSignals();
                std::raise(number);
                _exit(0);
            },
            testing::ExitedWithCode(0), "");
    }
}

TEST(Signals, TheFirstRequestToStopIsKeptAndTheSecondEndsTheProgram) {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        const std::unique_ptr<StopRequests> stop = CatchStopSignals();
        EXPECT_NO_THROW(stop->Check());
        std::raise(number);
        EXPECT_EQ(stop->Signal(), number);
        EXPECT_THROW(stop->Check(), StopRequested);
        EXPECT_EXIT(std::raise(SIGTERM), testing::KilledBySignal(SIGTERM), "");
    }
}

TEST(Signals, AnIgnoredRequestToStopStaysIgnored) {
    const auto before = std::signal(SIGHUP, SIG_IGN);
    {
        const std::unique_ptr<StopRequests> stop = CatchStopSignals();
        std::raise(SIGHUP);
        EXPECT_EQ(stop->Signal(), 0);
    }
    std::signal(SIGHUP, before);
}

TEST(Signals, BehindTheCatchingTheyAreAsBefore) {
    CatchStopSignals();
    EXPECT_EXIT(std::raise(SIGTERM), testing::KilledBySignal(SIGTERM), "");
}

}  // namespace
}  // namespace wxbrg
