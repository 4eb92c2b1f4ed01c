#include "platform/terminal/form/ScreenForm.h"

#include <gmock/gmock.h>

#include "tests/terminal/FakeOptionsForm.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScreenFormTest : public testing::Test {
  protected:
    FormAct Press(KeyKind kind) { return keyboard.Press({kind}); }
    FormAct Type(char32_t character) { return keyboard.Press({KeyKind::character, character}); }
    FormAct TypeWithAlt(char32_t character) { return keyboard.Press({KeyKind::access, character}); }
    std::string Focus() { return keyboard.State().focus; }
    std::int32_t Page() { return keyboard.State().page; }
    std::size_t Cursor() { return keyboard.State().cursor; }
    void GoTo(const std::string& control) {
        for (int i = 0; i < 20 && Focus() != control; ++i) Press(KeyKind::tab);
        ASSERT_EQ(Focus(), control);
    }

    FakeOptionsForm form;
    ScreenForm keyboard{form};
};

TEST_F(ScreenFormTest, BeginsAtTheTabsOfTheFirstPage) {
    EXPECT_EQ(Focus(), "tabs");
    EXPECT_EQ(Page(), 0);
    EXPECT_EQ(keyboard.State().title, "Test options");
}

TEST_F(ScreenFormTest, TabGoesThroughThePageAndTheButtonsAndAround) {
    std::vector<std::string> order;
    for (int i = 0; i < 6; ++i) {
        Press(KeyKind::tab);
        order.push_back(Focus());
    }
    EXPECT_THAT(order, ElementsAre("cbOne", "efNumber", "cmdHelp", "cmdOK", "cmdCancel", "tabs"));
    Press(KeyKind::backTab);
    EXPECT_EQ(Focus(), "cmdCancel");
    EXPECT_THAT(form.events, IsEmpty());
}

TEST_F(ScreenFormTest, AnEnabledButtonIsAStop) {
    form.dirty = true;
    Press(KeyKind::backTab);
    EXPECT_EQ(Focus(), "cmdApply");
}

TEST_F(ScreenFormTest, AButtonThatIsDisabledPassesTheKeyboardOn) {
    form.dirty = true;
    GoTo("cmdApply");
    EXPECT_EQ(Press(KeyKind::enter), FormAct::apply);
    form.Apply();
    EXPECT_EQ(Focus(), "tabs");
}

TEST_F(ScreenFormTest, ArrowsOnTheTabsTurnThePages) {
    Press(KeyKind::down);
    EXPECT_EQ(Page(), 1);
    Press(KeyKind::down);
    EXPECT_EQ(Page(), 0);
    Press(KeyKind::up);
    EXPECT_EQ(Page(), 1);
    EXPECT_EQ(Focus(), "tabs");
    Press(KeyKind::left);
    EXPECT_EQ(Focus(), "tabs");
    Press(KeyKind::right);
    EXPECT_EQ(Focus(), "rbNo");
}

TEST_F(ScreenFormTest, ArrowsInThePageMoveAndLeftLeadsBackToTheTabs) {
    Press(KeyKind::right);
    Press(KeyKind::down);
    EXPECT_EQ(Focus(), "efNumber");
    Press(KeyKind::up);
    EXPECT_EQ(Focus(), "cbOne");
    Press(KeyKind::right);
    EXPECT_EQ(Focus(), "cbOne");
    Press(KeyKind::left);
    EXPECT_EQ(Focus(), "tabs");
    EXPECT_THAT(form.events, IsEmpty());
}

TEST_F(ScreenFormTest, ArrowsOnTheButtonsStayThereAndUpLeadsBackToThePage) {
    GoTo("cmdHelp");
    Press(KeyKind::left);
    Press(KeyKind::down);
    EXPECT_EQ(Focus(), "cmdHelp");
    Press(KeyKind::right);
    Press(KeyKind::right);
    Press(KeyKind::right);
    EXPECT_EQ(Focus(), "cmdCancel");
    Press(KeyKind::left);
    EXPECT_EQ(Focus(), "cmdOK");
    Press(KeyKind::up);
    EXPECT_EQ(Focus(), "efNumber");
}

