#pragma once

#include <vector>

#include "mapping/ProfileClauses.h"
#include "mapping/clsMappingRule.h"
#include "support/Collection.h"
#include "support/Ref.h"

/// Rule tables outside a run: as values, for printing and comparing them.
namespace wxbrg {

/// The rules of a table, in its order. Each fills in one of its three parts.
using RuleTable = std::vector<clsMappingRule>;

/// The rules of a table as a run has it.
RuleTable RulesOf(const Collection<Ref<clsMappingRule>>& rules);

/// A rule of a profile as a run takes it.
clsMappingRule RuleOf(const ProfileClause& clause);

/// The rules of a profile as a run takes them, where none of its findings says that it is unreadable.
RuleTable RulesOf(const ProfileClauses& clauses);

}  // namespace wxbrg
