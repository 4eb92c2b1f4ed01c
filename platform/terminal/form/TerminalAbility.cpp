#include "platform/terminal/form/TerminalAbility.h"

#include <sys/ioctl.h>
#include <unistd.h>

// The names of <term.h> are macros, so that it comes last, and nothing else is in this file.
#include <curses.h>
#include <term.h>

namespace wxbrg {

namespace {

/// What the system knows about the window; else what the terminal is described with.
std::optional<ScreenSize> SizeOfWindow() {
    winsize window{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &window) == 0 && window.ws_row > 0 && window.ws_col > 0)
        return ScreenSize{window.ws_col, window.ws_row};
    char widthName[] = "cols";
    char heightName[] = "lines";
    const int width = tigetnum(widthName);
    const int height = tigetnum(heightName);
    if (width <= 0 || height <= 0) return std::nullopt;
    return ScreenSize{static_cast<std::size_t>(width), static_cast<std::size_t>(height)};
}

}  // namespace

std::optional<ScreenSize> FullScreenSize() {
    if (isatty(STDIN_FILENO) == 0 || isatty(STDOUT_FILENO) == 0) return std::nullopt;
    TERMINAL* const before = cur_term;
    int error = 0;
    if (setupterm(nullptr, STDOUT_FILENO, &error) != OK) return std::nullopt;
    std::optional<ScreenSize> size;
    if (cursor_address != nullptr && clear_screen != nullptr) size = SizeOfWindow();
    TERMINAL* const asked = set_curterm(before);
    if (asked != before) del_curterm(asked);
    return size;
}

}  // namespace wxbrg
