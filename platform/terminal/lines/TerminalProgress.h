#pragma once

#include <chrono>
#include <functional>
#include <iosfwd>
#include <string>

#include "platform/Progress.h"

namespace wxbrg {

/// Progress on one line of a terminal, rewritten in place. Nothing is shown in the first second, then at most
/// ten times a second. An empty stage takes the line away, so that other text can be printed, and so does the
/// end of the object.
class TerminalProgress : public Progress {
  public:
    using Time = std::chrono::steady_clock::time_point;
    using Now = std::function<Time()>;

    explicit TerminalProgress(std::ostream& out, Now now = std::chrono::steady_clock::now);
    ~TerminalProgress() override;
    TerminalProgress(const TerminalProgress&) = delete;
    TerminalProgress& operator=(const TerminalProgress&) = delete;

    void Report(std::string_view stage, std::uint64_t done, std::uint64_t total) override;

  private:
    void Clear();

    std::ostream& out_;
    Now now_;
    Time next_;  ///< nothing is shown before
    bool shown_ = false;
};

}  // namespace wxbrg
