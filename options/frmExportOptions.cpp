#include "options/frmExportOptions.h"

#include <algorithm>
#include <array>
#include <variant>

#include "options/modUtilities_registry.h"
#include "run/Frame.h"
#include "run/clsExceptionHandler.h"
#include "run/modGlobals.h"
#include "support/Numbers.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::size_t suffixLength = 4;
constexpr char backspace = 8;

std::int32_t Stored(bool flag) {
    return flag ? -1 : 0;
}

/// A stored flag or choice: everything but the number 0 counts as True.
bool IsTrue(const ProfileValue& stored) {
    const auto* number = std::get_if<std::int32_t>(&stored);
    return number == nullptr || *number != 0;
}

const ExportOption& NumberOption() {
    return *std::find_if(exportOptions.begin(), exportOptions.end(), [](const ExportOption& option) {
        return option.kind == OptionKind::number;
    });
}

/// The options in the order of saving.
std::array<const ExportOption*, exportOptions.size()> SaveOrder() {
    std::array<const ExportOption*, exportOptions.size()> order{};
    for (const ExportOption& option : exportOptions)
        order[static_cast<std::size_t>(option.savePosition) - 1] = &option;
    return order;
}

}  // namespace

frmExportOptions::frmExportOptions() {
    for (const ExportOption& option : exportOptions) {
        Control& control = ControlOf(option);
        if (option.kind == OptionKind::number)
            control.text = std::to_string(option.byDefault);
        else
            control.checked = option.byDefault != 0;
    }
}

frmExportOptions::Control& frmExportOptions::ControlOf(const ExportOption& option) {
    return controls_[static_cast<std::size_t>(&option - exportOptions.data())];
}
const frmExportOptions::Control& frmExportOptions::ControlOf(const ExportOption& option) const {
    return controls_[static_cast<std::size_t>(&option - exportOptions.data())];
}

void frmExportOptions::ShowModal() {
    Form_Load();
    gPlatform->optionsFormView.ShowModal(*this);
}

void frmExportOptions::Form_Load() {
    LoadOptions();
    SetDirty(false);
}

void frmExportOptions::LoadOptions() {
    for (const ExportOption& option : exportOptions) {
        const ProfileValue stored = GetProfileValue(programKey, option.valueName);
        Control& control = ControlOf(option);
        if (option.kind == OptionKind::number) {
            LoadNumber(stored, control);
            continue;
        }
        if (!std::holds_alternative<std::monostate>(stored)) control.checked = IsTrue(stored);
        gBlock.*option.flag = control.checked;
    }
}

void frmExportOptions::LoadNumber(const ProfileValue& stored, Control& control) {
    if (std::holds_alternative<std::monostate>(stored)) {
        gOptFirstSuffixNumber = ToInt32(control.text, DecimalSeparator());
        return;
    }
    const auto* text = std::get_if<std::string>(&stored);
    const std::int32_t number = text ? ToInt32(*text, DecimalSeparator()) : std::get<std::int32_t>(stored);
    gOptFirstSuffixNumber = std::max(number, 0);
    SetText(std::to_string(gOptFirstSuffixNumber));
}

void frmExportOptions::SaveOptions() {
    for (const ExportOption* option : SaveOrder()) {
        const Control& control = ControlOf(*option);
        if (option->kind == OptionKind::number) {
            const std::int32_t number = control.text.empty() ? 0 : ToInt32(control.text, DecimalSeparator());
            SetProfileValue(programKey, option->valueName, number, ProfileType::number);
            gOptFirstSuffixNumber = number;
        } else {
            SetProfileValue(programKey, option->valueName, Stored(control.checked), ProfileType::number);
            gBlock.*option->flag = control.checked;
        }
    }
}

void frmExportOptions::SetText(const std::string& text) {
    ControlOf(NumberOption()).text = std::string(Left(text, suffixLength));
    SetDirty(true);
}

std::vector<FormControlRow> frmExportOptions::Rows() const {
    std::vector<FormControlRow> rows;
    for (const ExportOption& option : exportOptions) {
        const Control& control = ControlOf(option);
        switch (option.kind) {
            case OptionKind::flag:
                rows.push_back({option.control, FormControlKind::checkBox, {}, control.checked, {}});
                break;
            case OptionKind::number:
                rows.push_back({option.control, FormControlKind::textField, {}, false, control.text});
                break;
            case OptionKind::choice:
                rows.push_back({domainTypeButton, FormControlKind::optionButton, {}, !control.checked, {}});
                rows.push_back({option.control, FormControlKind::optionButton, {}, control.checked, {}});
                break;
        }
    }
    return rows;
}

bool frmExportOptions::Click(std::string_view control) {
    for (const ExportOption& option : exportOptions) {
        bool& checked = ControlOf(option).checked;
        if (option.kind == OptionKind::flag && option.control == control) {
            checked = !checked;
        } else if (option.kind == OptionKind::choice &&
                   (option.control == control || domainTypeButton == control)) {
            checked = option.control == control;
        } else {
            continue;
        }
        SetDirty(true);
        return true;
    }
    return false;
}

bool frmExportOptions::Type(char key) {
    std::string text = ControlOf(NumberOption()).text;
    if (key == backspace) {
        if (text.empty()) return true;
        SetText(std::string(WithoutLast(text, 1)));
        return true;
    }
    if (key < '0' || key > '9') return false;
    if (CharacterCount(text) < suffixLength) SetText(text + key);
    return true;
}

void frmExportOptions::Paste(std::string_view text) {
    SetText(std::string(text));
}

void frmExportOptions::Apply() {
    if (!bDirty) return;
    SaveOptions();
    SetDirty(false);
}

void frmExportOptions::Ok() {
    if (bDirty) SaveOptions();
    Close();
}

void frmExportOptions::Cancel() {
    cmdCancel_Click();
}

void frmExportOptions::cmdCancel_Click() {
    Procedure("frmExportOptions.cmdCancel_Click", [](Frame& frame) {
        frame.RaiseBare(CancelNumber::optionsForm);
    });
}

}  // namespace wxbrg
