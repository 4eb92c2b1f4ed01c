#pragma once

#include <string>
#include <vector>

#include "platform/MessageBox.h"
#include "platform/scripted/AnswerScript.h"

namespace wxbrg {

/// A message box that was shown.
struct ShownBox {
    std::string title;
    std::string text;
    std::int32_t buttons;
    BoxAnswer answer;
};

/// Answers boxes without a user, and remembers them. A box with an OK button is answered with it, whatever
/// else it has; a question with what the script has for it.
class ScriptedMessageBox : public MessageBox {
  public:
    explicit ScriptedMessageBox(AnswerScript& script) : script_(script) {}

    /// Throws `ScriptError` for a question that the script does not answer.
    BoxAnswer Show(std::string_view title, std::string_view text, std::int32_t buttons) override;

    /// The boxes that were answered, in order.
    const std::vector<ShownBox>& Boxes() const { return boxes_; }

  private:
    AnswerScript& script_;
    std::vector<ShownBox> boxes_;
};

}  // namespace wxbrg
