#pragma once

#include <string>
#include <string_view>

#include "aris/Repository.h"

namespace wxbrg {

/// What a text from ARIS is going to be in the output, as the decimal text that `ConvertARISName` takes.
namespace NameKind {
inline constexpr std::string_view activityName = "1";  ///< activities, and the names that connectors cite
inline constexpr std::string_view description = "2";
inline constexpr std::string_view documentation = "3";
inline constexpr std::string_view memberName = "4";  ///< structures, members, a compared member
inline constexpr std::string_view personField = "5";
inline constexpr std::string_view objectName = "6";
inline constexpr std::string_view personId = "7";
inline constexpr std::string_view processName = "8";
inline constexpr std::string_view identifier = "9";
inline constexpr std::string_view compareOperator = "10";
inline constexpr std::string_view dataType = "11";
}  // namespace NameKind

/// Makes a text legal in the output, according to what it is going to be: characters and words that the
/// output keeps for itself are replaced, the length is cut, apostrophes are doubled. Writes the note 3100 for
/// a text that changes. With the option to convert names off, the text comes back as it is.
///
/// `ruleName` may be empty; a person identifier that comes from the login attribute loses what stands behind
/// its last "@". Has no frame: fails in the caller's with 2050 for an empty object name and with 2040 for a
/// kind that is none, both warnings.
std::string ConvertARISName(std::string_view text, std::string_view kind, std::string_view ruleName);

/// The identifier of a person: the attribute of the rule PERSON_PersonName, else the name; converted. Empty
/// where there is neither.
std::string ConvertARISPersonName(const ARISObjDef& item);

}  // namespace wxbrg
