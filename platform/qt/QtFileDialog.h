#pragma once

#include <QStringList>
#include <string>
#include <utility>

#include "platform/FileDialog.h"

namespace wxbrg {

/// The save-file dialog in a window. It keeps to all of the settings: a pattern as the file's name ("*.wpx")
/// proposes none; of the flags, those for the overwrite question, for the question before a new file is made,
/// for a folder that must exist, for a file that must be writable and for the help, which a button and F1
/// show.
class QtFileDialog : public FileDialog {
  public:
    /// `language` is the tag of the language of the dialog's own words.
    explicit QtFileDialog(std::string language) : language_(std::move(language)) {}
    std::optional<std::string> AskSaveName(const FileDialogSettings& settings) override;

  private:
    std::string language_;
};

/// The filters of a dialog out of descriptions and patterns in turn: "Text files (*.txt)". The pattern "*.*"
/// becomes "*", for here not every name has a point.
QStringList NameFilters(const std::string& filter);

}  // namespace wxbrg
