// The controls of the options form: what they are, what they say and which page of the help is theirs.

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <map>

#include "tests/options/OptionsFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Kind = FormControlKind;

/// A control as it is to be.
struct Expected {
    std::string_view name;
    Kind kind;
    std::int32_t page;
    std::int32_t caption;
    std::string_view atDesign;
    std::int32_t help;
};

// clang-format off
constexpr std::array expectedControls{
    Expected{"SSTab1", Kind::tab, 0, 50001, "Naming conventions", 50002},
    Expected{"SSTab1", Kind::tab, 1, 50002, "Layout", 50002},
    Expected{"SSTab1", Kind::tab, 2, 50003, "Attributes", 50002},
    Expected{"SSTab1", Kind::tab, 3, 50004, "Staff assignment", 50002},
    Expected{"SSTab1", Kind::tab, 4, 50005, "Loops", 50002},
    Expected{"SSTab1", Kind::tab, 5, 50006, "Control flow", 50002},
    Expected{"SSTab1", Kind::tab, 6, 50007, "Data types", 50002},
    Expected{"cmdHelp", Kind::button, noPage, 50008, "Help", 50001},
    Expected{"cbWriteOtherSettings", Kind::checkBox, 2, 50009, "Include other settings", 50003},
    Expected{"frDataTypes", Kind::frame, 6, 50010, "Prefer data types taken from", 0},
    Expected{"rbARISDomainType", Kind::optionButton, 6, 50011, "ARIS object 'ERM domain'", 50004},
    Expected{"rbARISAttrDataType", Kind::optionButton, 6, 50012, "ARIS attribute 'data type'", 50005},
    Expected{"cbTransitionConditions", Kind::checkBox, 5, 50013, "Transition conditions", 50006},
    Expected{"cbExitConditions", Kind::checkBox, 5, 50014, "Exit conditions", 50007},
    Expected{"cbStartConditions", Kind::checkBox, 5, 50015, "Start conditions", 50008},
    Expected{"cbControlFlowLoops", Kind::checkBox, 4, 50016, "Find incorrect control flow loops", 50009},
    Expected{"cbDataFlowLoops", Kind::checkBox, 4, 50017, "Find incorrect data flow loops", 50010},
    Expected{"efNumSuffix", Kind::textField, 0, 0, "", 50011},
    Expected{"cbDynamicStaffAssignment", Kind::checkBox, 3, 50018, "Prefer dynamic staff assignment", 50012},
    Expected{"cbWriteDocumentation", Kind::checkBox, 2, 50019, "Include documentation attributes", 50013},
    Expected{"cbWriteDescription", Kind::checkBox, 2, 50020, "Include description attributes", 50014},
    Expected{"cbDrawDataConWithBendPoints", Kind::checkBox, 1, 50021,
             "Insert bendpoints into  WPX data connectors", 50015},
    Expected{"cbDrawControlConWithBendPoints", Kind::checkBox, 1, 50022,
             "Insert bendpoints into WPX control connectors", 50016},
    Expected{"cbRemoveLineBreaks", Kind::checkBox, 0, 50023, "Remove any line breaks from ARIS names", 50017},
    Expected{"cbConvertARISNames", Kind::checkBox, 0, 50024,
             "Convert ARIS names into WPX compatible names", 50018},
    Expected{"stControlFlow", Kind::label, 5, 50025,
             "Prefer control flow conditions taken from ARIS user attributes", 0},
    Expected{"stNumSuffix", Kind::label, 0, 50026,
             "Initial numeration suffix of generated data names (i.e.DATA_STRUCTURE_0)", 0},
    Expected{"cmdApply", Kind::button, noPage, 50027, "Apply", 50019},
    Expected{"cmdCancel", Kind::button, noPage, 50028, "Cancel", 50020},
    Expected{"cmdOK", Kind::button, noPage, 50029, "OK", 50021},
};
// clang-format on

/// Remembers which numbers it is asked for.
class RecordingLibrary : public LanguageLibrary {
  public:
    explicit RecordingLibrary(std::vector<std::uint32_t>& asked) : asked_(asked) {}
    std::string LoadString(std::uint32_t number, std::size_t) const override {
        asked_.push_back(number);
        return "text";
    }

  private:
    std::vector<std::uint32_t>& asked_;
};

