#include "platform/scripted/ScriptedOptionsFormView.h"

#include "support/Text.h"

namespace wxbrg {

void ScriptedOptionsFormView::ShowModal(OptionsFormEvents& form) {
    form.Activate();
    while (!form.IsClosed()) Act(script_.TakeForOptions(), form);
}

void ScriptedOptionsFormView::Act(const ScriptedAnswer& answer, OptionsFormEvents& form) {
    switch (answer.action) {
        case ScriptedAction::ok:
            form.Ok();
            return;
        case ScriptedAction::apply:
            form.Apply();
            return;
        case ScriptedAction::close:
            form.Close();
            return;
        case ScriptedAction::cancelOptions:
            form.Cancel();
            return;
        case ScriptedAction::paste:
            form.Change(answer.text);
            return;
        case ScriptedAction::type:
            for (const char32_t key : ToCharacters(answer.text)) form.Type(key);
            return;
        case ScriptedAction::click:
            if (!form.Click(answer.text))
                script_.Reject(answer, "the options dialog has no control \"" + answer.text + "\" to click");
            return;
        case ScriptedAction::help:
            form.Help();
            return;
        case ScriptedAction::chooseFile:
        case ScriptedAction::cancelFile:
            break;
    }
    script_.Reject(answer, "the answer is not for the options dialog");
}

}  // namespace wxbrg
