#include "platform/scripted/ScriptedFileDialog.h"

#include <utility>

namespace wxbrg {

std::optional<std::string> ScriptedFileDialog::AskSaveName(const FileDialogSettings& settings) {
    for (;;) {
        ScriptedAnswer answer = script_.TakeForFile();
        if (answer.action == ScriptedAction::cancelFile) return std::nullopt;
        std::string name = WithDefaultExtension(std::move(answer.text), settings.defaultExtension);
        if (!settings.Refuses(name)) return name;
    }
}

}  // namespace wxbrg
