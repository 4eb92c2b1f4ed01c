#include "platform/scripted/ScriptedFileDialog.h"

#include <utility>

namespace wxbrg {

std::optional<std::string> ScriptedFileDialog::AskSaveName(const FileDialogSettings& settings) {
    ScriptedAnswer answer = script_.TakeForFile();
    if (answer.action == ScriptedAction::cancelFile) return std::nullopt;
    return WithDefaultExtension(std::move(answer.text), settings.defaultExtension);
}

}  // namespace wxbrg
