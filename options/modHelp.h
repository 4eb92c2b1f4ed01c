#pragma once

namespace wxbrg {

/// Gives the active form and its controls their pages of the help.
void SetFormHelp();

}  // namespace wxbrg
