#pragma once

#include "platform/OptionsFormView.h"
#include "platform/terminal/Terminal.h"

namespace wxbrg {

/// The options form as a numbered list and commands by the line: a number toggles a check box, selects an
/// option button or asks for the text of the text field; "o" is OK, "a" Apply, "c" Cancel. The end of the
/// input is Cancel. A control without a caption is listed by its name.
class TerminalOptionsFormView : public OptionsFormView {
  public:
    TerminalOptionsFormView(std::istream& in, std::ostream& out) : terminal_(in, out) {}

    /// Throws what an event of the form throws, and std::runtime_error where the form is still open after the
    /// Cancel that stands for the end of the input: no answer can come.
    void ShowModal(OptionsFormEvents& form) override;

  private:
    void List(const OptionsFormEvents& form);
    void Obey(const std::string& command, OptionsFormEvents& form);
    void Operate(const FormControlRow& row, OptionsFormEvents& form);
    /// Types `text` over what the text field holds, key by key, as at a keyboard.
    void TypeOver(const FormControlRow& row, const std::string& text, OptionsFormEvents& form);

    Terminal terminal_;
};

}  // namespace wxbrg
