#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace wxbrg::test {

/// A folder of its own for a test; it goes with the object, and everything in it.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    /// The full name of a file in the folder.
    std::string NameOf(const std::string& file) const { return (path_ / file).string(); }
    /// Writes a file. Returns its full name.
    std::string Write(const std::string& file, std::string_view bytes) const;

  private:
    std::filesystem::path path_;
};

}  // namespace wxbrg::test
