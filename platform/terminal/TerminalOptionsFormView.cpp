#include "platform/terminal/TerminalOptionsFormView.h"

#include <charconv>
#include <cstddef>
#include <stdexcept>

#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr char backspaceKey = '\b';

std::string_view StateOf(const FormControlRow& row) {
    switch (row.kind) {
        case FormControlKind::checkBox:
            return row.checked ? "[x]" : "[ ]";
        case FormControlKind::optionButton:
            return row.checked ? "(o)" : "( )";
        case FormControlKind::textField:
            break;
    }
    return row.text;
}

/// The row that a number typed by the user names, or null.
const FormControlRow* RowOf(const std::vector<FormControlRow>& rows, std::string_view typed) {
    std::size_t number = 0;
    const char* const end = typed.data() + typed.size();
    const auto [parsed, error] = std::from_chars(typed.data(), end, number);
    if (error != std::errc() || parsed != end || number < 1 || number > rows.size()) return nullptr;
    return &rows[number - 1];
}

}  // namespace

void TerminalOptionsFormView::ShowModal(OptionsFormEvents& form) {
    List(form);
    while (!form.IsClosed()) {
        const std::optional<std::string> command =
            terminal_.Ask("Number: change, o: OK, a: apply, c: cancel> ");
        if (!command) {
            form.Cancel();
            if (!form.IsClosed()) throw std::runtime_error("the input ended while the options were open");
            return;
        }
        Obey(*command, form);
    }
}

void TerminalOptionsFormView::List(const OptionsFormEvents& form) {
    terminal_.Tell("");
    std::size_t number = 0;
    for (const FormControlRow& row : form.Rows()) {
        std::string line = std::to_string(++number);
        line.insert(0, line.size() < 3 ? 3 - line.size() : 0, ' ');
        const std::string_view caption = row.caption.empty() ? row.name : std::string_view(row.caption);
        terminal_.Tell(line.append("  ").append(StateOf(row)).append("  ").append(caption));
    }
    if (form.IsDirty()) terminal_.Tell("Changes are not stored yet.");
}

void TerminalOptionsFormView::Obey(const std::string& command, OptionsFormEvents& form) {
    const std::string folded = UpperCase(command);
    if (folded == "O") return form.Ok();
    if (folded == "C") return form.Cancel();
    if (folded == "A") {
        form.Apply();
        return List(form);
    }
    const std::vector<FormControlRow> rows = form.Rows();
    if (const FormControlRow* row = RowOf(rows, command)) {
        Operate(*row, form);
        return List(form);
    }
    terminal_.Tell("Please type a number from 1 to " + std::to_string(rows.size()) + ", o, a or c.");
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
    for (const char key : text) dropped |= !form.Type(key);
    if (dropped) terminal_.Tell("\aNot every key was taken.");
}

}  // namespace wxbrg
