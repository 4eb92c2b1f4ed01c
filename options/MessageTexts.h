#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/ProfileStore.h"

namespace wxbrg {

// Message texts by number, from the language library beside the program.

/// The tag of the language that is stored, "ENU" where none is.
std::string StoredLanguage(const ProfileStore& store);

/// The file name of the language library of a tag.
std::string LanguageLibraryName(std::string_view tag);

/// Loads the language library that the stored value "Language" names ("ENU" where none is stored), and sets
/// the help file of the same language. Returns false, after a message to the user, when the library is not
/// there.
bool LoadLocalizedResources();

/// The text of a number; an "Error :" text where the library does not hold it, and the empty text where no
/// library is loaded. At most 4,095 bytes.
std::string GetStringFromResourceFile(std::int32_t ID);

/// The text of a number with its placeholders "%1$s" to "%4$s" replaced, in turn and as far as the arguments
/// go: an empty one ends the replacing, also of those behind it.
std::string GetNLSString(std::int32_t ID, std::string_view S1 = {}, std::string_view S2 = {},
                         std::string_view S3 = {}, std::string_view S4 = {});

/// The text of a number as it is.
std::string Get_NLS_String_Message(std::int32_t ID);

}  // namespace wxbrg
