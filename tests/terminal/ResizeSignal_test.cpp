#include "platform/terminal/form/ResizeSignal.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <csignal>
#include <thread>

namespace wxbrg {
namespace {

bool CanBeRead(const ResizeSignal& signal) {
    pollfd source{signal.Descriptor(), POLLIN, 0};
    return poll(&source, 1, 0) == 1;
}

TEST(ResizeSignal, WakesWhoWaitsUntilItIsTaken) {
    ResizeSignal resized;
    EXPECT_FALSE(CanBeRead(resized));
    EXPECT_FALSE(resized.Take());
    std::raise(SIGWINCH);
    std::raise(SIGWINCH);
    EXPECT_TRUE(CanBeRead(resized));
    EXPECT_TRUE(resized.Take());
    EXPECT_FALSE(CanBeRead(resized));
    EXPECT_FALSE(resized.Take());
}

TEST(ResizeSignal, ReachesWhoWaitsInAnotherThread) {
    ResizeSignal resized;
    std::thread([] {
        std::raise(SIGWINCH);
    }).join();
    EXPECT_TRUE(resized.Take());
}

TEST(ResizeSignal, NeverBlocksTheOneWhoSends) {
    ResizeSignal resized;
    for (int i = 0; i < 100000; ++i) std::raise(SIGWINCH);
    EXPECT_TRUE(resized.Take());
    EXPECT_FALSE(resized.Take());
}

int noted = 0;

TEST(ResizeSignal, TheHandlerOfBeforeComesBack) {
    struct sigaction own {};
    own.sa_handler = [](int) {
        ++noted;
    };
    struct sigaction before {};
    sigaction(SIGWINCH, &own, &before);
    {
        const ResizeSignal resized;
        std::raise(SIGWINCH);
        EXPECT_EQ(noted, 0);
    }
    std::raise(SIGWINCH);
    EXPECT_EQ(noted, 1);
    sigaction(SIGWINCH, &before, nullptr);
}

}  // namespace
}  // namespace wxbrg
