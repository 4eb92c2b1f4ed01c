#pragma once

#include <cstdint>

namespace wxbrg {

/// The page of the help about the output file, which the file dialog shows. The form's own pages are numbered
/// in the table of its controls.
inline constexpr std::int32_t outputFileHelpNumber = 50100;

/// Gives the active form and its controls their pages of the help.
void SetFormHelp();

}  // namespace wxbrg
