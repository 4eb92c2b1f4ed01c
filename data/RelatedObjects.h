#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "aris/Repository.h"
#include "mapping/RuleSteps.h"
#include "support/Collection.h"

namespace wxbrg {

/// Answers for many objects whether a rule leads to them from any of a list of objects. Each asks the list in
/// order, one object after the other, as `ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule` does;
/// what an earlier question has come by is remembered, so that no step is taken twice and none that the
/// questions do not come to.
///
/// Cost: linear in the connections of the list's objects, for all questions together.
class RelatedObjects {
  public:
    /// `from` and the text behind `rule` must outlive this.
    RelatedObjects(const Collection<ARISObjDef>& from, std::string_view rule) : from_(from), rule_(rule) {}

    /// Whether the rule leads to the object, which is drawn somewhere. A positive answer leaves the name of
    /// the test in `gCurrentProcedure`.
    bool LeadTo(const ARISObjDef& object);

  private:
    /// Takes one more step of the walk; false at its end.
    bool TakeStep(Frame& frame);
    void AddReached(const Collection<ARISObjDef>& objects);
    bool Knows(const ARISObjDef& object) const { return reached_.contains(std::string(object->Guid())); }

    const Collection<ARISObjDef>& from_;
    std::string_view rule_;
    std::int32_t nextFrom_ = 1;              ///< position of the next object to take steps from
    std::vector<RuleStep> steps_;            ///< of the rule, from the object before that
    std::size_t nextStep_ = 0;               ///< the first of them that has not been taken
    std::vector<ARISObjDef> intermediates_;  ///< of a chained step, still to be followed, the next one last
    std::string_view chained_;               ///< the rule that goes on from them
    std::unordered_set<std::string> reached_;
};

}  // namespace wxbrg
