#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "mapping/ProfileTable.h"

namespace wxbrg {

enum class RuleChange { added, missing, changed };

/// What two tables say otherwise about one rule.
struct RuleDifference {
    RuleChange change;
    std::string name;
    std::vector<std::string> before;  ///< entries that only the first table has; all of a missing rule
    std::vector<std::string> now;     ///< entries that only the second table has; all of an added rule
};

/// What the second table changes against the first: changed and missing rules in the order of the first, then
/// the added ones in the order of the second. Of a changed rule the entries count between those that are the
/// same at its beginning and its end. Names count in any case, and the order of rules does not count.
std::vector<RuleDifference> DifferencesOf(const RuleTable& first, const RuleTable& second);

/// The differences for a reader: under each rule its entries, marked by "-" and "+", and last a line of how
/// many there are. `ruleCount` is that of the first table.
std::string DifferenceText(const std::vector<RuleDifference>& differences, std::size_t ruleCount);

}  // namespace wxbrg
