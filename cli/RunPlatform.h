#pragma once

#include <optional>
#include <string>

#include "cli/ToolEnvironment.h"
#include "platform/Platform.h"

namespace wxbrg::cli {

/// What a run has of its own; all of it outlives the run. Where a pointer is null, and where a text is not
/// given, what the tool runs on counts.
struct RunParts {
    CodePage& codePage;
    MessageBox& messageBox;
    FileDialog& fileDialog;
    OptionsFormView& optionsFormView;
    HelpViewer& helpViewer;
    Progress& progress;

    ProfileStore* profileStore = nullptr;
    UserLocale* userLocale = nullptr;
    FileSystem* fileSystem = nullptr;
    std::optional<std::string> programDirectory = {};
    std::optional<std::string> programName = {};
    std::optional<std::string> mappingProfile = {};  ///< as in `Platform`
};

/// The platform of a run of the tool.
Platform PlatformOf(const ToolEnvironment& environment, RunParts parts);

}  // namespace wxbrg::cli
