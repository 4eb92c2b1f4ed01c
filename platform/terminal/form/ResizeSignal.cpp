#include "platform/terminal/form/ResizeSignal.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

namespace wxbrg {

namespace {

volatile std::sig_atomic_t pipeToWrite = -1;

void NoteResize(int) {
    const int errorBefore = errno;
    // Where the pipe is full, the waiting side has enough to wake up.
    [[maybe_unused]] const ssize_t written = write(pipeToWrite, "", 1);
    errno = errorBefore;
}

}  // namespace

ResizeSignal::ResizeSignal() {
    if (pipe2(pipe_, O_NONBLOCK | O_CLOEXEC) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    pipeToWrite = pipe_[1];
    struct sigaction action {};
    action.sa_handler = NoteResize;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(SIGWINCH, &action, &before_);
}

ResizeSignal::~ResizeSignal() {
    sigaction(SIGWINCH, &before_, nullptr);
    pipeToWrite = -1;
    close(pipe_[0]);
    close(pipe_[1]);
}

bool ResizeSignal::Take() {
    std::array<char, 64> bytes{};
    bool changed = false;
    while (read(pipe_[0], bytes.data(), bytes.size()) > 0) changed = true;
    return changed;
}

}  // namespace wxbrg
