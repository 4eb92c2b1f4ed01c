#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace wxbrg {

/// A loaded library of message texts.
class LanguageLibrary {
  public:
    virtual ~LanguageLibrary() = default;
    /// The text of a number, at most `capacity` - 1 bytes of it, in UTF-8; empty where the number has none.
    /// A text that is cut ends with a whole character.
    virtual std::string LoadString(std::uint32_t number, std::size_t capacity) const = 0;
};

/// Where language libraries come from.
class LanguageLibraries {
  public:
    virtual ~LanguageLibraries() = default;
    /// Loads a library by its file name, as the system's library search finds it (beside the program).
    /// Null when there is none, or it is no language library.
    virtual std::unique_ptr<LanguageLibrary> Load(std::string_view fileName) = 0;
};

}  // namespace wxbrg
