#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace wxbrg::cases {

/// Files by their names below some folder, with slashes.
using Files = std::map<std::string, std::string>;

/// All files below the folder; none where there is no such folder. Throws std::ios_base::failure or
/// std::filesystem::filesystem_error for what cannot be read.
Files ReadFiles(const std::filesystem::path& folder);

/// The bytes of a file. Throws std::ios_base::failure where it cannot be read.
std::string ReadFile(const std::filesystem::path& file);

/// Writes a file, with the folders on its way. Throws like `ReadFiles`.
void WriteFile(const std::filesystem::path& file, const std::string& bytes);

}  // namespace wxbrg::cases
