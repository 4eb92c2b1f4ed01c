#include "platform/posix/ChildProcess.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace wxbrg {
namespace {

using std::chrono::milliseconds;

/// Only against a child that hangs: below the limit that ctest has for a test.
constexpr milliseconds longTime{240'000};

TEST(FailureInChild, IsNothingForABodyThatComesToItsEnd) {
    EXPECT_EQ(FailureInChild(
                  [] {
                      std::fputs("a warning\n", stderr);
                  },
                  longTime),
              std::nullopt);
}

TEST(FailureInChild, LeavesThisProcessAsItIs) {
    int touched = 0;
    EXPECT_EQ(FailureInChild(
                  [&touched] {
                      touched = 1;
                  },
                  longTime),
              std::nullopt);
    EXPECT_EQ(touched, 0);
}

TEST(FailureInChild, IsTheFirstLineOfTheErrorsOfABodyThatEndsTheProcess) {
    EXPECT_EQ(FailureInChild(
                  [] {
                      std::fputs("first\nsecond\n", stderr);
                      std::fflush(stderr);
                      _exit(3);
                  },
                  longTime),
              "first");
    EXPECT_EQ(FailureInChild(
                  [] {
                      std::fputs("gone\n", stderr);
                      std::abort();
                  },
                  longTime),
              "gone");
}

TEST(FailureInChild, IsWhatABodyThrows) {
    EXPECT_EQ(FailureInChild(
                  [] {
                      throw std::runtime_error("thrown");
                  },
                  longTime),
              "thrown");
}

TEST(FailureInChild, IsTheStatusOfABodyThatSaysNothing) {
    EXPECT_THAT(FailureInChild(
                    [] {
                        _exit(1);
                    },
                    longTime),
                testing::Optional(testing::HasSubstr("status")));
}

TEST(FailureInChild, EndsABodyThatTakesTooLong) {
    EXPECT_EQ(FailureInChild(
                  [] {
                      for (;;) pause();
                  },
                  milliseconds(1)),
              "no answer within 1 ms");
}

}  // namespace
}  // namespace wxbrg
