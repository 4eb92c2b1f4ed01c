#pragma once

#include <cstdint>

#include "aris/Repository.h"
#include "support/Numbers.h"

/// What every lookup asks of the repository's items and lists: only what is drawn counts.
namespace wxbrg {

/// Whether an object or a connection is drawn in any model of the database.
template <class Item>
bool IsDrawn(const Item& item) {
    return item->OccList().Count() > 0;
}

inline bool IsDrawnIn(const ARISObjDef& item, const ARISModel& model) {
    return item->OccListInModel(model).Count() > 0;
}

/// The last position of an ARIS list, -1 for an empty one. Positions have 16 bits: fails with 6 where the
/// list is longer.
template <class List>
std::int16_t LastPosition(const List& list) {
    return NarrowTo<std::int16_t>(list.Count() - 1);
}

}  // namespace wxbrg
