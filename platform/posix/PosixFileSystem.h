#pragma once

#include "platform/FileSystem.h"

namespace wxbrg {

/// The system's files.
class PosixFileSystem : public FileSystem {
  public:
    std::unique_ptr<File> Open(const std::string& name, FileAccess access) override;
};

}  // namespace wxbrg
