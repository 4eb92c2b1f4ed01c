#include <gmock/gmock.h>

#include "platform/scripted/ScriptedFileDialog.h"
#include "platform/scripted/ScriptedMessageBox.h"
#include "platform/scripted/ScriptedOptionsFormView.h"

namespace wxbrg {
namespace {

using testing::_;
using testing::HasSubstr;
using testing::InSequence;
using testing::Return;
using testing::ThrowsMessage;

class MockForm : public OptionsFormEvents {
  public:
    MOCK_METHOD(void, Activate, (), (override));
    MOCK_METHOD(std::string, Caption, (), (const, override));
    MOCK_METHOD(FormFont, Font, (), (const, override));
    MOCK_METHOD(std::vector<FormControlRow>, Rows, (), (const, override));
    MOCK_METHOD(bool, IsDirty, (), (const, override));
    MOCK_METHOD(bool, Click, (std::string_view), (override));
    MOCK_METHOD(bool, KeepsKey, (char32_t), (const, override));
    MOCK_METHOD(bool, Type, (char32_t), (override));
    MOCK_METHOD(void, Change, (std::string_view), (override));
    MOCK_METHOD(void, Apply, (), (override));
    MOCK_METHOD(void, Ok, (), (override));
    MOCK_METHOD(void, Cancel, (), (override));
    MOCK_METHOD(void, Help, (), (override));
    MOCK_METHOD(void, Close, (), (override));
    MOCK_METHOD(void, HelpOn, (std::string_view), (override));
    bool IsClosed() const override { return closed; }

    bool closed = false;
};

class ScriptedOptionsFormViewTest : public testing::Test {
  protected:
    ScriptedOptionsFormViewTest() {
        EXPECT_CALL(form_, Activate);
        ON_CALL(form_, Ok).WillByDefault([this] {
            form_.closed = true;
        });
        ON_CALL(form_, Close).WillByDefault([this] {
            form_.closed = true;
        });
        ON_CALL(form_, Type).WillByDefault(Return(true));
        ON_CALL(form_, Click).WillByDefault(Return(true));
    }

    void Show(AnswerScript& script) { ScriptedOptionsFormView(script).ShowModal(form_); }

