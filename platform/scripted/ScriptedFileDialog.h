#pragma once

#include "platform/FileDialog.h"
#include "platform/scripted/AnswerScript.h"

namespace wxbrg {

/// A file dialog that a script answers. A name without a point in its last part gets the default extension;
/// what else the dialog starts with does not count.
class ScriptedFileDialog : public FileDialog {
  public:
    explicit ScriptedFileDialog(AnswerScript& script) : script_(script) {}

    /// Throws `ScriptError` when the next answer is none for a file dialog.
    std::optional<std::string> AskSaveName(const FileDialogSettings& settings) override;

  private:
    AnswerScript& script_;
};

}  // namespace wxbrg
