#include "options/frmExportOptions.h"

#include <algorithm>
#include <variant>

#include "options/FormFont.h"
#include "options/StoredValues.h"
#include "options/modHelp.h"
#include "options/modNLSGeneratedFormStrings.h"
#include "run/Frame.h"
#include "run/clsExceptionHandler.h"
#include "run/modGlobals.h"
#include "support/Numbers.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr char32_t backspace = 8;

constexpr std::size_t suffixField = FindControl([](const FormControl& control) {
    return control.kind == FormControlKind::textField;
});
constexpr std::size_t applyButton = FindControl([](const FormControl& control) {
    return control.name == FormButton::apply;
});
static_assert(suffixField < formControls.size() && applyButton < formControls.size());

std::int32_t Stored(bool flag) {
    return flag ? -1 : 0;
}

/// A stored flag or choice: everything but the number 0 counts as True.
bool IsTrue(const ProfileValue& stored) {
    const auto* number = std::get_if<std::int32_t>(&stored);
    return number == nullptr || *number != 0;
}

/// The options in the order of saving.
std::array<const ExportOption*, exportOptions.size()> SaveOrder() {
    std::array<const ExportOption*, exportOptions.size()> order{};
    for (const ExportOption& option : exportOptions)
        order[static_cast<std::size_t>(option.savePosition) - 1] = &option;
    return order;
}

/// The place in the table of a control that is no tab, or the table's size.
std::size_t IndexOf(std::string_view name) {
    return FindControl([name](const FormControl& control) {
        return control.name == name;
    });
}

}  // namespace

frmExportOptions::frmExportOptions() {
    for (std::size_t i = 0; i < formControls.size(); ++i) {
        controls[i].checked = formControls[i].byDefault != 0;
        controls[i].caption = formControls[i].designCaption;
    }
    controls[suffixField].text = std::to_string(formControls[suffixField].byDefault);
}

frmExportOptions::Control& frmExportOptions::StateOf(const FormControl& control) {
    return controls.at(static_cast<std::size_t>(&control - formControls.data()));
}

void frmExportOptions::ShowModal() {
    Form_Load();
    gBlock.gPlatform->optionsFormView.ShowModal(*this);
    gBlock.gActiveForm = nullptr;
}

void frmExportOptions::Form_Load() {
    closed_ = false;
    LoadOptions();
    SetDirty(false);
}

void frmExportOptions::Activate() {
    gBlock.gActiveForm = this;
    Set_NLS_Font_Form(*this);
    SetFormStrings();
    SetFormHelp();
}

void frmExportOptions::LoadOptions() {
    for (const ExportOption& option : exportOptions) {
        const ProfileValue stored = GetProfileValue(programKey, option.valueName);
        Control& control = StateOf(ControlOf(option));
        if (option.IsNumber()) {
            LoadNumber(stored, control);
            continue;
        }
        if (!std::holds_alternative<std::monostate>(stored)) {
            Check(ControlOf(option), IsTrue(stored));
            SetDirty(true);
        }
        gBlock.*option.flag = control.checked;
    }
}

void frmExportOptions::LoadNumber(const ProfileValue& stored, Control& control) {
    if (std::holds_alternative<std::monostate>(stored)) {
        gBlock.gOptFirstSuffixNumber = ToInt32(control.text, DecimalSeparator());
        return;
    }
    const auto* text = std::get_if<std::string>(&stored);
    const std::int32_t number = text ? ToInt32(*text, DecimalSeparator()) : std::get<std::int32_t>(stored);
    gBlock.gOptFirstSuffixNumber = std::max(number, 0);
    Change(std::to_string(gBlock.gOptFirstSuffixNumber));
}

void frmExportOptions::SaveOptions() {
    for (const ExportOption* option : SaveOrder()) {
        const Control& control = StateOf(ControlOf(*option));
        if (option->IsNumber()) {
            const std::int32_t number = control.text.empty() ? 0 : ToInt32(control.text, DecimalSeparator());
            SetProfileValue(programKey, option->valueName, number, ProfileType::number);
            gBlock.gOptFirstSuffixNumber = number;
        } else {
            SetProfileValue(programKey, option->valueName, Stored(control.checked), ProfileType::number);
            gBlock.*option->flag = control.checked;
        }
    }
}

std::vector<FormControlRow> frmExportOptions::Rows() const {
    std::vector<FormControlRow> rows;
    for (std::size_t i = 0; i < formControls.size(); ++i) {
        const FormControl& control = formControls[i];
        rows.push_back(
            {.name = control.name,
             .kind = control.kind,
             .page = control.page,
             .frame = control.frame,
             .caption = controls[i].caption,
             .helpNumber = controls[i].HelpContextID,
             .maximumLength = control.kind == FormControlKind::textField ? suffixLength : std::size_t{0},
             .enabled = i != applyButton || bDirty,
             .checked = controls[i].checked,
             .text = controls[i].text});
    }
    return rows;
}

bool frmExportOptions::Click(std::string_view control) {
    const std::size_t index = IndexOf(control);
    if (index == formControls.size()) return false;
    switch (formControls[index].kind) {
        case FormControlKind::checkBox:
            Check(formControls[index], !controls[index].checked);
            break;
        case FormControlKind::optionButton:
            Check(formControls[index], true);
            break;
        default:
            return false;
    }
    SetDirty(true);
    return true;
}

void frmExportOptions::Check(const FormControl& control, bool checked) {
    StateOf(control).checked = checked;
    if (control.kind != FormControlKind::optionButton) return;
    for (const FormControl& other : formControls)
        if (&other != &control && other.kind == control.kind && other.frame == control.frame)
            StateOf(other).checked = !checked;
}

bool frmExportOptions::KeepsKey(char32_t key) const {
    return key == backspace || (key >= U'0' && key <= U'9');
}

bool frmExportOptions::Type(char32_t key) {
    if (!KeepsKey(key)) return false;
    const std::string& text = controls[suffixField].text;
    if (key == backspace) {
        if (!text.empty()) Change(std::string(WithoutLast(text, 1)));
    } else if (CharacterCount(text) < suffixLength) {
        Change(text + static_cast<char>(key));
    }
    return true;
}

void frmExportOptions::Change(std::string_view text) {
    controls[suffixField].text = std::string(Left(text, suffixLength));
    SetDirty(true);
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

std::string frmExportOptions::TakeStoreProblem() {
    return gBlock.gPlatform->profileStore.TakeWriteProblem();
}

void frmExportOptions::Cancel() {
    cmdCancel_Click();
}

void frmExportOptions::cmdCancel_Click() {
    Procedure("frmExportOptions.cmdCancel_Click", [](Frame& frame) {
        frame.RaiseBare(CancelNumber::optionsForm);
    });
}

void frmExportOptions::Help() {
    gBlock.gPlatform->helpViewer.ShowPage(gBlock.gHelpFile, HelpContextID);
}

void frmExportOptions::HelpOn(std::string_view control) {
    const std::size_t index = IndexOf(control);
    if (index == formControls.size() || controls[index].HelpContextID == 0) return;
    gBlock.gPlatform->helpViewer.ShowPage(gBlock.gHelpFile, controls[index].HelpContextID);
}

}  // namespace wxbrg
