#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "aris/Catalogue.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"
#include "platform/StagedFiles.h"
#include "platform/StopRequests.h"

namespace wxbrg::cli {

/// What the command line tool needs of the system and of the repository providers. Only the place that puts
/// them together (cli/System.h) knows their classes. What is a reference outlives the tool.
struct ToolEnvironment {
    std::ostream& out;
    std::ostream& err;

    ProfileStore& profileStore;
    LanguageLibraries& languageLibraries;
    Clock& clock;
    UserLocale& userLocale;
    FileSystem& fileSystem;
    std::string programDirectory;  ///< as in `Platform`
    std::string programName;       ///< as in `Platform`

    /// The code page of a number; the system's active one where none is given. Null where the system has none
    /// of that number.
    std::function<std::unique_ptr<CodePage>(std::optional<std::uint32_t>)> codePage;
    /// Shows progress where the standard error is a terminal, from one second after this call on, and nothing
    /// elsewhere. An empty stage takes away what is shown.
    std::function<std::unique_ptr<Progress>()> progress;
    /// Opens the dialogs of an interactive run, on a desktop where there is one.
    std::function<Dialogs()> dialogs;

    aris::RepositoryFactory openRepository;
    /// An ARIS whose databases are the exports in a folder: "orders" is the file "orders.aml" there. An empty
    /// folder is the working directory.
    std::function<std::unique_ptr<aris::Automation>(const std::string& folder, aris::LoadProgress progress)>
        folderAutomation;
    /// An ARIS whose one database, under any name, is an opened repository, which outlives it.
    std::function<std::unique_ptr<aris::Automation>(aris::Catalogue& catalogue)> catalogueAutomation;

    /// Stages the files of a run over `fileSystem`. The requests to stop outlive them. Throws
    /// `TargetRefused`, `TargetBusy` and `Failure`.
    std::function<std::unique_ptr<StagedFiles>(const std::vector<StagedTarget>& targets,
                                               const StopRequests& stop)>
        stageFiles;
    /// From this call until the result goes, requests to end the program are kept for the run to obey.
    std::function<std::unique_ptr<StopRequests>()> catchStopRequests;
    /// The files that stored options are in, where they are in files.
    std::vector<std::string> optionFiles;
    /// The file that is a database of `folderAutomation`.
    std::function<std::string(const std::string& folder, const std::string& database)> databaseFile;
};

}  // namespace wxbrg::cli
