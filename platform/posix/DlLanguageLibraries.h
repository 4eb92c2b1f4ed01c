#pragma once

#include <string>

#include "platform/LanguageLibrary.h"

namespace wxbrg {

/// Language libraries that are shared libraries of the system, all in one folder.
class DlLanguageLibraries : public LanguageLibraries {
  public:
    /// `directory` is the folder of the program.
    explicit DlLanguageLibraries(std::string directory);

    /// A name with a separator is no file name: there is no such library.
    std::unique_ptr<LanguageLibrary> Load(std::string_view fileName) override;

  private:
    std::string directory_;
};

}  // namespace wxbrg
