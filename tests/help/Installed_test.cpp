// What installs for a desktop: help beside the program, the desktop entry and the icon it names.

#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/TemporaryFolder.h"
#include "tests/cli/Process.h"
#include "tests/help/HelpExamples.h"

namespace wxbrg {
namespace {

namespace fs = std::filesystem;

class Installed : public testing::Test {
  protected:
    void SetUp() override {
        const cli::ProcessResult result = cli::RunProcess(
            {WXBRG_CMAKE, "--install", WXBRG_BUILD_FOLDER, "--prefix", prefix_.Path().string()});
        ASSERT_EQ(result.status, 0) << result.err;
    }

    TemporaryFolder prefix_;
};

/// Width and height as a PNG gives them.
std::pair<unsigned, unsigned> SizeOfPng(const fs::path& file) {
    const std::string bytes = ReadBytes(file);
    if (bytes.size() < 24 || !bytes.starts_with("\x89PNG\r\n"))
        throw std::runtime_error("no PNG: " + file.string());
    const auto number = [&](std::size_t at) {
        unsigned value = 0;
        for (std::size_t i = at; i < at + 4; ++i) value = value << 8U | static_cast<unsigned char>(bytes[i]);
        return value;
    };
    return {number(16), number(20)};
}

TEST_F(Installed, HelpLiesBesideTheProgram) {
    const fs::path program = fs::canonical(prefix_ / "bin/wxbrg");
    for (const std::string file : {"wxbrgENU.hlp", "wxbrgDEU.hlp"})
        EXPECT_EQ(ReadBytes(program.parent_path() / file), ReadBytes(fs::path(WXBRG_HELP_FOLDER) / file));
}

TEST_F(Installed, TheDesktopEntryNamesTheProgramAndAnIcon) {
    const std::vector<std::string> entry = LinesOf(ReadBytes(prefix_ / "share/applications/wxbrg.desktop"));
    EXPECT_THAT(entry, testing::Contains("Exec=wxbrg --help"));
    EXPECT_THAT(entry, testing::Contains("Icon=wxbrg"));
    EXPECT_TRUE(fs::exists(prefix_ / "bin/wxbrg"));
    const fs::path icons = prefix_ / "share/icons/hicolor";
    EXPECT_TRUE(fs::exists(icons / "scalable/apps/wxbrg.svg"));
    EXPECT_EQ(SizeOfPng(icons / "64x64/apps/wxbrg.png"), std::pair(64U, 64U));
    EXPECT_EQ(SizeOfPng(icons / "256x256/apps/wxbrg.png"), std::pair(256U, 256U));
}

}  // namespace
}  // namespace wxbrg
