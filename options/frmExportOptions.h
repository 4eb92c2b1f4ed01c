#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "options/ExportOptions.h"
#include "platform/OptionsFormView.h"

namespace wxbrg {

/// The options form: the logic of the dialog, without widgets. Its controls mirror the stored options, and
/// the globals follow each load and each save, whatever the controls show in between.
class frmExportOptions : public OptionsFormEvents {
  public:
    frmExportOptions();

    /// Loads the form and shows it until it is ended. Fails with 13 for a stored suffix that is no number.
    void ShowModal();

    /// Whether some control has changed since the last load or save.
    bool bDirty = false;
    void SetDirty(bool Value) { bDirty = Value; }

    /// Reads the stored options into controls and globals; what is not stored stays as the controls have it.
    void LoadOptions();
    /// Stores what the controls hold, and copies it into the globals. Fails with 13 for a suffix that is no
    /// number; what was saved before it stays saved.
    void SaveOptions();

    // The form as its view sees it.
    std::vector<FormControlRow> Rows() const override;
    bool IsDirty() const override { return bDirty; }
    bool Click(std::string_view control) override;
    bool Type(char key) override;
    void Paste(std::string_view text) override;
    void Apply() override;
    void Ok() override;
    void Cancel() override;
    void Close() override { closed_ = true; }
    bool IsClosed() const override { return closed_; }

  private:
    /// The state of an option's control.
    struct Control {
        bool checked = false;
        std::string text;
    };

    void Form_Load();
    void cmdCancel_Click();
    void SetText(const std::string& text);
    Control& ControlOf(const ExportOption& option);
    const Control& ControlOf(const ExportOption& option) const;
    void LoadNumber(const ProfileValue& stored, Control& control);

    std::array<Control, exportOptions.size()> controls_;
    bool closed_ = false;
};

}  // namespace wxbrg
