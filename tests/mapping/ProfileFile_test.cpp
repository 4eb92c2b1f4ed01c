#include "mapping/ProfileFile.h"

#include <gmock/gmock.h>

#include "tests/mapping/ProfileFixture.h"

namespace wxbrg {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

using ProfileFileTest = ProfileTest;

TEST_F(ProfileFileTest, TheProfileBesideTheProgramIsReadAsARunReadsIt) {
    fileSystem_.Put(profileName, "\xEF\xBB\xBFÜ\n\nEND");
    const ProfileFile file = ReadProfileFile(platform_);
    EXPECT_EQ(file.name, profileName);
    EXPECT_EQ(file.text, "Ü\r\n\r\nEND\r\n");
}

TEST_F(ProfileFileTest, WithoutAByteOrderMarkItIsInTheCodePage) {
    fileSystem_.Put(profileName, "R\xC8GLE\r");
    EXPECT_EQ(ReadProfileFile(platform_).text, "RÈGLE\r\n");
}

TEST_F(ProfileFileTest, AnotherNameOrNoneMayBeGiven) {
    fileSystem_.Put(profileName, "beside");
    fileSystem_.Put("/ours.prf", "ours");
    platform_.mappingProfile = "/ours.prf";
    EXPECT_EQ(ReadProfileFile(platform_).name, "/ours.prf");
    EXPECT_EQ(ReadProfileFile(platform_).text, "ours\r\n");
    platform_.mappingProfile = "";
    EXPECT_EQ(ReadProfileFile(platform_).name, "");
    EXPECT_EQ(ReadProfileFile(platform_).text, "");
}

TEST_F(ProfileFileTest, WhereThereIsNoneThereIsNoText) {
    const ProfileFile file = ReadProfileFile(platform_);
    EXPECT_EQ(file.name, profileName);
    EXPECT_EQ(file.text, "");
}

TEST_F(ProfileFileTest, OneThatCannotBeReadIsReported) {
    fileSystem_.Put(profileName, "text");
    fileSystem_.MakeFail(profileName, MemoryFileSystem::Step::read, FailureKind::fileAccess);
    EXPECT_THAT(
        [&] {
            ReadProfileFile(platform_);
        },
        ThrowsMessage<std::exception>(HasSubstr(profileName)));
}

}  // namespace
}  // namespace wxbrg
