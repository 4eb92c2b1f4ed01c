#pragma once

#include <cstdint>

#include "cli/Surroundings.h"
#include "run/RunExport.h"

namespace wxbrg::cli {

/// Which models are mapped as processes, by the rules in force: those of the profile beside the program where
/// there is one. Boxes about the profile are printed to `told`. `profileStore` says the language.
ProcessTypes ProcessTypesInForce(const Surroundings& surroundings, ProfileStore& profileStore,
                                 CodePage& codePage, std::ostream& told);

/// Whether a model type is among them.
bool IsProcessTypeIn(const ProcessTypes& inForce, std::int32_t modelType);

}  // namespace wxbrg::cli
