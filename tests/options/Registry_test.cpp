// Reading and writing stored values: the user's shadow the machine's.

#include <gmock/gmock.h>

#include <string>

#include "options/StoredValues.h"
#include "run/modGlobals.h"
#include "tests/run/RunFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view key = R"(Software\Test)";

class RegistryTest : public RunFixture {
  protected:
    void Store(ProfileScope scope, const ProfileValue& value) {
        profileStore_.Put(scope, key, "Name", value);
    }
};

TEST_F(RegistryTest, AValueThatIsNotStoredIsEmpty) {
    EXPECT_EQ(GetProfileValue(key, "Name"), ProfileValue());
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(RegistryTest, TheUsersValueShadowsTheMachines) {
    Store(ProfileScope::machine, 1);
    EXPECT_EQ(GetProfileValue(key, "Name"), ProfileValue(1));
    Store(ProfileScope::user, std::string("mine"));
    EXPECT_EQ(GetProfileValue(key, "Name"), ProfileValue(std::string("mine")));
    Store(ProfileScope::user, 0);
    EXPECT_EQ(GetProfileValue(key, "Name"), ProfileValue(0));
}

TEST_F(RegistryTest, AnEmptyTextOfTheUserShadowsTheMachinesValueToo) {
    Store(ProfileScope::machine, 1);
    Store(ProfileScope::user, std::string());
    EXPECT_EQ(GetProfileValue(key, "Name"), ProfileValue(std::string()));
}

TEST_F(RegistryTest, ReadsFromAStoreThatIsNotTheRuns) {
    MemoryProfileStore other;
    other.Put(ProfileScope::machine, key, "Name", 5);
    Store(ProfileScope::user, 1);
    EXPECT_EQ(GetProfileValue(other, key, "Name"), ProfileValue(5));
}

TEST_F(RegistryTest, WritesNumbersAndTextsForTheUser) {
    SetProfileValue(key, "Number", -1, ProfileType::number);
    SetProfileValue(key, "Text", std::string("x"), ProfileType::text);
    EXPECT_EQ(profileStore_.Read(ProfileScope::user, key, "Number"), ProfileValue(-1));
    EXPECT_EQ(profileStore_.Read(ProfileScope::user, key, "Text"), ProfileValue(std::string("x")));
    EXPECT_EQ(profileStore_.Read(ProfileScope::machine, key, "Number"), ProfileValue());
    EXPECT_EQ(gBlock.gCurrentProcedure, "test.Caller");
}

TEST_F(RegistryTest, WritesNothingForAnotherType) {
    SetProfileValue(key, "Name", 1, static_cast<ProfileType>(3));
    SetProfileValue(key, "Name", ProfileValue(), ProfileType::number);
    EXPECT_THAT(profileStore_.writes, IsEmpty());
}

TEST_F(RegistryTest, AStoreThatRefusesAValueIsSilent) {
    profileStore_.refuses = true;
    EXPECT_EQ(RunIn("test.P",
                    [](Frame&) {
                        SetProfileValue(key, "Name", 1, ProfileType::number);
                    }),
              std::nullopt);
    EXPECT_THAT(profileStore_.writes, ElementsAre(ProfileWrite{std::string(key), "Name", 1}));
    EXPECT_THAT(Boxes(), IsEmpty());
}

}  // namespace
}  // namespace wxbrg
