#pragma once

#include <optional>
#include <string>

#include "platform/Clock.h"
#include "platform/CodePage.h"
#include "platform/FileDialog.h"
#include "platform/FileSystem.h"
#include "platform/HelpViewer.h"
#include "platform/LanguageLibrary.h"
#include "platform/MessageBox.h"
#include "platform/OptionsFormView.h"
#include "platform/ProfileStore.h"
#include "platform/Progress.h"
#include "platform/UserLocale.h"

namespace wxbrg {

/// Everything a run needs of the system it runs on. A front end fills it in; all of it outlives the run.
struct Platform {
    ProfileStore& profileStore;
    LanguageLibraries& languageLibraries;
    CodePage& codePage;
    Clock& clock;
    UserLocale& userLocale;
    FileSystem& fileSystem;
    MessageBox& messageBox;
    FileDialog& fileDialog;
    OptionsFormView& optionsFormView;
    HelpViewer& helpViewer;
    Progress& progress;
    std::string programDirectory;  ///< folder of the running program, without a separator at its end
    std::string programName;       ///< its file name without extension
    /// The mapping profile of this run in place of the one beside the program; empty: none at all.
    std::optional<std::string> mappingProfile = {};
};

}  // namespace wxbrg
