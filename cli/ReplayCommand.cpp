#include "cli/ReplayCommand.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "cli/CauseText.h"
#include "cli/ExitStatus.h"
#include "cli/FolderFileSystem.h"
#include "cli/InputKeepingFileDialog.h"
#include "cli/ReplayCase.h"
#include "cli/RepositoryFileAutomation.h"
#include "cli/RunOutcome.h"
#include "cli/RunPlatform.h"
#include "cli/Transcript.h"
#include "cli/UsageError.h"
#include "options/MessageTexts.h"
#include "options/OptionTable.h"
#include "platform/Path.h"
#include "platform/scripted/AnswerScript.h"
#include "platform/scripted/MemoryProfileStore.h"
#include "platform/scripted/NoHelp.h"
#include "platform/scripted/NoProgress.h"
#include "platform/scripted/PlainUserLocale.h"
#include "platform/scripted/ScriptedFileDialog.h"
#include "platform/scripted/ScriptedMessageBox.h"
#include "platform/scripted/ScriptedOptionsFormView.h"
#include "run/RunExport.h"

namespace wxbrg::cli {

namespace {

namespace fs = std::filesystem;

/// The name under which a run looks for the mapping profile of a case, in the case's folder.
constexpr const char* profileStem = "profile";

/// Reads a part of the case; what is wrong with it is reported with the file's name.
template <class Read>
auto ReadPart(const fs::path& file, const Read& read) {
    try {
        return read();
    } catch (const ScriptError& error) {
        throw UsageError(TextOf(file) + ": " + error.what() + ".");
    }
}

MemoryProfileStore StoreOf(const ReplayCase& given, const fs::path& folder) {
    MemoryProfileStore store;
    ReadPart(folder / "options", [&] {
        store.Load(ProfileScope::user, programKey, given.options);
    });
    ReadPart(folder / "machine-options", [&] {
        store.Load(ProfileScope::machine, programKey, given.machineOptions);
    });
    return store;
}

std::unique_ptr<CodePage> CodePageOf(const ReplayCase& given, const ToolEnvironment& environment) {
    std::unique_ptr<CodePage> codePage = environment.codePage(given.codePage);
    if (!codePage)
        throw UsageError("The case asks for the code page " + std::to_string(given.codePage) +
                         ", which this system does not have.");
    return codePage;
}

void MakeOutFolder(const fs::path& out, const fs::path& caseFolder) {
    fs::create_directories(out);
    if (fs::equivalent(out, caseFolder))
        throw UsageError("The output would go into the case itself; give another folder with --out.");
}

void WriteOptions(const MemoryProfileStore& store, const fs::path& file, FileSystem& files) {
    const std::unique_ptr<File> opened = files.Open(TextOf(file), FileAccess::empty);
    opened->Write(store.Dump(ProfileScope::user, programKey));
    opened->Close();
}

/// A case that was read, made ready to run.
struct ReadyCase {
    ReplayCase given;
    MemoryProfileStore store;
    AnswerScript script;
    std::unique_ptr<CodePage> codePage;
};

ReadyCase MakeReady(const fs::path& folder, const ToolEnvironment& environment) {
    ReplayCase given = ReadReplayCase(folder);
    MemoryProfileStore store = StoreOf(given, folder);
    AnswerScript script = ReadPart(folder / "answers", [&] {
        return AnswerScript::Parse(given.answers);
    });
    std::unique_ptr<CodePage> codePage = CodePageOf(given, environment);
    return {std::move(given), std::move(store), std::move(script), std::move(codePage)};
}

/// The files that a run of the case reads.
std::vector<InputFile> InputsOf(const fs::path& folder, const ToolEnvironment& environment,
                                const ProfileStore& store) {
    std::vector<InputFile> files = CommonInputFiles(environment, StoredLanguage(store), std::string());
    for (const char* const name :
         {"repository.aml", "command", "options", "machine-options", "answers", "code-page"})
        files.push_back({"a file of the case", TextOf(fs::absolute(folder) / name)});
    return files;
}

RunReport RunCase(ReadyCase& ready, const fs::path& folder, const fs::path& out,
                  const ToolEnvironment& environment) {
    PlainUserLocale userLocale;
    FolderFileSystem files(environment.fileSystem, out);
    ScriptedMessageBox answeringBox(ready.script);
    TranscribingMessageBox messageBox(answeringBox, environment.out);
    ScriptedFileDialog answeringDialog(ready.script);
    InputKeepingFileDialog fileDialog(
        answeringDialog,
        [&] {
            return InputsOf(folder, environment, ready.store);
        },
        out,
        [&](const std::string& name) {
            TranscribeRefusal(name, environment.out);
        });
    ScriptedOptionsFormView optionsFormView(ready.script);
    NoHelp helpViewer;
    NoProgress progress;
    Platform platform = PlatformOf(environment, {.codePage = *ready.codePage,
                                                 .messageBox = messageBox,
                                                 .fileDialog = fileDialog,
                                                 .optionsFormView = optionsFormView,
                                                 .helpViewer = helpViewer,
                                                 .progress = progress,
                                                 .profileStore = &ready.store,
                                                 .userLocale = &userLocale,
                                                 .fileSystem = &files,
                                                 .programDirectory = TextOf(fs::absolute(folder)),
                                                 .programName = profileStem});
    RepositoryFileAutomation automation(environment.openRepository, TextOf(ready.given.repository));
    RunRequest request;
    request.commandLine = ready.given.commandLine;
    return RunExport(request, platform, automation);
}

}  // namespace

int RunReplayCommand(const ReplayArguments& given, const ToolEnvironment& environment) {
    const fs::path folder = PathOf(given.caseFolder);
    const fs::path out = PathOf(given.outFolder);
    ReadyCase ready = MakeReady(folder, environment);
    MakeOutFolder(out, folder);
    const RunReport report = RunCase(ready, folder, out, environment);
    if (const std::optional<std::string>& error = ready.script.Error())
        throw UsageError(TextOf(folder / "answers") + ": " + *error + ".");
    TranscribeEnding(report, environment.out);
    ReportProgramFailure(report, environment.err);
    ReportCause(report, environment.err);
    WriteOptions(ready.store, out / "options", environment.fileSystem);
    return ExitStatus::normal;
}

}  // namespace wxbrg::cli
