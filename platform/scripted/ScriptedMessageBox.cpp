#include "platform/scripted/ScriptedMessageBox.h"

namespace wxbrg {

BoxAnswer ScriptedMessageBox::Show(std::string_view title, std::string_view text, std::int32_t buttons) {
    const bool question = (buttons & BoxStyle::buttonSet) == BoxStyle::yesNo;
    const BoxAnswer answer = question ? script_.TakeForQuestion(text) : BoxAnswer::ok;
    boxes_.push_back({std::string(title), std::string(text), buttons, answer});
    return answer;
}

}  // namespace wxbrg
