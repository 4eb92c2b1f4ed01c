#pragma once

#include <string>

#include "cli/ToolEnvironment.h"
#include "platform/scripted/MemoryProfileStore.h"

namespace wxbrg::cli {

/// Why the stored options cannot be read, a line for each reason; empty where they can.
std::string StoreProblem(const ProfileStore& store);

/// The stored options that a subcommand goes by.
class StoredOptions {
  public:
    /// `ignored`: neither the user's nor the machine's count, the language included. Otherwise throws
    /// std::runtime_error where they cannot be read. The environment outlives this.
    StoredOptions(bool ignored, const ToolEnvironment& environment);
    StoredOptions(const StoredOptions&) = delete;
    StoredOptions& operator=(const StoredOptions&) = delete;

    ProfileStore& Store() { return store_; }

  private:
    MemoryProfileStore none_;
    ProfileStore& store_;
};

}  // namespace wxbrg::cli
