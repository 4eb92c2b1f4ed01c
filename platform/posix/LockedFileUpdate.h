#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>

namespace wxbrg {

/// Why a file could not be read or replaced. `what` names the file, the cause in the system's words and what
/// to do, in whole sentences.
struct FileUseError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The file's lock was not released in time.
struct FileLockedError : FileUseError {
    using FileUseError::FileUseError;
};

/// The largest file that is read and written, in bytes.
inline constexpr std::size_t largestUsableFile = std::size_t{16} << 20U;

/// The bytes of a regular file; empty for a file that is not there. Throws `FileUseError` for anything else,
/// a link that leads nowhere and a file that is too large among it.
std::string ReadRegularFile(const std::filesystem::path& file);

/// Replaces a file by what `change` makes of its bytes, and the file's folder is made if need be. Where
/// `change` gives the bytes as they are, and where it throws, the file stays untouched. Readers see the file
/// as it was or as it will be, never in between; other calls for the same file, also of other processes, wait
/// for as long as `patience` says. A symbolic link stays, and so do the file's permissions, and its owner
/// where the system allows it. Throws `FileUseError`, and what `change` throws.
void ReplaceFile(const std::filesystem::path& file,
                 const std::function<std::string(const std::string& bytes)>& change,
                 std::chrono::milliseconds patience);

}  // namespace wxbrg
