#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "options/frmExportOptions.h"
#include "run/modGlobals.h"
#include "tests/run/RunFixture.h"

namespace wxbrg {

/// A fresh global block with an options form that is not loaded yet.
class OptionsFixture : public RunFixture {
  protected:
    static constexpr std::string_view optionsKey =
        R"(Software\Quenby\Tarnlight Workflow Aris Bridge\CurrentVersion\)";

    /// Stores a value before the form is loaded.
    void Store(std::string_view name, const ProfileValue& value) {
        profileStore_.Put(ProfileScope::user, optionsKey, name, value);
    }
    void StoreForMachine(std::string_view name, const ProfileValue& value) {
        profileStore_.Put(ProfileScope::machine, optionsKey, name, value);
    }
    ProfileValue Stored(std::string_view name) const {
        return profileStore_.Read(ProfileScope::user, optionsKey, name);
    }

    /// Shows the form as the run does, and lets `use` act on it; then the window's close command ends it.
    std::optional<RunEnd> Show(const std::function<void()>& use = [] {}) {
        optionsFormView_.use = [&](OptionsFormEvents& form) {
            use();
            form.Close();
        };
        return RunIn("clsWPX_Export.Run", [&](Frame&) {
            form_.ShowModal();
        });
    }

    /// Whether a check box or option button is checked.
    bool IsChecked(std::string_view control) const { return Row(control).checked; }
    /// What the text field for the suffix holds.
    std::string SuffixText() const { return Row("efNumSuffix").text; }

    frmExportOptions form_;

  private:
    FormControlRow Row(std::string_view control) const {
        for (const FormControlRow& row : form_.Rows())
            if (row.name == control) return row;
        throw std::invalid_argument("the form has no control " + std::string(control));
    }
};

}  // namespace wxbrg
