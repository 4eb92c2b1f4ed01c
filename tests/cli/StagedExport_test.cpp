// What an export leaves on the disk, however it ends.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "tests/cli/ProgramFixture.h"

namespace wxbrg::cli {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace fs = std::filesystem;

constexpr const char* exportComplete = "WXB03110I ";

/// Exports one model, by a good profile or by one that ends the run.
class StagedExport : public ProgramTest {
  protected:
    StagedExport() {
        WriteOneModel();
        folder.Write("bad.prf", "x");
    }
    ProcessResult Export(const std::vector<std::string>& more) const {
        std::vector<std::string> arguments{"export", "one.aml"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return Run(arguments);
    }
    /// The names in the folder that begin with "out." or ".out.".
    std::vector<std::string> Outputs() const {
        std::vector<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder.Path())) {
            const std::string name = entry.path().filename().string();
            if (name.starts_with("out") || name.starts_with(".out")) names.push_back(name);
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    void ExpectRefused(const std::vector<std::string>& more, const std::string& text) const {
        const ProcessResult result = Export(more);
        EXPECT_EQ(result.status, 2) << result.err;
        EXPECT_THAT(result.err, AllOf(StartsWith("wxbrg: "), HasSubstr(text)));
        EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
    }
};

TEST_F(StagedExport, AGoodEndLeavesDefinitionAndLogAlone) {
    EXPECT_EQ(Export({"-o", "out.wpx"}).status, 0);
    EXPECT_THAT(Outputs(), testing::ElementsAre("out.log", "out.wpx"));
}

TEST_F(StagedExport, AFailureKeepsEarlierFilesAndWhatWasWritten) {
    folder.Write("out.wpx", "good definition");
    folder.Write("out.log", "good log");
    folder.Write("out.wpx.partial", "of an earlier failure");
    const ProcessResult failed = Export({"-o", "out.wpx", "--profile", "bad.prf"});
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.err,
                EndsWith("\nwxbrg: The export is not complete: out.wpx was not written; what there "
                         "is of it is in out.wpx.partial and out.log.partial.\n"));
    EXPECT_EQ(folder.Read("out.wpx"), "good definition");
    EXPECT_EQ(folder.Read("out.log"), "good log");
    EXPECT_EQ(folder.Read("out.wpx.partial"), "");
    EXPECT_THAT(Outputs(), testing::ElementsAre("out.log", "out.log.partial", "out.wpx", "out.wpx.partial"));
}

TEST_F(StagedExport, TheNextSuccessRemovesWhatAFailureLeft) {
    EXPECT_EQ(Export({"-o", "out.wpx", "--profile", "bad.prf"}).status, 1);
    EXPECT_EQ(Export({"-o", "out.wpx"}).status, 0);
    EXPECT_THAT(Outputs(), testing::ElementsAre("out.log", "out.wpx"));
}

TEST_F(StagedExport, LeavingsOfAKilledRunAreRemoved) {
    folder.Write(".out.wpx.wxbrg-new", "half a definition that is longer than the whole of the next one");
    folder.Write(".out.log.wxbrg-new", "half a log");
    EXPECT_EQ(Export({"-o", "out.wpx"}).status, 0);
    EXPECT_THAT(Outputs(), testing::ElementsAre("out.log", "out.wpx"));
    EXPECT_THAT(folder.Read("out.wpx"), Not(HasSubstr("half")));
}

TEST_F(StagedExport, AFileThatAnotherProcessWritesIsBusyAndTheProcessIsNamed) {
    folder.Write("out.wpx", "good definition");
    const int lock = open((folder / ".out.wpx.wxbrg-new").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(flock(lock, LOCK_EX | LOCK_NB), 0);
    const ProcessResult busy = Export({"-o", "out.wpx"});
    EXPECT_EQ(busy.status, 1);
    EXPECT_THAT(busy.err, AllOf(StartsWith("wxbrg: out.wpx is being written by "), HasSubstr("process")));
    EXPECT_TRUE(Exists(".out.wpx.wxbrg-new"));
    close(lock);
    EXPECT_EQ(Export({"-o", "out.wpx"}).status, 0);
}

TEST_F(StagedExport, AccessRightsOfAnEarlierFileAreKept) {
    folder.Write("out.wpx", "old");
    fs::permissions(folder / "out.wpx", fs::perms(0640));
    EXPECT_EQ(Export({"-o", "out.wpx"}).status, 0);
    EXPECT_EQ(fs::status(folder / "out.wpx").permissions(), fs::perms(0640));
    EXPECT_THAT(folder.Read("out.wpx"), HasSubstr("'Orders'"));
}

TEST_F(StagedExport, ALinkIsFollowedAndStays) {
    fs::create_directory(folder / "there");
    fs::create_symlink("there/real.wpx", folder / "out.wpx");
    EXPECT_EQ(Export({"-o", "out.wpx"}).status, 0);
    EXPECT_TRUE(fs::is_symlink(folder / "out.wpx"));
    EXPECT_THAT(folder.Read("there/real.wpx"), HasSubstr("'Orders'"));
    EXPECT_TRUE(fs::is_regular_file(folder / "out.log"));
}

TEST_F(StagedExport, WhatCannotBeWrittenIsRefusedBeforeTheRepositoryIsRead) {
    fs::remove(folder / "one.aml");
    folder.Write("file", "x");
    fs::create_directory(folder / "out.dir");
    ExpectRefused({"-o", "none/out.wpx"}, "there is no folder");
    ExpectRefused({"-o", "file/out.wpx"}, "cannot be written");
    ExpectRefused({"-o", "out.dir"}, "is the name of a folder; give another name with -o");
    ExpectRefused({"-o", "abc"}, "too short for a log beside it");
    ExpectRefused({"-o", "out.dir/abc"}, "too short for a log beside it");
    ExpectRefused({"-o", ""}, "is empty");
    ExpectRefused({"-o", "out.wpx", "--log", ""}, "is empty");
    ExpectRefused({"-o", std::string(250, 'x')}, "cannot be written");
}

TEST_F(StagedExport, AFolderThatCannotBeWrittenIsRefused) {
    if (geteuid() == 0) GTEST_SKIP() << "the superuser may write everywhere";
    fs::create_directory(folder / "locked");
    fs::permissions(folder / "locked", fs::perms(0500));
    ExpectRefused({"-o", "locked/out.wpx"}, "no file can be made in the folder");
    fs::permissions(folder / "locked", fs::perms(0700));
}

TEST_F(StagedExport, AnInputIsNeverWrittenOver) {
    fs::rename(folder / "one.aml", folder / "one.log");
    folder.Write("types.tsv", "");
    folder.Write("site.prf", "rules");
    fs::create_symlink("site.prf", folder / "link.wpx");
    fs::create_hard_link(folder / "one.log", folder / "hard.wpx");
    const auto refused = [&](std::vector<std::string> more, const std::string& text) {
        more.insert(more.begin(), {"export", "one.log"});
        const ProcessResult result = Run(more);
        EXPECT_EQ(result.status, 2) << result.err;
        EXPECT_THAT(result.err, AllOf(HasSubstr("would overwrite"), HasSubstr(text)));
    };
    const std::string before = folder.Read("one.log");
    refused({"-o", "one.wpx"},
            "The log one.log would overwrite the repository one.log; give another name with --log");
    refused({"-o", "hard.wpx"}, "the repository");
    refused({"-o", "site.prf", "--profile", "site.prf"}, "the mapping profile");
    refused({"-o", "link.wpx", "--profile", "site.prf"}, "the mapping profile");
    refused({"-o", "types.tsv", "--types", "./types.tsv"}, "the table of types");
    refused({"-o", "out.log"}, "the definition file");
    refused({"-o", "new.wpx", "--log", "./new.wpx"}, "the definition file");
    refused({"-o", (folder / "settings/wxbrg/registry.reg").string(), "--log", "none"}, "the stored options");
    EXPECT_EQ(folder.Read("one.log"), before);
    EXPECT_EQ(folder.Read("site.prf"), "rules");
    EXPECT_FALSE(Exists("out.log"));
}

TEST_F(StagedExport, AnInputThatLiesWhereAFileIsKeptForAWhileIsNoOutput) {
    for (const std::string name : {"out.wpx.partial", ".out.wpx.wxbrg-new", "out.log.partial"}) {
        fs::copy_file(folder / "one.aml", folder / name);
        const ProcessResult result = Run({"export", name, "-o", "out.wpx"});
        EXPECT_EQ(result.status, 2) << name;
        EXPECT_THAT(result.err, HasSubstr("would overwrite the repository"));
        EXPECT_TRUE(Exists(name));
        fs::remove(folder / name);
    }
}

TEST_F(StagedExport, TheStandardOutputGetsTheDefinitionAloneAndOnlyAtAGoodEnd) {
    const ProcessResult result = Export({"-o", "-"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, AllOf(HasSubstr("'Orders'"), Not(HasSubstr("Processes:  "))));
    EXPECT_THAT(result.err, HasSubstr("Definition file:        standard output\n"));
    EXPECT_THAT(Outputs(), IsEmpty());
    const ProcessResult failed = Export({"-o", "-", "--profile", "bad.prf"});
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.out, "");
    EXPECT_THAT(failed.err, EndsWith("The export is not complete: standard output was not written.\n"));
}

TEST_F(StagedExport, TheLogCanBeNamedOrLeftOut) {
    EXPECT_EQ(Export({"-o", "-", "--log", "out.notes"}).status, 0);
    EXPECT_THAT(folder.Read("out.notes"), HasSubstr(exportComplete));
    EXPECT_EQ(Export({"-o", "out", "--log", "none"}).status, 0);
    EXPECT_THAT(Outputs(), testing::ElementsAre("out", "out.notes"));
}

TEST_F(StagedExport, NoClobberKeepsWhatIsThere) {
    EXPECT_EQ(Export({"-o", "out.wpx", "--no-clobber"}).status, 0);
    const std::string definition = folder.Read("out.wpx");
    fs::remove(folder / "one.aml");
    ExpectRefused({"-o", "out.wpx", "--no-clobber"}, "The definition file out.wpx exists");
    ExpectRefused({"-o", "out2.wpx", "--log", "out.log", "--no-clobber"}, "The log out.log exists");
    EXPECT_EQ(folder.Read("out.wpx"), definition);
}

TEST_F(StagedExport, WhatIsNoRegularFileGetsTheCompleteDefinition) {
    const ProcessResult result = Export({"-o", "/dev/null", "--log", "/dev/null"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    const ProcessResult out = Export({"-o", "/dev/stdout", "--log", "none", "--quiet"});
    EXPECT_EQ(out.status, 0) << out.err;
    EXPECT_THAT(out.out, HasSubstr("'Orders'"));
    const ProcessResult full = Export({"-o", "/dev/full", "--log", "out.log"});
    EXPECT_EQ(full.status, 1);
    EXPECT_THAT(full.err, HasSubstr("disk full: /dev/full"));
}

}  // namespace
}  // namespace wxbrg::cli
