#pragma once

#include <string>

namespace wxbrg {

/// Lets the C library know the terminal's characters, as curses needs it: those of the user's locale, or
/// UTF-8 where the locale names nothing beyond ASCII. What was set before comes back with the end.
class CharacterLocale {
  public:
    CharacterLocale();
    ~CharacterLocale();
    CharacterLocale(const CharacterLocale&) = delete;
    CharacterLocale& operator=(const CharacterLocale&) = delete;

  private:
    std::string before_;
};

}  // namespace wxbrg
