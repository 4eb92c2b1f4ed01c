#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "aris/Repository.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/scripted/FixedClock.h"
#include "platform/scripted/MemoryFileSystem.h"
#include "platform/scripted/MemoryLanguageLibraries.h"
#include "platform/scripted/MemoryProfileStore.h"
#include "platform/scripted/NoHelp.h"
#include "platform/scripted/NoProgress.h"
#include "platform/scripted/PlainUserLocale.h"
#include "platform/scripted/ScriptedFileDialog.h"
#include "platform/scripted/ScriptedMessageBox.h"
#include "platform/scripted/ScriptedOptionsFormView.h"
#include "run/RunExport.h"

namespace wxbrg::bench {

/// Runs of the export without a user: the options and rules are the default ones, files lie in memory unless
/// told otherwise, and the text of each message is "%1$s|%2$s|%3$s|%4$s".
class SilentRun {
  public:
    SilentRun();
    /// Writes the definition file `output`, and the log beside it, into a file system that outlives this.
    SilentRun(FileSystem& files, std::string output);
    ~SilentRun();
    SilentRun(const SilentRun&) = delete;
    SilentRun& operator=(const SilentRun&) = delete;

    /// One whole run on the models, in English.
    RunReport Export(aris::Automation& automation, std::vector<ARISModel> models,
                     std::size_t stackSize = runStackSize);

    /// Makes the global block anew, as a run has it when it begins to look for objects. Lasts until the next
    /// call or run.
    void Begin();

    /// The lines of the log, where it lies in memory.
    std::vector<std::string> LogLines() const;
    const std::vector<ShownBox>& Boxes() const { return messageBox_.Boxes(); }

  private:
    MemoryFileSystem memory_;
    std::string output_;
    MemoryProfileStore profileStore_;
    MemoryLanguageLibraries languageLibraries_;
    IconvCodePage codePage_{65001};
    FixedClock clock_{LocalTime{}};
    PlainUserLocale userLocale_;
    AnswerScript script_{{}};
    ScriptedMessageBox messageBox_{script_};
    ScriptedFileDialog fileDialog_{script_};
    ScriptedOptionsFormView optionsFormView_{script_};
    NoHelp helpViewer_;
    NoProgress progress_;
    Platform platform_;
};

}  // namespace wxbrg::bench
