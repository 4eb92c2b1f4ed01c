#include "tests/qt/VirtualDisplay.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>

namespace wxbrg {

namespace {

constexpr const char* screen = "1280x1024x24";

/// The number that the server writes when it is ready; empty when it ends instead.
std::string ReadNumber(int descriptor) {
    std::string number;
    std::array<char, 16> bytes{};
    ssize_t size = 0;
    while (number.find('\n') == std::string::npos &&
           (size = read(descriptor, bytes.data(), bytes.size())) > 0)
        number.append(bytes.data(), static_cast<std::size_t>(size));
    return number.substr(0, number.find('\n'));
}

}  // namespace

VirtualDisplay::VirtualDisplay() {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe for Xvfb");
    const std::string toWrite = std::to_string(ends[1]);
    server_ = fork();
    if (server_ == 0) {
        close(ends[0]);
        execlp("Xvfb", "Xvfb", "-displayfd", toWrite.c_str(), "-screen", "0", screen, "-nolisten", "tcp",
               nullptr);
        _exit(127);
    }
    close(ends[1]);
    const std::string number = server_ == -1 ? std::string() : ReadNumber(ends[0]);
    close(ends[0]);
    if (number.empty()) throw std::runtime_error("Xvfb does not start");
    name_ = ":" + number;
}

VirtualDisplay::~VirtualDisplay() {
    kill(server_, SIGTERM);
    waitpid(server_, nullptr, 0);
}

}  // namespace wxbrg
