#include "run/clsIOHandler.h"

#include <optional>

#include "options/OptionTable.h"
#include "options/StoredValues.h"
#include "options/modHelp.h"
#include "run/Frame.h"
#include "run/clsExceptionHandler.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

FileAccess AccessOf(std::int16_t mode) {
    switch (mode) {
        case FileMode::read:
            return FileAccess::read;
        case FileMode::write:
            return FileAccess::empty;
        case FileMode::append:
            return FileAccess::append;
        default:
            Fail(Message::unknownFileMode, std::to_string(mode));
    }
}

/// Every line with CR LF behind it.
std::string WithLineEnds(std::string_view text) {
    std::string result;
    result.reserve(text.size() + lineEnd.size());
    while (!text.empty()) {
        const std::size_t end = text.find_first_of(lineEnd);
        result.append(text.substr(0, end)).append(lineEnd);
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + (text.substr(end).starts_with(lineEnd) ? lineEnd.size() : 1));
    }
    return result;
}

FileDialogSettings DialogSettings() {
    FileDialogSettings settings;
    settings.flags = FileDialogFlag::overwritePrompt + FileDialogFlag::hideReadOnly +
                     FileDialogFlag::showHelp + FileDialogFlag::pathMustExist + FileDialogFlag::createPrompt +
                     FileDialogFlag::noReadOnlyReturn + FileDialogFlag::explorer;
    settings.initialDirectory = TextOf(GetProfileValue(toolIntegrationKey, "OutputPath"));
    settings.fileName = TextOf(GetProfileValue(toolIntegrationKey, "OutputFileName"));
    if (settings.fileName.empty()) settings.fileName = "*.wpx";
    settings.filter = "Workplex Files (*.wpx)|*.wpx|All Files (*.*)|*.*";
    settings.defaultExtension = "wpx";
    settings.filterIndex = 1;
    settings.help = [] {
        gBlock.gPlatform->helpViewer.ShowPage(gBlock.gHelpFile, outputFileHelpNumber);
    };
    return settings;
}

}  // namespace

std::string LogFileNameOf(std::string_view definitionName) {
    constexpr std::size_t extension = 4;
    if (CharacterCount(definitionName) < extension)
        throw Failure(FailureKind::invalidCall)
            .Because({FailureCause::Kind::nameTooShort, {}, std::string(definitionName)});
    return std::string(WithoutLast(definitionName, extension)).append(".log");
}

const std::string& clsIOHandler::NameOr(const std::string& FileName) const {
    return FileName.empty() ? sOutputFileName : FileName;
}

void clsIOHandler::AllocateFile(const std::string& FileName) {
    Procedure("clsIOHandler.AllocateFile", [&](Frame&) {
        std::int16_t number = 0;
        OpenFile(NameOr(FileName), FileMode::write, number);
        CloseFile(number);
    });
}

void clsIOHandler::WriteFile(const std::string& Text, const std::string& FileName) {
    Procedure("clsIOHandler.WriteFile", [&](Frame&) {
        std::int16_t number = 0;
        OpenFile(NameOr(FileName), FileMode::append, number);
        if (number == 0) return;
        openFiles_.at(number)->Write(gBlock.gPlatform->codePage.ToBytes(Text).append(lineEnd));
        CloseFile(number);
    });
}

std::string clsIOHandler::ReadFile(const std::string& FileName) {
    return Procedure("clsIOHandler.ReadFile", [&](Frame&) {
        std::int16_t number = 0;
        OpenFile(NameOr(FileName), FileMode::read, number);
        if (number == 0) return std::string();
        const std::string bytes = openFiles_.at(number)->ReadAll();
        CloseFile(number);
        if (!bytes.starts_with(utf8Mark)) return WithLineEnds(gBlock.gPlatform->codePage.ToText(bytes));
        return WithLineEnds(ValidUtf8(std::string_view(bytes).substr(utf8Mark.size())));
    });
}

void clsIOHandler::OpenFile(const std::string& FileName, std::int16_t Mode, std::int16_t& FileNumber) {
    Procedure("clsIOHandler.OpenFile", [&](Frame&) {
        std::int16_t number = 1;
        while (openFiles_.contains(number)) ++number;
        openFiles_[number] = gBlock.gPlatform->fileSystem.Open(FileName, AccessOf(Mode));
        FileNumber = number;
    });
}

void clsIOHandler::CloseFile(std::int16_t FileNumber) {
    Procedure("clsIOHandler.CloseFile", [&](Frame&) {
        const auto open = openFiles_.find(FileNumber);
        if (open == openFiles_.end()) return;
        const std::unique_ptr<File> file = std::move(open->second);
        openFiles_.erase(open);
        file->Close();
    });
}

bool clsIOHandler::FileExists(const std::string& FileName) {
    return Procedure("clsIOHandler.FileExists", [&](Frame&) {
        gBlock.gFailureContext = "Open file";
        try {
            gBlock.gPlatform->fileSystem.Open(FileName, FileAccess::read)->Close();
            return true;
        } catch (const Failure& failure) {
            if (failure.Number != FailureKind::fileNotFound) throw;
            gBlock.gFailureContext = "failed";
            return false;
        }
    });
}

std::string clsIOHandler::AskOutputFile(Frame& frame) {
    const FileDialogSettings settings = DialogSettings();
    std::string name;
    frame.Step([&] {
        std::optional<std::string> chosen = gBlock.gPlatform->fileDialog.AskSaveName(settings);
        if (!chosen) throw Failure(CancelNumber::fileDialog);
        name = std::move(*chosen);
    });
    return name;
}

std::string clsIOHandler::FileSelectDialog() {
    return Procedure("clsIOHandler.FileSelectDialog", [&](Frame& frame) {
        sOutputFileName = AskOutputFile(frame);
        AllocateFile(sOutputFileName);
        sLogFileName = LogFileNameOf(sOutputFileName);
        AllocateFile(sLogFileName);
        return sOutputFileName;
    });
}

void clsIOHandler::WriteLog(const std::string& Text) {
    Procedure("clsIOHandler.WriteLog", [&](Frame&) {
        WriteFile(Text, sLogFileName);
    });
}

}  // namespace wxbrg
