// Puts together what the program needs of a POSIX system, and of the repository providers that are there.

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "aris/xml/XmlAutomation.h"
#include "aris/xml/XmlRepository.h"
#include "cli/System.h"
#include "options/MessageTexts.h"
#include "platform/Path.h"
#include "platform/posix/DlDesktop.h"
#include "platform/posix/DlLanguageLibraries.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixProfileStore.h"
#include "platform/posix/PosixUserLocale.h"
#include "platform/posix/ProgramLocation.h"
#include "platform/posix/Signals.h"
#include "platform/posix/StagedFileSystem.h"
#include "platform/posix/SystemClock.h"
#include "platform/scripted/NoProgress.h"
#include "platform/terminal/form/CursesScreen.h"
#include "platform/terminal/form/ScreenOptionsFormView.h"
#include "platform/terminal/lines/TerminalFileDialog.h"
#include "platform/terminal/lines/TerminalHelpViewer.h"
#include "platform/terminal/lines/TerminalMessageBox.h"
#include "platform/terminal/lines/TerminalProgress.h"
#include "support/TerminalText.h"

namespace wxbrg::cli {

namespace {

constexpr std::uint32_t utf8CodePage = 65001;

std::unique_ptr<CodePage> OpenCodePage(std::optional<std::uint32_t> number) {
    const std::uint32_t wanted = number.value_or(utf8CodePage);
    if (!IconvCodePage::IsSupported(wanted)) return nullptr;
    return std::make_unique<IconvCodePage>(wanted);
}

std::unique_ptr<Progress> ShowProgress() {
    if (isatty(STDERR_FILENO) == 0) return std::make_unique<NoProgress>();
    return std::make_unique<TerminalProgress>(std::cerr);
}

Dialogs MakeTerminalDialogs(const std::string& helpFolder) {
    return {std::make_unique<TerminalMessageBox>(std::cin, std::cout),
            std::make_unique<TerminalFileDialog>(std::cin, std::cout),
            std::make_unique<ScreenOptionsFormView>(std::cin, std::cout, OpenCursesScreen),
            std::make_unique<TerminalHelpViewer>(std::cout, helpFolder)};
}

/// The dialogs of the desktop; where there are none, those of the terminal, and a line that says why.
Dialogs MakeDialogs(const ProgramLocation& program, const ProfileStore& profileStore) {
    std::variant<Dialogs, NoDesktop> opened =
        OpenDesktop(program.directory, {StoredLanguage(profileStore), program.directory});
    if (auto* const dialogs = std::get_if<Dialogs>(&opened)) return std::move(*dialogs);
    std::cerr << "wxbrg: " << Printable(std::get<NoDesktop>(opened).reason)
              << "; the terminal is used instead.\n";
    return MakeTerminalDialogs(program.directory);
}

std::unique_ptr<aris::Automation> OpenFolder(const std::string& folder, aris::LoadProgress progress) {
    return std::make_unique<XmlAutomation>(folder, std::string(), std::move(progress));
}

std::unique_ptr<aris::Automation> OpenCatalogue(aris::Catalogue& catalogue) {
    return std::make_unique<CatalogueAutomation>(catalogue);
}

std::vector<std::string> OptionFiles() {
    const ProfileStoreFiles files = DefaultProfileStoreFiles();
    return {TextOf(files.user), TextOf(files.machine)};
}

class PosixSystem : public System {
  public:
    std::vector<std::string> Arguments(int argc, char** argv) const override {
        return {argv + std::min(argc, 1), argv + argc};
    }
    const ToolEnvironment& Environment() const override { return environment_; }

  private:
    const ProgramLocation program_ = RunningProgram();
    PosixProfileStore profileStore_{DefaultProfileStoreFiles()};
    DlLanguageLibraries languageLibraries_{program_.directory};
    SystemClock clock_;
    PosixUserLocale userLocale_;
    PosixFileSystem fileSystem_;
    const ToolEnvironment environment_{
        .out = std::cout,
        .err = std::cerr,
        .profileStore = profileStore_,
        .languageLibraries = languageLibraries_,
        .clock = clock_,
        .userLocale = userLocale_,
        .fileSystem = fileSystem_,
        .programDirectory = program_.directory,
        .programName = program_.name,
        .codePage = OpenCodePage,
        .progress = ShowProgress,
        .dialogs =
            [this] {
                return MakeDialogs(program_, profileStore_);
            },
        .openRepository = OpenXmlRepository,
        .folderAutomation = OpenFolder,
        .catalogueAutomation = OpenCatalogue,
        .stageFiles =
            [this](const std::vector<StagedTarget>& targets, const StopRequests& stop) {
                return StageFiles(fileSystem_, targets, stop);
            },
        .catchStopRequests = CatchStopSignals,
        .optionFiles = OptionFiles(),
        .databaseFile = XmlDatabaseFile};
};

}  // namespace

std::unique_ptr<System> OpenSystem() {
    SetSignals();
    return std::make_unique<PosixSystem>();
}

}  // namespace wxbrg::cli
