#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "output/modWPXWriter.h"

namespace wxbrg {

/// One block of the definition file, built line by line and written by one call.
class Block {
  public:
    /// A block begins with an empty line, then the first line's text.
    Block(std::int32_t level, std::string_view first) : text_("\r\n" + Indent(level)) { text_ += first; }

    /// A line with a keyword (its blank included) and a value; none for an empty value.
    Block& Line(std::int32_t level, std::string_view keyword, std::string_view value) {
        return value.empty() ? *this : Always(level, keyword, value);
    }
    /// The same, printed whatever the value.
    Block& Always(std::int32_t level, std::string_view keyword, std::string_view value = {}) {
        text_.append("\r\n").append(Indent(level)).append(keyword).append(value);
        return *this;
    }
    /// Text directly behind the last line.
    Block& Append(std::string_view text) {
        text_ += text;
        return *this;
    }
    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

/// Appends a text to the definition file.
void WriteText(const std::string& text);
inline void WriteBlock(const Block& block) {
    WriteText(block.Text());
}

}  // namespace wxbrg
