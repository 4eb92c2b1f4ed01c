#include "platform/terminal/lines/TerminalFileDialog.h"

#include <fstream>
#include <stdexcept>
#include <system_error>

#include "platform/Path.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

/// Whether an existing file can be opened for writing; it is not changed.
bool IsWritable(const std::filesystem::path& file) {
    return std::fstream(file, std::ios::in | std::ios::out | std::ios::binary).is_open();
}

}  // namespace

std::optional<std::string> TerminalFileDialog::AskSaveName(const FileDialogSettings& settings) {
    if (inputHasEnded_) throw std::runtime_error("the input ended before a file was named");
    const std::string proposed = IsPattern(settings.fileName) ? std::string() : settings.fileName;
    terminal_.Tell("");
    if (!settings.initialDirectory.empty()) terminal_.Tell("Folder: " + settings.initialDirectory);
    const std::string prompt =
        "Output file (" + (proposed.empty() ? std::string() : "Enter: " + proposed + ", ") + "c: cancel): ";
    for (;;) {
        const std::optional<std::string> answer = terminal_.Ask(prompt);
        inputHasEnded_ = !answer;
        if (!answer || UpperCase(*answer) == "C") return std::nullopt;
        std::string name = answer->empty() ? proposed : *answer;
        if (name.empty()) continue;
        if (IsPattern(name)) {
            terminal_.Tell(name + " is a pattern; please give the name of a file.");
            continue;
        }
        name = WithDefaultExtension(std::move(name), settings.defaultExtension);
        const std::filesystem::path file = PathOf(settings.initialDirectory) / PathOf(name);
        if (Accept(file, settings.flags)) return TextOf(file);
        if (inputHasEnded_) return std::nullopt;
    }
}

bool TerminalFileDialog::Accept(const std::filesystem::path& file, std::int32_t flags) {
    std::error_code error;
    if (std::filesystem::is_directory(file, error)) {
        terminal_.Tell(TextOf(file) + " is a folder; please give the name of a file.");
        return false;
    }
    const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
    if ((flags & FileDialogFlag::pathMustExist) != 0 && !std::filesystem::is_directory(folder, error)) {
        terminal_.Tell("There is no folder " + TextOf(folder) + "; please check the name.");
        return false;
    }
    return !std::filesystem::exists(file, error) || AcceptExisting(file, flags);
}

bool TerminalFileDialog::AcceptExisting(const std::filesystem::path& file, std::int32_t flags) {
    if ((flags & FileDialogFlag::noReadOnlyReturn) != 0 && !IsWritable(file)) {
        terminal_.Tell(TextOf(file) + " cannot be written; please choose another name.");
        return false;
    }
    if ((flags & FileDialogFlag::overwritePrompt) == 0) return true;
    const std::optional<bool> answer = terminal_.AskYesOrNo(TextOf(file) + " already exists. Replace it?");
    inputHasEnded_ = !answer;
    return answer.value_or(false);
}

}  // namespace wxbrg
