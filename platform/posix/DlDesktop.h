#pragma once

#include <string>
#include <variant>

#include "platform/DesktopAbi.h"

namespace wxbrg {

/// Why there are no dialogs on a desktop, as a sentence without its point.
struct NoDesktop {
    std::string reason;
};

/// Whether the session has a display, by the variables DISPLAY, WAYLAND_DISPLAY and QT_QPA_PLATFORM. An empty
/// variable counts as none.
bool HasDisplay();

/// The dialogs of the desktop module in a folder. There are none without a display, without the module, and
/// where the display cannot be opened; trying that does not harm this process. The module stays loaded.
std::variant<Dialogs, NoDesktop> OpenDesktop(const std::string& directory, const DesktopSettings& settings);

}  // namespace wxbrg
