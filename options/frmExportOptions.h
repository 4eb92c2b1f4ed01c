#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "options/FormControls.h"
#include "options/OptionTable.h"
#include "platform/OptionsFormView.h"
#include "platform/ProfileStore.h"

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

    /// The state of a control or a tab.
    struct Control {
        bool checked = false;
        std::string text;  ///< text fields
        std::string caption;
        std::int32_t HelpContextID =
            0;  ///< its page of the help, as context help and as What's This; 0: none
    };

    // What each activation sets anew.
    std::string caption;
    FormFont font;
    std::int32_t HelpContextID = 0;
    /// In the order of `formControls`.
    std::array<Control, formControls.size()> controls;

    // The form as its view sees it.
    void Activate() override;
    std::string Caption() const override { return caption; }
    FormFont Font() const override { return font; }
    std::vector<FormControlRow> Rows() const override;
    bool IsDirty() const override { return bDirty; }
    bool Click(std::string_view control) override;
    bool KeepsKey(char32_t key) const override;
    bool Type(char32_t key) override;
    void Change(std::string_view text) override;
    void Apply() override;
    void Ok() override;
    void Cancel() override;
    void Help() override;
    void Close() override { closed_ = true; }
    void HelpOn(std::string_view control) override;
    bool IsClosed() const override { return closed_; }
    std::string TakeStoreProblem() override;

  private:
    void Form_Load();
    void cmdCancel_Click();
    /// Checks or unchecks a control; of a pair of option buttons the other one becomes the opposite.
    void Check(const FormControl& control, bool checked);
    void LoadNumber(const ProfileValue& stored, Control& control);
    Control& StateOf(const FormControl& control);

    bool closed_ = false;
};

}  // namespace wxbrg
