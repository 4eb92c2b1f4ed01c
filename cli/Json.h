#pragma once

#include <string>
#include <string_view>

namespace wxbrg::cli {

/// The text as a JSON string with its quotes, in UTF-8. A byte that is no UTF-8 becomes U+FFFD.
std::string JsonString(std::string_view text);

}  // namespace wxbrg::cli
