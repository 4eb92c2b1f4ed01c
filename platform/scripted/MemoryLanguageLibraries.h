#pragma once

#include <map>

#include "platform/LanguageLibrary.h"

namespace wxbrg {

/// Language libraries that are made up of texts in memory.
class MemoryLanguageLibraries : public LanguageLibraries {
  public:
    using Texts = std::map<std::uint32_t, std::string>;

    /// Makes a library, or replaces one; libraries that are loaded keep their texts.
    void Put(std::string_view fileName, Texts texts);

    std::unique_ptr<LanguageLibrary> Load(std::string_view fileName) override;

  private:
    std::map<std::string, Texts, std::less<>> libraries_;
};

}  // namespace wxbrg
