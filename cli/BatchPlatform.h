#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "cli/BatchDialogs.h"
#include "cli/ToolEnvironment.h"
#include "platform/Platform.h"
#include "platform/scripted/NoHelp.h"

namespace wxbrg::cli {

/// What a run that asks nobody does in a way of its own. What is a reference outlives the platform.
struct BatchSettings {
    ProfileStore& profileStore;
    CodePage& codePage;
    Progress& progress;
    std::ostream& boxes;                        ///< where boxes are printed
    std::string output = {};                    ///< what the file dialog gives
    std::optional<std::string> mappingProfile;  ///< as in `Platform`
    FileSystem* fileSystem = nullptr;           ///< null: that of the tool
};

/// The platform of a run with nobody to ask.
class BatchPlatform {
  public:
    BatchPlatform(const ToolEnvironment& environment, BatchSettings setting);
    BatchPlatform(const BatchPlatform&) = delete;
    BatchPlatform& operator=(const BatchPlatform&) = delete;

    Platform& Get() { return platform_; }

  private:
    PrintingMessageBox messageBox_;
    GivenFileDialog fileDialog_;
    AcceptingOptionsFormView optionsFormView_;
    NoHelp helpViewer_;
    Platform platform_;
};

}  // namespace wxbrg::cli
