#include "platform/terminal/TerminalOptionsFormView.h"

#include <gmock/gmock.h>

#include <sstream>
#include <stdexcept>

#include "support/Text.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A form of four controls that notes what is asked of it.
class FakeForm : public OptionsFormEvents {
  public:
    std::vector<FormControlRow> Rows() const override {
        return {{"cbOne", FormControlKind::checkBox, "First box", boxChecked, ""},
                {"efText", FormControlKind::textField, "Suffix", false, text},
                {"rbNo", FormControlKind::optionButton, "", !buttonChecked, ""},
                {"rbYes", FormControlKind::optionButton, "Yes button", buttonChecked, ""}};
    }
    bool IsDirty() const override { return dirty; }
    bool Click(std::string_view control) override {
        events.push_back("click " + std::string(control));
        if (control == "cbOne") boxChecked = !boxChecked;
        if (control.starts_with("rb")) buttonChecked = control == "rbYes";
        return true;
    }
    bool Type(char key) override {
        if (key == '\b') {
            text.pop_back();
            return true;
        }
        if (key < '0' || key > '9') return false;
        text += key;
        return true;
    }
    void Paste(std::string_view) override { events.emplace_back("paste"); }
    void Apply() override {
        events.emplace_back("apply");
        dirty = false;
    }
    void Ok() override {
        events.emplace_back("ok");
        closed = true;
    }
    void Cancel() override {
        events.emplace_back("cancel");
        closed = closedByCancel;
    }
    void Close() override { events.emplace_back("close"); }
    bool IsClosed() const override { return closed; }

    bool boxChecked = false;
    bool buttonChecked = false;
    std::string text = "0";
    bool dirty = false;
    bool closed = false;
    bool closedByCancel = false;
    std::vector<std::string> events;
};

class TerminalOptionsFormViewTest : public testing::Test {
  protected:
    void Show(const std::string& input) {
        std::istringstream in(input);
        TerminalOptionsFormView view(in, out);
        view.ShowModal(form);
    }
    FakeForm form;
    std::ostringstream out;
};

TEST_F(TerminalOptionsFormViewTest, ListsEachControlWithNumberStateAndCaption) {
    form.buttonChecked = true;
    Show("o\n");
    EXPECT_THAT(out.str(), HasSubstr("  1  [ ]  First box\n"
                                     "  2  0  Suffix\n"
                                     "  3  ( )  rbNo\n"
                                     "  4  (o)  Yes button\n"));
}

TEST_F(TerminalOptionsFormViewTest, OkEndsTheForm) {
    Show("O\nc\n");
    EXPECT_THAT(form.events, ElementsAre("ok"));
}

TEST_F(TerminalOptionsFormViewTest, ANumberClicksAndTheListComesAgain) {
    Show("1\n4\no\n");
    EXPECT_THAT(form.events, ElementsAre("click cbOne", "click rbYes", "ok"));
    EXPECT_THAT(out.str(), HasSubstr("[x]  First box"));
    EXPECT_THAT(out.str(), HasSubstr("(o)  Yes button"));
}

TEST_F(TerminalOptionsFormViewTest, ATextIsTypedOverTheOldOne) {
    form.text = "123";
    Show("2\n45\no\n");
    EXPECT_EQ(form.text, "45");
    EXPECT_THAT(form.events, ElementsAre("ok"));
}

TEST_F(TerminalOptionsFormViewTest, KeysThatTheFormDropsAreTold) {
    Show("2\n4x5\no\n");
    EXPECT_EQ(form.text, "45");
    EXPECT_THAT(out.str(), HasSubstr("\aNot every key was taken."));
}

TEST_F(TerminalOptionsFormViewTest, AnEmptyTextEmptiesTheField) {
    Show("2\n\no\n");
    EXPECT_EQ(form.text, "");
    EXPECT_THAT(out.str(), Not(HasSubstr("\a")));
}

TEST_F(TerminalOptionsFormViewTest, ApplyKeepsTheFormOpen) {
    form.dirty = true;
    Show("a\no\n");
    EXPECT_THAT(form.events, ElementsAre("apply", "ok"));
    EXPECT_THAT(out.str(), HasSubstr("not stored yet"));
}

TEST_F(TerminalOptionsFormViewTest, ACancelThatComesBackKeepsTheFormOpen) {
    Show("c\no\n");
    EXPECT_THAT(form.events, ElementsAre("cancel", "ok"));
}

TEST_F(TerminalOptionsFormViewTest, AnythingElseIsExplained) {
    Show("0\n5\n-1\n1x\nhello\n\no\n");
    EXPECT_THAT(form.events, ElementsAre("ok"));
    EXPECT_THAT(out.str(), HasSubstr("from 1 to 4"));
}

TEST_F(TerminalOptionsFormViewTest, TheEndOfTheInputIsCancel) {
    form.closedByCancel = true;
    Show("1\n");
    EXPECT_THAT(form.events, ElementsAre("click cbOne", "cancel"));
}

TEST_F(TerminalOptionsFormViewTest, AFormThatStaysOpenBehindTheEndOfTheInputIsAFailure) {
    EXPECT_THROW(Show(""), std::runtime_error);
    EXPECT_THAT(form.events, ElementsAre("cancel"));
}

TEST_F(TerminalOptionsFormViewTest, TheEndOfTheInputAtTheTextLeavesTheField) {
    form.closedByCancel = true;
    Show("2\n");
    EXPECT_EQ(form.text, "0");
    EXPECT_THAT(form.events, ElementsAre("cancel"));
}

}  // namespace
}  // namespace wxbrg
