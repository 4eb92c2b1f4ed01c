#include "platform/terminal/lines/TerminalMessageBox.h"

#include "support/TerminalText.h"
#include "support/Text.h"

namespace wxbrg {

BoxAnswer TerminalMessageBox::Show(std::string_view title, std::string_view text, std::int32_t buttons) {
    terminal_.Print("");
    terminal_.Print("--- " + std::string(title));
    terminal_.Print(text, boxIndent);
    switch (buttons & BoxStyle::buttonSet) {
        case BoxStyle::yesNo:
            return terminal_.AskYesOrNo("Yes or no?").value_or(true) ? BoxAnswer::yes : BoxAnswer::no;
        case BoxStyle::okCancel: {
            const std::string answer = terminal_.Ask("Enter: OK, c: Cancel ").value_or("");
            return UpperCase(Left(answer, 1)) == "C" ? BoxAnswer::cancel : BoxAnswer::ok;
        }
        default:
            terminal_.Ask("Enter: OK ");
            return BoxAnswer::ok;
    }
}

void TerminalMessageBox::Report(std::string_view title, std::string_view text) {
    terminal_.Print("");
    terminal_.Print(std::string(title).append(": ").append(text));
}

}  // namespace wxbrg
