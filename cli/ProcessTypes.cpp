#include "cli/ProcessTypes.h"

#include <algorithm>
#include <utility>

#include "cli/BatchPlatform.h"
#include "platform/scripted/NoProgress.h"

namespace wxbrg::cli {

ProcessTypes ProcessTypesInForce(const ToolEnvironment& environment, const RulesInForce& rules,
                                 std::ostream& boxes) {
    NoProgress progress;
    BatchPlatform platform(environment, {.profileStore = rules.profileStore,
                                         .codePage = rules.codePage,
                                         .progress = progress,
                                         .boxes = boxes,
                                         .mappingProfile = rules.mappingProfile});
    return ReadProcessTypes(platform.Get());
}

bool IsProcessTypeIn(const ProcessTypes& inForce, std::int32_t modelType) {
    return std::find(inForce.types.begin(), inForce.types.end(), modelType) != inForce.types.end();
}

}  // namespace wxbrg::cli