    testing::StrictMock<MockForm> form_;
};

TEST_F(ScriptedOptionsFormViewTest, DoesWhatTheScriptSaysUntilTheFormIsClosed) {
    AnswerScript script = AnswerScript::Parse(
        "options click:cbRemoveLineBreaks\noptions type:\\b1xä\noptions paste:12\noptions apply\noptions ok\n"
        "options close\n");
    {
        const InSequence inSequence;
        EXPECT_CALL(form_, Click(std::string_view("cbRemoveLineBreaks")));
        EXPECT_CALL(form_, Type(U'\b'));
        EXPECT_CALL(form_, Type(U'1'));
        EXPECT_CALL(form_, Type(U'x')).WillOnce(Return(false));
        EXPECT_CALL(form_, Type(U'ä')).WillOnce(Return(false));
        EXPECT_CALL(form_, Change(std::string_view("12")));
        EXPECT_CALL(form_, Apply);
        EXPECT_CALL(form_, Ok);
    }
    Show(script);
    EXPECT_EQ(script.Remaining(), 1U);
}

TEST_F(ScriptedOptionsFormViewTest, TheWindowsCloseCommandEndsTheFormToo) {
    AnswerScript script = AnswerScript::Parse("options close\n");
    EXPECT_CALL(form_, Close);
    Show(script);
}

TEST_F(ScriptedOptionsFormViewTest, ACancelIsFollowedByItsQuestionAndTheFormGoesOn) {
    AnswerScript script = AnswerScript::Parse("options cancel:no\noptions ok\n");
    ScriptedMessageBox box(script);
    EXPECT_CALL(form_, Cancel).WillOnce([&] {
        EXPECT_EQ(box.Show("T", "End?", 65572), BoxAnswer::no);
    });
    EXPECT_CALL(form_, Ok);
    Show(script);
}

TEST_F(ScriptedOptionsFormViewTest, WhatACancelThrowsComesOut) {
    struct Ended {};
    AnswerScript script = AnswerScript::Parse("options cancel:yes\nfile out.wpx\n");
    EXPECT_CALL(form_, Cancel).WillOnce([] {
        throw Ended();
    });
    EXPECT_THROW(Show(script), Ended);
}

TEST_F(ScriptedOptionsFormViewTest, AControlThatThereIsNotDoesNotFit) {
    AnswerScript script = AnswerScript::Parse("options click:cbNothing\noptions ok\n");
    EXPECT_CALL(form_, Click(_)).WillOnce(Return(false));
    EXPECT_THAT(
        [&] {
            Show(script);
        },
        ThrowsMessage<ScriptError>(HasSubstr("line 1: the options dialog has no control \"cbNothing\"")));
    EXPECT_TRUE(script.Error());
}

TEST_F(ScriptedOptionsFormViewTest, AsksForHelpAndTheFormGoesOn) {
    AnswerScript script = AnswerScript::Parse("options help\noptions ok\n");
    {
        const InSequence inSequence;
        EXPECT_CALL(form_, Help);
        EXPECT_CALL(form_, Ok);
    }
    Show(script);
}

TEST_F(ScriptedOptionsFormViewTest, AnAnswerToTheFileDialogDoesNotFit) {
    AnswerScript script = AnswerScript::Parse("file out.wpx\n");
    EXPECT_THAT(
        [&] {
            Show(script);
        },
        ThrowsMessage<ScriptError>(HasSubstr("line 1: ")));
}

TEST_F(ScriptedOptionsFormViewTest, AScriptThatEndsBeforeTheFormDoesNotFit) {
    AnswerScript script = AnswerScript::Parse("options apply\n");
    EXPECT_CALL(form_, Apply);
    EXPECT_THAT(
        [&] {
            Show(script);
        },
        ThrowsMessage<ScriptError>(HasSubstr("run out")));
}

TEST(ScriptedFileDialog, GivesTheNameWithTheDefaultExtensionWhereItHasNone) {
    AnswerScript script = AnswerScript::Parse("file out.wpx\nfile out\nfile my.folder/out\n");
    ScriptedFileDialog dialog(script);
    FileDialogSettings settings;
    settings.initialDirectory = "/elsewhere";
    settings.fileName = "*.wpx";
    settings.defaultExtension = "wpx";
    EXPECT_EQ(dialog.AskSaveName(settings), "out.wpx");
    EXPECT_EQ(dialog.AskSaveName(settings), "out.wpx");
    EXPECT_EQ(dialog.AskSaveName(settings), "my.folder/out.wpx");
    EXPECT_THROW(dialog.AskSaveName(settings), ScriptError);
}

TEST(ScriptedFileDialog, ACancelGivesNoNameAndAnswersTheQuestion) {
    AnswerScript script = AnswerScript::Parse("file cancel:no\nfile out.wpx\n");
    ScriptedFileDialog dialog(script);
    ScriptedMessageBox box(script);
    EXPECT_EQ(dialog.AskSaveName({}), std::nullopt);
    EXPECT_EQ(box.Show("T", "End?", 65572), BoxAnswer::no);
    EXPECT_EQ(dialog.AskSaveName({}), "out.wpx");
}

TEST(ScriptedMessageBox, BoxesWithAnOkButtonAreAnsweredWithIt) {
    AnswerScript script = AnswerScript::Parse("");
    ScriptedMessageBox box(script);
    EXPECT_EQ(box.Show("Title", "Text", 65552), BoxAnswer::ok);
    EXPECT_EQ(box.Show("Title", "Other", 65553), BoxAnswer::ok);
    ASSERT_EQ(box.Boxes().size(), 2U);
    EXPECT_EQ(box.Boxes()[0].title, "Title");
    EXPECT_EQ(box.Boxes()[0].text, "Text");
    EXPECT_EQ(box.Boxes()[0].buttons, 65552);
    EXPECT_EQ(box.Boxes()[0].answer, BoxAnswer::ok);
    EXPECT_EQ(box.Boxes()[1].text, "Other");
}

TEST(ScriptedMessageBox, ABoxBetweenACancelAndItsQuestionDoesNotTakeTheAnswer) {
    AnswerScript script = AnswerScript::Parse("file cancel:yes\n");
    script.TakeForFile();
    ScriptedMessageBox box(script);
    EXPECT_EQ(box.Show("T", "note", 65584), BoxAnswer::ok);
    EXPECT_EQ(box.Show("T", "End?", 65572), BoxAnswer::yes);
    EXPECT_EQ(box.Boxes().back().answer, BoxAnswer::yes);
}

TEST(ScriptedMessageBox, AQuestionThatNothingAnswersDoesNotFitAndIsNotRecorded) {
    AnswerScript script = AnswerScript::Parse("options ok\n");
    ScriptedMessageBox box(script);
    EXPECT_THROW(box.Show("T", "End?", 65572), ScriptError);
    EXPECT_TRUE(box.Boxes().empty());
}

}  // namespace
}  // namespace wxbrg
