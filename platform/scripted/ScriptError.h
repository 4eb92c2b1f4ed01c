#pragma once

#include <stdexcept>

namespace wxbrg {

/// A script that cannot be followed: a line that cannot be read, an answer of the wrong kind, or none left.
/// The text, for the user, names the line and what was asked.
struct ScriptError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace wxbrg
