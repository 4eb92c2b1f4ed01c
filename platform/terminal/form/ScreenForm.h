#pragma once

#include "platform/OptionsFormView.h"
#include "platform/terminal/form/Screen.h"
#include "platform/terminal/form/ScreenFormLayout.h"

namespace wxbrg {

/// What a key asks for beyond the form's own picture.
enum class FormAct { none, beep, ok, cancel, apply, help, helpOnFocus };

/// The keyboard of the options form on a screen: which page is shown, which control has the keyboard, where
/// the cursor is in the text field, and what a key does there. Clicks and typed text go to the form at
/// once; what may show something else is left to the caller.
class ScreenForm {
  public:
    /// Begins on the first page, with the keyboard at the tabs. The form outlives this.
    explicit ScreenForm(OptionsFormEvents& form);

    FormAct Press(const ScreenKey& key);
    /// The form at this moment. A control that can no longer have the keyboard passes it on to the next one.
    const ScreenFormState& State();

  private:
    using Rows = std::vector<FormControlRow>;

    void Refresh();
    const FormControlRow* Focused() const;
    bool IsFocused(FormControlKind kind) const;
    /// The controls that can have the keyboard, in their order: the tabs as one, the page, the buttons.
    std::vector<const FormControlRow*> Stops() const;
    void Focus(const FormControlRow& row);
    void MoveFocus(std::ptrdiff_t step);
    void ShowPage(std::int32_t page);
    void TurnPage(std::ptrdiff_t step);

    /// To the next or previous control or page; nothing for any other key.
    void Move(KeyKind key);
    FormAct PressArrow(KeyKind arrow);
    FormAct PressArrowOnTabs(KeyKind arrow);
    FormAct PressArrowOnButton(KeyKind arrow);
    FormAct PressArrowInPage(KeyKind arrow);
    FormAct PressCharacter(char32_t character);
    FormAct PressAccessKey(char32_t character);
    FormAct PressEnter() const;
    FormAct PressHelp() const;
    FormAct EditField(const ScreenKey& key);
    FormAct Insert(char32_t character);
    FormAct Erase(std::size_t position);
    FormAct Use(const FormControlRow& row);
    FormAct Choose(const FormControlRow& row);
    void MoveCursor(KeyKind key);

    OptionsFormEvents& form_;
    ScreenFormState state_;
};

}  // namespace wxbrg
