#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wxbrg::architecture {

/// A file of the repository's work tree.
struct TreeFile {
    std::string path;  ///< from the repository's root, with slashes
    std::string text;
};

/// The files of the work tree whose names end in one of `endings`, sorted by path. Left out are build
/// folders, hidden folders and the recorded inputs and outputs of the end-to-end cases. Throws
/// std::filesystem::filesystem_error or std::ios_base::failure for what cannot be read.
std::vector<TreeFile> ReadTree(std::string_view root, const std::vector<std::string>& endings);

std::size_t LineCount(std::string_view text);

/// Whether `word` stands in the text with no letter, digit or underscore beside it.
bool HoldsWord(std::string_view text, std::string_view word);

}  // namespace wxbrg::architecture
