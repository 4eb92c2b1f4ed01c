#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>

namespace wxbrg::xml {

/// A file that is read from its start to its end.
class ExportFile {
  public:
    /// Opens the file. Throws failure 53 when it is not there, 76 when it is a folder or a folder on its way
    /// is not there or is none, 75 when it cannot be opened for another reason.
    explicit ExportFile(std::string name);

    /// Reads up to `size` bytes; fewer only at the end of the file. Throws failure 75.
    std::size_t Read(char* bytes, std::size_t size);
    /// The whole rest of the file. Throws failure 75.
    std::string ReadAll();

    const std::string& Name() const { return name_; }
    /// In bytes; 0 where the system does not say.
    std::uint64_t Size() const { return size_; }

  private:
    std::string name_;
    std::uint64_t size_ = 0;
    std::ifstream stream_;
};

/// The name of a file without folders and without its extension.
std::string NameWithoutFolderAndExtension(const std::string& file);

}  // namespace wxbrg::xml
