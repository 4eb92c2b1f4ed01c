#include "cli/ReplayCase.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "cli/UsageError.h"
#include "tests/TemporaryFolder.h"

namespace wxbrg::cli {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

std::string ReadBytesOr(const std::filesystem::path& file, const std::string& otherwise) {
    return std::filesystem::exists(file) ? ReadBytes(file) : otherwise;
}

class ReplayCaseTest : public testing::Test {
  protected:
    ReplayCaseTest() {
        folder.Write("repository.aml", "<AML/>");
        folder.Write("command", "/USR=u /DB=d\n");
    }
    template <class Matcher>
    void ExpectBad(const Matcher& text) {
        EXPECT_THAT(
            [&] {
                ReadReplayCase(folder.Path());
            },
            ThrowsMessage<UsageError>(text));
    }
    TemporaryFolder folder;
};

TEST_F(ReplayCaseTest, ReadsTheFilesOfTheFolder) {
    folder.Write("options", "ConvertNames=0\n");
    folder.Write("machine-options", "Language=s:TST\n");
    folder.Write("answers", "options ok\nfile out.wpx\n");
    folder.Write("code-page", "1252\n");
    const ReplayCase read = ReadReplayCase(folder.Path());
    EXPECT_EQ(read.repository, folder / "repository.aml");
    EXPECT_EQ(read.commandLine, "/USR=u /DB=d");
    EXPECT_EQ(read.options, "ConvertNames=0\n");
    EXPECT_EQ(read.machineOptions, "Language=s:TST\n");
    EXPECT_EQ(read.answers, "options ok\nfile out.wpx\n");
    EXPECT_EQ(read.codePage, 1252U);
}

TEST_F(ReplayCaseTest, WhatIsAbsentStandsForNothingGiven) {
    const ReplayCase read = ReadReplayCase(folder.Path());
    EXPECT_EQ(read.options, "");
    EXPECT_EQ(read.machineOptions, "");
    EXPECT_EQ(read.answers, "");
    EXPECT_EQ(read.codePage, 65001U);
}

TEST_F(ReplayCaseTest, TheCommandLosesOneLineEndAtItsEndOnly) {
    folder.Write("command", "/SEL=a\nb \r\n");
    EXPECT_EQ(ReadReplayCase(folder.Path()).commandLine, "/SEL=a\nb ");
    folder.Write("command", "/DB=x");
    EXPECT_EQ(ReadReplayCase(folder.Path()).commandLine, "/DB=x");
    folder.Write("command", "");
    EXPECT_EQ(ReadReplayCase(folder.Path()).commandLine, "");
}

TEST_F(ReplayCaseTest, AByteOrderMarkIsDropped) {
    folder.Write("command", "\xEF\xBB\xBF/DB=x\n");
    EXPECT_EQ(ReadReplayCase(folder.Path()).commandLine, "/DB=x");
}

TEST_F(ReplayCaseTest, FolderRepositoryAndCommandMustBeThere) {
    EXPECT_THAT(
        [&] {
            ReadReplayCase(folder / "none");
        },
        ThrowsMessage<UsageError>(HasSubstr("none")));
    std::filesystem::remove(folder / "command");
    ExpectBad(HasSubstr("command"));
    std::filesystem::remove(folder / "repository.aml");
    ExpectBad(HasSubstr("repository.aml"));
}

TEST_F(ReplayCaseTest, AFolderInPlaceOfAFileCannotBeRead) {
    std::filesystem::create_directory(folder / "options");
    ExpectBad(HasSubstr("options cannot be read"));
}

TEST_F(ReplayCaseTest, WhatIsThereAndCannotBeReadIsNamedWithItsCause) {
    folder.Write("profile.prf", "");
    for (const std::string name :
         {"repository.aml", "command", "options", "machine-options", "answers", "code-page", "profile.prf"}) {
        const auto expectBad = [&](const std::string& cause) {
            ExpectBad(
                testing::AllOf(HasSubstr((folder / name).string() + " cannot be read"), HasSubstr(cause)));
            std::filesystem::remove(folder / name);
        };
        const std::string before = name == "profile.prf" ? "" : ReadBytesOr(folder / name, "1252");
        std::filesystem::remove(folder / name);
        std::filesystem::create_symlink("nowhere", folder / name);
        expectBad("it is a link that leads nowhere");
        ASSERT_EQ(mkfifo((folder / name).c_str(), S_IRWXU), 0);
        expectBad("it is no regular file");
        std::filesystem::create_symlink(name, folder / name);
        expectBad("symbolic links");
        folder.Write(name, name == "answers" || name.ends_with("options") ? "" : before);
    }
    EXPECT_NO_THROW(ReadReplayCase(folder.Path()));
}

TEST_F(ReplayCaseTest, AFailureOfTheDiskIsNoEndOfAFile) {
    std::filesystem::create_symlink("/proc/self/mem", folder / "answers");
    ExpectBad(HasSubstr("answers cannot be read: Input/output error."));
}

TEST_F(ReplayCaseTest, TextsMustBeUtf8) {
    folder.Write("command", "/DB=\xE4\n");
    ExpectBad(HasSubstr("UTF-8"));
}

TEST_F(ReplayCaseTest, TheCodePageMustBeANumber) {
    for (const std::string text : {"", "utf8\n", "1252x\n", "-1\n", "99999999999\n"}) {
        folder.Write("code-page", text);
        ExpectBad(HasSubstr("code-page"));
    }
}

TEST_F(ReplayCaseTest, AnOutputFileMustStayInTheFolderOfTheOutput) {
    for (const std::string name : {"/tmp/x.wpx", "../x.wpx", "a/../../x.wpx", ".."}) {
        folder.Write("answers", "options ok\nfile " + name + "\n");
        ExpectBad(testing::AllOf(HasSubstr("answers:2"), HasSubstr(name)));
    }
    for (const std::string name : {"x.wpx", "a/../x.wpx", "..x", "cancel:yes"}) {
        folder.Write("answers", "file " + name + "\n");
        EXPECT_NO_THROW(ReadReplayCase(folder.Path())) << name;
    }
}

}  // namespace
}  // namespace wxbrg::cli
