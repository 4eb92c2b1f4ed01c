#include "data/RelatedObjects.h"

#include <algorithm>

#include "mapping/RelatedObjectSearch.h"
#include "run/Frame.h"

namespace wxbrg {

void RelatedObjects::AddReached(const Collection<ARISObjDef>& objects) {
    for (const ARISObjDef& object : objects) reached_.insert(std::string(object->Guid()));
}

bool RelatedObjects::TakeStep(Frame& frame) {
    if (!intermediates_.empty()) {
        const ARISObjDef object = intermediates_.back();
        intermediates_.pop_back();
        Collection<ARISObjDef> ends;
        AddReached(Find_Related_ARIS_ObjDef_Using_Mapping_Rule(ends, object, chained_));
        return true;
    }
    if (nextStep_ == steps_.size()) {
        if (nextFrom_ > from_.Count()) return false;
        steps_ = StepsOfRule(frame, from_.Item(nextFrom_++), rule_);
        nextStep_ = 0;
        return true;
    }
    const RuleStep& step = steps_[nextStep_++];
    const Collection<ARISObjDef> objects = step.Objects();
    if (step.IsChained()) {
        for (const ARISObjDef& object : objects) intermediates_.push_back(object);
        std::reverse(intermediates_.begin(), intermediates_.end());
        chained_ = step.NextRule();
    } else {
        AddReached(objects);
    }
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
