#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/OptionsFormView.h"
#include "platform/terminal/form/Screen.h"

namespace wxbrg {

/// What the form shows on a screen.
struct ScreenFormState {
    std::string title;
    std::vector<FormControlRow> rows;
    std::int32_t page = 0;
    std::string focus;       ///< name of the control that has the keyboard; the tabs share one
    std::size_t cursor = 0;  ///< place in the text field, in characters
};

/// Whether every page of the form finds room on a screen of this size.
bool ScreenFormFits(const std::vector<FormControlRow>& rows, ScreenSize size);

/// The form as a dialog in the middle of the screen: the tabs as a list of pages at its left, the page, the
/// buttons below, and at the bottom of the screen the keys. The cursor is on the control that has the
/// keyboard. The form has to fit.
ScreenPicture DrawScreenForm(const ScreenFormState& state, ScreenSize size);

/// What is in the form's place while it does not fit.
ScreenPicture DrawTooSmall(ScreenSize size);

}  // namespace wxbrg
