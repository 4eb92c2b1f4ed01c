#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace wxbrg {

/// How a file is opened.
enum class FileAccess {
    read,    ///< from the start; the file must exist
    empty,   ///< for writing; the file is created or emptied
    append,  ///< for writing at the end; the file is created if missing
};

/// An open file; closed when it goes, then without a word about a failure.
class File {
  public:
    virtual ~File() = default;
    /// The whole rest of the file, as bytes.
    virtual std::string ReadAll() = 0;
    /// Writes bytes.
    virtual void Write(std::string_view bytes) = 0;
    /// Closes the file, which makes a late failure of writing known.
    virtual void Close() = 0;
};

/// Files by name (UTF-8). Every operation, also those of `File`, throws `Failure` with the run-time's number
/// and the file's name: 53 the file is not there, 76 a folder on its way is not there or is none, 61 the disk
/// or the quota is full, 75 anything else.
class FileSystem {
  public:
    virtual ~FileSystem() = default;
    virtual std::unique_ptr<File> Open(const std::string& name, FileAccess access) = 0;
};

}  // namespace wxbrg
