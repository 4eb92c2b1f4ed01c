#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

#include "aris/xml/TextArena.h"

namespace wxbrg::xml {

/// The ids of one sort of element and what they stand for. References may be met before what they refer to:
/// each id has a slot from its first mention, and the slot gets its target when the element comes.
class References {
  public:
    using Slot = std::uint32_t;
    /// The slot of an empty id, and the target of a slot that has none.
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    /// The slot of an id, the same for each mention. An empty id has none.
    Slot Mention(std::string_view id);
    /// Makes `target` what the id stands for, unless an earlier element has the id. Returns the id's slot.
    Slot Define(std::string_view id, std::uint32_t target);
    /// What a slot's id stands for, `none` where no element has it.
    std::uint32_t Target(Slot slot) const { return slot == none ? none : targets_[slot]; }
    /// How many slots there are; they count from 0.
    std::size_t Count() const { return targets_.size(); }

  private:
    /// A place of the hash table; free where it has no slot. The hash is here to spare a look at the id.
    struct Place {
        std::uint32_t hash = 0;
        Slot slot = none;
    };

    void Grow();
    Place& PlaceOf(std::string_view id, std::uint32_t hash);

    TextArena texts_;
    std::vector<Text> ids_;  // these two by slot
    std::vector<std::uint32_t> targets_;
    std::vector<Place> places_;  // open addressing over a power of two of places
};

}  // namespace wxbrg::xml
