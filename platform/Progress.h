#pragma once

#include <cstdint>
#include <string_view>

namespace wxbrg {

/// Receives how far a run has come. A report costs little; showing is up to the front end.
class Progress {
  public:
    virtual ~Progress() = default;
    /// `stage` is what is being done ("processes"), `done` how much of `total`; a `total` of 0 is not known.
    /// An empty stage takes away what is shown, so that other text can be.
    virtual void Report(std::string_view stage, std::uint64_t done, std::uint64_t total) = 0;
};

}  // namespace wxbrg
