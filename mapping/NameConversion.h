#pragma once

#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "mapping/NameKinds.h"

namespace wxbrg {

/// Makes a text legal in the output, according to what it is going to be: characters and words that the
/// output keeps for itself are replaced, the length is cut (`nameKinds::rows` says what and where),
/// apostrophes are doubled, blanks at both ends removed. Writes the note 3100 for a text that changes. With
/// the option to convert names off, the text comes back as it is.
///
/// `ruleName` may be empty; a person identifier that comes from the login attribute loses its last
/// "@" and what follows. Has no frame: fails in the caller's with 2050 for an empty object name and with 2040
/// for a kind that is none, both warnings.
std::string ConvertARISName(std::string_view text, NameKind kind, std::string_view ruleName);

/// The identifier of a person: the attribute of the rule PERSON_PersonName, else the name; converted. Empty
/// where there is neither.
std::string ConvertARISPersonName(const ARISObjDef& item);

}  // namespace wxbrg
