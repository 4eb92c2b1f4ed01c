#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>

namespace wxbrg {

/// What a text from ARIS is going to be in the output.
enum class NameKind : std::int32_t {
    activityName = 1,  ///< activities, and the names that connectors cite
    description = 2,
    documentation = 3,
    memberName = 4,  ///< structures, members, a compared member
    personField = 5,
    objectName = 6,
    personId = 7,
    processName = 8,
    identifier = 9,
    compareOperator = 10,
    dataType = 11,
};

/// What is done to a text of a kind besides replacing and cutting.
enum class NameExtra : std::uint8_t {
    none,
    asIdentifier,        ///< converted as an identifier, by a conversion of its own that writes its own note
    asIdentifierBehind,  ///< the same behind one leading "_"
    mustNotBeEmpty,      ///< an empty text is the warning 2050
    login,               ///< upper case; a login attribute first loses its last "@" and what follows
    digitInFront,        ///< with a digit in front, the first "sChar" becomes "_"
    unequalSign,         ///< "!=" becomes "<>"
    typeWord,            ///< the whole text becomes STRING, LONG or FLOAT
};

using NameParts = std::span<const std::string_view>;

/// How texts of one kind are made legal. The steps come in the order of the columns.
struct NameKindRow {
    NameKind kind;
    NameParts blanked;      ///< what becomes a blank
    NameParts underscored;  ///< what becomes "_": one part after the other, wherever it is
    NameExtra extra;
    bool collapsesBlanks;  ///< runs of blanks become one
    std::size_t length;    ///< how many characters are kept; apostrophes are doubled behind the cut
};

namespace nameKinds {

inline constexpr std::size_t nameLength = 32;
inline constexpr std::size_t descriptionLength = 254;
inline constexpr std::size_t documentationLength = 4096;
inline constexpr std::size_t anyLength = std::numeric_limits<std::size_t>::max();

inline constexpr std::array<std::string_view, 0> nothing{};
inline constexpr auto tab = std::to_array<std::string_view>({"\t"});
inline constexpr auto lineBreaksAndTab = std::to_array<std::string_view>({"\r", "\n", "\t"});
inline constexpr auto point = std::to_array<std::string_view>({"."});
inline constexpr auto ofPersonIds =
    std::to_array<std::string_view>({"@", "<", ">", "[", "]", "\\", "\"", ";", "\r", "\n", "\t", " "});
inline constexpr auto ofProcessNames = std::to_array<std::string_view>({"*", "?", "\"", ";", ":", ".", "$"});
/// The characters and words that the output keeps for itself, in the order of replacing. The words are
/// replaced inside of others too (ORDER becomes _DER), but in upper case alone.
inline constexpr auto ofIdentifiers = std::to_array<std::string_view>(
    {"!",   "'",    "[",  "]",      "*",     "+",     ",",      "-",       ".",   ";",  "/",     ":",
     "<",   "=",    ">",  "(",      ")",     "\\",    "^",      "\"",      "AND", "IS", "LOWER", "MOD",
     "NOT", "NULL", "OR", "SUBSTR", "UPPER", "VALUE", "_BLOCK", "_STRUCT", "\r",  "\n", "\t"});

// clang-format off
inline constexpr std::array rows{std::to_array<NameKindRow>({
    {NameKind::activityName,    nothing,          nothing,        NameExtra::asIdentifier,       false, anyLength},
    {NameKind::description,     tab,              nothing,        NameExtra::none,               false, descriptionLength},
    {NameKind::documentation,   tab,              nothing,        NameExtra::none,               false, documentationLength},
    {NameKind::memberName,      nothing,          nothing,        NameExtra::asIdentifierBehind, false, anyLength},
    {NameKind::personField,     lineBreaksAndTab, nothing,        NameExtra::none,               false, nameLength},
    {NameKind::objectName,      lineBreaksAndTab, point,          NameExtra::mustNotBeEmpty,     true,  nameLength},
    {NameKind::personId,        nothing,          ofPersonIds,    NameExtra::login,              false, nameLength},
    {NameKind::processName,     nothing,          ofProcessNames, NameExtra::none,               true,  nameLength},
    {NameKind::identifier,      nothing,          ofIdentifiers,  NameExtra::digitInFront,       true,  nameLength},
    {NameKind::compareOperator, nothing,          nothing,        NameExtra::unequalSign,        false, anyLength},
    {NameKind::dataType,        nothing,          nothing,        NameExtra::typeWord,           false, anyLength},
})};
// clang-format on

constexpr bool RowsAreInOrder() {
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (static_cast<std::size_t>(rows[i].kind) != i + 1) return false;
    return true;
}
static_assert(rows.size() == 11 && RowsAreInOrder());

}  // namespace nameKinds

}  // namespace wxbrg
