#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "mapping/ProfileFinding.h"
#include "mapping/ProfileNames.h"
#include "mapping/ProfileReading.h"

namespace wxbrg {

/// A word of a profile, or a number that is one.
struct ProfileField {
    std::string text;  ///< as it stands; empty: not there
    TextPlace place;
    std::optional<std::int32_t> number;  ///< nothing where it is no number of 32 bits
};

/// One step of a connection rule. Fields behind a mistake may be empty.
struct ProfileStep {
    ProfileField source;
    ProfileField target;
    ProfileField kind;
    ProfileField connection;
    ProfileField continues;
};

/// One rule of a profile.
struct ProfileClause {
    RuleSort sort;
    ProfileField name;
    std::vector<ProfileField> types;
    ProfileField attribute;
    std::vector<ProfileStep> steps;
    bool whole = false;     ///< it was read to its END
    bool doubled = false;   ///< another rule of the name stands in front of it
    bool misnamed = false;  ///< its name is one that no rule can have
};

/// What a profile holds, and all that is wrong about the way it is written.
struct ProfileClauses {
    std::vector<ProfileClause> clauses;
    std::vector<ProfileFinding> findings;  ///< in the order in which a run meets them
};

/// Takes the tokens of a profile by its grammar. Behind a mistake it goes on where the next thing is clear:
/// with the value as if it were the right one, with the next rule at the latest.
ProfileClauses ReadClauses(const ProfileReading& reading, char32_t decimalSeparator);

}  // namespace wxbrg
