#pragma once

#include <string_view>
#include <system_error>

namespace wxbrg {

/// What a user can do about an error of the system on a file: a sentence or two. For an error without words
/// of its own, that its cause is to be removed.
std::string_view AdviceOn(const std::error_code& error);

}  // namespace wxbrg
