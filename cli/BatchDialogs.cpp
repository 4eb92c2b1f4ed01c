#include "cli/BatchDialogs.h"

#include <ostream>

#include "support/TerminalText.h"

namespace wxbrg::cli {

BoxAnswer PrintingMessageBox::Show(std::string_view title, std::string_view text, std::int32_t buttons) {
    progress_.Report({}, 0, 0);
    out_ << Printable(title) << '\n' << PrintableLines(text, "\r\n", boxIndent) << '\n' << std::flush;
    return (buttons & BoxStyle::buttonSet) == BoxStyle::yesNo ? BoxAnswer::yes : BoxAnswer::ok;
}

}  // namespace wxbrg::cli
