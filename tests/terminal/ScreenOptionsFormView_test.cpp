#include "platform/terminal/form/ScreenOptionsFormView.h"

#include <gmock/gmock.h>

#include <deque>
#include <sstream>
#include <stdexcept>

#include "tests/terminal/FakeOptionsForm.h"
#include "tests/terminal/TextPicture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// What a test gives a screen, and what it sees of it.
struct ScreenScript {
    ScreenSize size{80, 24};
    bool enters = true;
    std::deque<ScreenKey> keys;
    std::vector<ScreenSize> sizesBehindResize;
    std::vector<std::string> pictures;
    int beeps = 0;
    bool isOn = false;
    bool stands = false;
};

/// Reads the keys of a script; behind the last one the input has ended.
class ScriptedScreen : public Screen {
  public:
    explicit ScriptedScreen(ScreenScript& script) : script_(script) { script_.stands = true; }
    ~ScriptedScreen() override {
        ScriptedScreen::Leave();
        script_.stands = false;
    }
    ScriptedScreen(const ScriptedScreen&) = delete;
    ScriptedScreen& operator=(const ScriptedScreen&) = delete;

    ScreenSize Size() const override { return script_.size; }
    bool Enter() override { return script_.isOn = script_.enters; }
    void Leave() override { script_.isOn = false; }
    void Show(const ScreenPicture& picture) override {
        EXPECT_TRUE(script_.isOn);
        script_.pictures.push_back(TextOf(picture, script_.size));
    }
    ScreenKey ReadKey() override {
        EXPECT_TRUE(script_.isOn);
        if (script_.keys.empty()) return {KeyKind::endOfInput};
        const ScreenKey key = script_.keys.front();
        script_.keys.pop_front();
        if (key.kind == KeyKind::resize) {
            script_.size = script_.sizesBehindResize.front();
            script_.sizesBehindResize.erase(script_.sizesBehindResize.begin());
        }
        return key;
    }
    void Beep() override { ++script_.beeps; }

  private:
    ScreenScript& script_;
};

/// Notes with each event whether the screen was on.
class WatchedForm : public FakeOptionsForm {
  public:
    explicit WatchedForm(const ScreenScript& script) : script_(script) {}
    void Ok() override {
        Note("ok");
        if (fails) throw std::runtime_error("no number");
        closed = true;
    }
    void Apply() override {
        if (fails) throw std::runtime_error("no number");
        dirty = false;
    }
    void Cancel() override {
        Note("cancel");
        closed = closedByCancel;
    }
    void Help() override { Note("help"); }
    void HelpOn(std::string_view control) override { Note("help on " + std::string(control)); }

    bool fails = false;

  private:
    void Note(const std::string& what) { events.push_back(what + (script_.isOn ? " on the screen" : "")); }
    const ScreenScript& script_;
};

class ScreenOptionsFormViewTest : public testing::Test {
  protected:
    void Show(std::deque<ScreenKey> keys, const std::string& lines = "") {
        script.keys = std::move(keys);
        std::istringstream in(lines);
        ScreenOptionsFormView view(in, out, [&]() -> std::unique_ptr<Screen> {
            if (hasScreen) return std::make_unique<ScriptedScreen>(script);
            return nullptr;
        });
        view.ShowModal(form);
    }

    ScreenScript script;
    WatchedForm form{script};
    bool hasScreen = true;
    std::ostringstream out;
};

constexpr ScreenKey enter{KeyKind::enter};
constexpr ScreenKey escape{KeyKind::escape};
constexpr ScreenKey resize{KeyKind::resize};
constexpr ScreenKey space{KeyKind::character, U' '};

TEST_F(ScreenOptionsFormViewTest, ShowsTheFormAndEndsWithOk) {
    Show({enter});
    ASSERT_EQ(script.pictures.size(), 1U);
    EXPECT_THAT(script.pictures[0], HasSubstr("[ ] Check one"));
    EXPECT_THAT(form.events, ElementsAre("activate", "ok"));
    EXPECT_FALSE(script.stands);
    EXPECT_EQ(out.str(), "");
}

TEST_F(ScreenOptionsFormViewTest, ShowsWhatAKeyHasChanged) {
    Show({{KeyKind::tab}, space, enter});
    ASSERT_EQ(script.pictures.size(), 3U);
    EXPECT_THAT(script.pictures[2], testing::AllOf(HasSubstr("[x] Check one"), HasSubstr("[ Apply ]")));
}

TEST_F(ScreenOptionsFormViewTest, AKeyWithoutMeaningBeeps) {
    Show({{KeyKind::character, U'x'}, enter});
    EXPECT_EQ(script.beeps, 1);
}

TEST_F(ScreenOptionsFormViewTest, LeavesTheScreenForTheQuestionOfCancelAndComesBack) {
    Show({escape, enter});
    EXPECT_THAT(form.events, ElementsAre("activate", "cancel", "ok"));
    EXPECT_EQ(script.pictures.size(), 2U);
}

TEST_F(ScreenOptionsFormViewTest, ACancelThatEndsTheFormDoesNotComeBack) {
    form.closedByCancel = true;
    Show({escape, enter});
    EXPECT_THAT(form.events, ElementsAre("activate", "cancel"));
    EXPECT_FALSE(script.stands);
}

