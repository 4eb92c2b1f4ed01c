#pragma once

#include <functional>
#include <memory>

#include "platform/OptionsFormView.h"
#include "platform/terminal/form/Screen.h"
#include "platform/terminal/form/ScreenForm.h"
#include "platform/terminal/lines/TerminalOptionsFormView.h"

namespace wxbrg {

/// The options form on the whole screen of a terminal. Where there is no screen, or where the form finds no
/// room on it, the form is questions by the line.
class ScreenOptionsFormView : public OptionsFormView {
  public:
    /// Gives the screen, or null where the terminal has none.
    using OpenScreen = std::function<std::unique_ptr<Screen>()>;

    /// The streams are those of the terminal, for lines, and outlive this.
    ScreenOptionsFormView(std::istream& in, std::ostream& out, OpenScreen openScreen)
        : terminal_(in, out), lines_(in, out), openScreen_(std::move(openScreen)) {}

    /// Throws what an event of the form throws, and std::runtime_error where the form is still open after the
    /// Cancel that stands for the end of the input. The terminal is then given back for lines.
    void ShowModal(OptionsFormEvents& form) override;

  private:
    /// False where the user goes on line by line.
    bool ShowOn(Screen& screen, OptionsFormEvents& form);
    void Obey(FormAct act, ScreenForm& keyboard, Screen& screen, OptionsFormEvents& form);
    /// Does something that may show what is not on the screen, with the terminal given back for it.
    void StepAside(Screen& screen, const OptionsFormEvents& form, const std::function<void()>& act);
    void Apply(Screen& screen, OptionsFormEvents& form);
    /// Prints why the options could not be stored; nothing for an empty reason.
    void ShowStoreProblem(const std::string& problem);
    void AskToComeBack();

    Terminal terminal_;
    TerminalOptionsFormView lines_;
    OpenScreen openScreen_;
};

}  // namespace wxbrg
