#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "aris/Catalogue.h"
#include "aris/xml/TypeTable.h"

namespace wxbrg::xml {

/// A type as an export spells it.
struct ResolvedType {
    std::int32_t number = 0;
    std::string readableName;
};

/// Gives each type that an export names its number and readable name: by the table, as the plain number that
/// it is, or as an unknown API name with a number from 100000 upward per kind, in order of first appearance.
class TypeResolver {
  public:
    explicit TypeResolver(TypeTable table);

    /// The type that a text spells, white space around it aside, counted as one appearance; lives as long as
    /// the resolver. An empty text is the number 0. Null for a number beyond 32 bits.
    const ResolvedType* Resolve(TypeKind kind, std::string_view spelled);

    /// The readable name of a number: the table's, else the API name that was given the number, else the
    /// number's text.
    std::string NameOf(TypeKind kind, std::int32_t number) const;

    /// The API names that the table lacks, in order of their first appearance.
    std::vector<aris::UnknownType> Unknown() const;

  private:
    struct Entry {
        TypeKind kind;
        std::string spelled;
        ResolvedType type;
        bool unknown = false;
        std::uint64_t appearances = 0;
    };

    /// Adds the entry of a text that is met for the first time, or gives null.
    Entry* Add(TypeKind kind, std::string_view spelled);
    std::int32_t AddUnknown(TypeKind kind, std::string_view apiName);

    TypeTable table_;
    std::deque<Entry> entries_;  // an entry never moves; in order of first appearance
    std::array<std::unordered_map<std::string_view, Entry*>, typeKindCount> bySpelling_;
    std::array<std::int32_t, typeKindCount> lastUnknown_;
};

}  // namespace wxbrg::xml
