#include "platform/scripted/MemoryFileSystem.h"

#include <gmock/gmock.h>

#include "tests/support/FailureMatcher.h"

namespace wxbrg {
namespace {

using Step = MemoryFileSystem::Step;

TEST(MemoryFileSystem, TellsTheBytesOfAFile) {
    MemoryFileSystem system;
    system.Put("a/b", "x");
    EXPECT_EQ(system.Bytes("a/b"), "x");
    system.Open("a/b", FileAccess::append)->Write("y");
    EXPECT_EQ(system.Bytes("a/b"), "xy");
    EXPECT_EQ(system.Bytes("a"), std::nullopt);
}

TEST(MemoryFileSystem, FilesOfTheWorkingFolderAndTheRootNeedNoFolder) {
    MemoryFileSystem system;
    system.Open("out.wpx", FileAccess::empty)->Write("x");
    system.Open("/out.wpx", FileAccess::empty)->Write("y");
    EXPECT_EQ(system.Bytes("out.wpx"), "x");
    EXPECT_EQ(system.Bytes("/out.wpx"), "y");
}

TEST(MemoryFileSystem, AFolderThatWasMadeTakesFiles) {
    MemoryFileSystem system;
    EXPECT_THAT(
        [&] {
            system.Open("a/b/c", FileAccess::empty);
        },
        Fails(76));
    system.MakeFolder("a/b");
    system.Open("a/b/c", FileAccess::empty);
    system.Open("a/c", FileAccess::empty);
    EXPECT_EQ(system.Bytes("a/b/c"), "");
}

TEST(MemoryFileSystem, AStepFailsWithTheNumberThatWasAskedFor) {
    MemoryFileSystem system;
    system.Put("a", "x");
    system.MakeFail("a", Step::write, 61);
    const auto file = system.Open("a", FileAccess::append);
    EXPECT_THAT(
        [&] {
            file->Write("y");
        },
        Fails(61));
    EXPECT_EQ(system.Bytes("a"), "x");
    system.MakeFail("a", Step::close, 61);
    EXPECT_THAT(
        [&] {
            file->Close();
        },
        Fails(61));
    system.MakeFail("a", Step::read, 75);
    EXPECT_THAT(
        [&] {
            system.Open("a", FileAccess::read)->ReadAll();
        },
        Fails(75));
    system.MakeFail("a", Step::open, 70);
    EXPECT_THAT(
        [&] {
            system.Open("a", FileAccess::read);
        },
        Fails(70));
    EXPECT_NO_THROW(system.Open("b", FileAccess::empty)->Write("y"));
}

}  // namespace
}  // namespace wxbrg
