#include "cli/RuleChoice.h"

#include "cli/CauseText.h"
#include "cli/InputFiles.h"
#include "cli/UsageError.h"
#include "support/Failure.h"

namespace wxbrg::cli {

std::optional<std::string> ChosenProfile(const RuleArguments& given, FileSystem& files) {
    if (given.builtIn) return std::string();
    if (!given.profile) return std::nullopt;
    if (given.profile->empty()) throw UsageError("The name of the mapping profile is empty; name a file.");
    if (IsNamedPipe(*given.profile))
        throw UsageError("The mapping profile " + *given.profile +
                         " is a pipe, and a profile is opened more than once; name a file.");
    try {
        files.Open(*given.profile, FileAccess::read)->Close();
    } catch (const Failure& failure) {
        const std::string cause = CauseText(failure.Cause);
        throw UsageError("The mapping profile " + *given.profile + " cannot be read: " + failure.Description +
                         (cause.empty() ? "." : ". " + cause));
    }
    return given.profile;
}

}  // namespace wxbrg::cli
