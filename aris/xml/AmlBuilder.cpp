#include "aris/xml/AmlBuilder.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "aris/xml/AmlIndexes.h"
#include "support/Numbers.h"

namespace wxbrg::xml {

namespace {

/// Frees what a vector that is used up holds.
template <class T>
void Free(std::vector<T>& used) {
    std::vector<T>().swap(used);
}

std::uint32_t Place(std::size_t place) {
    return NarrowTo<std::uint32_t>(place);
}

}  // namespace

AmlBuilder::AmlBuilder(TypeTable types) : store_(std::make_unique<AmlStore>(std::move(types))) {}

void AmlBuilder::SetDatabase(std::string_view name, std::string_view user) {
    store_->databaseName = name;
    store_->userName = user;
}

void AmlBuilder::AddLocale(std::int32_t number, std::string_view name) {
    if (locales_.insert(number).second) store_->locales.push_back({number, std::string(name)});
}

void AmlBuilder::Open(OpenItem& item, std::size_t place, std::string_view id) {
    item.place = Place(place);
    item.id = id;
    item.guid.clear();
    item.values.clear();
}

/// Hands the item's Guid and values over to the store.
template <class Item>
void AmlBuilder::Close(OpenItem& item, Item& stored) {
    std::vector<XmlAttribute>& values = item.values;
    std::stable_sort(values.begin(), values.end(), StandsBefore);
    const auto end =
        std::unique(values.begin(), values.end(), [](const XmlAttribute& a, const XmlAttribute& b) {
            return !StandsBefore(a, b);
        });
    const Range range{Place(store_->values.size()), Place(static_cast<std::size_t>(end - values.begin()))};
    store_->values.insert(store_->values.end(), values.begin(), end);
    stored.SetData(store_->texts.Add(item.guid.empty() ? item.id : item.guid), range);
}

void AmlBuilder::BeginGroup(std::string_view id) {
    const std::uint32_t parent = openGroups_.empty() ? References::none : openGroups_.back().place;
    Open(openGroups_.emplace_back(), store_->groups.size(), id);
    store_->groups.emplace_back(EmptyItem(), parent);
}

void AmlBuilder::BeginDefinition(std::string_view id, const ResolvedType& type, const ResolvedType* symbol) {
    Open(item_, store_->definitions.size(), id);
    itemIsOpen_ = true;
    definitionIds_.Define(id, item_.place);
    definitions_.push_back({symbol, Place(assignedModels_.size())});
    store_->definitions.emplace_back(EmptyItem(), type);
}

void AmlBuilder::BeginModel(std::string_view id, const ResolvedType& type) {
    Open(item_, store_->models.size(), id);
    itemIsOpen_ = true;
    modelIds_.Define(id, item_.place);
    const std::uint32_t group = openGroups_.empty() ? References::none : openGroups_.back().place;
    store_->models.emplace_back(EmptyItem(), type, item_.place, group);
}

void AmlBuilder::EndGroup() {
    OpenItem& group = openGroups_.back();
    Close(group, store_->groups[group.place]);
    openGroups_.pop_back();
}

void AmlBuilder::EndDefinition() {
    Close(item_, store_->definitions[item_.place]);
    itemIsOpen_ = false;
}

void AmlBuilder::EndModel() {
    Close(item_, store_->models[item_.place]);
    itemIsOpen_ = false;
}

void AmlBuilder::SetGuid(std::string_view guid) {
    OpenItem& item = Innermost();
    if (item.guid.empty()) item.guid = guid;
}

void AmlBuilder::AddValue(const ResolvedType& type, std::int32_t locale, std::string_view text) {
    OpenItem& item = Innermost();
    item.values.emplace_back(type, locale, Place(item.values.size()), store_->texts.Add(text));
}

void AmlBuilder::AddAssignedModel(std::string_view modelId) {
    assignedModels_.push_back(modelIds_.Mention(modelId));
}

void AmlBuilder::AddConnection(std::string_view id, const ResolvedType& type, std::string_view targetId) {
    const References::Slot slot = connectionIds_.Define(id, Place(connections_.size()));
    connections_.push_back({item_.place, slot, definitionIds_.Mention(targetId), type.number});
}

void AmlBuilder::AddOccurrence(std::string_view definitionId, const ResolvedType* symbol) {
    occurrences_.push_back({definitionIds_.Mention(definitionId), symbol, 0, 0, item_.place});
}

void AmlBuilder::SetPosition(std::int32_t x, std::int32_t y) {
    occurrences_.back().x = x;
    occurrences_.back().y = y;
}

void AmlBuilder::AddConnectionOccurrence(std::string_view connectionId) {
    const References::Slot slot = connectionIds_.Mention(connectionId);
    if (slot == References::none) {
        ++drawnWithoutId_;
        return;
    }
    if (slot >= drawn_.size()) drawn_.resize(std::max(connectionIds_.Count(), std::size_t{slot} + 1));
    ++drawn_[slot];
}

/// Stores the occurrences. Returns the definition of each.
std::vector<std::uint32_t> AmlBuilder::ResolveOccurrences() {
    std::vector<std::uint32_t> definitionOf;
    definitionOf.reserve(occurrences_.size());
    store_->occurrences.reserve(occurrences_.size());
    for (const PendingOccurrence& occurrence : occurrences_) {
        const std::uint32_t definition = definitionIds_.Target(occurrence.definition);
        if (definition == References::none) {
            ++store_->dangling.occurrencesWithoutDefinition;
            continue;
        }
        const ResolvedType* const symbol =
            occurrence.symbol != nullptr ? occurrence.symbol : definitions_[definition].symbol;
        store_->occurrences.emplace_back(symbol == nullptr ? 0 : symbol->number, occurrence.x, occurrence.y,
                                         occurrence.model);
        definitionOf.push_back(definition);
    }
    Free(occurrences_);
    return definitionOf;
}

void AmlBuilder::ResolveConnections() {
    drawn_.resize(connectionIds_.Count());
    std::uint32_t mostDrawn = 0;
    store_->connections.reserve(connections_.size());
    for (const PendingConnection& connection : connections_) {
        const std::uint32_t target = definitionIds_.Target(connection.target);
        if (target == References::none) {
            ++store_->dangling.connectionsWithoutTarget;
            continue;
        }
        const std::uint32_t drawn = connection.id == References::none ? 0 : drawn_[connection.id];
        mostDrawn = std::max(mostDrawn, drawn);
        store_->connections.emplace_back(*store_, connection.source, target, connection.typeNum, drawn);
    }
    Free(connections_);
    store_->dangling.connectionOccurrencesWithoutDefinition = drawnWithoutId_;
    for (References::Slot slot = 0; slot < connectionIds_.Count(); ++slot)
        if (connectionIds_.Target(slot) == References::none)
            store_->dangling.connectionOccurrencesWithoutDefinition += drawn_[slot];
    static const XmlCxnOcc anyOccurrence;
    store_->connectionOccurrences.assign(mostDrawn, &anyOccurrence);
}

/// Stores the assigned models. Returns the range of each definition.
std::vector<Range> AmlBuilder::ResolveAssignedModels() {
    std::vector<Range> ranges;
    ranges.reserve(definitions_.size());
    for (std::size_t place = 0; place < definitions_.size(); ++place) {
        const std::size_t end = place + 1 < definitions_.size() ? definitions_[place + 1].firstAssignedModel
                                                                : assignedModels_.size();
        const std::uint32_t first = Place(store_->assignedModels.size());
        for (std::size_t link = definitions_[place].firstAssignedModel; link < end; ++link) {
            const std::uint32_t model = modelIds_.Target(assignedModels_[link]);
            if (model == References::none)
                ++store_->dangling.assignedModelsMissing;
            else
                store_->assignedModels.push_back(&store_->models[model]);
        }
        ranges.push_back({first, Place(store_->assignedModels.size()) - first});
    }
    store_->assignedModels.shrink_to_fit();
    return ranges;
}

std::unique_ptr<AmlStore> AmlBuilder::Finish() {
    store_->noGroup.SetData(store_->texts.Add({}), {});
    store_->values.shrink_to_fit();
    store_->groups.shrink_to_fit();
    store_->models.shrink_to_fit();
    store_->definitions.shrink_to_fit();
    const std::vector<std::uint32_t> definitionOf = ResolveOccurrences();
    ResolveConnections();
    store_->occurrences.shrink_to_fit();
    store_->connections.shrink_to_fit();
    MakeIndexes(*store_, definitionOf, ResolveAssignedModels());
    store_->unknownTypes = store_->types.Unknown();
    return std::move(store_);
}

}  // namespace wxbrg::xml
