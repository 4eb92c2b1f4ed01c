#include "platform/posix/ProgramLocation.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace wxbrg {
namespace {

TEST(ProgramLocation, NamesTheRunningProgram) {
    const ProgramLocation location = RunningProgram();
    EXPECT_EQ(location.name, "wxbrg_test_platform");
    EXPECT_TRUE(std::filesystem::path(location.directory).is_absolute());
    EXPECT_FALSE(location.directory.ends_with('/'));
    EXPECT_TRUE(std::filesystem::exists(location.directory + "/wxbrg_test_platform"));
}

}  // namespace
}  // namespace wxbrg
