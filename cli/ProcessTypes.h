#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>

#include "cli/ToolEnvironment.h"
#include "run/RunExport.h"

namespace wxbrg::cli {

/// Where rules come from, and how they are read.
struct RulesInForce {
    ProfileStore& profileStore;                 ///< says the language of the boxes
    CodePage& codePage;                         ///< of the profile
    std::optional<std::string> mappingProfile;  ///< as in `Platform`
};

/// Which models are mapped as processes by the rules. Boxes about the profile are printed to `boxes`.
ProcessTypes ProcessTypesInForce(const ToolEnvironment& environment, const RulesInForce& rules,
                                 std::ostream& boxes);

/// Whether a model type is among them.
bool IsProcessTypeIn(const ProcessTypes& inForce, std::int32_t modelType);

}  // namespace wxbrg::cli
