#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/FileSystem.h"

namespace wxbrg::cli {

/// Files as another file system has them, with relative names counted from a folder. Failures name a file as
/// it was asked for, so that what a run reports does not depend on where the folder lies.
class FolderFileSystem : public FileSystem {
  public:
    FolderFileSystem(FileSystem& files, std::filesystem::path folder);
    std::unique_ptr<File> Open(const std::string& name, FileAccess access) override;

  private:
    FileSystem& files_;
    std::filesystem::path folder_;
};

}  // namespace wxbrg::cli
