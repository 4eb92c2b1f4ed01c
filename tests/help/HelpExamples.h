#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace wxbrg {

/// Lines of an export that a page of the help shows: a fenced block behind a line
/// `<!-- export FILE [NAME=VALUE] -->`.
struct HelpExample {
    std::int32_t page = 0;
    std::string repository;  ///< file beside the help file
    std::string setting;     ///< option of the export; empty: none
    std::vector<std::string> lines;
};

/// The lines of a text, whether they end in LF or CR LF.
std::vector<std::string> LinesOf(std::string_view text);

/// The examples of a help file's text in their order. Throws std::runtime_error for a fenced block without
/// the line that says where it is from, and for such a line without a block.
std::vector<HelpExample> ExamplesOf(std::string_view text);

/// Whether an export holds what an example shows: its lines, one behind the other, with four blanks for each
/// tab. A line "…" stands for any number of lines, and " …" at the end of a line for the rest of it.
bool Shows(const HelpExample& example, const std::vector<std::string>& exported);

}  // namespace wxbrg
