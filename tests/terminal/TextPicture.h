#pragma once

#include <string>
#include <vector>

#include "platform/terminal/form/Screen.h"

namespace wxbrg {

/// The lines of a picture as text, without blanks at their ends. Each character has to be one cell wide.
std::vector<std::string> LinesOf(const ScreenPicture& picture, ScreenSize size);
/// The same in one text.
std::string TextOf(const ScreenPicture& picture, ScreenSize size);
/// The pieces that have a style, as text.
std::vector<std::string> PiecesOf(const ScreenPicture& picture, ScreenStyle style);

}  // namespace wxbrg
