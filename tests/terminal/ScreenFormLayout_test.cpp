#include "platform/terminal/form/ScreenFormLayout.h"

#include <gmock/gmock.h>

#include "support/Text.h"
#include "tests/terminal/FakeOptionsForm.h"
#include "tests/terminal/TextPicture.h"

namespace wxbrg {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr ScreenSize smallScreen{64, 14};

class ScreenFormLayout : public testing::Test {
  protected:
    ScreenFormState State(std::int32_t page, const std::string& focus) const {
        return {form.Caption(), form.Rows(), page, focus, 0};
    }
    FakeOptionsForm form;
};

TEST(ScreenPicture, ShowsNothingThatATerminalWouldObey) {
    ScreenPicture picture;
    picture.Put({0, 0}, U"a\x1B[2J\u009B\u202Eb", ScreenStyle::field);
    EXPECT_EQ(picture.spans.at(0).text, U"a\uFFFD[2J\uFFFD\uFFFDb");
}

TEST_F(ScreenFormLayout, ShowsTitlePagesControlsButtonsAndKeys) {
    form.boxChecked = true;
    form.text = "12";
    EXPECT_EQ(TextOf(DrawScreenForm(State(0, "tabs"), smallScreen), smallScreen),
              R"(
┌─ Test options ┬──────────────────────────────────────────────┐
│               │                                              │
│ 1 First page     [x] Check one                               │
│ 2 Second page │                                              │
│               │  Number of things                            │
│               │  [12  ]                                      │
│               │                                              │
├───────────────┴──────────────────────────────────────────────┤
│ [ Help ]                       [ OK ]  [ Cancel ]    Apply   │
└──────────────────────────────────────────────────────────────┘


  Space change  F1/? help  Enter OK  Esc cancel
)");
}

TEST_F(ScreenFormLayout, OptionButtonsStandInTheirFrame) {
    EXPECT_THAT(LinesOf(DrawScreenForm(State(1, "tabs"), smallScreen), smallScreen),
                AllOf(Contains("│ 1 First page  │  ┌─ Take from ─────────────────────────────┐ │"),
                      Contains("│ 2 Second page    │ (o) The left                            │ │"),
                      Contains("│               │  │ ( ) The right                           │ │"),
                      Contains("│               │  └─────────────────────────────────────────┘ │")));
}

TEST_F(ScreenFormLayout, AButtonThatIsEnabledHasBrackets) {
    form.dirty = true;
    const ScreenPicture picture = DrawScreenForm(State(0, "tabs"), smallScreen);
    EXPECT_THAT(TextOf(picture, smallScreen), HasSubstr("[ Cancel ]  [ Apply ] │"));
    EXPECT_TRUE(PiecesOf(picture, ScreenStyle::disabled).empty());
}

TEST_F(ScreenFormLayout, AButtonThatIsDisabledHasNone) {
    const ScreenPicture picture = DrawScreenForm(State(0, "tabs"), smallScreen);
    EXPECT_THAT(PiecesOf(picture, ScreenStyle::disabled), ElementsAre("  Apply  ", "Apply"));
}

TEST_F(ScreenFormLayout, TheControlWithTheKeyboardStandsOutAndHasTheCursor) {
    const ScreenPicture box = DrawScreenForm(State(0, "cbOne"), smallScreen);
    EXPECT_THAT(PiecesOf(box, ScreenStyle::focus), ElementsAre("[ ] ", "Check one"));
    EXPECT_EQ(box.cursor, (ScreenPoint{3, 20}));
    const ScreenPicture tabs = DrawScreenForm(State(1, "tabs"), smallScreen);
    EXPECT_THAT(PiecesOf(tabs, ScreenStyle::focus), ElementsAre("               ", "2", "Second page"));
    EXPECT_EQ(tabs.cursor, (ScreenPoint{4, 2}));
    const ScreenPicture button = DrawScreenForm(State(0, "cmdCancel"), smallScreen);
    EXPECT_THAT(PiecesOf(button, ScreenStyle::focus), ElementsAre("[ Cancel ]", "Cancel"));
    EXPECT_EQ(button.cursor, (ScreenPoint{9, 43}));
}

TEST_F(ScreenFormLayout, TheCursorStandsInTheTextField) {
    form.text = "123";
    ScreenFormState state = State(0, "efNumber");
    state.cursor = 2;
    const ScreenPicture picture = DrawScreenForm(state, smallScreen);
    EXPECT_EQ(picture.cursor, (ScreenPoint{6, 22}));
    EXPECT_THAT(PiecesOf(picture, ScreenStyle::focus), ElementsAre("123 "));
}

TEST_F(ScreenFormLayout, AccessKeysAreMarked) {
    std::string keys;
    for (const ScreenSpan& span : DrawScreenForm(State(0, "tabs"), smallScreen).spans)
        if (span.accessKey) keys += FromCharacters(span.text);
    EXPECT_EQ(keys, "FSoNAH");
}

TEST_F(ScreenFormLayout, StandsInTheMiddleOfALargeScreenAndGrowsToALimit) {
    constexpr ScreenSize large{200, 50};
    const std::vector<std::string> lines = LinesOf(DrawScreenForm(State(0, "tabs"), large), large);
    EXPECT_THAT(lines[19], testing::StartsWith(std::string(55, ' ') + "┌─ Test options "));
    EXPECT_EQ(CharacterCount(lines[19]), 145U);
    EXPECT_THAT(lines[49], HasSubstr("Alt+letter choose  Tab move"));
    EXPECT_EQ(lines[18] + lines[29], "");
}

TEST_F(ScreenFormLayout, FitsWhereEveryPageHasRoom) {
    EXPECT_TRUE(ScreenFormFits(form.Rows(), {64, 11}));
    EXPECT_FALSE(ScreenFormFits(form.Rows(), {64, 10}));
    EXPECT_FALSE(ScreenFormFits(form.Rows(), {63, 24}));
    EXPECT_FALSE(ScreenFormFits(form.Rows(), {0, 0}));
}

TEST_F(ScreenFormLayout, ThePageThatIsNotShownCountsToo) {
    std::vector<FormControlRow> rows = form.Rows();
    for (int i = 0; i < 4; ++i)
        rows.push_back({.name = "cbMore", .kind = FormControlKind::checkBox, .page = 1, .caption = "More"});
    EXPECT_TRUE(ScreenFormFits(rows, {64, 16}));
    EXPECT_FALSE(ScreenFormFits(rows, {64, 15}));
}

TEST_F(ScreenFormLayout, LongCaptionsGoOnBelowTheirBeginning) {
    ScreenFormState state = State(0, "tabs");
    state.rows[2].caption = "Knickpunkte in &WPX-Kontrollflussverbindungen einfügen";
    const ScreenPicture picture = DrawScreenForm(state, smallScreen);
    EXPECT_THAT(TextOf(picture, smallScreen),
                AllOf(HasSubstr("[ ] Knickpunkte in                          │"),
                      HasSubstr("│      WPX-Kontrollflussverbindungen einfügen  │")));
}

TEST_F(ScreenFormLayout, ATabIsCutWhereItIsTooLong) {
    ScreenFormState state = State(0, "tabs");
    state.rows[0].caption = "Error :\r\nThe Resource ID '50001' was not &found";
    EXPECT_TRUE(ScreenFormFits(state.rows, {64, 14}));
    EXPECT_THAT(TextOf(DrawScreenForm(state, smallScreen), smallScreen),
                AllOf(HasSubstr("│ 1 Error : The Resource ID     "), Not(HasSubstr("50001"))));
}

TEST_F(ScreenFormLayout, TellsWhatToDoWhereItDoesNotFit) {
    EXPECT_EQ(TextOf(DrawTooSmall({40, 5}), {40, 5}),
              "The form needs more room. Please enlarge\n"
              "the window. Enter goes on line by line,\n"
              "Esc cancels.\n\n\n");
}

}  // namespace
}  // namespace wxbrg
