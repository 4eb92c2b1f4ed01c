#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "run/modGlobals.h"

namespace wxbrg {

/// The program's key in the profile store.
inline constexpr std::string_view programKey =
    R"(Software\Quenby\Tarnlight Workflow Aris Bridge\CurrentVersion\)";
/// The key under which the ARIS tool integration keeps what it provides; only ever read.
inline constexpr std::string_view toolIntegrationKey =
    R"(Software\IDS Scheer\Aris\5.0\ToolIntegration\quenby)";

/// What an option is.
enum class OptionKind {
    flag,    ///< a check box: stored as the number -1 or 0
    number,  ///< a text field: stored as a number of 0 or more
    choice,  ///< a pair of option buttons: stored as the number -1 (the first one) or 0
};

/// One export option: its stored value, its control in the options form and its global.
struct ExportOption {
    std::string_view valueName;
    std::string_view control;  ///< for a choice the button that stands for True
    OptionKind kind;
    std::int32_t byDefault;     ///< -1 or 0 for a flag and a choice, the number itself for a number
    bool GlobalBlock::*flag;    ///< null for a number
    std::int32_t savePosition;  ///< from 1: options are saved in another order than they are loaded
};

/// The options in the order of loading.
// clang-format off
inline constexpr std::array exportOptions{
    ExportOption{"ConvertNames",           "cbConvertARISNames",             OptionKind::flag,   -1, &GlobalBlock::optConvertNames,            1},
    ExportOption{"RemoveLineBreaks",       "cbRemoveLineBreaks",             OptionKind::flag,   -1, &GlobalBlock::optRemoveLineBreaks,        2},
    ExportOption{"FirstSuffixNumber",      "efNumSuffix",                    OptionKind::number,  0, nullptr,                                  3},
    ExportOption{"UseDataConBendPoints",   "cbDrawDataConWithBendPoints",    OptionKind::flag,   -1, &GlobalBlock::optUseDataConBendPoints,    5},
    ExportOption{"UseCtrlConBendPoints",   "cbDrawControlConWithBendPoints", OptionKind::flag,   -1, &GlobalBlock::optUseCtrlConBendPoints,    4},
    ExportOption{"UseDescriptionAttr",     "cbWriteDescription",             OptionKind::flag,   -1, &GlobalBlock::optUseDescriptionAttr,      6},
    ExportOption{"UseDocumentationAttr",   "cbWriteDocumentation",           OptionKind::flag,   -1, &GlobalBlock::optUseDocumentationAttr,    7},
    ExportOption{"UseOtherSettings",       "cbWriteOtherSettings",           OptionKind::flag,    0, &GlobalBlock::optUseOtherSettings,        8},
    ExportOption{"DynamicStaffAssignment", "cbDynamicStaffAssignment",       OptionKind::flag,   -1, &GlobalBlock::optDynamicStaffAssignment,  9},
    ExportOption{"FindDataFlowLoops",      "cbDataFlowLoops",                OptionKind::flag,   -1, &GlobalBlock::optFindDataFlowLoops,      10},
    ExportOption{"FindControlFlowLoops",   "cbControlFlowLoops",             OptionKind::flag,   -1, &GlobalBlock::optFindControlFlowLoops,   11},
    ExportOption{"StartConditions",        "cbStartConditions",              OptionKind::flag,    0, &GlobalBlock::optStartConditions,        12},
    ExportOption{"ExitConditions",         "cbExitConditions",               OptionKind::flag,    0, &GlobalBlock::optExitConditions,         13},
    ExportOption{"TransitionConditions",   "cbTransitionConditions",         OptionKind::flag,    0, &GlobalBlock::optTransitionConditions,   14},
    ExportOption{"DataTypeFromAttribute",  "rbARISAttrDataType",             OptionKind::choice, -1, &GlobalBlock::optDataTypeFromAttribute,  15},
};
// clang-format on

/// The button that stands for False beside the choice's own.
inline constexpr std::string_view domainTypeButton = "rbARISDomainType";

/// Stored values that are no options of the form.
inline constexpr std::string_view languageValue = "Language";
inline constexpr std::string_view repositoryPathValue = "RepositoryPath";

static_assert(std::all_of(exportOptions.begin(), exportOptions.end(), [](const ExportOption& option) {
    const auto at = [&](auto field) {
        return std::count_if(exportOptions.begin(), exportOptions.end(), [&](const ExportOption& other) {
            return other.*field == option.*field;
        });
    };
    const bool unique = at(&ExportOption::valueName) == 1 && at(&ExportOption::control) == 1 &&
                        at(&ExportOption::flag) == 1 && at(&ExportOption::savePosition) == 1;
    const bool inRange =
        option.savePosition >= 1 && option.savePosition <= static_cast<std::int32_t>(exportOptions.size());
    const bool typed = (option.kind == OptionKind::number) == (option.flag == nullptr);
    return unique && inRange && typed;
}));

}  // namespace wxbrg
