#include <gmock/gmock.h>

#include "tests/cli/ProgramFixture.h"

namespace wxbrg::cli {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// Runs the program as ARIS starts it, on "orders.aml" in the folder.
class InteractiveProgram : public ProgramTest {
  protected:
    InteractiveProgram() { WriteExport("orders.aml", {{"{m1}", "New.orders"}}); }

    ProcessResult Answer(const std::string& input) const {
        return Run({"/USR=me", "/DB=orders", "/SVR=host", "/REG=", "/SEL={m1},New.orders,13", "/LOC=1033"},
                   input);
    }
};

TEST_F(InteractiveProgram, AsksForOptionsAndFileAndExports) {
    const ProcessResult result = Answer("o\nresult\ny\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "wxbrg: There is no display; the terminal is used instead.\n");
    EXPECT_THAT(result.out, AllOf(HasSubstr("[x]"), HasSubstr("Output file"), HasSubstr("Create it?")));
    EXPECT_THAT(folder.Read("result.wpx"), AllOf(HasSubstr("'New_orders'"), HasSubstr("= me")));
    EXPECT_THAT(folder.Read("result.log"), HasSubstr("WXB03110I "));
}

TEST_F(InteractiveProgram, AChangedOptionCountsAndIsStored) {
    EXPECT_EQ(Answer("1\no\nresult\ny\n").status, 0);
    EXPECT_THAT(folder.Read("result.wpx"), HasSubstr("'New.orders'"));
    EXPECT_EQ(Run({"options", "get", "ConvertNames"}).out, "0\n");
}

TEST_F(InteractiveProgram, UnchangedOptionsAreNotStored) {
    EXPECT_EQ(Answer("o\nresult\ny\n").status, 0);
    EXPECT_TRUE(std::filesystem::is_empty(folder / "settings"));
}

TEST_F(InteractiveProgram, CancellingTheOptionsAndSayingYesIsExitStatus130) {
    const ProcessResult result = Answer("c\ny\n");
    EXPECT_EQ(result.status, 130);
    EXPECT_THAT(result.out, HasSubstr("WXB00999Q "));
    EXPECT_FALSE(Exists("result.wpx"));
}

TEST_F(InteractiveProgram, CancellingAndSayingNoGoesOn) {
    EXPECT_EQ(Answer("c\nn\no\nc\nn\nresult\ny\n").status, 0);
    EXPECT_TRUE(Exists("result.wpx"));
}

TEST_F(InteractiveProgram, CancellingTheFileDialogAndSayingYesIsExitStatus130) {
    const ProcessResult result = Answer("o\nc\ny\n");
    EXPECT_EQ(result.status, 130);
    EXPECT_THAT(result.out, HasSubstr("WXB32755Q "));
}

TEST_F(InteractiveProgram, TheFileDialogShowsItsPageOfTheHelp) {
    const ProcessResult result = Answer("o\nh\nresult\ny\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("Name of the definition file\n====="));
}

TEST_F(InteractiveProgram, SayingNoToANewFileAsksForAnotherName) {
    EXPECT_EQ(Answer("o\nfirst\nn\nresult\ny\n").status, 0);
    EXPECT_FALSE(Exists("first.wpx"));
    EXPECT_TRUE(Exists("result.wpx"));
}

TEST_F(InteractiveProgram, ANameThatIsTheRepositoryIsRefusedAndAskedForAgain) {
    const std::string before = folder.Read("orders.aml");
    const ProcessResult result = Answer("o\norders.aml\nresult\ny\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("orders.aml or its log would overwrite a file that the export reads"));
    EXPECT_EQ(folder.Read("orders.aml"), before);
    EXPECT_TRUE(Exists("result.wpx"));
}

TEST_F(InteractiveProgram, TheEndOfTheInputEndsTheRunWhereverItComes) {
    for (const std::string input : {"", "c\n", "1\n", "o\n", "o\nc\n", "o\nresult\n"})
        EXPECT_EQ(Answer(input).status, 130) << input;
}

TEST_F(InteractiveProgram, AModelThatIsNotThereIsToldAndEndsTheRun) {
    const ProcessResult result = Run({"/DB=orders", "/SEL={mX},Nothing,13", "/LOC=1033"}, "\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, AllOf(HasSubstr("WXB02020C "), Not(HasSubstr("Output file"))));
}

TEST_F(InteractiveProgram, ADatabaseThatIsNotThereIsToldWithItsFile) {
    const ProcessResult result = Run({"/DB=nothing", "/SEL={m1},New.orders,13", "/LOC=1033"}, "\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, AllOf(HasSubstr("WXB00053C "), HasSubstr("nothing.aml")));
}

TEST_F(InteractiveProgram, DatabasesLieInTheFolderThatIsStored) {
    std::filesystem::create_directory(folder / "data");
    std::filesystem::rename(folder / "orders.aml", folder / "data/orders.aml");
    EXPECT_EQ(Answer("o\nresult\ny\n").status, 1);
    EXPECT_EQ(Run({"options", "set", "RepositoryPath", (folder / "data").string()}).status, 0);
    EXPECT_EQ(Answer("o\nresult\ny\n").status, 0);
}

TEST_F(InteractiveProgram, ArgumentsAreJoinedByBlanks) {
    EXPECT_EQ(Run({"/db", "orders", "/SEL={m1},New.orders,13", "/LOC:1033"}, "o\nresult\ny\n").status, 0);
}

}  // namespace
}  // namespace wxbrg::cli
