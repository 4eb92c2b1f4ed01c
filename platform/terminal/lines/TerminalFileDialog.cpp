#include "platform/terminal/lines/TerminalFileDialog.h"

#include <stdexcept>
#include <system_error>

#include "platform/Path.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::string_view cancelLetter = "C";
constexpr std::string_view helpLetter = "H";

std::string PromptOf(const FileDialogSettings& settings, const std::string& proposed) {
    std::string prompt = "Output file (";
    if (!proposed.empty()) prompt += "Enter: " + proposed + ", ";
    if (settings.Has(FileDialogFlag::showHelp)) prompt += "h: help, ";
    return prompt + "c: cancel): ";
}

}  // namespace

std::optional<std::string> TerminalFileDialog::AskSaveName(const FileDialogSettings& settings) {
    if (inputHasEnded_) throw std::runtime_error("the input ended before a file was named");
    const std::string proposed = IsPattern(settings.fileName) ? std::string() : settings.fileName;
    terminal_.Print("");
    if (!settings.initialDirectory.empty()) terminal_.Print("Folder: " + settings.initialDirectory);
    for (;;) {
        const std::optional<std::string> answer = terminal_.Ask(PromptOf(settings, proposed));
        inputHasEnded_ = !answer;
        if (!answer || UpperCase(*answer) == cancelLetter) return std::nullopt;
        if (settings.Has(FileDialogFlag::showHelp) && UpperCase(*answer) == helpLetter) {
            settings.help();
            continue;
        }
        const std::optional<std::filesystem::path> file =
            FileOf(answer->empty() ? proposed : *answer, settings);
        if (file && Accept(*file, settings)) return TextOf(*file);
        if (inputHasEnded_) return std::nullopt;
    }
}

std::optional<std::filesystem::path> TerminalFileDialog::FileOf(const std::string& name,
                                                                const FileDialogSettings& settings) {
    if (name.empty()) return std::nullopt;
    if (IsPattern(name)) {
        terminal_.Print(name + " is a pattern; please give the name of a file.");
        return std::nullopt;
    }
    return PathOf(settings.initialDirectory) / PathOf(WithDefaultExtension(name, settings.defaultExtension));
}

bool TerminalFileDialog::Accept(const std::filesystem::path& file, const FileDialogSettings& settings) {
    std::error_code error;
    if (std::filesystem::is_directory(file, error)) {
        terminal_.Print(TextOf(file) + " is a folder; please give the name of a file.");
        return false;
    }
    const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
    if (settings.Has(FileDialogFlag::pathMustExist) && !std::filesystem::is_directory(folder, error)) {
        terminal_.Print("There is no folder " + TextOf(folder) + "; please check the name.");
        return false;
    }
    if (settings.Refuses(TextOf(file))) {
        terminal_.Print(TextOf(file) +
                        " or its log would overwrite a file that the export reads; please choose "
                        "another name.");
        return false;
    }
    if (std::filesystem::exists(file, error)) return AcceptExisting(file, settings);
    return !settings.Has(FileDialogFlag::createPrompt) ||
           Agrees(TextOf(file) + " does not exist. Create it?");
}

bool TerminalFileDialog::AcceptExisting(const std::filesystem::path& file,
                                        const FileDialogSettings& settings) {
    if (settings.Has(FileDialogFlag::noReadOnlyReturn) && !IsWritable(file)) {
        terminal_.Print(TextOf(file) + " cannot be written; please choose another name.");
        return false;
    }
    return !settings.Has(FileDialogFlag::overwritePrompt) ||
           Agrees(TextOf(file) + " already exists. Replace it?");
}

bool TerminalFileDialog::Agrees(const std::string& question) {
    const std::optional<bool> answer = terminal_.AskYesOrNo(question);
    inputHasEnded_ = !answer;
    return answer.value_or(false);
}

}  // namespace wxbrg
