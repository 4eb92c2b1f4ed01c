// How stored options become controls and globals, and how they are stored.

#include <gmock/gmock.h>

#include <array>
#include <string>
#include <vector>

#include "tests/options/OptionsFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// An option that is True or False: its stored value, the control that stands for True and its global.
struct FlagOption {
    std::string_view valueName;
    std::string_view control;
    const bool* global;
    bool byDefault;
};

const std::array flagOptions{
    FlagOption{"ConvertNames", "cbConvertARISNames", &gBlock.gOptConvertNames, true},
    FlagOption{"RemoveLineBreaks", "cbRemoveLineBreaks", &gBlock.gOptRemoveLineBreaks, true},
    FlagOption{"UseDataConBendPoints", "cbDrawDataConWithBendPoints", &gBlock.gOptUseDataConBendPoints, true},
    FlagOption{"UseCtrlConBendPoints", "cbDrawControlConWithBendPoints", &gBlock.gOptUseCtrlConBendPoints,
               true},
    FlagOption{"UseDescriptionAttr", "cbWriteDescription", &gBlock.gOptUseDescriptionAttr, true},
    FlagOption{"UseDocumentationAttr", "cbWriteDocumentation", &gBlock.gOptUseDocumentationAttr, true},
    FlagOption{"UseOtherSettings", "cbWriteOtherSettings", &gBlock.gOptUseOtherSettings, false},
    FlagOption{"DynamicStaffAssignment", "cbDynamicStaffAssignment", &gBlock.gOptDynamicStaffAssignment,
               true},
    FlagOption{"FindDataFlowLoops", "cbDataFlowLoops", &gBlock.gOptFindDataFlowLoops, true},
    FlagOption{"FindControlFlowLoops", "cbControlFlowLoops", &gBlock.gOptFindControlFlowLoops, true},
    FlagOption{"StartConditions", "cbStartConditions", &gBlock.gOptStartConditions, false},
    FlagOption{"ExitConditions", "cbExitConditions", &gBlock.gOptExitConditions, false},
    FlagOption{"TransitionConditions", "cbTransitionConditions", &gBlock.gOptTransitionConditions, false},
    FlagOption{"DataTypeFromAttribute", "rbARISAttrDataType", &gBlock.gOptDataTypeFromAttribute, true},
};

void PrintTo(const FlagOption& option, std::ostream* stream) {
    *stream << option.valueName;
}

class FlagOptionTest : public OptionsFixture, public testing::WithParamInterface<FlagOption> {
  protected:
    /// Loads the form, and checks control and global.
    void ExpectLoaded(bool expected) {
        EXPECT_EQ(Show(), std::nullopt);
        EXPECT_EQ(IsChecked(GetParam().control), expected);
        EXPECT_EQ(*GetParam().global, expected);
        EXPECT_THAT(profileStore_.writes, IsEmpty());
    }
    /// Changes the option on the form to `value` and applies it; returns what was stored.
    ProfileValue Save(bool value) {
        Show([&] {
            if (IsChecked(GetParam().control) != value)
                form_.Click(GetParam().control == "rbARISAttrDataType" ? "rbARISDomainType"
                                                                       : GetParam().control);
            form_.SetDirty(true);
            form_.Apply();
        });
        return Stored(GetParam().valueName);
    }
};

INSTANTIATE_TEST_SUITE_P(, FlagOptionTest, testing::ValuesIn(flagOptions));

TEST_P(FlagOptionTest, HasItsDefaultWhereNothingIsStored) {
    ExpectLoaded(GetParam().byDefault);
}

TEST_P(FlagOptionTest, IsFalseForAStored0) {
    Store(GetParam().valueName, 0);
    ExpectLoaded(false);
}

TEST_P(FlagOptionTest, IsTrueForAStoredMinus1) {
    Store(GetParam().valueName, -1);
    ExpectLoaded(true);
}

TEST_P(FlagOptionTest, IsTrueForAnyOtherNumber) {
    Store(GetParam().valueName, 2);
    ExpectLoaded(true);
}

TEST_P(FlagOptionTest, IsTrueForAnyText) {
    Store(GetParam().valueName, std::string("0"));
    ExpectLoaded(true);
}

TEST_P(FlagOptionTest, IsTrueForAnEmptyTextAlsoOverTheMachines0) {
    Store(GetParam().valueName, std::string());
    StoreForMachine(GetParam().valueName, 0);
    ExpectLoaded(true);
}

TEST_P(FlagOptionTest, TakesTheMachinesValueWhereTheUserHasNone) {
    StoreForMachine(GetParam().valueName, GetParam().byDefault ? 0 : -1);
    ExpectLoaded(!GetParam().byDefault);
}

TEST_P(FlagOptionTest, TakesTheUsersValueOverTheMachines) {
    StoreForMachine(GetParam().valueName, GetParam().byDefault ? 0 : -1);
    Store(GetParam().valueName, GetParam().byDefault ? -1 : 0);
    ExpectLoaded(GetParam().byDefault);
}

