#pragma once

#include <cstdint>
#include <string>

#include "mapping/clsMappingRuleToken.h"

namespace wxbrg {

enum class FindingSeverity {
    error,    ///< it ends a run, brings a message box in it, or makes it do otherwise than the profile says
    warning,  ///< it looks like a mistake, and a run takes it as it is
};

/// What is wrong or doubtful in a mapping profile.
struct ProfileFinding {
    FindingSeverity severity = FindingSeverity::error;
    TextPlace place;
    std::string text;           ///< what is wrong, and what to do about it
    std::int32_t endsWith = 0;  ///< the number of the failure with which a run ends at it as it reads; or 0
    /// The rules of the profile cannot all be taken from it: a run ends as it reads, or drops a rule that is
    /// cut off.
    bool unreadable = false;
};

}  // namespace wxbrg
