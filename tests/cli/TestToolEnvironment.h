#pragma once

#include <memory>
#include <sstream>

#include "aris/xml/XmlAutomation.h"
#include "aris/xml/XmlRepository.h"
#include "cli/ToolEnvironment.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/Signals.h"
#include "platform/posix/StagedFileSystem.h"
#include "platform/scripted/FixedClock.h"
#include "platform/scripted/MemoryLanguageLibraries.h"
#include "platform/scripted/MemoryProfileStore.h"
#include "platform/scripted/NoHelp.h"
#include "platform/scripted/NoProgress.h"
#include "platform/scripted/PlainUserLocale.h"
#include "platform/terminal/lines/TerminalFileDialog.h"
#include "platform/terminal/lines/TerminalMessageBox.h"
#include "platform/terminal/lines/TerminalOptionsFormView.h"

namespace wxbrg::cli {

/// What the command line tool stands on in a test: the real repositories and files, a store in memory, and
/// streams of texts. The dialogs read from `in` and write to `out`.
struct TestToolEnvironment {
    TestToolEnvironment() : TestToolEnvironment(profileStore) {}
    explicit TestToolEnvironment(ProfileStore& store)
        : environment{out,
                      err,
                      store,
                      languageLibraries,
                      clock,
                      userLocale,
                      fileSystem,
                      "/nowhere",
                      "wxbrg",
                      [](std::optional<std::uint32_t> number) -> std::unique_ptr<CodePage> {
                          const std::uint32_t wanted = number.value_or(65001);
                          if (!IconvCodePage::IsSupported(wanted)) return nullptr;
                          return std::make_unique<IconvCodePage>(wanted);
                      },
                      [] {
                          return std::make_unique<NoProgress>();
                      },
                      [this] {
                          return Dialogs{std::make_unique<TerminalMessageBox>(in, out),
                                         std::make_unique<TerminalFileDialog>(in, out),
                                         std::make_unique<TerminalOptionsFormView>(in, out),
                                         std::make_unique<NoHelp>()};
                      },
                      OpenXmlRepository,
                      [](const std::string& folder, aris::LoadProgress progress) {
                          return std::make_unique<XmlAutomation>(folder, "", std::move(progress));
                      },
                      [](aris::Catalogue& catalogue) {
                          return std::make_unique<CatalogueAutomation>(catalogue);
                      },
                      [this](const std::vector<StagedTarget>& targets, const StopRequests& stop) {
                          return StageFiles(fileSystem, targets, stop);
                      },
                      CatchStopSignals,
                      {},
                      XmlDatabaseFile} {}
    TestToolEnvironment(const TestToolEnvironment&) = delete;
    TestToolEnvironment& operator=(const TestToolEnvironment&) = delete;

    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    MemoryProfileStore profileStore;
    MemoryLanguageLibraries languageLibraries;
    FixedClock clock{LocalTime{}};
    PlainUserLocale userLocale;
    PosixFileSystem fileSystem;
    ToolEnvironment environment;
};

}  // namespace wxbrg::cli
