#pragma once

#include <cstdint>
#include <vector>

#include "aris/xml/AmlStore.h"

namespace wxbrg::xml {

/// Makes the indexes of a store that holds all its items. `definitionOf` gives the definition of each
/// occurrence, `assignedModels` the range of each definition in the store's assigned models.
void MakeIndexes(AmlStore& store, const std::vector<std::uint32_t>& definitionOf,
                 const std::vector<Range>& assignedModels);

}  // namespace wxbrg::xml
