#pragma once

#include <optional>

#include "platform/terminal/form/Screen.h"

namespace wxbrg {

/// The size of the terminal that is the process's standard input and output; nothing where they are none, or
/// one that cannot be drawn on: an unknown one, or one that cannot place its cursor.
std::optional<ScreenSize> FullScreenSize();

}  // namespace wxbrg
