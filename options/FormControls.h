#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/OptionsFormView.h"

namespace wxbrg {

/// One control of the options form, or one tab of its tab control.
struct FormControl {
    std::string_view name;
    FormControlKind kind;
    std::int32_t page;               ///< the tab it stands on, from 0; a tab's own number; or `noPage`
    std::string_view frame;          ///< the frame it stands in; empty: in none
    std::int32_t captionNumber;      ///< of the language library; 0: it has no caption
    std::string_view designCaption;  ///< what it says until the language library is asked
    std::int32_t helpNumber;         ///< page of the help; 0: none
    std::string_view option;         ///< value name of the stored option it stands for; empty: of none
    /// What it holds in a new form: -1 (checked) or 0 for check boxes and option buttons, the number itself
    /// for the text field. It counts for an option that is not stored.
    std::int32_t byDefault;
};

/// The form as a whole: its title, and the page of the help that its Help button shows.
inline constexpr std::int32_t formCaptionNumber = 50000;
inline constexpr std::int32_t formHelpNumber = 50000;
/// The numbers of captions and of pages of the help go on from there, without a gap.
inline constexpr std::int32_t lastCaptionNumber = 50029;
inline constexpr std::int32_t lastHelpNumber = 50021;

/// How many characters the text field takes.
inline constexpr std::size_t suffixLength = 4;

/// All controls: the tabs, what stands on each page from top to bottom, and the buttons from left to right.
/// That is also the order in which the keyboard goes through them.
// clang-format off
inline constexpr std::array formControls{
    FormControl{"SSTab1", FormControlKind::tab, 0, {}, 50001, "Naming conventions", 50002, {}, 0},
    FormControl{"SSTab1", FormControlKind::tab, 1, {}, 50002, "Layout",             50002, {}, 0},
    FormControl{"SSTab1", FormControlKind::tab, 2, {}, 50003, "Attributes",         50002, {}, 0},
    FormControl{"SSTab1", FormControlKind::tab, 3, {}, 50004, "Staff assignment",   50002, {}, 0},
    FormControl{"SSTab1", FormControlKind::tab, 4, {}, 50005, "Loops",              50002, {}, 0},
    FormControl{"SSTab1", FormControlKind::tab, 5, {}, 50006, "Control flow",       50002, {}, 0},
    FormControl{"SSTab1", FormControlKind::tab, 6, {}, 50007, "Data types",         50002, {}, 0},

    FormControl{"cbConvertARISNames", FormControlKind::checkBox, 0, {},
                50024, "Convert ARIS names into WPX compatible names", 50018, "ConvertNames", -1},
    FormControl{"cbRemoveLineBreaks", FormControlKind::checkBox, 0, {},
                50023, "Remove any line breaks from ARIS names", 50017, "RemoveLineBreaks", -1},
    FormControl{"stNumSuffix", FormControlKind::label, 0, {},
                50026, "Initial numeration suffix of generated data names (i.e.DATA_STRUCTURE_0)", 0, {}, 0},
    FormControl{"efNumSuffix", FormControlKind::textField, 0, {},
                0, {}, 50011, "FirstSuffixNumber", 0},

    FormControl{"cbDrawControlConWithBendPoints", FormControlKind::checkBox, 1, {},
                50022, "Insert bendpoints into WPX control connectors", 50016, "UseCtrlConBendPoints", -1},
    FormControl{"cbDrawDataConWithBendPoints", FormControlKind::checkBox, 1, {},
                50021, "Insert bendpoints into  WPX data connectors", 50015, "UseDataConBendPoints", -1},

    FormControl{"cbWriteDescription", FormControlKind::checkBox, 2, {},
                50020, "Include description attributes", 50014, "UseDescriptionAttr", -1},
    FormControl{"cbWriteDocumentation", FormControlKind::checkBox, 2, {},
                50019, "Include documentation attributes", 50013, "UseDocumentationAttr", -1},
    FormControl{"cbWriteOtherSettings", FormControlKind::checkBox, 2, {},
                50009, "Include other settings", 50003, "UseOtherSettings", 0},

    FormControl{"cbDynamicStaffAssignment", FormControlKind::checkBox, 3, {},
                50018, "Prefer dynamic staff assignment", 50012, "DynamicStaffAssignment", -1},

    FormControl{"cbControlFlowLoops", FormControlKind::checkBox, 4, {},
                50016, "Find incorrect control flow loops", 50009, "FindControlFlowLoops", -1},
    FormControl{"cbDataFlowLoops", FormControlKind::checkBox, 4, {},
                50017, "Find incorrect data flow loops", 50010, "FindDataFlowLoops", -1},

    FormControl{"stControlFlow", FormControlKind::label, 5, {},
                50025, "Prefer control flow conditions taken from ARIS user attributes", 0, {}, 0},
    FormControl{"cbStartConditions", FormControlKind::checkBox, 5, {},
                50015, "Start conditions", 50008, "StartConditions", 0},
    FormControl{"cbExitConditions", FormControlKind::checkBox, 5, {},
                50014, "Exit conditions", 50007, "ExitConditions", 0},
    FormControl{"cbTransitionConditions", FormControlKind::checkBox, 5, {},
                50013, "Transition conditions", 50006, "TransitionConditions", 0},

    FormControl{"frDataTypes", FormControlKind::frame, 6, {},
                50010, "Prefer data types taken from", 0, {}, 0},
    FormControl{"rbARISDomainType", FormControlKind::optionButton, 6, "frDataTypes",
                50011, "ARIS object 'ERM domain'", 50004, {}, 0},
    FormControl{"rbARISAttrDataType", FormControlKind::optionButton, 6, "frDataTypes",
                50012, "ARIS attribute 'data type'", 50005, "DataTypeFromAttribute", -1},

    FormControl{"cmdHelp",   FormControlKind::button, noPage, {}, 50008, "Help",   50001, {}, 0},
    FormControl{"cmdOK",     FormControlKind::button, noPage, {}, 50029, "OK",     50021, {}, 0},
    FormControl{"cmdCancel", FormControlKind::button, noPage, {}, 50028, "Cancel", 50020, {}, 0},
    FormControl{"cmdApply",  FormControlKind::button, noPage, {}, 50027, "Apply",  50019, {}, 0},
};
// clang-format on

/// The place in the table of the one control that `wanted` tells; the table's size where there is none.
template <class Predicate>
constexpr std::size_t FindControl(Predicate wanted) {
    return static_cast<std::size_t>(std::find_if(formControls.begin(), formControls.end(), wanted) -
                                    formControls.begin());
}

namespace form_controls {

constexpr bool NamesAreUnique() {
    for (const FormControl& one : formControls)
        for (const FormControl& other : formControls) {
            const bool tabs = one.kind == FormControlKind::tab && other.kind == FormControlKind::tab;
            if (&one != &other && one.name == other.name && !(tabs && one.page != other.page)) return false;
        }
    return true;
}

constexpr bool EveryCaptionNumberStandsOnce() {
    for (std::int32_t number = formCaptionNumber + 1; number <= lastCaptionNumber; ++number)
        if (std::count_if(formControls.begin(), formControls.end(), [number](const FormControl& control) {
                return control.captionNumber == number;
            }) != 1)
            return false;
    return std::all_of(formControls.begin(), formControls.end(), [](const FormControl& control) {
        return (control.captionNumber == 0) == (control.kind == FormControlKind::textField) &&
               control.captionNumber <= lastCaptionNumber;
    });
}

/// The tabs share the number of their tab control.
constexpr bool EveryHelpNumberBelongsToOneName() {
    for (std::int32_t number = formHelpNumber + 1; number <= lastHelpNumber; ++number) {
        const std::size_t first = FindControl([number](const FormControl& control) {
            return control.helpNumber == number;
        });
        if (first == formControls.size()) return false;
        for (const FormControl& control : formControls)
            if (control.helpNumber == number && control.name != formControls[first].name) return false;
    }
    return std::all_of(formControls.begin(), formControls.end(), [](const FormControl& control) {
        const bool silent = control.kind == FormControlKind::label || control.kind == FormControlKind::frame;
        return (control.helpNumber == 0) == silent && control.helpNumber <= lastHelpNumber;
    });
}

static_assert(NamesAreUnique());
static_assert(EveryCaptionNumberStandsOnce());
static_assert(EveryHelpNumberBelongsToOneName());

}  // namespace form_controls

}  // namespace wxbrg
