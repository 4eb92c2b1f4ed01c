#include "platform/posix/DlLanguageLibraries.h"

#include <gtest/gtest.h>

#include "tests/TemporaryFolder.h"

namespace wxbrg {
namespace {

TEST(DlLanguageLibraries, ALibraryThatIsNoLanguageLibraryIsNull) {
    DlLanguageLibraries libraries(WXBRG_TEST_LIBRARIES);
    for (const std::string name : {"other_version.dll", "no_texts.dll", "no_version.dll"}) {
        EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(WXBRG_TEST_LIBRARIES) / name));
        EXPECT_EQ(libraries.Load(name), nullptr) << name;
    }
}

TEST(DlLanguageLibraries, AFileThatIsNoLibraryIsNull) {
    const TemporaryFolder folder;
    WriteBytes(folder / "text.dll", "not a library");
    WriteBytes(folder / "empty.dll", "");
    std::filesystem::create_directory(folder / "folder.dll");
    DlLanguageLibraries libraries(folder.Path().string());
    for (const char* name : {"text.dll", "empty.dll", "folder.dll"})
        EXPECT_EQ(libraries.Load(name), nullptr) << name;
}

TEST(DlLanguageLibraries, ALibraryIsTakenFromItsFolderAlone) {
    const TemporaryFolder folder;
    const std::filesystem::path library = std::filesystem::path(WXBRG_TEST_LIBRARIES) / "texts.dll";
    ASSERT_TRUE(std::filesystem::exists(library));
    DlLanguageLibraries libraries(folder.Path().string());
    EXPECT_EQ(libraries.Load(library.string()), nullptr);
    EXPECT_EQ(libraries.Load(std::filesystem::relative(library, folder.Path()).string()), nullptr);
    EXPECT_EQ(libraries.Load("libm.so.6"), nullptr);
    std::filesystem::copy_file(library, folder / "texts.dll");
    EXPECT_NE(libraries.Load("texts.dll"), nullptr);
}

}  // namespace
}  // namespace wxbrg
