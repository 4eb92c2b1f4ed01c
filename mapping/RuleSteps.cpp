#include "mapping/RuleSteps.h"

#include "mapping/RelatedObjectSearch.h"
#include "mapping/RuleTable.h"

namespace wxbrg {

void RuleStep::AddObjectsTo(Collection<ARISObjDef>& result) const {
    Find_Related_ARIS_ObjDef(result, from_, mapping_->CnxKind, mapping_->CnxTypeNum,
                             mapping_->TargetObjTypeNum);
}

Collection<ARISObjDef> RuleStep::Objects() const {
    Collection<ARISObjDef> objects;
    AddObjectsTo(objects);
    return objects;
}

std::vector<RuleStep> StepsOfRule(Frame& frame, const ARISObjDef& from, std::string_view ruleName) {
    const Ref<const clsMappingRule> rule = FetchRule(frame, ruleName);
    std::vector<RuleStep> steps;
    for (const clsConnectionMapping& mapping : rule->ColConnectionMapping)
        if (from->TypeNum() == mapping.SourceObjTypeNum) steps.emplace_back(from, mapping);
    return steps;
}

}  // namespace wxbrg
