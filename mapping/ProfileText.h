#pragma once

#include <string>
#include <vector>

#include "mapping/ProfileTable.h"

namespace wxbrg {

/// What is between name and END of a rule in a profile, one type, attribute or step an entry.
std::vector<std::string> EntryTexts(const clsMappingRule& rule);

/// A table as the text of a profile, lines ending in LF. Read as a profile it gives the same table, if its
/// names are such as a profile can hold.
std::string ProfileText(const RuleTable& rules);

}  // namespace wxbrg
