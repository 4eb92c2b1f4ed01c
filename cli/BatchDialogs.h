#pragma once

#include <iosfwd>
#include <string>
#include <utility>

#include "platform/FileDialog.h"
#include "platform/MessageBox.h"
#include "platform/OptionsFormView.h"
#include "platform/Progress.h"

// The dialogs of a run that asks nobody.

namespace wxbrg::cli {

/// Prints each box whole, behind taking away what `progress` shows. The answer is OK or Yes: a question that
/// nobody can answer asks whether to end, and the run ends.
class PrintingMessageBox : public MessageBox {
  public:
    PrintingMessageBox(std::ostream& out, Progress& progress) : out_(out), progress_(progress) {}
    BoxAnswer Show(std::string_view title, std::string_view text, std::int32_t buttons) override;

  private:
    std::ostream& out_;
    Progress& progress_;
};

/// Gives the file name that was known before.
class GivenFileDialog : public FileDialog {
  public:
    explicit GivenFileDialog(std::string name) : name_(std::move(name)) {}
    std::optional<std::string> AskSaveName(const FileDialogSettings&) override { return name_; }

  private:
    std::string name_;
};

/// Takes the options as they are loaded.
class AcceptingOptionsFormView : public OptionsFormView {
  public:
    void ShowModal(OptionsFormEvents& form) override { form.Ok(); }
};

}  // namespace wxbrg::cli
