#pragma once

#include <string_view>
#include <vector>

#include "aris/Repository.h"
#include "mapping/clsConnectionMapping.h"
#include "run/Frame.h"
#include "support/Collection.h"

namespace wxbrg {

/// A step that a connection rule takes from one object.
class RuleStep {
  public:
    /// `mapping` must outlive this: it belongs to the rule table.
    RuleStep(const ARISObjDef& from, const clsConnectionMapping& mapping) : from_(from), mapping_(&mapping) {}

    /// Whether the objects that the step leads to are only intermediate ones.
    bool IsChained() const { return mapping_->IsChainedConnection(); }
    /// The rule that goes on from them; empty where the step ends there.
    std::string_view NextRule() const { return mapping_->TargetObjRule; }

    /// Adds the drawn objects that the step leads to.
    void AddObjectsTo(Collection<ARISObjDef>& result) const;
    Collection<ARISObjDef> Objects() const;

  private:
    ARISObjDef from_;
    const clsConnectionMapping* mapping_;
};

/// The steps of a rule that start from the object's type, in the order of the rule. No connection is asked
/// for before a step's objects are. A name that the rule table does not hold ends the run with 2100.
std::vector<RuleStep> StepsOfRule(Frame& frame, const ARISObjDef& from, std::string_view ruleName);

}  // namespace wxbrg
