#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <exception>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "aris/xml/XmlAutomation.h"
#include "aris/xml/XmlRepository.h"
#include "cli/ExitStatus.h"
#include "cli/Program.h"
#include "options/MessageTexts.h"
#include "platform/posix/DlDesktop.h"
#include "platform/posix/DlLanguageLibraries.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixProfileStore.h"
#include "platform/posix/PosixUserLocale.h"
#include "platform/posix/ProgramLocation.h"
#include "platform/posix/SystemClock.h"
#include "platform/scripted/NoProgress.h"
#include "platform/terminal/lines/TerminalFileDialog.h"
#include "platform/terminal/lines/TerminalHelpViewer.h"
#include "platform/terminal/lines/TerminalMessageBox.h"
#include "platform/terminal/lines/TerminalOptionsFormViews.h"
#include "platform/terminal/lines/TerminalProgress.h"

namespace {

using namespace wxbrg;

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
            MakeTerminalOptionsFormView(std::cin, std::cout),
            std::make_unique<TerminalHelpViewer>(std::cout, helpFolder)};
}

/// The dialogs of the desktop; where there are none, those of the terminal, and a line that says why.
Dialogs MakeDialogs(const ProgramLocation& program, const ProfileStore& profileStore) {
    std::variant<Dialogs, NoDesktop> opened =
        OpenDesktop(program.directory, {StoredLanguage(profileStore), program.directory});
    if (auto* const dialogs = std::get_if<Dialogs>(&opened)) return std::move(*dialogs);
    std::cerr << "wxbrg: " << std::get<NoDesktop>(opened).reason << "; the terminal is used instead.\n";
    return MakeTerminalDialogs(program.directory);
}

std::unique_ptr<aris::Automation> OpenFolder(const std::string& folder, aris::LoadProgress progress) {
    return std::make_unique<XmlAutomation>(folder, std::string(), std::move(progress));
}

std::unique_ptr<aris::Automation> OpenCatalogue(aris::Catalogue& catalogue) {
    return std::make_unique<CatalogueAutomation>(catalogue);
}

int Run(const std::vector<std::string>& arguments) {
    // A file that meets the limit on its size is then a failed write, with its box, and no sudden end.
    std::signal(SIGXFSZ, SIG_IGN);
    const ProgramLocation program = RunningProgram();
    PosixProfileStore profileStore(DefaultProfileStoreFiles());
    DlLanguageLibraries languageLibraries(program.directory);
    SystemClock clock;
    PosixUserLocale userLocale;
    PosixFileSystem fileSystem;
    const cli::ToolEnvironment environment{.out = std::cout,
                                           .err = std::cerr,
                                           .profileStore = profileStore,
                                           .languageLibraries = languageLibraries,
                                           .clock = clock,
                                           .userLocale = userLocale,
                                           .fileSystem = fileSystem,
                                           .programDirectory = program.directory,
                                           .programName = program.name,
                                           .codePage = OpenCodePage,
                                           .progress = ShowProgress,
                                           .dialogs =
                                               [&] {
                                                   return MakeDialogs(program, profileStore);
                                               },
                                           .openRepository = OpenXmlRepository,
                                           .folderAutomation = OpenFolder,
                                           .catalogueAutomation = OpenCatalogue};
    return cli::RunProgram(arguments, environment);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(std::vector<std::string>(argv + std::min(argc, 1), argv + argc));
    } catch (const std::exception& error) {
        std::cerr << "wxbrg: " << error.what() << '\n';
        return cli::ExitStatus::failure;
    }
}