TEST_F(ScreenFormTest, PageKeysTurnThePagesFromAnywhere) {
    GoTo("efNumber");
    Press(KeyKind::nextPage);
    EXPECT_EQ(Page(), 1);
    EXPECT_EQ(Focus(), "rbNo");
    GoTo("cmdOK");
    Press(KeyKind::previousPage);
    EXPECT_EQ(Page(), 0);
    EXPECT_EQ(Focus(), "cmdOK");
}

TEST_F(ScreenFormTest, ADigitShowsItsPage) {
    EXPECT_EQ(Type(U'2'), FormAct::none);
    EXPECT_EQ(Page(), 1);
    EXPECT_EQ(Focus(), "tabs");
    EXPECT_EQ(Type(U'3'), FormAct::beep);
    EXPECT_EQ(Page(), 1);
}

TEST_F(ScreenFormTest, WithAltADigitShowsItsPageFromTheTextFieldToo) {
    GoTo("efNumber");
    EXPECT_EQ(TypeWithAlt(U'2'), FormAct::none);
    EXPECT_EQ(Page(), 1);
    EXPECT_EQ(form.text, "0");
}

TEST_F(ScreenFormTest, SpaceClicks) {
    GoTo("cbOne");
    EXPECT_EQ(Type(U' '), FormAct::none);
    EXPECT_TRUE(form.boxChecked);
    EXPECT_EQ(Type(U' '), FormAct::none);
    EXPECT_FALSE(form.boxChecked);
    Press(KeyKind::nextPage);
    EXPECT_EQ(Type(U' '), FormAct::none);
    EXPECT_THAT(form.events, ElementsAre("click cbOne", "click cbOne", "click rbNo"));
}

TEST_F(ScreenFormTest, SpacePressesAButton) {
    GoTo("cmdHelp");
    EXPECT_EQ(Type(U' '), FormAct::help);
    GoTo("cmdOK");
    EXPECT_EQ(Type(U' '), FormAct::ok);
    GoTo("cmdCancel");
    EXPECT_EQ(Type(U' '), FormAct::cancel);
}

TEST_F(ScreenFormTest, SpaceOnTheTabsBeeps) {
    EXPECT_EQ(Type(U' '), FormAct::beep);
}

TEST_F(ScreenFormTest, EnterIsOkExceptOnAnotherButton) {
    EXPECT_EQ(Press(KeyKind::enter), FormAct::ok);
    GoTo("efNumber");
    EXPECT_EQ(Press(KeyKind::enter), FormAct::ok);
    GoTo("cmdCancel");
    EXPECT_EQ(Press(KeyKind::enter), FormAct::cancel);
}

TEST_F(ScreenFormTest, EscapeAndTheEndOfTheInputAreCancel) {
    EXPECT_EQ(Press(KeyKind::escape), FormAct::cancel);
    EXPECT_EQ(Press(KeyKind::endOfInput), FormAct::cancel);
}

TEST_F(ScreenFormTest, HelpIsAboutTheControlWithTheKeyboard) {
    EXPECT_EQ(Press(KeyKind::help), FormAct::helpOnFocus);
    GoTo("cbOne");
    EXPECT_EQ(Type(U'?'), FormAct::helpOnFocus);
    GoTo("efNumber");
    EXPECT_EQ(Press(KeyKind::help), FormAct::helpOnFocus);
    GoTo("cmdCancel");
    EXPECT_EQ(Press(KeyKind::help), FormAct::beep);
}

TEST_F(ScreenFormTest, AccessKeysWorkInAnyCaseWithAltAndWithout) {
    EXPECT_EQ(Type(U'o'), FormAct::none);
    EXPECT_EQ(TypeWithAlt(U'O'), FormAct::none);
    EXPECT_THAT(form.events, ElementsAre("click cbOne", "click cbOne"));
    EXPECT_EQ(Focus(), "cbOne");
}

TEST_F(ScreenFormTest, TheAccessKeyOfAButtonPressesItAndLeavesTheKeyboardWhereItIs) {
    GoTo("cbOne");
    EXPECT_EQ(Type(U'h'), FormAct::help);
    EXPECT_EQ(TypeWithAlt(U'H'), FormAct::help);
    EXPECT_EQ(Focus(), "cbOne");
}

TEST_F(ScreenFormTest, TheAccessKeyOfATabShowsItsPage) {
    GoTo("efNumber");
    EXPECT_EQ(TypeWithAlt(U's'), FormAct::none);
    EXPECT_EQ(Page(), 1);
    EXPECT_EQ(Focus(), "tabs");
}

