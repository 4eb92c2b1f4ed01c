#pragma once

#include <vector>

#include "mapping/ProfileFinding.h"
#include "mapping/ProfileParser.h"
#include "mapping/ProfileTokenizer.h"

namespace wxbrg {

/// What a profile holds, and all that is wrong about the way it is written.
struct ProfileClauses {
    std::vector<ProfileClause> clauses;
    std::vector<ProfileFinding> findings;  ///< in the order in which a run meets them
};

/// Takes the tokens of a profile by its grammar. Behind a mistake it goes on where the next thing is clear:
/// with the value as if it were the right one, with the next rule at the latest.
ProfileClauses ReadClauses(const ProfileTokens& tokens, char32_t decimalSeparator);

}  // namespace wxbrg
