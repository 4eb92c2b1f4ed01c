#include "platform/terminal/lines/TerminalOptionsFormView.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <stdexcept>

#include "platform/terminal/lines/FormCaption.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr char32_t backspaceKey = '\b';
constexpr std::size_t numberWidth = 3;
constexpr std::size_t stateWidth = 3;

bool IsChangeable(const FormControlRow& row) {
    return row.kind == FormControlKind::checkBox || row.kind == FormControlKind::optionButton ||
           row.kind == FormControlKind::textField;
}

std::string StateOf(const FormControlRow& row) {
    switch (row.kind) {
        case FormControlKind::checkBox:
            return row.checked ? "[x]" : "[ ]";
        case FormControlKind::optionButton:
            return row.checked ? "(o)" : "( )";
        default:
            return row.text.empty() ? "(empty)" : row.text;
    }
}

/// The rows that the user can change, in the order of their numbers from 1.
std::vector<const FormControlRow*> NumberedRows(const std::vector<FormControlRow>& rows) {
    std::vector<const FormControlRow*> numbered;
    for (const FormControlRow& row : rows)
        if (IsChangeable(row)) numbered.push_back(&row);
    return numbered;
}

/// The row that a number typed by the user names, or null.
const FormControlRow* RowOf(const std::vector<const FormControlRow*>& rows, std::string_view typed) {
    std::size_t number = 0;
    const char* const end = typed.data() + typed.size();
    const auto [parsed, error] = std::from_chars(typed.data(), end, number);
    if (error != std::errc() || parsed != end || number < 1 || number > rows.size()) return nullptr;
    return rows[number - 1];
}

/// Whether a label comes before a text field, which has no caption of its own.
bool NamesField(const FormControlRow& label, const FormControlRow& field) {
    return label.kind == FormControlKind::label && field.kind == FormControlKind::textField &&
           field.page == label.page && field.caption.empty();
}

std::string LineOf(std::size_t number, const FormControlRow& row, std::string_view caption) {
    std::string line = std::to_string(number);
    line.insert(0, line.size() < numberWidth ? numberWidth - line.size() : 0, ' ');
    std::string state = StateOf(row);
    state.resize(std::max(state.size(), stateWidth), ' ');
    return line.append("  ").append(state).append("  ").append(caption.empty() ? row.name : caption);
}

}  // namespace

void TerminalOptionsFormView::ShowModal(OptionsFormEvents& form) {
    form.Activate();
    List(form);
    while (!form.IsClosed()) {
        const std::optional<std::string> command =
            terminal_.Ask("Number: change, Enter: list, h: help, o: OK, a: apply, c: cancel> ");
        if (!command) {
            form.Cancel();
            if (!form.IsClosed()) throw std::runtime_error("the input ended while the options were open");
            return;
        }
        Obey(*command, form);
    }
}

void TerminalOptionsFormView::List(const OptionsFormEvents& form) {
    terminal_.Print("");
    terminal_.Print(PlainCaption(form.Caption()));
    const Rows rows = form.Rows();
    for (const FormControlRow& row : rows)
        if (row.kind == FormControlKind::tab) ListPage(rows, row);
    ShowWhetherStored(form);
}

void TerminalOptionsFormView::ListPage(const Rows& rows, const FormControlRow& tab) {
    terminal_.Print("");
    terminal_.Print(PlainCaption(tab.caption));
    std::size_t number = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const FormControlRow& row = rows[i];
        if (IsChangeable(row)) ++number;
        if (row.page != tab.page || row.kind == FormControlKind::tab) continue;
        if (IsChangeable(row)) {
            const bool named = i > 0 && NamesField(rows[i - 1], row);
            terminal_.Print(LineOf(number, row, PlainCaption(named ? rows[i - 1].caption : row.caption)));
        } else if (i + 1 == rows.size() || !NamesField(row, rows[i + 1])) {
            terminal_.Print("  " + PlainCaption(row.caption));
        }
    }
}

void TerminalOptionsFormView::ListAround(const FormControlRow& changed, const OptionsFormEvents& form) {
    const Rows rows = form.Rows();
    for (const FormControlRow& row : rows)
        if (row.kind == FormControlKind::tab && row.page == changed.page) ListPage(rows, row);
    ShowWhetherStored(form);
}

void TerminalOptionsFormView::ShowWhetherStored(const OptionsFormEvents& form) {
    if (form.IsDirty()) terminal_.Print("Changes are not stored yet.");
}

void TerminalOptionsFormView::Obey(const std::string& command, OptionsFormEvents& form) {
    const std::string folded = UpperCase(command);
    if (folded.empty()) return List(form);
    if (folded == "O") return Ok(form);
    if (folded == "C") return form.Cancel();
    if (folded == "A") return Apply(form);
    if (folded == "H" || folded == "?") return form.Help();
    if (folded.starts_with("H") && HelpOn(Trim(folded.substr(1)), form)) return;
    const Rows rows = form.Rows();
    const std::vector<const FormControlRow*> numbered = NumberedRows(rows);
    if (const FormControlRow* row = RowOf(numbered, command)) {
        Operate(*row, form);
        return ListAround(*row, form);
    }
    const std::string last = std::to_string(numbered.size());
    terminal_.Print("Please type a number from 1 to " + last + ", h, h and a number, o, a or c.");
}

void TerminalOptionsFormView::Apply(OptionsFormEvents& form) {
    const bool wasDirty = form.IsDirty();
    form.Apply();
    if (!ShowStoreProblem(form)) terminal_.Print(wasDirty ? "Stored." : "Nothing has changed.");
}

void TerminalOptionsFormView::Ok(OptionsFormEvents& form) {
    form.Ok();
    ShowStoreProblem(form);
}

bool TerminalOptionsFormView::ShowStoreProblem(OptionsFormEvents& form) {
    const std::string problem = form.TakeStoreProblem();
    if (!problem.empty()) terminal_.Print(std::string(notStoredText) + problem);
    return !problem.empty();
}

bool TerminalOptionsFormView::HelpOn(std::string_view typed, OptionsFormEvents& form) {
    const Rows rows = form.Rows();
    const FormControlRow* row = RowOf(NumberedRows(rows), typed);
    if (row != nullptr) form.HelpOn(row->name);
    return row != nullptr;
}

void TerminalOptionsFormView::Operate(const FormControlRow& row, OptionsFormEvents& form) {
    if (row.kind != FormControlKind::textField) {
        form.Click(row.name);
        return;
    }
    if (const std::optional<std::string> text = terminal_.Ask("New text: ")) TypeOver(row, *text, form);
}

void TerminalOptionsFormView::TypeOver(const FormControlRow& row, const std::string& text,
                                       OptionsFormEvents& form) {
    for (std::size_t i = CharacterCount(row.text); i > 0; --i) form.Type(backspaceKey);
    bool dropped = false;
    for (const char32_t key : ToCharacters(text)) dropped |= !form.Type(key);
    if (!dropped) return;
    terminal_.Beep();
    terminal_.Print("Not every key was taken.");
}

}  // namespace wxbrg
