#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "aris/Catalogue.h"

namespace wxbrg::xml {

using TypeKind = aris::UnknownType::Kind;
inline constexpr std::size_t typeKindCount = 5;

/// Whether a row's number has been seen in use, or only follows from its neighbours.
enum class Certainty { known, inferred };

/// One type: what an export calls by its API name, and rules by its number.
struct TypeRow {
    TypeKind kind;
    std::string_view apiName;       ///< "OT_FUNC"; unique within the kind
    std::int32_t number;            ///< 22; unique within the kind
    std::string_view readableName;  ///< "Function", for messages
    Certainty certainty;
};

/// The types by API name and by number: the built-in ones, and those of a user's own file.
class TypeTable {
  public:
    struct Type {
        std::int32_t number = 0;
        std::string readableName;
    };

    /// The built-in types.
    TypeTable();

    /// Adds a type; it wins over an earlier one of its API name or number.
    void Add(TypeKind kind, std::string_view apiName, std::int32_t number, std::string_view readableName);

    /// Adds the rows of a file; a later row wins over an earlier one, of the table or of the file. A row is a
    /// line of fields separated by tabs: kind (MT model, OT object, CT connection, AT attribute, ST symbol),
    /// API name, number, readable name; further fields say nothing. Empty lines and lines that begin with "#"
    /// are passed over. Throws failures 53, 75 and 76 for a file that cannot be read, and 321 with file, line
    /// and reason for a row that is none.
    void AddFile(const std::string& file);

    /// The type of an API name, or null where the table has none.
    const Type* Find(TypeKind kind, std::string_view apiName) const;

    /// The readable name of a number, or null where the table has none.
    const std::string* NameOf(TypeKind kind, std::int32_t number) const;

  private:
    /// Adds the row of a line. Returns what is wrong with it, empty for nothing.
    std::string AddLine(std::string_view line);

    struct Kind {
        std::map<std::string, Type, std::less<>> byApiName;
        std::map<std::int32_t, std::string> byNumber;
    };
    std::array<Kind, typeKindCount> kinds_;
};

}  // namespace wxbrg::xml
