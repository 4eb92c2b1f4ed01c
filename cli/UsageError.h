#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "support/TerminalText.h"

namespace wxbrg::cli {

/// What the user asked for cannot be, as it was asked: the text says why and what to do instead. What it
/// quotes out of files and arguments may hold anything; `what()` is printable.
struct UsageError : std::runtime_error {
    /// `text` is one line; each of `items` is listed on a line of its own below it.
    explicit UsageError(std::string_view text, const std::vector<std::string>& items = {})
        : std::runtime_error(Listed(Printable(text), items)) {}

  private:
    static std::string Listed(std::string text, const std::vector<std::string>& items) {
        for (const std::string& item : items) text.append("\n  ").append(PrintableField(item));
        return text;
    }
};

}  // namespace wxbrg::cli
