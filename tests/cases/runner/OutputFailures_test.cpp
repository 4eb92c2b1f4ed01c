#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "tests/TemporaryFolder.h"
#include "tests/cases/runner/Arguments.h"
#include "tests/cases/runner/Case.h"
#include "tests/cli/Process.h"

namespace wxbrg::cases {
namespace {

using testing::HasSubstr;

/// Exports the repository of a simple case on the command line, into a folder whose files cannot all be
/// written.
class OutputFailures : public testing::Test {
  protected:
    cli::ProcessResult Export(const std::string& output) const {
        return cli::RunProcess(
            {TheArguments().program.string(), "export", (simple_.folder / "repository.aml").string(),
             "--output", output, "--language", "TST"},
            {{}, folder_.Path(), {{"XDG_CONFIG_HOME", folder_.Path().string()}, {"LC_ALL", "C"}}});
    }
    /// A file of this name that is always full.
    void MakeFull(const std::string& name) const {
        std::filesystem::create_symlink("/dev/full", folder_ / name);
    }
    /// A folder in which nobody can make a file, not even root.
    std::filesystem::path UnwritableFolder() const {
        if (geteuid() == 0) return "/sys";
        const std::filesystem::path made = folder_ / "unwritable";
        std::filesystem::create_directory(made);
        std::filesystem::permissions(made,
                                     std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
        return made;
    }
    static void ExpectEnd(const cli::ProcessResult& result, int status, const std::string& text) {
        EXPECT_EQ(result.status, status);
        EXPECT_THAT(result.err, HasSubstr(text));
    }

    const Case& simple_ = *FindCase("model_becomes_a_process_with_activities_and_a_connector");
    TemporaryFolder folder_;
};

TEST_F(OutputFailures, AFolderThatCannotBeWrittenIsReportedWithTheFilesName) {
    const std::string file = (UnwritableFolder() / "out.wpx").string();
    ExpectEnd(Export(file), 2, file + " cannot be written");
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(OutputFailures, AFolderInPlaceOfTheDefinitionFileIsReportedWithItsName) {
    std::filesystem::create_directory(folder_ / "out.wpx");
    ExpectEnd(Export("out.wpx"), 2, "out.wpx is the name of a folder");
}

TEST_F(OutputFailures, ADiskThatIsFullForTheLogKeepsTheDefinitionAsAPartialFile) {
    MakeFull("out.log");
    ExpectEnd(Export("out.wpx"), 1, "disk full: out.log");
    EXPECT_FALSE(std::filesystem::exists(folder_ / "out.wpx"));
    EXPECT_THAT(folder_.Read("out.wpx.partial"), HasSubstr("END 'Orders'"));
}

TEST_F(OutputFailures, ADiskThatIsFullForTheDefinitionFileKeepsTheLogAsAPartialFile) {
    MakeFull("out.wpx");
    folder_.Write("out.log", "of yesterday");
    ExpectEnd(Export("out.wpx"), 1, "disk full: out.wpx");
    EXPECT_EQ(folder_.Read("out.log"), "of yesterday");
    EXPECT_EQ(folder_.Read("out.log.partial"), ExpectedFiles(simple_).at("out.log"));
}

}  // namespace
}  // namespace wxbrg::cases
