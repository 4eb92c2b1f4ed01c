#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "cli/InputFiles.h"
#include "platform/FileDialog.h"

namespace wxbrg::cli {

/// Hands on to another file dialog, which does not accept the name of a file that the run reads, nor one
/// whose log would be such a file.
class InputKeepingFileDialog : public FileDialog {
  public:
    /// `inputs` is called during the run, which has a database then. Names count from `folder`; empty: the
    /// working folder. `refused` gets each name that is not accepted; it may be empty.
    InputKeepingFileDialog(FileDialog& asking, std::function<std::vector<InputFile>()> inputs,
                           std::filesystem::path folder,
                           std::function<void(const std::string& name)> refused);
    std::optional<std::string> AskSaveName(const FileDialogSettings& settings) override;

  private:
    bool IsInput(const std::string& name) const;

    FileDialog& asking_;
    std::function<std::vector<InputFile>()> inputs_;
    std::filesystem::path folder_;
    std::function<void(const std::string& name)> refused_;
};

}  // namespace wxbrg::cli
