#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace wxbrg {

/// Runs `body` in a child process, a copy of this one, to see whether it comes to its end: nothing when it
/// does. When it does not, the first line that it wrote to the standard error, or in what other way it
/// failed. A child that takes longer than `limit` is ended. Throws std::system_error where there can be no
/// child.
std::optional<std::string> FailureInChild(const std::function<void()>& body, std::chrono::milliseconds limit);

}  // namespace wxbrg
