#include "platform/posix/Signals.h"

#include <csignal>

namespace wxbrg {

void SetSignals() {
    std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace wxbrg
