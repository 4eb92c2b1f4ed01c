#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/terminal/form/Screen.h"
#include "tests/TemporaryFolder.h"
#include "tests/cli/Process.h"

namespace wxbrg {

/// A shell command on a terminal of its own, which tmux emulates: keys go in, and what the screen shows can
/// be read. The terminal goes with the object, and what still runs on it.
class TmuxTerminal {
  public:
    /// Runs the command in `folder` with the variables set over those of the test. Its end leaves its last
    /// screen, with "ended with" and its exit status below.
    TmuxTerminal(ScreenSize size, const std::string& folder,
                 const std::map<std::string, std::string>& variables, const std::string& command);
    ~TmuxTerminal();
    TmuxTerminal(const TmuxTerminal&) = delete;
    TmuxTerminal& operator=(const TmuxTerminal&) = delete;

    /// Types keys by the names that tmux has for them: "Enter", "Tab", "BTab", "F1", "M-a", "x".
    void Press(const std::vector<std::string>& keys) const;
    void Resize(ScreenSize size) const;
    /// Sends a signal to the command that is running.
    void Signal(int number) const;
    /// All bytes that have come to the terminal, as soon as a text is among them; as with `ScreenWith`.
    std::string OutputWith(const std::string& text) const;
    std::string Screen() const;
    /// The same with the control sequences of its colours and attributes.
    std::string StyledScreen() const;
    /// The screen as soon as it shows a text; the last one seen where it does not within four minutes.
    std::string ScreenWith(const std::string& text) const;

  private:
    cli::ProcessResult Run(std::vector<std::string> arguments) const;
    /// Throws std::runtime_error where tmux refuses.
    std::string Tmux(std::vector<std::string> arguments) const;

    TemporaryFolder folder_;  ///< holds the socket of the tmux server
};

}  // namespace wxbrg
