#include "cli/ProcessTypes.h"

#include <algorithm>
#include <utility>

#include "cli/UnattendedPlatform.h"
#include "platform/scripted/NoProgress.h"

namespace wxbrg::cli {

ProcessTypes ProcessTypesInForce(const Surroundings& surroundings, const RulesInForce& rules,
                                 std::ostream& told) {
    NoProgress progress;
    UnattendedPlatform platform(surroundings, {.profileStore = rules.profileStore,
                                               .codePage = rules.codePage,
                                               .progress = progress,
                                               .told = told,
                                               .mappingProfile = rules.mappingProfile});
    return ReadProcessTypes(platform.Get());
}

bool IsProcessTypeIn(const ProcessTypes& inForce, std::int32_t modelType) {
    return std::find(inForce.types.begin(), inForce.types.end(), modelType) != inForce.types.end();
}

}  // namespace wxbrg::cli
