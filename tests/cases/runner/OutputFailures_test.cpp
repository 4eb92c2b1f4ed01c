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

using testing::AllOf;
using testing::EndsWith;
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
    static void ExpectBox(const cli::ProcessResult& result, const std::string& number,
                          const std::string& text) {
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.err, AllOf(HasSubstr("1040|WXB00" + number + "C "), HasSubstr(text)));
    }

    const Case& simple_ = *FindCase("model_becomes_a_process_with_activities_and_a_connector");
    TemporaryFolder folder_;
};

TEST_F(OutputFailures, AFolderThatCannotBeWrittenIsReportedWithTheFilesName) {
    const std::string file = (UnwritableFolder() / "out.wpx").string();
    ExpectBox(Export(file), "075", "file access error: " + file);
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(OutputFailures, AFolderInPlaceOfTheDefinitionFileIsReportedWithItsName) {
    std::filesystem::create_directory(folder_ / "out.wpx");
    ExpectBox(Export("out.wpx"), "075", "file access error: out.wpx");
}

TEST_F(OutputFailures, ADiskThatIsFullForTheLogLeavesAnEmptyDefinitionFile) {
    MakeFull("out.log");
    ExpectBox(Export("out.wpx"), "061", "disk full: out.log");
    EXPECT_EQ(folder_.Read("out.wpx"), "");
}

TEST_F(OutputFailures, ADiskThatIsFullForTheDefinitionFileLeavesTheLogOfTheBuild) {
    MakeFull("out.wpx");
    ExpectBox(Export("out.wpx"), "061", "disk full: out.wpx");
    const std::string whole = ExpectedFiles(simple_).at("out.log");
    const std::string written = folder_.Read("out.log");
    EXPECT_THAT(whole, testing::StartsWith(written));
    EXPECT_THAT(written, EndsWith("3090|PROCESS|'Orders'|%3$s|%4$s\r\n"));
}

}  // namespace
}  // namespace wxbrg::cases
