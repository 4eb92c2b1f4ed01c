#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <tuple>

#include "options/OptionTable.h"
#include "platform/OptionsFormView.h"

namespace wxbrg {

/// One control of the options form, or one tab of its tab control.
struct FormControl {
    std::string_view name;
    FormControlKind kind;
    std::int32_t page;               ///< the tab it is on, from 0; a tab's own number; or `noPage`
    std::int32_t place;              ///< from 1: on its page from the top, among the buttons from the left
    std::string_view frame;          ///< the frame it is in; empty: in none
    std::int32_t captionNumber;      ///< of the language library; 0: it has no caption
    std::string_view designCaption;  ///< what it says until the language library is asked
    std::int32_t helpNumber;         ///< page of the help; 0: none
    std::string_view option = {};    ///< value name of the stored option it stands for; empty: of none
    /// What it holds in a new form: -1 (checked) or 0 for check boxes and option buttons, the number itself
    /// for the text field. It counts for an option that is not stored.
    std::int32_t byDefault = 0;
};

/// The form as a whole: its title, and the page of the help that its Help button shows. The numbers of
/// captions and of pages of the help go on from there, without a gap.
inline constexpr std::int32_t formCaptionNumber = 50000;
inline constexpr std::int32_t formHelpNumber = 50000;

/// How many characters the text field takes.
inline constexpr std::size_t suffixLength = 4;

/// What is on the form beside the controls of the options.
// clang-format off
inline constexpr std::array formFurniture{
    FormControl{"SSTab1", FormControlKind::tab, 0, 0, {}, 50001, "Naming conventions", 50002},
    FormControl{"SSTab1", FormControlKind::tab, 1, 0, {}, 50002, "Layout",             50002},
    FormControl{"SSTab1", FormControlKind::tab, 2, 0, {}, 50003, "Attributes",         50002},
    FormControl{"SSTab1", FormControlKind::tab, 3, 0, {}, 50004, "Staff assignment",   50002},
    FormControl{"SSTab1", FormControlKind::tab, 4, 0, {}, 50005, "Loops",              50002},
    FormControl{"SSTab1", FormControlKind::tab, 5, 0, {}, 50006, "Control flow",       50002},
    FormControl{"SSTab1", FormControlKind::tab, 6, 0, {}, 50007, "Data types",         50002},

    FormControl{"stNumSuffix", FormControlKind::label, 0, 3, {},
                50026, "Initial numeration suffix of generated data names (i.e.DATA_STRUCTURE_0)", 0},
    FormControl{"stControlFlow", FormControlKind::label, 5, 1, {},
                50025, "Prefer control flow conditions taken from ARIS user attributes", 0},
    FormControl{"frDataTypes", FormControlKind::frame, 6, 1, {},
                50010, "Prefer data types taken from", 0},
    FormControl{"rbARISDomainType", FormControlKind::optionButton, 6, 2, "frDataTypes",
                50011, "ARIS object 'ERM domain'", 50004},

    FormControl{FormButton::help,   FormControlKind::button, noPage, 1, {}, 50008, "Help",   50001},
    FormControl{FormButton::ok,     FormControlKind::button, noPage, 2, {}, 50029, "OK",     50021},
    FormControl{FormButton::cancel, FormControlKind::button, noPage, 3, {}, 50028, "Cancel", 50020},
    FormControl{FormButton::apply,  FormControlKind::button, noPage, 4, {}, 50027, "Apply",  50019},
};
// clang-format on

namespace form_controls {

constexpr FormControl ControlOf(const ExportOption& option) {
    const OptionControl& control = option.control;
    return {control.name,     control.kind,          control.page,          control.place,
            control.frame,    control.captionNumber, control.designCaption, control.helpNumber,
            option.valueName, option.byDefault};
}

/// Tabs come first, then the pages, then the buttons below.
constexpr auto OrderOf(const FormControl& control) {
    const int part = control.kind == FormControlKind::tab ? 0 : control.page == noPage ? 2 : 1;
    return std::tuple(part, control.page, control.place);
}

constexpr auto All() {
    std::array<FormControl, formFurniture.size() + exportOptions.size()> controls{};
    auto* const next = std::copy(formFurniture.begin(), formFurniture.end(), controls.begin());
    std::transform(exportOptions.begin(), exportOptions.end(), next, ControlOf);
    std::sort(controls.begin(), controls.end(), [](const FormControl& one, const FormControl& other) {
        return OrderOf(one) < OrderOf(other);
    });
    return controls;
}

}  // namespace form_controls

/// All controls: the tabs, what is on each page from top to bottom, and the buttons from left to right.
/// That is also the order in which the keyboard goes through them.
inline constexpr auto formControls = form_controls::All();

/// The last ones of captions and of pages of the help.
inline constexpr std::int32_t lastCaptionNumber =
    std::max_element(formControls.begin(), formControls.end(), [](const auto& one, const auto& other) {
        return one.captionNumber < other.captionNumber;
    }) -> captionNumber;
inline constexpr std::int32_t lastHelpNumber =
    std::max_element(formControls.begin(), formControls.end(), [](const auto& one, const auto& other) {
        return one.helpNumber < other.helpNumber;
    }) -> helpNumber;

/// The place in the table of the one control that `wanted` selects; the table's size where there is none.
template <class Predicate>
constexpr std::size_t FindControl(Predicate wanted) {
    return static_cast<std::size_t>(std::find_if(formControls.begin(), formControls.end(), wanted) -
                                    formControls.begin());
}

/// The control of an option.
constexpr const FormControl& ControlOf(const ExportOption& option) {
    return formControls.at(FindControl([&option](const FormControl& control) {
        return control.option == option.valueName;
    }));
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

constexpr bool PlacesAreUnique() {
    return std::adjacent_find(formControls.begin(), formControls.end(),
                              [](const FormControl& one, const FormControl& other) {
                                  return OrderOf(one) == OrderOf(other);
                              }) == formControls.end();
}

constexpr bool EveryCaptionNumberStandsOnce() {
    for (std::int32_t number = formCaptionNumber + 1; number <= lastCaptionNumber; ++number)
        if (std::count_if(formControls.begin(), formControls.end(), [number](const FormControl& control) {
                return control.captionNumber == number;
            }) != 1)
            return false;
    return std::all_of(formControls.begin(), formControls.end(), [](const FormControl& control) {
        return (control.captionNumber == 0) == (control.kind == FormControlKind::textField);
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
        return (control.helpNumber == 0) == silent;
    });
}

static_assert(NamesAreUnique());
static_assert(PlacesAreUnique());
static_assert(EveryCaptionNumberStandsOnce());
static_assert(EveryHelpNumberBelongsToOneName());

}  // namespace form_controls

}  // namespace wxbrg
