// The logic of the options dialog, without a window.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/Text.h"
#include "tests/options/OptionsFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::string_view cancelProcedure = "frmExportOptions.cmdCancel_Click";
constexpr char32_t backspace = 8;

class OptionsFormTest : public OptionsFixture {
  protected:
    /// Shows the form to a user who gives these answers.
    std::optional<RunEnd> ShowTo(std::string_view answers) {
        Answer(answers);
        return RunIn("clsWPX_Export.Run", [&](Frame&) {
            form_.ShowModal();
        });
    }
    void TypeAll(std::string_view keys) {
        for (const char32_t key : ToCharacters(keys)) form_.Type(key);
    }
};

TEST_F(OptionsFormTest, BeginsClean) {
    Store("ConvertNames", 0);
    Store("FirstSuffixNumber", 5);
    Show([&] {
        EXPECT_FALSE(form_.IsDirty());
        EXPECT_FALSE(form_.IsClosed());
    });
}

TEST_F(OptionsFormTest, OkOnACleanFormStoresNothing) {
    EXPECT_EQ(ShowTo("options ok"), std::nullopt);
    EXPECT_TRUE(form_.IsClosed());
    EXPECT_THAT(profileStore_.writes, IsEmpty());
}

TEST_F(OptionsFormTest, OkOnADirtyFormStoresOnceAndEndsIt) {
    EXPECT_EQ(ShowTo("options click:cbStartConditions\noptions ok"), std::nullopt);
    EXPECT_TRUE(form_.IsClosed());
    EXPECT_THAT(profileStore_.writes, SizeIs(15));
    EXPECT_TRUE(gBlock.gOptStartConditions);
}

TEST_F(OptionsFormTest, ApplyStoresAndTheFormStaysAndIsClean) {
    Show([&] {
        form_.Click("cbStartConditions");
        EXPECT_TRUE(form_.IsDirty());
        form_.Apply();
        EXPECT_FALSE(form_.IsDirty());
        EXPECT_FALSE(form_.IsClosed());
    });
    EXPECT_EQ(Stored("StartConditions"), ProfileValue(-1));
}

TEST_F(OptionsFormTest, ApplyIsDisabledOnACleanForm) {
    EXPECT_EQ(ShowTo("options apply\noptions ok"), std::nullopt);
    EXPECT_THAT(profileStore_.writes, IsEmpty());
}

TEST_F(OptionsFormTest, ApplyAndThenOkStoresOnce) {
    EXPECT_EQ(ShowTo("options click:cbStartConditions\noptions apply\noptions ok"), std::nullopt);
    EXPECT_THAT(profileStore_.writes, SizeIs(15));
}

