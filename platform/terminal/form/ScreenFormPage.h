#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/terminal/form/ScreenFormLayout.h"
#include "platform/terminal/lines/FormCaption.h"

namespace wxbrg {

/// A caption on one line, its access key marked.
void PutCaption(ScreenPicture& picture, ScreenPoint at, const FormCaption& caption, ScreenStyle style);

/// Draws the controls of one page below each other, at most `width` cells wide, and returns the number of
/// lines that they take.
std::size_t DrawFormPage(ScreenPicture& picture, const ScreenFormState& state, std::int32_t page,
                         ScreenPoint at, std::size_t width);

}  // namespace wxbrg