class FormTableTest : public OptionsFixture {
  protected:
    FormControlRow RowOf(const Expected& expected) const {
        for (FormControlRow& row : form_.Rows())
            if (row.name == expected.name && row.page == expected.page) return row;
        ADD_FAILURE() << "no row " << expected.name << " on page " << expected.page;
        return {.name = "", .kind = Kind::label};
    }
    std::vector<std::string> NamesOn(std::int32_t page) const {
        std::vector<std::string> names;
        for (const FormControlRow& row : form_.Rows())
            if (row.page == page && row.kind != Kind::tab) names.emplace_back(row.name);
        return names;
    }
};

TEST_F(FormTableTest, HasEveryControlOnItsPageWithItsKind) {
    EXPECT_EQ(form_.Rows().size(), expectedControls.size());
    for (const Expected& expected : expectedControls)
        EXPECT_EQ(RowOf(expected).kind, expected.kind) << expected.name;
}

TEST_F(FormTableTest, SaysWhatItWasDesignedWithUntilItIsActivated) {
    EXPECT_EQ(form_.Caption(), "");
    for (const Expected& expected : expectedControls) {
        EXPECT_EQ(RowOf(expected).caption, expected.atDesign) << expected.name;
        EXPECT_EQ(RowOf(expected).helpNumber, 0) << expected.name;
    }
}

TEST_F(FormTableTest, TakesCaptionsAndHelpByTheirNumbersWhenItIsActivated) {
    form_.Activate();
    EXPECT_EQ(form_.Caption(), TestText(50000));
    EXPECT_EQ(form_.HelpContextID, 50000);
    for (const Expected& expected : expectedControls) {
        const std::string caption = expected.caption == 0 ? "" : TestText(expected.caption);
        EXPECT_EQ(RowOf(expected).caption, caption) << expected.name;
        EXPECT_EQ(RowOf(expected).helpNumber, expected.help) << expected.name;
    }
}

TEST_F(FormTableTest, AsksForTheCaptionsInTheOrderOfTheirNumbersAtEachActivation) {
    std::vector<std::uint32_t> asked;
    gBlock.gResourceLibrary = std::make_unique<RecordingLibrary>(asked);
    form_.Activate();
    form_.Activate();
    ASSERT_EQ(asked.size(), 60U);
    for (std::uint32_t i = 0; i < asked.size(); ++i) EXPECT_EQ(asked[i], 50000 + i % 30);
}

