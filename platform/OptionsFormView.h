#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wxbrg {

/// What a control of the options form is.
enum class FormControlKind { checkBox, optionButton, textField };

/// One control of the options form as a view shows it: a row of the form's table and its present state.
struct FormControlRow {
    std::string_view name;  ///< "cbConvertARISNames"
    FormControlKind kind;
    std::string caption;
    bool checked = false;  ///< check boxes and option buttons
    std::string text;      ///< text fields
};

/// What a view asks of the form that it shows. Each call may throw: a view that stands on foreign code keeps
/// what is thrown and lets it go behind that code.
class OptionsFormEvents {
  public:
    virtual ~OptionsFormEvents() = default;
    /// The controls in the order of the form's table, with their state at this moment.
    virtual std::vector<FormControlRow> Rows() const = 0;
    /// Whether some control has changed since the last load or save.
    virtual bool IsDirty() const = 0;
    /// A click on a check box or option button. False: there is no such control.
    virtual bool Click(std::string_view control) = 0;
    /// A key in the one text field: 8 is backspace. False: the key was dropped, with a beep.
    virtual bool Type(char key) = 0;
    /// A text pasted into the text field in place of what it holds; cut to the field's length.
    virtual void Paste(std::string_view text) = 0;
    /// The buttons. `Ok` and a `Close` end the form. `Cancel` asks the user whether to end the program, and
    /// comes back when the answer is No.
    virtual void Apply() = 0;
    virtual void Ok() = 0;
    virtual void Cancel() = 0;
    virtual void Close() = 0;
    /// Whether the form has been ended.
    virtual bool IsClosed() const = 0;
};

class OptionsFormView {
  public:
    virtual ~OptionsFormView() = default;
    /// Shows the form and comes back when it has been ended.
    virtual void ShowModal(OptionsFormEvents& form) = 0;
};

}  // namespace wxbrg
