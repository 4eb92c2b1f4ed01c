#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace wxbrg {

/// The bytes of a regular file; empty for a file that is not there, nothing for one that cannot be read.
std::optional<std::string> ReadRegularFile(const std::filesystem::path& file);

/// Replaces a file by what `change` makes of its bytes, and the file's folder is made if need be. Where
/// `change` gives nothing, or the bytes as they are, the file stays untouched. Readers see the file as it was
/// or as it will be, never in between; other calls for the same file, also of other processes, wait. A
/// symbolic link stays, and so do the file's permissions, and its owner where the system allows it.
/// Returns whether the file now is what `change` made of it.
bool ReplaceFile(const std::filesystem::path& file,
                 const std::function<std::optional<std::string>(const std::string& bytes)>& change);

}  // namespace wxbrg
