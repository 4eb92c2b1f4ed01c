#include "platform/terminal/lines/Terminal.h"

#include <istream>
#include <ostream>

#include "support/TerminalText.h"
#include "support/Text.h"

namespace wxbrg {

void Terminal::Print(std::string_view text, std::string_view indent) {
    out_ << PrintableLines(text, "\r\n", indent) << '\n';
}

void Terminal::Beep() {
    out_ << '\a';
}

std::optional<std::string> Terminal::Ask(std::string_view prompt) {
    out_ << Printable(prompt) << std::flush;
    std::string line;
    if (!std::getline(in_, line)) {
        out_ << '\n';
        return std::nullopt;
    }
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return std::string(Trim(line));
}

std::optional<bool> Terminal::AskYesOrNo(std::string_view question) {
    for (;;) {
        const std::optional<std::string> answer = Ask(std::string(question) + " (y/n) ");
        if (!answer) return std::nullopt;
        const std::string folded = UpperCase(*answer);
        if (folded == "Y" || folded == "YES") return true;
        if (folded == "N" || folded == "NO") return false;
        Print("Please answer y or n.");
    }
}

}  // namespace wxbrg
