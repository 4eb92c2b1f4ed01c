#include "platform/posix/ChildProcess.h"

#include <poll.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <exception>
#include <system_error>

namespace wxbrg {

namespace {

constexpr int failedStatus = 1;

int Checked(int result, const char* what) {
    if (result == -1) throw std::system_error(errno, std::generic_category(), what);
    return result;
}

/// A file descriptor that is closed at the end.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { close(number_); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int Get() const { return number_; }

  private:
    int number_;
};

/// The whole life of the child.
[[noreturn]] void BeChild(const std::function<void()>& body, const Descriptor& errors) {
    while (dup2(errors.Get(), STDERR_FILENO) < 0 && errno == EINTR) continue;
    // An abort is no crash to make a core file of.
    std::signal(SIGABRT, [](int) {
        _exit(failedStatus);
    });
    try {
        body();
    } catch (const std::exception& error) {
        dprintf(STDERR_FILENO, "%s\n", error.what());
        _exit(failedStatus);
    }
    _exit(0);
}

/// Whether a process ends within a time.
bool EndsWithin(pid_t process, std::chrono::milliseconds limit) {
    const Descriptor ending(Checked(static_cast<int>(syscall(SYS_pidfd_open, process, 0)), "pidfd_open"));
    pollfd polled{ending.Get(), POLLIN, 0};
    const auto end = std::chrono::steady_clock::now() + limit;
    for (;;) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        const int ready = poll(&polled, 1, left.count() > 0 ? static_cast<int>(left.count()) : 0);
        if (ready >= 0 || errno != EINTR) return Checked(ready, "poll") > 0;
    }
}

int WaitFor(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) == -1)
        if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
    return status;
}

std::string FirstLine(const Descriptor& file) {
    std::array<char, 1024> bytes{};
    ssize_t size = 0;
    do {
        size = pread(file.Get(), bytes.data(), bytes.size(), 0);
    } while (size < 0 && errno == EINTR);
    const std::string text(bytes.data(), size > 0 ? static_cast<std::size_t>(size) : 0);
    return text.substr(0, text.find('\n'));
}

}  // namespace

std::optional<std::string> FailureInChild(const std::function<void()>& body,
                                          std::chrono::milliseconds limit) {
    const Descriptor errors(Checked(memfd_create("errors", MFD_CLOEXEC), "memfd_create"));
    const pid_t child = Checked(fork(), "fork");
    if (child == 0) BeChild(body, errors);
    const bool inTime = EndsWithin(child, limit);
    if (!inTime) kill(child, SIGKILL);
    const int status = WaitFor(child);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return std::nullopt;
    if (!inTime) return "no answer within " + std::to_string(limit.count()) + " ms";
    std::string line = FirstLine(errors);
    return line.empty() ? "it ended with status " + std::to_string(status) : line;
}

}  // namespace wxbrg
