#pragma once

#include <memory>

#include "platform/terminal/form/Screen.h"

namespace wxbrg {

/// The terminal of the process's standard input and output as a screen; null where it is none that can be
/// drawn on.
std::unique_ptr<Screen> OpenCursesScreen();

}  // namespace wxbrg
