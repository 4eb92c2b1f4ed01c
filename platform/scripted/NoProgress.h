#pragma once

#include "platform/Progress.h"

namespace wxbrg {

/// Receives how far a run has come and shows nothing.
class NoProgress : public Progress {
  public:
    void Report(std::string_view /*stage*/, std::uint64_t /*done*/, std::uint64_t /*total*/) override {}
};

}  // namespace wxbrg
