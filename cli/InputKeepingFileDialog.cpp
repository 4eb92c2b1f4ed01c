#include "cli/InputKeepingFileDialog.h"

#include <algorithm>
#include <utility>

#include "platform/FileIdentity.h"
#include "platform/Path.h"
#include "run/clsIOHandler.h"
#include "support/Failure.h"

namespace wxbrg::cli {

namespace {

/// The files that a run empties for a name of the definition file. A name too short for a log has none.
std::vector<std::string> FilesWrittenFor(const std::string& name) {
    std::vector<std::string> files{name};
    try {
        files.push_back(LogFileNameOf(name));
    } catch (const Failure& failure) {
        if (failure.Number != FailureKind::invalidCall) throw;
    }
    return files;
}

}  // namespace

InputKeepingFileDialog::InputKeepingFileDialog(FileDialog& asking,
                                               std::function<std::vector<InputFile>()> inputs,
                                               std::filesystem::path folder,
                                               std::function<void(const std::string& name)> refused)
    : asking_(asking), inputs_(std::move(inputs)), folder_(std::move(folder)), refused_(std::move(refused)) {}

bool InputKeepingFileDialog::IsInput(const std::string& name) const {
    const std::vector<InputFile> inputs = inputs_();
    const std::vector<std::string> written = FilesWrittenFor(name);
    return std::any_of(written.begin(), written.end(), [&](const std::string& file) {
        return std::any_of(inputs.begin(), inputs.end(), [&](const InputFile& input) {
            return !input.name.empty() && IsSameFile(folder_ / PathOf(file), PathOf(input.name));
        });
    });
}

std::optional<std::string> InputKeepingFileDialog::AskSaveName(const FileDialogSettings& settings) {
    FileDialogSettings keeping = settings;
    keeping.isInput = [this](const std::string& name) {
        const bool refused = IsInput(name);
        if (refused && refused_) refused_(name);
        return refused;
    };
    return asking_.AskSaveName(keeping);
}

}  // namespace wxbrg::cli
