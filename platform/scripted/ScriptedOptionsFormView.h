#pragma once

#include "platform/OptionsFormView.h"
#include "platform/scripted/AnswerScript.h"

namespace wxbrg {

/// An options form that a script answers, until the form has been ended.
class ScriptedOptionsFormView : public OptionsFormView {
  public:
    explicit ScriptedOptionsFormView(AnswerScript& script) : script_(script) {}

    /// Throws `ScriptError` when the next answer is none for the options form, and when it clicks on a
    /// control that there is not.
    void ShowModal(OptionsFormEvents& form) override;

  private:
    void Act(const ScriptedAnswer& answer, OptionsFormEvents& form);

    AnswerScript& script_;
};

}  // namespace wxbrg
