#include "platform/terminal/form/ScreenOptionsFormView.h"

#include <stdexcept>

namespace wxbrg {

void ScreenOptionsFormView::ShowModal(OptionsFormEvents& form) {
    {
        const std::unique_ptr<Screen> screen = openScreen_();
        if (screen) {
            form.Activate();
            const bool fits = ScreenFormFits(form.Rows(), screen->Size());
            if (fits && screen->Enter() && ShowOn(*screen, form)) return;
        }
    }
    lines_.ShowModal(form);
}

bool ScreenOptionsFormView::ShowOn(Screen& screen, OptionsFormEvents& form) {
    ScreenForm keyboard(form);
    while (!form.IsClosed()) {
        const ScreenSize size = screen.Size();
        const bool fits = ScreenFormFits(keyboard.State().rows, size);
        screen.Show(fits ? DrawScreenForm(keyboard.State(), size) : DrawTooSmall(size));
        const ScreenKey key = screen.ReadKey();
        if (!fits && key.kind == KeyKind::enter) return false;
        const bool ends = key.kind == KeyKind::escape || key.kind == KeyKind::endOfInput;
        if (!fits && !ends) continue;
        Obey(keyboard.Press(key), keyboard, screen, form);
        if (key.kind == KeyKind::endOfInput && !form.IsClosed())
            throw std::runtime_error("the input ended while the options were open");
    }
    return true;
}

void ScreenOptionsFormView::Obey(FormAct act, ScreenForm& keyboard, Screen& screen, OptionsFormEvents& form) {
    switch (act) {
        case FormAct::none:
            return;
        case FormAct::beep:
            return screen.Beep();
        case FormAct::ok:
            return StepAside(screen, form, [&] {
                form.Ok();
                ShowStoreProblem(form.TakeStoreProblem());
            });
        case FormAct::cancel:
            return StepAside(screen, form, [&] {
                form.Cancel();
            });
        case FormAct::apply:
            return Apply(screen, form);
        case FormAct::help:
        case FormAct::helpOnFocus:
            return StepAside(screen, form, [&] {
                if (act == FormAct::help)
                    form.Help();
                else
                    form.HelpOn(keyboard.State().focus);
                AskToComeBack();
            });
    }
}

void ScreenOptionsFormView::Apply(Screen& screen, OptionsFormEvents& form) {
    form.Apply();
    const std::string problem = form.TakeStoreProblem();
    if (problem.empty()) return;
    StepAside(screen, form, [&] {
        ShowStoreProblem(problem);
        AskToComeBack();
    });
}

void ScreenOptionsFormView::ShowStoreProblem(const std::string& problem) {
    if (!problem.empty()) terminal_.Print(std::string(notStoredText) + problem);
}

void ScreenOptionsFormView::AskToComeBack() {
    terminal_.Print("");
    terminal_.Ask("Enter: back to the options ");
}

void ScreenOptionsFormView::StepAside(Screen& screen, const OptionsFormEvents& form,
                                      const std::function<void()>& act) {
    screen.Leave();
    act();
    if (!form.IsClosed() && !screen.Enter())
        throw std::runtime_error("the terminal no longer shows the options");
}

}  // namespace wxbrg
