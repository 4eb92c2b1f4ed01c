#pragma once

#include <stdexcept>
#include <string>

namespace wxbrg {

/// The user or the system wants the run to end.
struct StopRequested : std::runtime_error {
    explicit StopRequested(int number)
        : std::runtime_error("The run was stopped by the signal " + std::to_string(number) + "."),
          signal(number) {}
    int signal;  ///< the number of the signal that asked for it
};

/// Requests to end the program, kept for the run to obey where it can end in order.
class StopRequests {
  public:
    virtual ~StopRequests() = default;
    /// The number of the signal that asked; 0 where none has.
    virtual int Signal() const = 0;

    /// Throws `StopRequested` where there was a request.
    void Check() const {
        if (const int number = Signal(); number != 0) throw StopRequested(number);
    }
};

}  // namespace wxbrg