TEST_F(OptionsFormTest, ClosingTheWindowStoresNothingAndTheGlobalsStayAsLoaded) {
    Store("ExitConditions", -1);
    EXPECT_EQ(ShowTo("options click:cbExitConditions\noptions close"), std::nullopt);
    EXPECT_TRUE(form_.IsClosed());
    EXPECT_THAT(profileStore_.writes, IsEmpty());
    EXPECT_TRUE(gBlock.gOptExitConditions);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(OptionsFormTest, CancelAndYesEndsTheRunAndStoresNothing) {
    EXPECT_THAT(ShowTo("options click:cbExitConditions\noptions cancel:yes"),
                EndedRun(RunEnding::endedByFailure, 999));
    EXPECT_THAT(Boxes(), ElementsAre(QuestionBox(999, cancelProcedure)));
    EXPECT_THAT(profileStore_.writes, IsEmpty());
    EXPECT_EQ(gBlock.gCurrentProcedure, cancelProcedure);
}

TEST_F(OptionsFormTest, CancelAndNoKeepsTheFormItsStateAndItsDirtyFlag) {
    script_ = AnswerScript({{ScriptedAction::cancelOptions, "", BoxAnswer::no}});
    Show([&] {
        form_.Click("cbExitConditions");
        script_.TakeForOptions();
        form_.Cancel();
        EXPECT_FALSE(form_.IsClosed());
        EXPECT_TRUE(form_.IsDirty());
        EXPECT_TRUE(IsChecked("cbExitConditions"));
        EXPECT_FALSE(gBlock.gOptExitConditions);
        EXPECT_EQ(gBlock.gCurrentProcedure, "clsWPX_Export.Run");
    });
    EXPECT_THAT(Boxes(), ElementsAre(QuestionBox(999, cancelProcedure)));
}

TEST_F(OptionsFormTest, CancelAndNoKeepsACleanFormClean) {
    EXPECT_EQ(ShowTo("options cancel:no\noptions ok"), std::nullopt);
    EXPECT_THAT(profileStore_.writes, IsEmpty());
}

TEST_F(OptionsFormTest, WhatWasAppliedStaysStoredWhenTheRunIsCancelled) {
    EXPECT_THAT(ShowTo("options click:cbExitConditions\noptions apply\n"
                       "options click:cbStartConditions\noptions cancel:yes"),
                EndedRun(RunEnding::endedByFailure, 999));
    EXPECT_EQ(Stored("ExitConditions"), ProfileValue(-1));
    EXPECT_EQ(Stored("StartConditions"), ProfileValue(0));
}

TEST_F(OptionsFormTest, AClickOnACheckBoxTurnsItOver) {
    Show([&] {
        EXPECT_TRUE(form_.Click("cbRemoveLineBreaks"));
        EXPECT_FALSE(IsChecked("cbRemoveLineBreaks"));
        EXPECT_TRUE(form_.Click("cbRemoveLineBreaks"));
        EXPECT_TRUE(IsChecked("cbRemoveLineBreaks"));
        EXPECT_TRUE(form_.IsDirty());
    });
}

TEST_F(OptionsFormTest, AClickOnAnOptionButtonSelectsItAndNotTheOther) {
    Show([&] {
        EXPECT_TRUE(form_.Click("rbARISDomainType"));
        EXPECT_TRUE(IsChecked("rbARISDomainType"));
        EXPECT_FALSE(IsChecked("rbARISAttrDataType"));
        EXPECT_TRUE(form_.Click("rbARISAttrDataType"));
        EXPECT_FALSE(IsChecked("rbARISDomainType"));
        EXPECT_TRUE(IsChecked("rbARISAttrDataType"));
    });
}

TEST_F(OptionsFormTest, AClickOnTheSelectedOptionButtonMakesTheFormDirty) {
    Show([&] {
        EXPECT_TRUE(form_.Click("rbARISAttrDataType"));
        EXPECT_TRUE(IsChecked("rbARISAttrDataType"));
        EXPECT_TRUE(form_.IsDirty());
    });
}

TEST_F(OptionsFormTest, AClickOnAnythingElseIsReported) {
    Show([&] {
        EXPECT_FALSE(form_.Click("cbNothing"));
        EXPECT_FALSE(form_.Click("efNumSuffix"));
        EXPECT_FALSE(form_.Click(""));
        EXPECT_FALSE(form_.IsDirty());
    });
}

TEST_F(OptionsFormTest, TheSuffixFieldTakesDigitsAndMakesTheFormDirty) {
    Show([&] {
        EXPECT_TRUE(form_.Type('4'));
        EXPECT_EQ(SuffixText(), "04");
        EXPECT_TRUE(form_.IsDirty());
    });
}

TEST_F(OptionsFormTest, TheSuffixFieldDropsEveryOtherKeyAndNothingChanges) {
    Show([&] {
        for (const char32_t key :
             {U'a', U'-', U'.', U' ', U'/', U':', U'\t', U'\r', U'\x7F', U'ä', U'\u0661', U'\0'})
            EXPECT_FALSE(form_.Type(key)) << static_cast<std::uint32_t>(key);
        EXPECT_EQ(SuffixText(), "0");
        EXPECT_FALSE(form_.IsDirty());
    });
}

TEST_F(OptionsFormTest, TheSuffixFieldKeepsBackspaceAndTheTenDigits) {
    for (char32_t key = 0; key < 0x200; ++key)
        EXPECT_EQ(form_.KeepsKey(key), key == 8 || (key >= 48 && key <= 57))
            << static_cast<std::uint32_t>(key);
}

TEST_F(OptionsFormTest, CanBeShownAgain) {
    EXPECT_EQ(ShowTo("options click:cbStartConditions\noptions close"), std::nullopt);
    Show([&] {
        EXPECT_FALSE(form_.IsClosed());
        EXPECT_FALSE(form_.IsDirty());
    });
}

TEST_F(OptionsFormTest, BackspaceTakesTheLastCharacter) {
    Show([&] {
        form_.Change("1ä");
        EXPECT_TRUE(form_.Type(backspace));
        EXPECT_EQ(SuffixText(), "1");
        EXPECT_TRUE(form_.Type(backspace));
        EXPECT_EQ(SuffixText(), "");
        form_.Apply();
        EXPECT_TRUE(form_.Type(backspace));
        EXPECT_EQ(SuffixText(), "");
        EXPECT_FALSE(form_.IsDirty());
    });
}

TEST_F(OptionsFormTest, TheSuffixFieldHoldsFourCharacters) {
    Show([&] {
        TypeAll("1239");
        EXPECT_EQ(SuffixText(), "0123");
    });
}

TEST_F(OptionsFormTest, AKeyThatAFullSuffixFieldCannotTakeChangesNothing) {
    Store("FirstSuffixNumber", 1234);
    Show([&] {
        EXPECT_TRUE(form_.Type('5'));
        EXPECT_EQ(SuffixText(), "1234");
        EXPECT_FALSE(form_.IsDirty());
    });
}

TEST_F(OptionsFormTest, APastedTextIsCutToFourCharactersAndNotFiltered) {
    Show([&] {
        form_.Change("äb 12");
        EXPECT_EQ(SuffixText(), "äb 1");
        EXPECT_TRUE(form_.IsDirty());
    });
}

}  // namespace
}  // namespace wxbrg
