#pragma once

namespace wxbrg {

/// Gives the active form, its tabs and its controls their captions from the language library, in the order
/// of their numbers. A caption that the library lacks is its "Error :" text.
void SetFormStrings();

}  // namespace wxbrg
