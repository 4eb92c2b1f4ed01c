#include "cli/StoredOptions.h"

#include <stdexcept>

namespace wxbrg::cli {

std::string StoreProblem(const ProfileStore& store) {
    std::string text;
    for (const std::string& problem : store.ReadProblems()) {
        if (!text.empty()) text += '\n';
        text += problem;
    }
    return text;
}

StoredOptions::StoredOptions(bool ignored, const ToolEnvironment& environment)
    : store_(ignored ? static_cast<ProfileStore&>(none_) : environment.profileStore) {
    const std::string problem = StoreProblem(store_);
    if (!problem.empty())
        throw std::runtime_error(problem + "\nWith --no-stored-options the stored options do not count.");
}

}  // namespace wxbrg::cli
