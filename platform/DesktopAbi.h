#pragma once

#include <string>

#include "platform/Dialogs.h"

namespace wxbrg {

/// What the dialogs of a desktop are made with.
struct DesktopSettings {
    std::string language;       ///< tag of the language library: the dialogs' own words are of its language
    std::string helpDirectory;  ///< folder of the help files, without a separator at its end
};

/// What a desktop module has to export, and how the program asks for it. The module is a loadable library of
/// its own, so that only a run with windows pays for what windows need. It is built with the program.
namespace DesktopAbi {

/// Goes up whenever the interface changes.
inline constexpr int version = 2;

using VersionFunction = int();
inline constexpr const char* versionFunctionName = "wxbrg_desktop_version";

/// Opens the display and lets go of it again. A display that cannot be opened ends the process.
using ProbeFunction = void();
inline constexpr const char* probeFunctionName = "wxbrg_desktop_probe";

using MakeFunction = void(const DesktopSettings& settings, Dialogs& dialogs);
inline constexpr const char* makeFunctionName = "wxbrg_desktop_make";

}  // namespace DesktopAbi

}  // namespace wxbrg
