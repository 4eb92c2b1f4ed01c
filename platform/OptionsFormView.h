#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace wxbrg {

/// What a control of the options form is.
enum class FormControlKind { tab, checkBox, optionButton, textField, label, frame, button };

/// The page of what is on no page of the form.
inline constexpr std::int32_t noPage = -1;

/// The buttons of the options form by their names.
namespace FormButton {
inline constexpr std::string_view help = "cmdHelp";
inline constexpr std::string_view ok = "cmdOK";          ///< the default button
inline constexpr std::string_view cancel = "cmdCancel";  ///< Esc presses it
inline constexpr std::string_view apply = "cmdApply";    ///< disabled while the form is clean
}  // namespace FormButton

/// One control of the options form as a view shows it: a row of the form's table and its present state.
struct FormControlRow {
    std::string_view name;  ///< "cbConvertARISNames"
    FormControlKind kind;
    std::int32_t page = noPage;     ///< the tab it is on, from 0; a tab's own number for a tab
    std::string_view frame = {};    ///< name of the frame it is in; empty: in none
    std::string caption = {};       ///< as the language library has it: "&" comes before the access key
    std::int32_t helpNumber = 0;    ///< page of the help; 0: none
    std::size_t maximumLength = 0;  ///< text fields: characters
    bool enabled = true;
    bool checked = false;   ///< check boxes and option buttons
    std::string text = {};  ///< text fields
};

/// A font as far as the form decides about it.
struct FormFont {
    std::int32_t characterSet = 1;  ///< as the system numbers them; 1: the default one
    bool bold = false;
    bool italic = false;
    std::string name;  ///< empty: the platform's own
    double size = 0;   ///< in points; 0: the platform's own
    bool strikethrough = false;
    bool underline = false;
};

/// What a view asks of the form that it shows. Each call may throw: a view that is built on foreign code
/// keeps what is thrown and lets it go behind that code.
class OptionsFormEvents {
  public:
    virtual ~OptionsFormEvents() = default;
    /// The form has become the active one: font, captions and help numbers are set anew. A view calls it
    /// before it shows anything, and at each activation.
    virtual void Activate() = 0;
    virtual std::string Caption() const = 0;
    virtual FormFont Font() const = 0;
    /// The controls in the order of their pages, from top to bottom, with their state at this moment.
    virtual std::vector<FormControlRow> Rows() const = 0;
    /// Whether some control has changed since the last load or save.
    virtual bool IsDirty() const = 0;
    /// A click on a check box or option button. False: there is no such control.
    virtual bool Click(std::string_view control) = 0;
    /// Whether the text field keeps a key: 8 is backspace. A key that it drops sounds the beep.
    virtual bool KeepsKey(char32_t key) const = 0;
    /// A key typed at the end of the text field. False: the key was dropped.
    virtual bool Type(char32_t key) = 0;
    /// The text field has come to hold a text, by typing or by pasting; cut to the field's length.
    virtual void Change(std::string_view text) = 0;
    /// The buttons. `Ok` and a `Close` end the form. `Cancel` asks the user whether to end the program, and
    /// comes back when the answer is No. `Help` shows the page of the whole form.
    virtual void Apply() = 0;
    virtual void Ok() = 0;
    virtual void Cancel() = 0;
    virtual void Help() = 0;
    virtual void Close() = 0;
    /// The page of the help about one control. Nothing happens for a control without one.
    virtual void HelpOn(std::string_view control) = 0;
    /// Whether the form has been ended.
    virtual bool IsClosed() const = 0;
    /// Why what the last `Apply` or `Ok` was to store is not stored, as `ProfileStore::TakeWriteProblem` has
    /// it; empty where it is. The options count for the run all the same. A view asks behind either button
    /// and shows it.
    virtual std::string TakeStoreProblem() { return {}; }
};

/// What a view puts in front of `TakeStoreProblem`.
inline constexpr std::string_view notStoredText = "The options count for this run, but they are not stored: ";

class OptionsFormView {
  public:
    virtual ~OptionsFormView() = default;
    /// The font of the platform's own dialogs.
    virtual FormFont DefaultFont() const { return {}; }
    /// Shows the form, with its first page in front and in the system's list of tasks where there is one, and
    /// comes back when it has been ended.
    virtual void ShowModal(OptionsFormEvents& form) = 0;
};

}  // namespace wxbrg
