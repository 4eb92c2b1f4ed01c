#include "platform/FileIdentity.h"

#include <gtest/gtest.h>

#include "tests/TemporaryFolder.h"

namespace wxbrg {
namespace {

namespace fs = std::filesystem;

class FileIdentity : public testing::Test {
  protected:
    FileIdentity() {
        folder.Write("sub/file", "x");
        fs::create_directory_symlink("sub", folder / "link");
    }
    bool Same(const std::string& one, const std::string& other) const {
        return IsSameFile(folder / one, folder / other);
    }
    TemporaryFolder folder;
};

TEST_F(FileIdentity, OneFileHasManyNames) {
    fs::create_hard_link(folder / "sub/file", folder / "hard");
    fs::create_symlink("link/file", folder / "soft");
    for (const std::string name : {"sub/file", "sub/../sub/./file", "link/file", "hard", "soft"})
        EXPECT_TRUE(Same("sub/file", name)) << name;
    folder.Write("other", "x");
    EXPECT_FALSE(Same("sub/file", "other"));
}

TEST_F(FileIdentity, AFileThatIsNotThereIsKnownByFolderAndName) {
    fs::create_symlink("link/new", folder / "dangling");
    for (const std::string name : {"sub/new", "link/new", "link/../sub/new", "dangling"})
        EXPECT_TRUE(Same("sub/new", name)) << name;
    EXPECT_FALSE(Same("sub/new", "new"));
    EXPECT_FALSE(Same("sub/new", "sub/file"));
    EXPECT_EQ(ResolvedFile(folder / "dangling"), fs::canonical(folder / "sub") / "new");
}

TEST_F(FileIdentity, ACircleOfLinksIsItself) {
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    EXPECT_EQ(ResolvedFile(folder / "a"), folder / "a");
    EXPECT_FALSE(Same("a", "sub/file"));
}

TEST_F(FileIdentity, ADeviceIsLikeNoOther) {
    EXPECT_FALSE(IsSameFile("/dev/null", "/dev/null"));
}

}  // namespace
}  // namespace wxbrg
