#pragma once

#include <csignal>

namespace wxbrg {

/// Wakes whoever waits for input when the terminal's window gets another size. The signal may reach any
/// thread, so that it cannot be counted on to interrupt a read; it writes into a pipe instead. One is at
/// a time; with its end the handler of before comes back.
class ResizeSignal {
  public:
    /// Throws std::system_error where the system has no pipe left.
    ResizeSignal();
    ~ResizeSignal();
    ResizeSignal(const ResizeSignal&) = delete;
    ResizeSignal& operator=(const ResizeSignal&) = delete;

    /// The file descriptor to wait on; it can be read from when the size has changed.
    int Descriptor() const { return pipe_[0]; }
    /// Whether the size has changed since this was last asked.
    bool Take();

  private:
    int pipe_[2] = {-1, -1};
    struct sigaction before_ {};
};

}  // namespace wxbrg
