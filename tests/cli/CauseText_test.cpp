#include "cli/CauseText.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <new>
#include <set>
#include <sstream>

#include "cli/Program.h"
#include "options/OptionTable.h"
#include "tests/cli/ProgramFixture.h"
#include "tests/cli/TestToolEnvironment.h"

namespace wxbrg::cli {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST(CauseText, NamesFileCauseAndWhatToDo) {
    EXPECT_EQ(CauseText(FailureCause::OfSystem(ENOSPC, "out.wpx")),
              "out.wpx: No space left on device (28). Free some space or use another disk.");
    EXPECT_THAT(CauseText(FailureCause::OfMemory()), StartsWith("Cannot allocate memory (12). "));
}

TEST(CauseText, TellsTheCausesApart) {
    std::set<std::string> advices;
    const int errors[] = {EIO,   EACCES, EPERM,  EMFILE, ENFILE, EROFS,
                          EFBIG, ENOSPC, EDQUOT, ENOMEM, ENOENT, EISDIR};
    for (const int error : errors) {
        const std::string text = CauseText(FailureCause::OfSystem(error));
        advices.insert(text.substr(text.find("). ")));
    }
    EXPECT_EQ(advices.size(), std::size(errors));
}

TEST(CauseText, IsEmptyWhereNothingIsKnown) {
    EXPECT_EQ(CauseText({}), "");
    EXPECT_EQ(CauseText(FailureCause::OfSystem(0, "out.wpx")), "");
}

TEST(CauseText, IsPrintable) {
    EXPECT_THAT(CauseText(FailureCause::OfSystem(EIO, "a\x1B[2J\n")), StartsWith("a\\u{1B}[2J\\u{A}: "));
}

TEST(ReportCause, BelongsToARunThatDidNotEndNormally) {
    std::ostringstream err;
    RunReport report;
    report.cause = FailureCause::OfSystem(EIO, "out.wpx");
    ReportCause(report, err);
    EXPECT_EQ(err.str(), "");
    report.ending = RunEnding::unknownFailure;
    ReportCause(report, err);
    EXPECT_THAT(err.str(), AllOf(StartsWith("wxbrg: out.wpx: "), EndsWith("\n")));
}

TEST(ReportException, NamesMemoryThatRanOut) {
    std::ostringstream err;
    ReportException(std::bad_alloc(), err);
    EXPECT_THAT(err.str(), StartsWith("wxbrg: not enough memory. "));
}

TEST(ReportException, TellsTheCauseOfAFailureBehindIt) {
    std::ostringstream err;
    ReportException(Failure(75, "a").Because(FailureCause::OfSystem(EACCES, "a")), err);
    EXPECT_THAT(err.str(), StartsWith("wxbrg: file access error: a\nwxbrg: a: Permission denied (13). "));
}

class Causes : public ProgramTest {
  protected:
    Causes() { WriteOneModel(); }

    /// Runs the program from a shell, behind a command that sets its limits.
    ProcessResult RunLimited(const std::string& limit, const std::string& arguments) const {
        return RunProcess({"sh", "-c", limit + "; exec '" WXBRG_PROGRAM "' " + arguments},
                          {"", folder.Path(), environment});
    }
};

TEST_F(Causes, AFileThatMayNotGrowIsNamedBehindTheBox) {
    // The boxes fit into the limit of 4096 bytes, for they are caught in a file as well.
    std::vector<SmallModel> models;
    for (int i = 0; i < 40; ++i) models.push_back({"{m" + std::to_string(i) + "}", "M" + std::to_string(i)});
    WriteExport("many.aml", models);
    const ProcessResult result = RunLimited("ulimit -f 8", "export many.aml --all -o out.wpx");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, AllOf(HasSubstr("WXB00075C"), HasSubstr("File too large (27). ")));
}

TEST_F(Causes, AFolderThatIsNotThereIsNamed) {
    const ProcessResult result = Run({"models", "none/one.aml"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("wxbrg: none/one.aml: No such file or directory (2). "));
}

TEST_F(Causes, ARepositoryThatCannotBeReadIsNamedWithTheSystemsError) {
    const ProcessResult result = Run({"models", "/proc/self/mem"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("wxbrg: /proc/self/mem: Input/output error (5). "));
}

TEST_F(Causes, MemoryThatRunsOutIsNamed) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the address sanitizer needs more address space than any limit leaves";
#endif
    WriteExport("large.aml", {{"{m1}", std::string(std::size_t{8} << 20U, 'x')}});
    // From what the program needs to start up to more than the model takes.
    int failed = 0;
    for (const int megabytes : {20, 24, 28, 32, 64, 128}) {
        const ProcessResult result =
            RunLimited("ulimit -v " + std::to_string(megabytes * 1024), "models large.aml --default-rules");
        if (result.status == 0 || result.err.find("shared libraries") != std::string::npos) continue;
        ++failed;
        EXPECT_THAT(result.err, HasSubstr("memory")) << megabytes;
        EXPECT_THAT(result.err, testing::Not(HasSubstr("bad_alloc"))) << megabytes;
    }
    EXPECT_GT(failed, 0);
}

TEST(CauseInWindows, IsShownInAWindowOfItsOwn) {
    const TemporaryFolder folder;
    folder.Write("one.aml", SmallExport({{"{m1}", "Orders"}}));
    TestToolEnvironment tool;
    tool.languageLibraries.Put("wxbrgENU.dll", {});
    tool.environment.programDirectory = folder.Path().string();
    tool.profileStore.Write(programKey, repositoryPathValue, folder.Path().string());
    tool.environment.dialogs = [&, make = tool.environment.dialogs] {
        Dialogs dialogs = make();
        dialogs.inWindows = true;
        return dialogs;
    };
    const std::string full = folder.NameOf("full.wpx");
    std::filesystem::create_symlink("/dev/full", full);
    tool.in.str("o\n" + full + "\ny\n\n\n");
    EXPECT_EQ(RunProgram({"/DB=one", "/SEL={m1},Orders,13", "/LOC=1033"}, tool.environment), 1);
    EXPECT_THAT(tool.out.str(), HasSubstr("\n--- ARIS to Tarnlight Workflow Bridge\n  " + full +
                                          ": No space left on device (28). "));
    EXPECT_EQ(tool.err.str(), "");
}

TEST_F(Causes, ANameTooShortForALogIsNamedBehindTheBox) {
    const ProcessResult result = Run({"/DB=one", "/SEL={m1},Orders,13", "/LOC=1033"}, "o\na.b\ny\n\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, HasSubstr("invalid call or missing key"));
    EXPECT_THAT(result.err, HasSubstr("wxbrg: a.b: The name is too short: "));
}

}  // namespace
}  // namespace wxbrg::cli