TEST_P(FlagOptionTest, StoresTrueAsMinus1) {
    EXPECT_EQ(Save(true), ProfileValue(-1));
    EXPECT_TRUE(*GetParam().global);
}

TEST_P(FlagOptionTest, StoresFalseAs0) {
    EXPECT_EQ(Save(false), ProfileValue(0));
    EXPECT_FALSE(*GetParam().global);
}

class SuffixOptionTest : public OptionsFixture {
  protected:
    void ExpectLoaded(const ProfileValue& stored, std::int32_t number, const std::string& text) {
        Store("FirstSuffixNumber", stored);
        EXPECT_EQ(Show(), std::nullopt);
        EXPECT_EQ(gBlock.gOptFirstSuffixNumber, number);
        EXPECT_EQ(SuffixText(), text);
        EXPECT_FALSE(form_.bDirty);
    }
    void ExpectFailure(const std::optional<RunEnd>& end, int number, std::string_view description) {
        EXPECT_THAT(end, EndedRun(RunEnding::unknownFailure, number));
        EXPECT_THAT(Boxes(), ElementsAre(UnknownFailureBox(number, "clsWPX_Export.Run", description)));
    }
    /// Pastes a text into the field and applies it.
    std::optional<RunEnd> ApplyPasted(std::string_view text) {
        return Show([&] {
            form_.Change(text);
            form_.Apply();
        });
    }
};

TEST_F(SuffixOptionTest, Is0WhereNothingIsStored) {
    EXPECT_EQ(Show(), std::nullopt);
    EXPECT_EQ(gBlock.gOptFirstSuffixNumber, 0);
    EXPECT_EQ(SuffixText(), "0");
    EXPECT_THAT(profileStore_.writes, IsEmpty());
}

TEST_F(SuffixOptionTest, TakesAStoredNumber) {
    ExpectLoaded(42, 42, "42");
    ExpectLoaded(0, 0, "0");
}

TEST_F(SuffixOptionTest, ANegativeNumberShowsAndYields0) {
    ExpectLoaded(-5, 0, "0");
}

TEST_F(SuffixOptionTest, ATextThatIsANumberCountsAsItsNumber) {
    ExpectLoaded(std::string(" 7 "), 7, "7");
    ExpectLoaded(std::string("7.5"), 8, "8");
    ExpectLoaded(std::string("6.5"), 6, "6");
    ExpectLoaded(std::string("-3"), 0, "0");
}

TEST_F(SuffixOptionTest, ATextIsReadWithTheUsersDecimalSeparator) {
    userLocale_.decimalSeparator = U',';
    ExpectLoaded(std::string("7,5"), 8, "8");
}

TEST_F(SuffixOptionTest, ANumberThatIsTooLongForTheFieldStillCounts) {
    ExpectLoaded(12345, 12345, "1234");
}

TEST_F(SuffixOptionTest, AStoredTextThatIsNoNumberEndsTheRun) {
    Store("FirstSuffixNumber", std::string("seven"));
    ExpectFailure(Show(), 13, "type mismatch");
}

TEST_F(SuffixOptionTest, AnEmptyStoredTextEndsTheRun) {
    Store("FirstSuffixNumber", std::string());
    StoreForMachine("FirstSuffixNumber", 5);
    ExpectFailure(Show(), 13, "type mismatch");
}

TEST_F(SuffixOptionTest, AStoredTextBeyond32BitsEndsTheRun) {
    Store("FirstSuffixNumber", std::string("2147483648"));
    ExpectFailure(Show(), 6, "overflow");
}

TEST_F(SuffixOptionTest, TakesTheMachinesNumberWhereTheUserHasNone) {
    StoreForMachine("FirstSuffixNumber", 9);
    EXPECT_EQ(Show(), std::nullopt);
    EXPECT_EQ(gBlock.gOptFirstSuffixNumber, 9);
}

TEST_F(SuffixOptionTest, StoresTheNumberOfItsText) {
    EXPECT_EQ(ApplyPasted("0042"), std::nullopt);
    EXPECT_EQ(Stored("FirstSuffixNumber"), ProfileValue(42));
    EXPECT_EQ(gBlock.gOptFirstSuffixNumber, 42);
    EXPECT_EQ(SuffixText(), "0042");
}

TEST_F(SuffixOptionTest, StoresAnEmptyTextAs0) {
    gBlock.gOptFirstSuffixNumber = 7;
    EXPECT_EQ(ApplyPasted(""), std::nullopt);
    EXPECT_EQ(Stored("FirstSuffixNumber"), ProfileValue(0));
    EXPECT_EQ(gBlock.gOptFirstSuffixNumber, 0);
}

TEST_F(SuffixOptionTest, StoresAPastedNegativeNumberAsItIs) {
    EXPECT_EQ(ApplyPasted("-5"), std::nullopt);
    EXPECT_EQ(Stored("FirstSuffixNumber"), ProfileValue(-5));
    EXPECT_EQ(gBlock.gOptFirstSuffixNumber, -5);
}

