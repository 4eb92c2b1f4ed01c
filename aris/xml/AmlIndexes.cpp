#include "aris/xml/AmlIndexes.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace wxbrg::xml {

namespace {

/// The ranges of `owners` owners whose parts lie together in the order of the owners; `ownerOf(part)` gives
/// whose a part is.
template <class OwnerOf>
std::vector<Range> RangesByOwner(std::size_t owners, std::size_t parts, OwnerOf ownerOf) {
    std::vector<Range> ranges(owners);
    for (std::size_t part = 0; part < parts; ++part) ++ranges[ownerOf(part)].count;
    std::uint32_t first = 0;
    for (Range& range : ranges) {
        range.first = first;
        first += range.count;
    }
    return ranges;
}

/// References to the parts, those of an owner together and in the order of the parts.
template <class Interface, class Part, class OwnerOf>
std::vector<Ref<const Interface>> GroupByOwner(const std::vector<Part>& parts,
                                               const std::vector<Range>& ranges, OwnerOf ownerOf) {
    std::vector<Ref<const Interface>> grouped(parts.size());
    std::vector<std::uint32_t> next(ranges.size());
    for (std::size_t owner = 0; owner < ranges.size(); ++owner) next[owner] = ranges[owner].first;
    for (std::size_t part = 0; part < parts.size(); ++part) grouped[next[ownerOf(part)]++] = &parts[part];
    return grouped;
}

/// Sorts each range by type number; within a number the order stays.
void SortByType(std::vector<ARISCxnDef>& references, const std::vector<Range>& ranges) {
    const auto typeNum = [](const ARISCxnDef& connection) {
        return static_cast<const XmlCxnDef&>(*connection).TypeNum();
    };
    const auto before = [&](const ARISCxnDef& a, const ARISCxnDef& b) {
        return typeNum(a) < typeNum(b);
    };
    for (const Range& range : ranges) {
        const auto first = references.begin() + range.first;
        if (!std::is_sorted(first, first + range.count, before))
            std::stable_sort(first, first + range.count, before);
    }
}

std::vector<Range> IndexConnections(const AmlStore& store, std::vector<ARISCxnDef>& index,
                                    std::uint32_t (XmlCxnDef::*ownerOf)() const) {
    const auto owner = [&](std::size_t place) {
        return (store.connections[place].*ownerOf)();
    };
    std::vector<Range> ranges = RangesByOwner(store.definitions.size(), store.connections.size(), owner);
    index = GroupByOwner<aris::CxnDef>(store.connections, ranges, owner);
    SortByType(index, ranges);
    return ranges;
}

/// Adds the definitions that a model's occurrences show, each once, by type number and order of the file.
Range AddDefinitionsOfModel(AmlStore& store, std::span<const std::uint32_t> shown,
                            std::vector<std::uint32_t>& scratch) {
    scratch.assign(shown.begin(), shown.end());
    const auto typeNum = [&](std::uint32_t place) {
        return store.definitions[place].TypeNum();
    };
    std::sort(scratch.begin(), scratch.end(), [&](std::uint32_t a, std::uint32_t b) {
        return typeNum(a) != typeNum(b) ? typeNum(a) < typeNum(b) : a < b;
    });
    scratch.erase(std::unique(scratch.begin(), scratch.end()), scratch.end());
    const auto first = static_cast<std::uint32_t>(store.definitionsOfModels.size());
    for (const std::uint32_t place : scratch) store.definitionsOfModels.push_back(&store.definitions[place]);
    return {first, static_cast<std::uint32_t>(scratch.size())};
}

void IndexModels(AmlStore& store, const std::vector<std::uint32_t>& definitionOf) {
    const std::vector<Range> ofModel =
        RangesByOwner(store.models.size(), store.occurrences.size(), [&](std::size_t place) {
            return store.occurrences[place].ModelPlace();
        });
    std::vector<std::uint32_t> scratch;
    store.modelList.reserve(store.models.size());
    for (XmlModel& model : store.models) {
        model.SetDefinitions(AddDefinitionsOfModel(store, ofModel[model.Place()].In(definitionOf), scratch));
        store.modelList.push_back(&model);
    }
    store.definitionsOfModels.shrink_to_fit();
}

}  // namespace

void MakeIndexes(AmlStore& store, const std::vector<std::uint32_t>& definitionOf,
                 const std::vector<Range>& assignedModels) {
    IndexModels(store, definitionOf);
    const auto definition = [&](std::size_t place) {
        return definitionOf[place];
    };
    const std::vector<Range> occurrences =
        RangesByOwner(store.definitions.size(), store.occurrences.size(), definition);
    store.occurrencesOfDefinitions = GroupByOwner<aris::ObjOcc>(store.occurrences, occurrences, definition);
    const std::vector<Range> outgoing = IndexConnections(store, store.outgoing, &XmlCxnDef::SourcePlace);
    const std::vector<Range> incoming = IndexConnections(store, store.incoming, &XmlCxnDef::TargetPlace);
    for (std::size_t place = 0; place < store.definitions.size(); ++place)
        store.definitions[place].SetLinks(
            {occurrences[place], outgoing[place], incoming[place], assignedModels[place]});
}

}  // namespace wxbrg::xml
