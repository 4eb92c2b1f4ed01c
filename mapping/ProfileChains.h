#pragma once

#include <string>
#include <vector>

#include "mapping/ProfileClauses.h"

namespace wxbrg {

/// A way along chained steps that comes back to where it began.
struct ChainCircle {
    TextPlace place;                 ///< of the rule name that leads into it
    std::vector<std::string> rules;  ///< by name; the first one is at the end again
};

/// The circles that the chained steps of a profile can make: for each step the shortest one, each circle
/// once, in the order of the steps. Rules that chain as the built-in ones do (rule objects behind rule
/// objects and events) are how control flow is followed, and make no circle here. Cost: chained steps times
/// steps.
std::vector<ChainCircle> CirclesOf(const ProfileClauses& clauses);

}  // namespace wxbrg
