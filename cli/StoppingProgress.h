#pragma once

#include <memory>
#include <utility>

#include "platform/Progress.h"
#include "platform/StopRequests.h"

namespace wxbrg::cli {

/// Hands reports on, and ends what is being done by `StopRequested` where there was a request to stop.
class StoppingProgress : public Progress {
  public:
    StoppingProgress(std::unique_ptr<Progress> shown, const StopRequests& stop)
        : shown_(std::move(shown)), stop_(stop) {}
    void Report(std::string_view stage, std::uint64_t done, std::uint64_t total) override;

  private:
    std::unique_ptr<Progress> shown_;
    const StopRequests& stop_;
};

}  // namespace wxbrg::cli