TEST_F(FormTableTest, ACaptionThatTheLibraryLacksIsItsErrorText) {
    languageLibraries_.Put("wxbrgENU.dll", {{50027, "Apply"}});
    gBlock.gResourceLibrary = languageLibraries_.Load("wxbrgENU.dll");
    form_.Activate();
    EXPECT_EQ(form_.Caption(), "Error :\r\nThe Resource ID '50000' was not found");
    EXPECT_EQ(RowOf({"cmdOK", Kind::button, noPage, 0, "", 0}).caption,
              "Error :\r\nThe Resource ID '50029' was not found");
    EXPECT_EQ(RowOf({"cmdApply", Kind::button, noPage, 0, "", 0}).caption, "Apply");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(FormTableTest, StandsInTheOrderOfThePagesFromTopToBottom) {
    EXPECT_THAT(NamesOn(0),
                ElementsAre("cbConvertARISNames", "cbRemoveLineBreaks", "stNumSuffix", "efNumSuffix"));
    EXPECT_THAT(NamesOn(1), ElementsAre("cbDrawControlConWithBendPoints", "cbDrawDataConWithBendPoints"));
    EXPECT_THAT(NamesOn(2),
                ElementsAre("cbWriteDescription", "cbWriteDocumentation", "cbWriteOtherSettings"));
    EXPECT_THAT(NamesOn(3), ElementsAre("cbDynamicStaffAssignment"));
    EXPECT_THAT(NamesOn(4), ElementsAre("cbControlFlowLoops", "cbDataFlowLoops"));
    EXPECT_THAT(NamesOn(5), ElementsAre("stControlFlow", "cbStartConditions", "cbExitConditions",
                                        "cbTransitionConditions"));
    EXPECT_THAT(NamesOn(6), ElementsAre("frDataTypes", "rbARISDomainType", "rbARISAttrDataType"));
    EXPECT_THAT(NamesOn(noPage), ElementsAre("cmdHelp", "cmdOK", "cmdCancel", "cmdApply"));
}

TEST_F(FormTableTest, TheOptionButtonsStandInTheirFrameAndNothingElseDoes) {
    for (const FormControlRow& row : form_.Rows())
        EXPECT_EQ(row.frame, row.kind == Kind::optionButton ? "frDataTypes" : "") << row.name;
}

TEST_F(FormTableTest, TheTextFieldTakesFourCharactersAndBeginsWith0) {
    const FormControlRow field = RowOf({"efNumSuffix", Kind::textField, 0, 0, "", 0});
    EXPECT_EQ(field.maximumLength, 4U);
    EXPECT_EQ(field.text, "0");
}

TEST_F(FormTableTest, ApplyAloneIsDisabledAndOnlyWhileTheFormIsClean) {
    Show([&] {
        for (const FormControlRow& row : form_.Rows())
            EXPECT_EQ(row.enabled, row.name != "cmdApply") << row.name;
        form_.Click("cbConvertARISNames");
        for (const FormControlRow& row : form_.Rows()) EXPECT_TRUE(row.enabled) << row.name;
    });
}

TEST_F(FormTableTest, TheHelpButtonShowsThePageOfTheForm) {
    gBlock.gHelpFile = "wxbrgDEU.hlp";
    form_.Activate();
    form_.Help();
    EXPECT_THAT(helpViewer_.shown, ElementsAre("wxbrgDEU.hlp#50000"));
}

TEST_F(FormTableTest, ContextHelpShowsThePageOfItsControlAndNothingForOneWithout) {
    gBlock.gHelpFile = "wxbrgENU.hlp";
    form_.Activate();
    for (const Expected& expected : expectedControls) {
        helpViewer_.shown.clear();
        form_.HelpOn(expected.name);
        if (expected.help == 0)
            EXPECT_THAT(helpViewer_.shown, IsEmpty()) << expected.name;
        else
            EXPECT_THAT(helpViewer_.shown, ElementsAre("wxbrgENU.hlp#" + std::to_string(expected.help)));
    }
    helpViewer_.shown.clear();
    form_.HelpOn("cmdNothing");
    EXPECT_THAT(helpViewer_.shown, IsEmpty());
}

TEST_F(FormTableTest, TheActiveFormIsTheOneThatIsShown) {
    EXPECT_FALSE(gBlock.gActiveForm);
    Show([&] {
        form_.Activate();
        EXPECT_EQ(gBlock.gActiveForm.Get(), &form_);
    });
    EXPECT_FALSE(gBlock.gActiveForm);
}

class FormFontTest : public OptionsFixture {
  protected:
    /// The form's font at an activation under a locale.
    FormFont FontUnder(std::uint32_t locale) {
        userLocale_.number = locale;
        form_.Activate();
        return form_.Font();
    }
};

TEST_F(FormFontTest, TheCharacterSetIsThatOfTheUsersLocale) {
    const std::map<std::uint32_t, std::int32_t> sets{{2052, 134}, {1042, 129}, {1041, 128}, {1028, 136},
                                                     {1033, 1},   {1031, 1},   {0, 1}};
    for (const auto& [locale, characterSet] : sets) EXPECT_EQ(FontUnder(locale).characterSet, characterSet);
}

TEST_F(FormFontTest, AllElseIsAsInThePlatformsFont) {
    optionsFormView_.font = {.characterSet = 7,
                             .bold = true,
                             .italic = true,
                             .name = "Some font",
                             .size = 11.5,
                             .strikethrough = true,
                             .underline = true};
    const FormFont font = FontUnder(1041);
    EXPECT_EQ(font.characterSet, 128);
    EXPECT_TRUE(font.bold && font.italic && font.strikethrough && font.underline);
    EXPECT_EQ(font.name, "Some font");
    EXPECT_EQ(font.size, 11.5);
}

TEST_F(FormFontTest, ThePlatformIsAskedForItsFontOnce) {
    FontUnder(1033);
    optionsFormView_.font.name = "Another font";
    EXPECT_EQ(FontUnder(1033).name, "");
    EXPECT_EQ(optionsFormView_.timesAskedForFont, 1);
}

}  // namespace
}  // namespace wxbrg
