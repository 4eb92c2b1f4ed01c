#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "mapping/clsMappingRule.h"
#include "run/Frame.h"
#include "support/Ref.h"

namespace wxbrg {

/// The default rules as values, in the order of their table.
std::vector<clsMappingRule> BuiltInRules();

/// Fills the rule table with the default rules. A name that is there already brings the warning 2110, and the
/// rule that was there stays.
void CreateDefaultMappingRules();

/// The rule of a name, in the procedure whose frame is given. A name that the table does not hold ends the
/// run with 2100.
Ref<const clsMappingRule> FetchRule(Frame& frame, std::string_view ruleName);

/// The attribute number of a rule; -1 stands for the item's name. Fails with 13 for a rule without one.
std::int32_t AttributeNumber(const clsMappingRule& rule);

}  // namespace wxbrg
