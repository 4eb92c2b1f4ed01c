#pragma once

#include <filesystem>

#include "platform/FileDialog.h"
#include "platform/terminal/lines/Terminal.h"

namespace wxbrg {

/// The save-file dialog as questions by the line. It keeps to these settings: the initial directory, against
/// which a relative name counts; the proposed name, taken by an empty line unless it is a pattern ("*.wpx");
/// the default extension; and the flags for the overwrite question, for a folder that must exist and for a
/// file that must be writable. "c" cancels, and so does the end of the input.
class TerminalFileDialog : public FileDialog {
  public:
    TerminalFileDialog(std::istream& in, std::ostream& out) : terminal_(in, out) {}

    /// Throws std::runtime_error where it is asked once more after the input has ended: no answer can come.
    std::optional<std::string> AskSaveName(const FileDialogSettings& settings) override;

  private:
    /// Whether the file may be taken, by the flags and the user's answers; tells why not.
    bool Accept(const std::filesystem::path& file, std::int32_t flags);
    /// Whether an existing file may be taken.
    bool AcceptExisting(const std::filesystem::path& file, std::int32_t flags);

    Terminal terminal_;
    bool inputHasEnded_ = false;
};

}  // namespace wxbrg
