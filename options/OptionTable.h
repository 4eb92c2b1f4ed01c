#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "options/FormControls.h"
#include "run/modGlobals.h"

namespace wxbrg {

/// The program's key in the profile store.
inline constexpr std::string_view programKey =
    R"(Software\Quenby\Tarnlight Workflow Aris Bridge\CurrentVersion\)";
/// The key under which the ARIS tool integration keeps what it provides; only ever read.
inline constexpr std::string_view toolIntegrationKey =
    R"(Software\IDS Scheer\Aris\5.0\ToolIntegration\quenby)";

/// One export option: its stored value, its control in the options form and its global. A check box is stored
/// as the number -1 or 0, a pair of option buttons as -1 where the option's own button is selected and 0
/// where the other one is, the text field as its number.
struct ExportOption {
    std::string_view valueName;
    const FormControl* control;
    bool GlobalBlock::*flag;    ///< null for the text field's number
    std::int32_t savePosition;  ///< from 1: options are saved in another order than they are loaded

    /// -1 or 0 for a flag, the number itself for a number.
    constexpr std::int32_t ByDefault() const { return control->byDefault; }
    constexpr bool IsNumber() const { return control->kind == FormControlKind::textField; }
};

/// An option by its value name, which the table of controls holds too.
constexpr ExportOption OptionOf(std::string_view valueName, bool GlobalBlock::*flag,
                                std::int32_t savePosition) {
    const std::size_t control = FindControl([valueName](const FormControl& candidate) {
        return candidate.option == valueName;
    });
    return {valueName, &formControls.at(control), flag, savePosition};
}

/// The options in the order of loading.
// clang-format off
inline constexpr std::array exportOptions{
    OptionOf("ConvertNames",           &GlobalBlock::gOptConvertNames,            1),
    OptionOf("RemoveLineBreaks",       &GlobalBlock::gOptRemoveLineBreaks,        2),
    OptionOf("FirstSuffixNumber",      nullptr,                                  3),
    OptionOf("UseDataConBendPoints",   &GlobalBlock::gOptUseDataConBendPoints,    5),
    OptionOf("UseCtrlConBendPoints",   &GlobalBlock::gOptUseCtrlConBendPoints,    4),
    OptionOf("UseDescriptionAttr",     &GlobalBlock::gOptUseDescriptionAttr,      6),
    OptionOf("UseDocumentationAttr",   &GlobalBlock::gOptUseDocumentationAttr,    7),
    OptionOf("UseOtherSettings",       &GlobalBlock::gOptUseOtherSettings,        8),
    OptionOf("DynamicStaffAssignment", &GlobalBlock::gOptDynamicStaffAssignment,  9),
    OptionOf("FindDataFlowLoops",      &GlobalBlock::gOptFindDataFlowLoops,      10),
    OptionOf("FindControlFlowLoops",   &GlobalBlock::gOptFindControlFlowLoops,   11),
    OptionOf("StartConditions",        &GlobalBlock::gOptStartConditions,        12),
    OptionOf("ExitConditions",         &GlobalBlock::gOptExitConditions,         13),
    OptionOf("TransitionConditions",   &GlobalBlock::gOptTransitionConditions,   14),
    OptionOf("DataTypeFromAttribute",  &GlobalBlock::gOptDataTypeFromAttribute,  15),
};
// clang-format on

/// Stored values that are no options of the form.
inline constexpr std::string_view languageValue = "Language";
inline constexpr std::string_view defaultLanguage = "ENU";
inline constexpr std::string_view repositoryPathValue = "RepositoryPath";

static_assert(std::all_of(exportOptions.begin(), exportOptions.end(), [](const ExportOption& option) {
    const auto at = [&](auto field) {
        return std::count_if(exportOptions.begin(), exportOptions.end(), [&](const ExportOption& other) {
            return other.*field == option.*field;
        });
    };
    const bool unique = at(&ExportOption::valueName) == 1 && at(&ExportOption::flag) == 1 &&
                        at(&ExportOption::savePosition) == 1;
    const bool inRange =
        option.savePosition >= 1 && option.savePosition <= static_cast<std::int32_t>(exportOptions.size());
    return unique && inRange && option.IsNumber() == (option.flag == nullptr);
}));
static_assert(std::count_if(formControls.begin(), formControls.end(), [](const FormControl& control) {
                  return !control.option.empty();
              }) == static_cast<std::ptrdiff_t>(exportOptions.size()));

}  // namespace wxbrg
