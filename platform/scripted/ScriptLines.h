#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace wxbrg {

/// A line of a script, without its line break.
struct ScriptLine {
    std::size_t number;  ///< from 1
    std::string_view text;
};

/// The lines of a text that are not empty. They end with LF or CR LF, and refer to the text. A byte order
/// mark in front is passed over.
inline std::vector<ScriptLine> ScriptLines(std::string_view text) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    std::vector<ScriptLine> lines;
    for (std::size_t number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (!line.empty()) lines.push_back({number, line});
    }
    return lines;
}

}  // namespace wxbrg
