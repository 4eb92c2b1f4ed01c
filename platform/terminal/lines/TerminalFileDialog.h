#pragma once

#include <filesystem>

#include "platform/FileDialog.h"
#include "platform/terminal/lines/Terminal.h"

namespace wxbrg {

/// The save-file dialog as questions by the line. It keeps to these settings: the initial directory, against
/// which a relative name counts; the proposed name, taken by an empty line unless it is a pattern ("*.wpx");
/// the default extension; and the flags for the overwrite question, for the question before a new file is
/// made, for a folder that must exist, for a file that must be writable and for the help, which "h" shows.
/// "c" cancels, and so does the end of the input.
class TerminalFileDialog : public FileDialog {
  public:
    TerminalFileDialog(std::istream& in, std::ostream& out) : terminal_(in, out) {}

    /// Throws std::runtime_error where it is asked once more after the input has ended: no answer can come.
    std::optional<std::string> AskSaveName(const FileDialogSettings& settings) override;

  private:
    /// The file that a name stands for. Nothing for an empty name and, with a word to the user, a pattern.
    std::optional<std::filesystem::path> FileOf(const std::string& name, const FileDialogSettings& settings);
    /// Whether the file may be taken, by the flags and the user's answers; says why not.
    bool Accept(const std::filesystem::path& file, const FileDialogSettings& settings);
    /// Whether an existing file may be taken.
    bool AcceptExisting(const std::filesystem::path& file, const FileDialogSettings& settings);
    /// Whether the user answers Yes; the end of the input is a No.
    bool Agrees(const std::string& question);

    Terminal terminal_;
    bool inputHasEnded_ = false;
};

}  // namespace wxbrg
