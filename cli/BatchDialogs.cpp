#include "cli/BatchDialogs.h"

#include <ostream>

#include "support/Text.h"

namespace wxbrg::cli {

BoxAnswer PrintingMessageBox::Show(std::string_view title, std::string_view text, std::int32_t buttons) {
    progress_.Report({}, 0, 0);
    out_ << title << '\n' << Replace(text, "\r\n", "\n") << '\n' << std::flush;
    return (buttons & BoxStyle::buttonSet) == BoxStyle::yesNo ? BoxAnswer::yes : BoxAnswer::ok;
}

}  // namespace wxbrg::cli
