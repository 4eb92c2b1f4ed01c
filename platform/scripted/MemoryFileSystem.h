#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "platform/FileSystem.h"

namespace wxbrg {

/// Files that live in memory, with names and folders as on POSIX. Names are taken as they are written:
/// "a/../b" is not "b". What is written is in the file at once.
class MemoryFileSystem : public FileSystem {
  public:
    /// What can be made to fail.
    enum class Step { open, read, write, close };

    /// Makes a folder and those above it. The root and the working folder are there from the start.
    void MakeFolder(const std::string& name);
    /// Makes or replaces a file and the folders above it.
    void Put(const std::string& name, std::string bytes);
    /// The bytes of a file; nothing where there is none.
    std::optional<std::string> Bytes(const std::string& name) const;

    /// From now on a step fails for a name, with this number.
    void MakeFail(const std::string& name, Step step, std::int32_t number);

    std::unique_ptr<File> Open(const std::string& name, FileAccess access) override;

  private:
    class OpenFile;

    void FailIfAsked(const std::string& name, Step step) const;
    /// Whether the folder that a file lies in is there.
    bool HasFolder(const std::string& name) const;

    std::map<std::string, std::string> files_;
    std::set<std::string> folders_;
    std::map<std::pair<std::string, Step>, std::int32_t> failures_;
};

}  // namespace wxbrg
