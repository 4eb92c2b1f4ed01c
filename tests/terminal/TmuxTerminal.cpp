#include "tests/terminal/TmuxTerminal.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <thread>

namespace wxbrg {

namespace {

/// Only against a program that hangs: below the limit that ctest has for a test, so that the screen is
/// reported.
constexpr std::chrono::seconds patience{240};
constexpr std::chrono::milliseconds pause{20};

std::string Quoted(const std::string& text) {
    std::string quoted = "'";
    for (const char character : text)
        quoted += character == '\'' ? std::string(R"('\'')") : std::string(1, character);
    return quoted + "'";
}

/// Reads again and again until the text is there, or patience is at its end.
std::string WaitFor(const std::string& text, const std::function<std::string()>& read) {
    const auto end = std::chrono::steady_clock::now() + patience;
    for (;;) {
        std::string found = read();
        if (found.find(text) != std::string::npos || std::chrono::steady_clock::now() > end) return found;
        std::this_thread::sleep_for(pause);
    }
}

}  // namespace

TmuxTerminal::TmuxTerminal(ScreenSize size, const std::string& folder,
                           const std::map<std::string, std::string>& variables, const std::string& command) {
    folder_.Write("tmux.conf",
                  "set -g status off\nset -g default-terminal tmux-256color\nset -g default-shell /bin/sh\n");
    std::string script = "cd " + Quoted(folder) + "\nunset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM\n";
    for (const auto& [name, value] : variables) script += "export " + name + "=" + Quoted(value) + "\n";
    // The shell waits behind the command, or the terminal would go with it.
    script += command + "\necho \"ended with $?\"\nread -r line\n";
    Tmux({"new-session", "-d", "-x", std::to_string(size.width), "-y", std::to_string(size.height),
          "exec sh " + Quoted(folder_.Write("command.sh", script))});
    folder_.Write("output", "");
    Tmux({"pipe-pane", "cat >>" + Quoted((folder_ / "output").string())});
}

TmuxTerminal::~TmuxTerminal() {
    Run({"kill-server"});
}

cli::ProcessResult TmuxTerminal::Run(std::vector<std::string> arguments) const {
    const std::vector<std::string> program{
        WXBRG_TMUX, "-u", "-S", (folder_ / "socket").string(), "-f", (folder_ / "tmux.conf").string()};
    arguments.insert(arguments.begin(), program.begin(), program.end());
    return cli::RunProcess(arguments, {.input = {}, .environment = {{"TMUX", ""}}});
}

std::string TmuxTerminal::Tmux(std::vector<std::string> arguments) const {
    const cli::ProcessResult result = Run(std::move(arguments));
    if (result.status != 0) throw std::runtime_error("tmux: " + result.err);
    return result.out;
}

void TmuxTerminal::Press(const std::vector<std::string>& keys) const {
    std::vector<std::string> arguments{"send-keys"};
    arguments.insert(arguments.end(), keys.begin(), keys.end());
    Tmux(arguments);
}

void TmuxTerminal::Resize(ScreenSize size) const {
    Tmux({"resize-window", "-x", std::to_string(size.width), "-y", std::to_string(size.height)});
}

void TmuxTerminal::Signal(int number) const {
    const int shell = std::stoi(Tmux({"list-panes", "-F", "#{pane_pid}"}));
    std::ifstream children("/proc/" + std::to_string(shell) + "/task/" + std::to_string(shell) + "/children");
    pid_t command = 0;
    if (!(children >> command)) throw std::runtime_error("nothing runs on the terminal");
    kill(command, number);
}

std::string TmuxTerminal::Screen() const {
    return Tmux({"capture-pane", "-p"});
}

std::string TmuxTerminal::StyledScreen() const {
    return Tmux({"capture-pane", "-p", "-e"});
}

std::string TmuxTerminal::ScreenWith(const std::string& text) const {
    return WaitFor(text, [this] {
        return Screen();
    });
}

std::string TmuxTerminal::OutputWith(const std::string& text) const {
    return WaitFor(text, [this] {
        return folder_.Read("output");
    });
}

}  // namespace wxbrg