TEST_F(SuffixOptionTest, StoresAPastedFractionRounded) {
    EXPECT_EQ(ApplyPasted("2.5"), std::nullopt);
    EXPECT_EQ(Stored("FirstSuffixNumber"), ProfileValue(2));
}

TEST_F(SuffixOptionTest, APastedTextThatIsNoNumberEndsTheRunAndWhatWasStoredBeforeItStays) {
    ExpectFailure(ApplyPasted("abc"), 13, "type mismatch");
    EXPECT_THAT(profileStore_.writes,
                ElementsAre(ProfileWrite{std::string(optionsKey), "ConvertNames", -1},
                            ProfileWrite{std::string(optionsKey), "RemoveLineBreaks", -1}));
}

TEST_F(SuffixOptionTest, APastedNumberBeyond32BitsEndsTheRun) {
    ExpectFailure(ApplyPasted("9e99"), 6, "overflow");
}

class StoredOptionsTest : public OptionsFixture {};

TEST_F(StoredOptionsTest, EveryOptionIsStoredInItsOrderAsANumberOfTheUser) {
    Show([&] {
        form_.Click("cbWriteOtherSettings");
        form_.Click("rbARISDomainType");
        form_.Type('7');
        form_.Apply();
    });
    const std::string path(optionsKey);
    EXPECT_THAT(
        profileStore_.writes,
        ElementsAre(
            ProfileWrite{path, "ConvertNames", -1}, ProfileWrite{path, "RemoveLineBreaks", -1},
            ProfileWrite{path, "FirstSuffixNumber", 7}, ProfileWrite{path, "UseCtrlConBendPoints", -1},
            ProfileWrite{path, "UseDataConBendPoints", -1}, ProfileWrite{path, "UseDescriptionAttr", -1},
            ProfileWrite{path, "UseDocumentationAttr", -1}, ProfileWrite{path, "UseOtherSettings", -1},
            ProfileWrite{path, "DynamicStaffAssignment", -1}, ProfileWrite{path, "FindDataFlowLoops", -1},
            ProfileWrite{path, "FindControlFlowLoops", -1}, ProfileWrite{path, "StartConditions", 0},
            ProfileWrite{path, "ExitConditions", 0}, ProfileWrite{path, "TransitionConditions", 0},
            ProfileWrite{path, "DataTypeFromAttribute", 0}));
}

TEST_F(StoredOptionsTest, AMachinesValueCountsUntilTheFirstSaveStoresOneOfTheUser) {
    StoreForMachine("UseOtherSettings", -1);
    Show([&] {
        form_.Click("cbConvertARISNames");
        form_.Apply();
    });
    EXPECT_EQ(Stored("UseOtherSettings"), ProfileValue(-1));
    StoreForMachine("UseOtherSettings", 0);
    frmExportOptions next;
    next.LoadOptions();
    EXPECT_TRUE(gBlock.gOptUseOtherSettings);
}

TEST_F(StoredOptionsTest, TheGlobalsFollowTheControlsAtASaveAndNotBefore) {
    Show([&] {
        form_.Click("cbConvertARISNames");
        form_.Click("rbARISDomainType");
        form_.Change("31");
        EXPECT_TRUE(gBlock.gOptConvertNames);
        EXPECT_TRUE(gBlock.gOptDataTypeFromAttribute);
        EXPECT_EQ(gBlock.gOptFirstSuffixNumber, 0);
        form_.Apply();
        EXPECT_FALSE(gBlock.gOptConvertNames);
        EXPECT_FALSE(gBlock.gOptDataTypeFromAttribute);
        EXPECT_EQ(gBlock.gOptFirstSuffixNumber, 31);
    });
}

TEST_F(StoredOptionsTest, TheGlobalsFollowASaveThatTheStoreRefuses) {
    profileStore_.refuses = true;
    EXPECT_EQ(Show([&] {
                  form_.Click("cbConvertARISNames");
                  form_.Apply();
              }),
              std::nullopt);
    EXPECT_FALSE(gBlock.gOptConvertNames);
    EXPECT_THAT(profileStore_.writes, SizeIs(15));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(StoredOptionsTest, WhatIsSavedIsLoadedAgain) {
    Show([&] {
        for (const FlagOption& option : flagOptions)
            form_.Click(option.control == "rbARISAttrDataType" ? "rbARISDomainType" : option.control);
        form_.Change("123");
        form_.Apply();
    });
    RenewGlobals();
    gBlock.gPlatform = &platform_;
    frmExportOptions next;
    next.LoadOptions();
    for (const FlagOption& option : flagOptions)
        EXPECT_EQ(*option.global, !option.byDefault) << option.valueName;
    EXPECT_EQ(gBlock.gOptFirstSuffixNumber, 123);
}

}  // namespace
}  // namespace wxbrg
