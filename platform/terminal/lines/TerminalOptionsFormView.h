#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/OptionsFormView.h"
#include "platform/terminal/lines/Terminal.h"

namespace wxbrg {

/// The options form as a numbered list, page by page, and commands by the line: a number toggles a check box,
/// selects an option button or asks for the text of the text field; "o" is OK, "a" Apply, "c" Cancel, "h"
/// Help, "h" and a number the help about that control; an empty line lists all again. The end of the input is
/// Cancel. A control without a caption is listed by its name.
class TerminalOptionsFormView : public OptionsFormView {
  public:
    TerminalOptionsFormView(std::istream& in, std::ostream& out) : terminal_(in, out) {}

    /// Throws what an event of the form throws, and std::runtime_error where the form is still open after the
    /// Cancel that stands for the end of the input: no answer can come.
    void ShowModal(OptionsFormEvents& form) override;

  private:
    using Rows = std::vector<FormControlRow>;

    void List(const OptionsFormEvents& form);
    void ListPage(const Rows& rows, const FormControlRow& tab);
    /// What is on the page of a control that has just changed.
    void ListAround(const FormControlRow& changed, const OptionsFormEvents& form);
    void ShowWhetherStored(const OptionsFormEvents& form);
    void Obey(const std::string& command, OptionsFormEvents& form);
    void Apply(OptionsFormEvents& form);
    void Ok(OptionsFormEvents& form);
    /// Whether there was a problem to report.
    bool ShowStoreProblem(OptionsFormEvents& form);
    /// False where `typed` is not the number of a control.
    bool HelpOn(std::string_view typed, OptionsFormEvents& form);
    void Operate(const FormControlRow& row, OptionsFormEvents& form);
    /// Types `text` over what the text field holds, key by key, as at a keyboard.
    void TypeOver(const FormControlRow& row, const std::string& text, OptionsFormEvents& form);

    Terminal terminal_;
};

}  // namespace wxbrg
