#pragma once

#include <stdexcept>

namespace wxbrg::cli {

/// What the user asked for cannot be, as it was asked: the text says why and what to do instead.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace wxbrg::cli
