#pragma once

#include <string>
#include <string_view>

namespace wxbrg::cases {

/// A text of one JSON value a line, each in one canonical form: members by name, nothing escaped that need
/// not be, one blank behind ":" and ",". Two lines that say the same are equal then. Throws
/// std::invalid_argument, naming the line, for what is no JSON.
std::string CanonicalJsonLines(std::string_view text);

}  // namespace wxbrg::cases
