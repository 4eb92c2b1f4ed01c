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

}  // namespace
}  // namespace wxbrg
