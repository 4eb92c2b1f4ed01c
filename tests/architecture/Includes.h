#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wxbrg::architecture {

/// What stands in quotes in the `#include`s of a source text, in order.
std::vector<std::string> QuotedIncludesOf(std::string_view source);

}  // namespace wxbrg::architecture
