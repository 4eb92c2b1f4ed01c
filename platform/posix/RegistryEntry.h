#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ProfileStore.h"

namespace wxbrg {

/// How a registry file stores strings as their bytes.
enum class RegistryBytes {
    utf8,   ///< in files that begin with "REGEDIT4"
    utf16,  ///< low byte first, in files of today's registry editor
};

/// An entry of a registry file in text form: a line, or the lines of a value that goes on over several.
struct RegistryEntry {
    enum class Kind {
        filler,      ///< a blank line or a comment
        unreadable,  ///< none of the others
        key,         ///< [key]; also one in brackets that cannot be read, with an empty name then
        value,       ///< "name"=data
    };

    std::string text;  ///< all of it, with its line breaks
    Kind kind = Kind::unreadable;
    std::string name;           ///< of a key or value; that of a key's default value is empty
    ProfileValue value;         ///< empty for data that is neither a string nor a 32-bit number
    std::size_t dataBegin = 0;  ///< where in `text` the data of a value begins
    std::size_t dataEnd = 0;    ///< and where it ends
};

/// Takes the first entry from a text that is not empty. A value that cannot be read to its end is unreadable,
/// and so is each of its lines on its own.
RegistryEntry TakeRegistryEntry(std::string_view& rest, RegistryBytes bytes);

/// A name in quotes, or the sign of the default value for an empty one. Nothing for a name that has no place
/// in a line: one that is no UTF-8 or holds control characters.
std::optional<std::string> RegistryName(std::string_view name);

/// The data of a value as an entry holds it. Nothing for an empty value and for a string that is no UTF-8 or
/// holds a zero character.
std::optional<std::string> RegistryData(const ProfileValue& value, RegistryBytes bytes);

/// Whether a text holds control characters, line breaks among them.
bool HoldsControlCharacter(std::string_view text);

}  // namespace wxbrg
