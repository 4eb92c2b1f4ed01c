#include "platform/scripted/AnswerScript.h"

#include <gmock/gmock.h>

namespace wxbrg {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;
using testing::ThrowsMessage;

ScriptedAnswer OptionsAnswer(const std::string& line) {
    return AnswerScript::Parse(line).TakeForOptions();
}

TEST(AnswerScript, ReadsTheActionsOfTheOptionsDialog) {
    EXPECT_EQ(OptionsAnswer("options ok").action, ScriptedAction::ok);
    EXPECT_EQ(OptionsAnswer("options apply").action, ScriptedAction::apply);
    EXPECT_EQ(OptionsAnswer("options close").action, ScriptedAction::close);
    EXPECT_EQ(OptionsAnswer("options help").action, ScriptedAction::help);
    EXPECT_EQ(OptionsAnswer("options cancel:no").action, ScriptedAction::cancelOptions);
    const ScriptedAnswer click = OptionsAnswer("options click:cbWriteDescription");
    EXPECT_EQ(click.action, ScriptedAction::click);
    EXPECT_EQ(click.text, "cbWriteDescription");
    const ScriptedAnswer paste = OptionsAnswer("options paste: a:b \\b");
    EXPECT_EQ(paste.action, ScriptedAction::paste);
    EXPECT_EQ(paste.text, " a:b \\b");
}

TEST(AnswerScript, ReadsKeysWithBackspaces) {
    EXPECT_EQ(OptionsAnswer("options type:\\b12a").text, "\b12a");
    EXPECT_EQ(OptionsAnswer("options type:1\\b\\b \\x\\").text, "1\b\b \\x\\");
    EXPECT_EQ(OptionsAnswer("options type:").text, "");
}

TEST(AnswerScript, ReadsTheAnswersToTheFileDialog) {
    AnswerScript script = AnswerScript::Parse("file a name.wpx \r\nfile no\n");
    const ScriptedAnswer name = script.TakeForFile();
    EXPECT_EQ(name.action, ScriptedAction::chooseFile);
    EXPECT_EQ(name.text, "a name.wpx ");
    EXPECT_EQ(script.TakeForFile().text, "no");
    EXPECT_EQ(AnswerScript::Parse("file cancel:yes").TakeForFile().action, ScriptedAction::cancelFile);
}

TEST(AnswerScript, ALineThatIsNoAnswerIsNamed) {
    for (const std::string line : {"ok", "options", "options ", "options OK", "options ok ", "options cancel",
                                   "options cancel:", "options cancel:maybe", "options click", "file",
                                   "file ", "file cancel:", "file cancel:Yes", "box yes", " options ok"})
        EXPECT_THAT(
            [&] {
                AnswerScript::Parse("options apply\n\n" + line + "\noptions ok\n");
            },
            ThrowsMessage<ScriptError>(AllOf(StartsWith("line 3: "), HasSubstr("\"" + line + "\""))))
            << line;
}

TEST(AnswerScript, AnswersAreTakenInTheirOrder) {
    AnswerScript script = AnswerScript::Parse("options apply\noptions ok\nfile out.wpx\n");
    EXPECT_EQ(script.Remaining(), 3U);
    EXPECT_EQ(script.TakeForOptions().action, ScriptedAction::apply);
    EXPECT_EQ(script.TakeForOptions().action, ScriptedAction::ok);
    EXPECT_EQ(script.TakeForFile().text, "out.wpx");
    EXPECT_EQ(script.Remaining(), 0U);
    EXPECT_EQ(script.Error(), std::nullopt);
}

TEST(AnswerScript, AnAnswerOfTheWrongKindIsNamedAndStays) {
    AnswerScript script = AnswerScript::Parse("options ok\nfile out.wpx\n");
    EXPECT_THAT(
        [&] {
            script.TakeForFile();
        },
        ThrowsMessage<ScriptError>(
            AllOf(StartsWith("line 1: the file dialog came"), HasSubstr("options dialog"))));
    script.TakeForOptions();
    EXPECT_THAT(
        [&] {
            script.TakeForOptions();
        },
        ThrowsMessage<ScriptError>(
            AllOf(StartsWith("line 2: the options dialog came"), HasSubstr("file dialog"))));
    EXPECT_THAT(
        [&] {
            script.TakeForQuestion("To be?");
        },
        ThrowsMessage<ScriptError>(
            AllOf(StartsWith("line 2: "), HasSubstr("\"To be?\""), HasSubstr("file dialog"))));
    EXPECT_EQ(script.Remaining(), 1U);
}

TEST(AnswerScript, AnswersThatRunOutAreToldWithWhatWasAsked) {
    AnswerScript script = AnswerScript::Parse("");
    EXPECT_THAT(
        [&] {
            script.TakeForOptions();
        },
        ThrowsMessage<ScriptError>(HasSubstr("run out: none is left for the options dialog")));
    EXPECT_THAT(
        [&] {
            script.TakeForFile();
        },
        ThrowsMessage<ScriptError>(HasSubstr("run out: none is left for the file dialog")));
    EXPECT_THAT(
        [&] {
            script.TakeForQuestion("To be?");
        },
        ThrowsMessage<ScriptError>(HasSubstr("the question \"To be?\"")));
}

TEST(AnswerScript, ACancelAnswersTheNextQuestion) {
    AnswerScript script = AnswerScript::Parse("options cancel:no\noptions ok\nfile cancel:yes\n");
    script.TakeForOptions();
    EXPECT_EQ(script.Remaining(), 3U);
    EXPECT_EQ(script.TakeForQuestion("End?"), BoxAnswer::no);
    script.TakeForOptions();
    script.TakeForFile();
    EXPECT_EQ(script.TakeForQuestion("End?"), BoxAnswer::yes);
    EXPECT_EQ(script.Remaining(), 0U);
}

TEST(AnswerScript, ACancelAnswersOneQuestionAlone) {
    AnswerScript script = AnswerScript::Parse("options cancel:no\n");
    script.TakeForOptions();
    script.TakeForQuestion("End?");
    EXPECT_THROW(script.TakeForQuestion("End?"), ScriptError);
}

TEST(AnswerScript, ACancelWhoseQuestionDoesNotComeDoesNotFit) {
    AnswerScript script = AnswerScript::Parse("options cancel:no\noptions ok\n");
    script.TakeForOptions();
    EXPECT_THAT(
        [&] {
            script.TakeForOptions();
        },
        ThrowsMessage<ScriptError>(AllOf(StartsWith("line 1: "), HasSubstr("no question"))));
}

TEST(AnswerScript, KeepsWhatItThrew) {
    AnswerScript script = AnswerScript::Parse("options ok\n");
    EXPECT_THROW(script.TakeForFile(), ScriptError);
    ASSERT_TRUE(script.Error());
    EXPECT_THAT(*script.Error(), StartsWith("line 1: "));
}

TEST(AnswerScript, AnswersWithoutAScriptHaveNoLine) {
    AnswerScript script({{ScriptedAction::ok}, {ScriptedAction::chooseFile, "cancel:yes"}});
    EXPECT_THAT(
        [&] {
            script.TakeForFile();
        },
        ThrowsMessage<ScriptError>(StartsWith("the file dialog came")));
    script.TakeForOptions();
    EXPECT_EQ(script.TakeForFile().text, "cancel:yes");
}

}  // namespace
}  // namespace wxbrg
