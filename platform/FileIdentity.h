#pragma once

#include <filesystem>

namespace wxbrg {

/// The file that a name stands for, or would stand for if it were made: links are followed, also one that
/// leads to a file that is not there. A name that cannot be followed (a circle of links) stays as it is.
std::filesystem::path ResolvedFile(const std::filesystem::path& name);

/// Whether two names stand for one file: by the file's identity where both are there, by folder and name
/// where they are not. What is no regular file (a device, a pipe) is like no other.
bool IsSameFile(const std::filesystem::path& one, const std::filesystem::path& other);

}  // namespace wxbrg
