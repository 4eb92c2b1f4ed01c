#include "aris/xml/References.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace wxbrg::xml {

namespace {

constexpr std::size_t firstPlaces = 64;

std::uint32_t HashOf(std::string_view id) {
    return static_cast<std::uint32_t>(std::hash<std::string_view>{}(id));
}

}  // namespace

/// The place that holds the id, or the free one where it belongs.
References::Place& References::PlaceOf(std::string_view id, std::uint32_t hash) {
    const std::size_t mask = places_.size() - 1;
    std::size_t at = hash & mask;
    while (places_[at].slot != none && (places_[at].hash != hash || ids_[places_[at].slot].View() != id))
        at = (at + 1) & mask;
    return places_[at];
}

References::Slot References::Mention(std::string_view id) {
    if (id.empty()) return none;
    if (2 * ids_.size() >= places_.size()) Grow();
    const std::uint32_t hash = HashOf(id);
    Place& place = PlaceOf(id, hash);
    if (place.slot == none) {
        place = {hash, static_cast<Slot>(ids_.size())};
        ids_.push_back(texts_.Add(id));
        targets_.push_back(none);
    }
    return place.slot;
}

References::Slot References::Define(std::string_view id, std::uint32_t target) {
    const Slot slot = Mention(id);
    if (slot != none && targets_[slot] == none) targets_[slot] = target;
    return slot;
}

void References::Grow() {
    std::vector<Place> grown(std::max(2 * places_.size(), firstPlaces));
    const std::size_t mask = grown.size() - 1;
    for (const Place& place : places_) {
        if (place.slot == none) continue;
        std::size_t at = place.hash & mask;
        while (grown[at].slot != none) at = (at + 1) & mask;
        grown[at] = place;
    }
    places_ = std::move(grown);
}

}  // namespace wxbrg::xml
