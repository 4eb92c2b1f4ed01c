#pragma once

#include <array>
#include <csignal>

namespace wxbrg {

/// The signals that end or stop the process. On the screen, curses handles them, so that the terminal is
/// given back first; outside of it, what was set before counts.
class CursesSignals {
  public:
    /// To be made before curses takes the terminal.
    CursesSignals();
    /// Also to be called when curses has just taken the terminal: it sets its handlers only once in a
    /// process.
    void EnterScreen() const;
    void LeaveScreen() const;

  private:
    static constexpr std::array numbers{SIGINT, SIGTERM, SIGTSTP};
    using Handlers = std::array<struct sigaction, numbers.size()>;

    static Handlers Present();
    static void Set(const Handlers& handlers);
    static const Handlers& OfCurses();

    Handlers outside_;
};

}  // namespace wxbrg
