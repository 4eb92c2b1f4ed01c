#pragma once

#include <string>
#include <string_view>

#include "tests/cases/runner/Case.h"
#include "tests/cases/runner/Replay.h"

namespace wxbrg::cases {

/// Replays a copy of a case in which one of its files holds other text, or is one more.
ReplayOutcome ReplayWith(const Case& original, const std::string& file, const std::string& bytes);

/// The stored options of a case with another value for one of them: a flag or choice turned, a number one
/// more, the language "ENU". Throws std::invalid_argument for a name that is none.
std::string OptionsWithOther(std::string_view options, std::string_view name);

/// The built-in rules as a mapping profile, in which the rule `idle`, if it is one, is there but finds
/// nothing.
std::string BuiltInProfile(std::string_view idle);

}  // namespace wxbrg::cases
