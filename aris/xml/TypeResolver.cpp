#include "aris/xml/TypeResolver.h"

#include <optional>
#include <utility>

#include "aris/xml/Spelling.h"

namespace wxbrg::xml {

namespace {

constexpr std::int32_t firstUnknownNumber = 100000;

}  // namespace

TypeResolver::TypeResolver(TypeTable table) : table_(std::move(table)) {
    lastUnknown_.fill(firstUnknownNumber - 1);
}

const ResolvedType* TypeResolver::Resolve(TypeKind kind, std::string_view spelled) {
    spelled = TrimSpace(spelled);
    auto& known = bySpelling_[static_cast<std::size_t>(kind)];
    const auto found = known.find(spelled);
    Entry* const entry = found != known.end() ? found->second : Add(kind, spelled);
    if (entry == nullptr) return nullptr;
    ++entry->appearances;
    return &entry->type;
}

TypeResolver::Entry* TypeResolver::Add(TypeKind kind, std::string_view spelled) {
    Entry entry{kind, std::string(spelled), {}};
    if (spelled.empty() || IsPlainDecimal(spelled)) {
        const std::optional<std::int32_t> number = spelled.empty() ? 0 : WholeNumber(spelled);
        if (!number) return nullptr;
        entry.type = {*number, NameOf(kind, *number)};
    } else if (const TypeTable::Type* type = table_.Find(kind, spelled); type != nullptr) {
        entry.type = {type->number, type->readableName};
    } else {
        entry.type = {AddUnknown(kind, spelled), std::string(spelled)};
        entry.unknown = true;
    }
    entries_.push_back(std::move(entry));
    Entry* const added = &entries_.back();
    bySpelling_[static_cast<std::size_t>(kind)].emplace(added->spelled, added);
    return added;
}

/// A number of the table's own is passed over: it stands for another type.
std::int32_t TypeResolver::AddUnknown(TypeKind kind, std::string_view apiName) {
    std::int32_t& last = lastUnknown_[static_cast<std::size_t>(kind)];
    do ++last;
    while (table_.NameOf(kind, last) != nullptr);
    table_.Add(kind, apiName, last, apiName);
    return last;
}

std::string TypeResolver::NameOf(TypeKind kind, std::int32_t number) const {
    const std::string* const name = table_.NameOf(kind, number);
    return name != nullptr ? *name : std::to_string(number);
}

std::vector<aris::UnknownType> TypeResolver::Unknown() const {
    std::vector<aris::UnknownType> unknown;
    for (const Entry& entry : entries_)
        if (entry.unknown)
            unknown.push_back({entry.kind, entry.type.readableName, entry.type.number, entry.appearances});
    return unknown;
}

}  // namespace wxbrg::xml
