#include "platform/scripted/OverlayProfileStore.h"

#include <gtest/gtest.h>

#include "platform/scripted/MemoryProfileStore.h"

namespace wxbrg {
namespace {

constexpr std::string_view key = R"(Software\Example)";

class OverlayProfileStoreTest : public testing::Test {
  protected:
    OverlayProfileStoreTest() : overlay_(base_) { base_.Write(key, "Level", 1); }

    MemoryProfileStore base_;
    OverlayProfileStore overlay_;
};

TEST_F(OverlayProfileStoreTest, WhatIsNotWrittenComesFromTheStoreBelow) {
    EXPECT_EQ(overlay_.Read(ProfileScope::user, key, "Level"), ProfileValue(1));
    base_.Write(key, "Level", 2);
    EXPECT_EQ(overlay_.Read(ProfileScope::user, key, "Level"), ProfileValue(2));
}

TEST_F(OverlayProfileStoreTest, WhatIsWrittenShadowsTheStoreBelowAndLeavesItAsItIs) {
    EXPECT_TRUE(overlay_.Write(key, "LEVEL", 5));
    EXPECT_EQ(overlay_.Read(ProfileScope::user, key, "Level"), ProfileValue(5));
    EXPECT_EQ(base_.Read(ProfileScope::user, key, "Level"), ProfileValue(1));
}

TEST_F(OverlayProfileStoreTest, WhatIsRemovedIsGoneAboveAlone) {
    EXPECT_TRUE(overlay_.Remove(key, "Level"));
    EXPECT_EQ(overlay_.Read(ProfileScope::user, key, "Level"), ProfileValue());
    EXPECT_EQ(base_.Read(ProfileScope::user, key, "Level"), ProfileValue(1));
    EXPECT_TRUE(overlay_.Write(key, "Level", 6));
    EXPECT_EQ(overlay_.Read(ProfileScope::user, key, "Level"), ProfileValue(6));
}

}  // namespace
}  // namespace wxbrg
