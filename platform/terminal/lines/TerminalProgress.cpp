#include "platform/terminal/lines/TerminalProgress.h"

#include <ostream>
#include <utility>

#include "support/TerminalText.h"

namespace wxbrg {

namespace {

using namespace std::chrono_literals;

constexpr auto firstDelay = 1s;
constexpr auto interval = 100ms;

/// Back to the start of the line, and what follows that taken away.
constexpr std::string_view clearLine = "\r\033[K";

std::string Amount(std::uint64_t done, std::uint64_t total) {
    if (total == 0) return done == 0 ? std::string() : ": " + std::to_string(done);
    const double share = static_cast<double>(done) / static_cast<double>(total);
    const auto percent = done >= total ? 100 : static_cast<int>(share * 100);
    return ": " + std::to_string(percent) + " %";
}

}  // namespace

TerminalProgress::TerminalProgress(std::ostream& out, Now now)
    : out_(out), now_(std::move(now)), next_(now_() + firstDelay) {}

TerminalProgress::~TerminalProgress() {
    Clear();
}

void TerminalProgress::Report(std::string_view stage, std::uint64_t done, std::uint64_t total) {
    if (stage.empty()) return Clear();
    const Time time = now_();
    if (time < next_) return;
    next_ = time + interval;
    shown_ = true;
    out_ << clearLine << Printable(stage) << Amount(done, total) << std::flush;
}

void TerminalProgress::Clear() {
    if (!shown_) return;
    shown_ = false;
    out_ << clearLine << std::flush;
}

}  // namespace wxbrg
