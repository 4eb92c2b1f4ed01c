// Exports that a signal ends.

#include <gmock/gmock.h>

#include <csignal>

#include "cli/Program.h"
#include "tests/TemporaryFolder.h"
#include "tests/cli/ProgramFixture.h"
#include "tests/cli/TestToolEnvironment.h"

namespace wxbrg::cli {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

/// Exports one model in this process, over an earlier definition file.
class StoppedExport : public testing::Test {
  protected:
    StoppedExport() {
        folder.Write("one.aml", SmallExport({{"{m1}", "Orders"}}));
        folder.Write("out.wpx", "good definition");
        tool.languageLibraries.Put("wxbrgENU.dll", {});
    }
    int Export() {
        return RunProgram(
            {"export", folder.NameOf("one.aml"), "-o", folder.NameOf("out.wpx"), "--default-rules"},
            tool.environment);
    }
    bool Exists(const std::string& name) const { return std::filesystem::exists(folder / name); }

    TemporaryFolder folder;
    TestToolEnvironment tool;
};

TEST_F(StoppedExport, WhileTheRepositoryIsReadNothingWasWritten) {
    tool.environment.openRepository = [](const aris::RepositoryRequest& request) {
        std::raise(SIGHUP);
        return OpenXmlRepository(request);
    };
    EXPECT_EQ(Export(), 128 + SIGHUP);
    EXPECT_EQ(tool.err.str(), "wxbrg: The run was stopped by the signal 1.\n");
    EXPECT_EQ(folder.Read("out.wpx"), "good definition");
    EXPECT_FALSE(Exists(".out.wpx.wxbrg-new") || Exists("out.wpx.partial") || Exists("out.log"));
}

TEST_F(StoppedExport, InTheRunEarlierFilesStayAndWhatWasWrittenIsKept) {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        tool.environment.catalogueAutomation = [number](aris::Catalogue& catalogue) {
            std::raise(number);
            return std::make_unique<CatalogueAutomation>(catalogue);
        };
        EXPECT_EQ(Export(), 128 + number);
        EXPECT_THAT(tool.err.str(),
                    StartsWith("wxbrg: The run was stopped by the signal " + std::to_string(number) + ".\n"));
        EXPECT_THAT(tool.err.str(), EndsWith("out.wpx.partial and " + folder.NameOf("out.log.partial.\n")));
        EXPECT_EQ(tool.out.str(), "");
        EXPECT_EQ(folder.Read("out.wpx"), "good definition");
        EXPECT_FALSE(Exists(".out.wpx.wxbrg-new"));
        EXPECT_TRUE(Exists("out.wpx.partial"));
        tool.err.str("");
    }
}

class StoppedExportProgram : public ProgramTest {
  protected:
    StoppedExportProgram() { WriteOneModel(); }
    /// Starts the program in a shell, and stops it by TERM once `ready` holds.
    ProcessResult Stop(const std::string& arguments, const std::string& ready) {
        const std::string script = "mkfifo pipe; " WXBRG_PROGRAM " " + arguments + " 2>err & until " + ready +
                                   "; do sleep 0.01; done; kill -TERM $!; wait $!; status=$?; cat err >&2; "
                                   "exit $status";
        return RunProcess({"sh", "-c", script}, {"", folder.Path(), environment});
    }
};

TEST_F(StoppedExportProgram, WaitingForTheReaderOfAPipeIsStopped) {
    const ProcessResult result =
        Stop("export one.aml -o pipe --log out.log", "grep -qs WXB03110I .out.log.wxbrg-new");
    EXPECT_EQ(result.status, 128 + SIGTERM) << result.err;
    EXPECT_THAT(result.err, HasSubstr("The export is not complete: pipe was not written"));
    EXPECT_FALSE(std::filesystem::exists(folder / "out.log"));
}

TEST_F(StoppedExportProgram, WaitingForTheWriterOfAPipeIsSaidAndStopped) {
    const ProcessResult result =
        Stop("export pipe -o out.wpx", "grep -qs waiting err && grep -qs '^State:.S' /proc/$!/status");
    EXPECT_EQ(result.status, 128 + SIGTERM) << result.err;
    EXPECT_EQ(result.err,
              "wxbrg: pipe is a pipe: waiting for its writer.\n"
              "wxbrg: The run was stopped by the signal 15.\n");
}

}  // namespace
}  // namespace wxbrg::cli
