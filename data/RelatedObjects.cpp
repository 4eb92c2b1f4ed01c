#include "data/RelatedObjects.h"

#include <algorithm>

#include "mapping/RuleLookups.h"
#include "mapping/RuleTable.h"
#include "run/Frame.h"

namespace wxbrg {

bool RelatedObjects::TakeStep(Frame& frame) {
    if (!intermediates_.empty()) {
        const ARISObjDef object = intermediates_.back();
        intermediates_.pop_back();
        Collection<ARISObjDef> ends;
        for (const ARISObjDef& end : Find_Related_ARIS_ObjDef_Using_Mapping_Rule(ends, object, chained_))
            reached_.insert(std::string(end->Guid()));
        return true;
    }
    if (nextFrom_ > from_.Count()) return false;
    const ARISObjDef object = from_.Item(nextFrom_);
    const Collection<clsConnectionMapping>& mappings = FetchRule(frame, rule_)->ColConnectionMapping;
    if (nextMapping_ > mappings.Count()) {
        ++nextFrom_;
        nextMapping_ = 1;
        return true;
    }
    const clsConnectionMapping& mapping = mappings.Item(nextMapping_++);
    if (object->TypeNum() != mapping.SourceObjTypeNum) return true;
    Collection<ARISObjDef> steps;
    Find_Related_ARIS_ObjDef(steps, object, mapping.CnxKind, mapping.CnxTypeNum, mapping.TargetObjTypeNum);
    if (mapping.IsChainedConnection()) {
        for (const ARISObjDef& step : steps) intermediates_.push_back(step);
        std::reverse(intermediates_.begin(), intermediates_.end());
    } else {
        for (const ARISObjDef& step : steps) reached_.insert(std::string(step->Guid()));
    }
    chained_ = mapping.TargetObjRule;
    return true;
}

bool RelatedObjects::LeadTo(const ARISObjDef& object) {
    return Procedure("modMappingRule.ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule",
                     [&](Frame& frame) {
                         while (!Knows(object))
                             if (!TakeStep(frame)) return false;
                         frame.KeepName();
                         return true;
                     });
}

}  // namespace wxbrg
