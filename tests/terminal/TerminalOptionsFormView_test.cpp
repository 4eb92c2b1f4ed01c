#include "platform/terminal/lines/TerminalOptionsFormView.h"

#include <gmock/gmock.h>

#include <sstream>
#include <stdexcept>

#include "tests/terminal/FakeOptionsForm.h"

namespace wxbrg {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char* prompt = "Number: change, Enter: list, h: help, o: OK, a: apply, c: cancel> ";

class TerminalOptionsFormViewTest : public testing::Test {
  protected:
    void Show(const std::string& input) {
        std::istringstream in(input);
        TerminalOptionsFormView view(in, out);
        view.ShowModal(form);
    }
    FakeOptionsForm form;
    std::ostringstream out;
};

TEST_F(TerminalOptionsFormViewTest, ListsEachControlByPageWithNumberStateAndCaption) {
    form.buttonChecked = true;
    form.boxChecked = true;
    Show("o\n");
    EXPECT_EQ(out.str(), std::string("\nTest options\n"
                                     "\nFirst page\n"
                                     "  1  [x]  Check one\n"
                                     "  2  0    Number of things\n"
                                     "\nSecond page\n"
                                     "  Take from\n"
                                     "  3  ( )  The left\n"
                                     "  4  (o)  The right\n") +
                             prompt);
}

TEST_F(TerminalOptionsFormViewTest, ActivatesTheFormBeforeItShowsAnything) {
    Show("o\n");
    EXPECT_THAT(form.events, ElementsAre("activate", "ok"));
}

TEST_F(TerminalOptionsFormViewTest, OkEndsTheForm) {
    Show("O\nc\n");
    EXPECT_THAT(form.events, ElementsAre("activate", "ok"));
}

TEST_F(TerminalOptionsFormViewTest, ANumberClicksAndItsPageIsListedAgain) {
    Show("1\n4\no\n");
    EXPECT_THAT(form.events, ElementsAre("activate", "click cbOne", "click rbYes", "ok"));
    const std::string listed = out.str().substr(out.str().find(prompt));
    EXPECT_EQ(listed, std::string(prompt) +
                          "\nFirst page\n"
                          "  1  [x]  Check one\n"
                          "  2  0    Number of things\n"
                          "Changes are not stored yet.\n" +
                          prompt +
                          "\nSecond page\n"
                          "  Take from\n"
                          "  3  ( )  The left\n"
                          "  4  (o)  The right\n"
                          "Changes are not stored yet.\n" +
                          prompt);
}

TEST_F(TerminalOptionsFormViewTest, AnEmptyLineListsAllAgain) {
    Show("\no\n");
    const std::string listed = out.str().substr(out.str().find(prompt));
    EXPECT_THAT(listed, AllOf(HasSubstr("First page\n"), HasSubstr("Second page\n")));
}

TEST_F(TerminalOptionsFormViewTest, ATextIsTypedOverTheOldOne) {
    form.text = "123";
    Show("2\n45\no\n");
    EXPECT_EQ(form.text, "45");
    EXPECT_THAT(out.str(), HasSubstr("  2  45   Number of things\n"));
}

TEST_F(TerminalOptionsFormViewTest, KeysThatTheFormDropsAreTold) {
    Show("2\n4x5\no\n");
    EXPECT_EQ(form.text, "45");
    EXPECT_THAT(out.str(), HasSubstr("\aNot every key was taken."));
}

TEST_F(TerminalOptionsFormViewTest, AnEmptyTextEmptiesTheField) {
    Show("2\n\no\n");
    EXPECT_EQ(form.text, "");
    EXPECT_THAT(out.str(), AllOf(Not(HasSubstr("\a")), HasSubstr("  2  (empty)  Number of things\n")));
}

TEST_F(TerminalOptionsFormViewTest, ApplyStoresAndKeepsTheFormOpen) {
    Show("1\na\na\no\n");
    EXPECT_THAT(form.events, ElementsAre("activate", "click cbOne", "apply", "apply", "ok"));
    EXPECT_THAT(out.str(),
                EndsWith(std::string(prompt) + "Stored.\n" + prompt + "Nothing has changed.\n" + prompt));
}

TEST_F(TerminalOptionsFormViewTest, HelpIsAboutTheFormOrAboutOneControl) {
    Show("h\n?\nh 4\nH1\no\n");
    EXPECT_THAT(form.events, ElementsAre("activate", "help", "help", "help on rbYes", "help on cbOne", "ok"));
}

TEST_F(TerminalOptionsFormViewTest, ACancelThatComesBackKeepsTheFormOpen) {
    Show("c\no\n");
    EXPECT_THAT(form.events, ElementsAre("activate", "cancel", "ok"));
}

TEST_F(TerminalOptionsFormViewTest, AnythingElseIsExplained) {
    for (const std::string input : {"0", "5", "-1", "1x", "hello", "h 5", "h x"}) {
        form.closed = false;
        out.str("");
        Show(input + "\no\n");
        EXPECT_THAT(out.str(), HasSubstr("from 1 to 4")) << input;
    }
    EXPECT_THAT(form.events, Not(testing::Contains(StartsWith("help"))));
}

TEST_F(TerminalOptionsFormViewTest, TheEndOfTheInputIsCancel) {
    form.closedByCancel = true;
    Show("1\n");
    EXPECT_THAT(form.events, ElementsAre("activate", "click cbOne", "cancel"));
}

TEST_F(TerminalOptionsFormViewTest, AFormThatStaysOpenBehindTheEndOfTheInputIsAFailure) {
    EXPECT_THROW(Show(""), std::runtime_error);
    EXPECT_THAT(form.events, ElementsAre("activate", "cancel"));
}

TEST_F(TerminalOptionsFormViewTest, TheEndOfTheInputAtTheTextLeavesTheField) {
    form.closedByCancel = true;
    Show("2\n");
    EXPECT_EQ(form.text, "0");
    EXPECT_THAT(form.events, ElementsAre("activate", "cancel"));
}

TEST_F(TerminalOptionsFormViewTest, OptionsThatCouldNotBeStoredAreReportedByApplyAndOk) {
    form.dirty = true;
    form.storeProblem = "The disk is full.";
    Show("a\no\n");
    EXPECT_THAT(out.str(), AllOf(HasSubstr(std::string(notStoredText) + "The disk is full.\n"),
                                 Not(HasSubstr("Stored."))));
    out.str({});
    form.closed = false;
    form.storeProblem = "The disk is full.";
    Show("o\n");
    EXPECT_THAT(out.str(), HasSubstr(std::string(notStoredText) + "The disk is full.\n"));
}

}  // namespace
}  // namespace wxbrg
