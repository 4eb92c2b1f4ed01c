#include "platform/posix/Signals.h"

#include <array>
#include <csignal>

namespace wxbrg {

namespace {

constexpr std::array stopSignals{SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t requested = 0;

/// Called by the system between any two instructions.
extern "C" void KeepRequest(int number) {
    if (requested == 0) {
        requested = number;
        return;
    }
    // Blocked until the handler is left; then it ends the program.
    std::signal(number, SIG_DFL);
    std::raise(number);
}

class CaughtSignals : public StopRequests {
  public:
    CaughtSignals() {
        requested = 0;
        for (std::size_t i = 0; i < stopSignals.size(); ++i) {
            sigaction(stopSignals[i], nullptr, &before_[i]);
            if (before_[i].sa_handler == SIG_IGN) continue;
            // Without SA_RESTART: whoever waits is to look.
            struct sigaction keep {};
            keep.sa_handler = KeepRequest;
            sigemptyset(&keep.sa_mask);
            sigaction(stopSignals[i], &keep, nullptr);
        }
    }
    ~CaughtSignals() override {
        for (std::size_t i = 0; i < stopSignals.size(); ++i) sigaction(stopSignals[i], &before_[i], nullptr);
    }
    CaughtSignals(const CaughtSignals&) = delete;
    CaughtSignals& operator=(const CaughtSignals&) = delete;

    int Signal() const override { return requested; }

  private:
    std::array<struct sigaction, stopSignals.size()> before_{};
};

}  // namespace

void SetSignals() {
    std::signal(SIGXFSZ, SIG_IGN);
}

std::unique_ptr<StopRequests> CatchStopSignals() {
    return std::make_unique<CaughtSignals>();
}

}  // namespace wxbrg
