#pragma once

#include <ostream>

#include "tests/cases/runner/Case.h"

namespace wxbrg::cases {

/// Makes what the replay of a case leaves now its expected result, dates masked, and reports which files of
/// it changed. Returns false, and changes nothing, where the case cannot be replayed; it reports why.
bool Record(const Case& wanted, std::ostream& out);

}  // namespace wxbrg::cases