TEST_F(ScreenOptionsFormViewTest, LeavesTheScreenForHelpUntilEnter) {
    Show({{KeyKind::tab}, {KeyKind::help}, {KeyKind::character, U'h'}, enter}, "\n\n");
    EXPECT_THAT(form.events, ElementsAre("activate", "help on cbOne", "help", "ok"));
    EXPECT_EQ(out.str(), "\nEnter: back to the options \nEnter: back to the options ");
}

TEST_F(ScreenOptionsFormViewTest, ApplyKeepsTheFormOpen) {
    Show({{KeyKind::tab}, space, {KeyKind::character, U'a'}, enter});
    EXPECT_THAT(form.events, ElementsAre("activate", "click cbOne", "ok"));
    EXPECT_THAT(script.pictures.back(), Not(HasSubstr("[ Apply ]")));
}

TEST_F(ScreenOptionsFormViewTest, OptionsThatApplyCouldNotStoreAreReportedBesideTheScreen) {
    form.dirty = true;
    form.storeProblem = "The disk is full.";
    Show({{KeyKind::character, U'a'}, enter}, "\n");
    EXPECT_EQ(out.str(), std::string(notStoredText) + "The disk is full.\n\nEnter: back to the options ");
    EXPECT_EQ(script.pictures.size(), 2U);
    EXPECT_THAT(form.events, ElementsAre("activate", "ok"));
}

TEST_F(ScreenOptionsFormViewTest, OptionsThatOkCouldNotStoreAreReportedBehindTheForm) {
    form.storeProblem = "The disk is full.";
    Show({enter});
    EXPECT_EQ(out.str(), std::string(notStoredText) + "The disk is full.\n");
    EXPECT_FALSE(script.stands);
}

TEST_F(ScreenOptionsFormViewTest, AFailureGoesOnWithTheTerminalGivenBack) {
    form.fails = true;
    EXPECT_THROW(Show({enter}), std::runtime_error);
    EXPECT_FALSE(script.stands);
    form.dirty = true;
    EXPECT_THROW(Show({{KeyKind::character, U'a'}}), std::runtime_error);
    EXPECT_FALSE(script.stands);
}

TEST_F(ScreenOptionsFormViewTest, TheEndOfTheInputIsCancel) {
    form.closedByCancel = true;
    Show({});
    EXPECT_THAT(form.events, ElementsAre("activate", "cancel"));
}

TEST_F(ScreenOptionsFormViewTest, AFormThatStaysOpenBehindTheEndOfTheInputIsAFailure) {
    EXPECT_THROW(Show({}), std::runtime_error);
    EXPECT_THAT(form.events, ElementsAre("activate", "cancel"));
}

TEST_F(ScreenOptionsFormViewTest, FollowsTheSizeOfTheWindow) {
    script.sizesBehindResize = {{120, 40}};
    Show({resize, enter});
    EXPECT_THAT(script.pictures.back(), HasSubstr(std::string(15, ' ') + "┌─ Test options "));
}

TEST_F(ScreenOptionsFormViewTest, InAWindowThatIsTooSmallOnlyEnterAndEscapeCount) {
    script.sizesBehindResize = {{40, 10}, {80, 24}};
    Show({resize, {KeyKind::tab}, space, escape, resize, enter});
    EXPECT_THAT(script.pictures[1], HasSubstr("needs more room"));
    EXPECT_THAT(script.pictures.back(), HasSubstr("[ ] Check one"));
    EXPECT_THAT(form.events, ElementsAre("activate", "cancel", "ok"));
}

TEST_F(ScreenOptionsFormViewTest, EnterInAWindowThatIsTooSmallGoesOnLineByLine) {
    script.sizesBehindResize = {{40, 10}};
    Show({{KeyKind::tab}, space, resize, enter}, "o\n");
    EXPECT_THAT(out.str(), HasSubstr("  1  [x]  Check one\n"));
    EXPECT_THAT(form.events, ElementsAre("activate", "click cbOne", "activate", "ok"));
}

TEST_F(ScreenOptionsFormViewTest, WithoutAScreenThereAreLines) {
    hasScreen = false;
    Show({}, "o\n");
    EXPECT_THAT(out.str(), HasSubstr("  1  [ ]  Check one\n"));
    EXPECT_THAT(form.events, ElementsAre("activate", "ok"));
}

TEST_F(ScreenOptionsFormViewTest, WithoutRoomThereAreLines) {
    script.size = {60, 15};
    Show({}, "o\n");
    EXPECT_THAT(out.str(), HasSubstr("  1  [ ]  Check one\n"));
    EXPECT_THAT(script.pictures, IsEmpty());
    EXPECT_FALSE(script.stands);
}

TEST_F(ScreenOptionsFormViewTest, WhereTheTerminalRefusesThereAreLines) {
    script.enters = false;
    Show({}, "o\n");
    EXPECT_THAT(out.str(), HasSubstr("  1  [ ]  Check one\n"));
}

}  // namespace
}  // namespace wxbrg