TEST_F(ScreenFormTest, TheAccessKeyOfALabelOrAFrameLeadsToTheControlBehindIt) {
    EXPECT_EQ(Type(U'n'), FormAct::none);
    EXPECT_EQ(Focus(), "efNumber");
    Press(KeyKind::nextPage);
    GoTo("tabs");
    EXPECT_EQ(Type(U't'), FormAct::none);
    EXPECT_EQ(Focus(), "rbNo");
    EXPECT_THAT(form.events, IsEmpty());
}

TEST_F(ScreenFormTest, AccessKeysOfOtherPagesAndOfDisabledButtonsBeep) {
    EXPECT_EQ(Type(U'l'), FormAct::beep);
    EXPECT_EQ(Type(U'a'), FormAct::beep);
    EXPECT_EQ(Type(U'x'), FormAct::beep);
    EXPECT_THAT(form.events, IsEmpty());
    form.dirty = true;
    EXPECT_EQ(Type(U'a'), FormAct::apply);
}

TEST_F(ScreenFormTest, TheTextFieldTakesDigitsAtTheCursor) {
    GoTo("efNumber");
    EXPECT_EQ(Cursor(), 1U);
    Type(U'7');
    EXPECT_EQ(form.text, "07");
    Press(KeyKind::home);
    Type(U'3');
    EXPECT_EQ(form.text, "307");
    EXPECT_EQ(Cursor(), 1U);
    EXPECT_TRUE(form.dirty);
    EXPECT_EQ(Page(), 0);
}

TEST_F(ScreenFormTest, TheTextFieldDropsAllElseWithABeep) {
    GoTo("efNumber");
    for (const char32_t key : {U'o', U' ', U'-', U'?', U'ä', U'٣'}) EXPECT_EQ(Type(key), FormAct::beep);
    EXPECT_EQ(form.text, "0");
    EXPECT_FALSE(form.dirty);
    EXPECT_THAT(form.events, IsEmpty());
}

TEST_F(ScreenFormTest, AFullTextFieldTakesNoMore) {
    form.text = "1234";
    GoTo("efNumber");
    EXPECT_EQ(Type(U'5'), FormAct::beep);
    Press(KeyKind::home);
    EXPECT_EQ(Type(U'5'), FormAct::beep);
    EXPECT_EQ(form.text, "1234");
    EXPECT_FALSE(form.dirty);
}

TEST_F(ScreenFormTest, BackspaceAndDeleteEditAtTheCursor) {
    form.text = "123";
    GoTo("efNumber");
    Press(KeyKind::left);
    Press(KeyKind::backspace);
    EXPECT_EQ(form.text, "13");
    EXPECT_EQ(Cursor(), 1U);
    Press(KeyKind::erase);
    EXPECT_EQ(form.text, "1");
    Press(KeyKind::backspace);
    EXPECT_EQ(form.text, "");
}

TEST_F(ScreenFormTest, BackspaceAndDeleteWithNothingThereChangeNothing) {
    GoTo("efNumber");
    Press(KeyKind::erase);
    Press(KeyKind::home);
    Press(KeyKind::backspace);
    EXPECT_EQ(form.text, "0");
    EXPECT_FALSE(form.dirty);
}

TEST_F(ScreenFormTest, TheCursorStaysInTheText) {
    form.text = "12";
    GoTo("efNumber");
    Press(KeyKind::right);
    EXPECT_EQ(Cursor(), 2U);
    Press(KeyKind::home);
    Press(KeyKind::left);
    EXPECT_EQ(Cursor(), 0U);
    Press(KeyKind::end);
    form.text = "";
    EXPECT_EQ(Cursor(), 0U);
    EXPECT_EQ(Focus(), "efNumber");
}

TEST_F(ScreenFormTest, EditingKeysDoNothingElsewhere) {
    for (const KeyKind key :
         {KeyKind::backspace, KeyKind::erase, KeyKind::home, KeyKind::end, KeyKind::resize, KeyKind::other})
        EXPECT_EQ(Press(key), FormAct::none);
    EXPECT_EQ(Focus(), "tabs");
    EXPECT_EQ(form.text, "0");
}

}  // namespace
}  // namespace wxbrg
