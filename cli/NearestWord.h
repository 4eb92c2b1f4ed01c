#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wxbrg::cli {

/// The candidate that takes the fewest single-character changes to become from `word`; the first of several.
/// Empty where there is no candidate.
std::string Nearest(std::string_view word, const std::vector<std::string>& candidates);

}  // namespace wxbrg::cli
