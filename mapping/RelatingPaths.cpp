#include "mapping/RelatingPaths.h"

#include <algorithm>
#include <map>
#include <utility>

#include "mapping/DrawnItems.h"
#include "mapping/RelatedObjectSearch.h"
#include "mapping/RuleSteps.h"
#include "mapping/modPath.h"
#include "run/Frame.h"
#include "run/modGlobals.h"

namespace wxbrg {

namespace {

constexpr std::string_view pathsProcedure = "modMappingRule.Find_Relating_Paths_Using_Mapping_Rule";
constexpr std::string_view relationProcedure =
    "modMappingRule.ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule";

/// One search for all paths to an object. Without a memory it would look for the ways on from an object again
/// with each way that leads there; here they are looked for once, and shared.
class PathSearch {
  public:
    explicit PathSearch(const ARISObjDef& target) : target_(target) {}

    /// The paths from an object by a rule, in the order of the rule.
    PathCollection PathsFrom(Frame& frame, const ARISObjDef& from, std::string_view ruleName) {
        PathCollection found;
        for (const RuleStep& step : StepsOfRule(frame, from, ruleName))
            for (const ARISObjDef& object : step.Objects())
                if (step.IsChained())
                    AddOver(found, from, object, step.NextRule());
                else if (object->Guid() == target_->Guid())
                    found.Add(CreatePath(from, object));
        return found;
    }

  private:
    using Key = std::pair<std::string_view, std::string_view>;  ///< Guid of the object, name of the rule

    void AddOver(PathCollection& found, const ARISObjDef& from, const ARISObjDef& step,
                 std::string_view ruleName) {
        const Key key(step->Guid(), ruleName);
        if (const auto known = tails_.find(key); known != tails_.end()) {
            if (!known->second) return;
            gBlock.gCurrentProcedure = relationProcedure;  // as the relation test leaves it
            found.Add({CreatePath(from, step), known->second});
            return;
        }
        if (!ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(step, target_, ruleName)) {
            tails_.emplace(key, nullptr);
            return;
        }
        const Ref<clsPath> head = CreatePath(from, step);
        Procedure(pathsProcedure, [&](Frame& frame) {
            const Ref<PathCollection> tails =
                gBlock.gPool.Create<PathCollection>(PathsFrom(frame, step, ruleName));
            found.Add(ConcatenatePath(head, tails));
            tails_.emplace(key, tails);
        });
    }

    const ARISObjDef& target_;
    std::map<Key, Ref<const PathCollection>> tails_;  ///< empty: the rule does not lead to the target
};

/// Whether an object of a step is the target, or the chain behind it ends there.
bool Arrives(const RuleStep& step, const ARISObjDef& object, const ARISObjDef& target) {
    if (!step.IsChained()) return object->Guid() == target->Guid();
    Collection<ARISObjDef> ends;
    Find_Related_ARIS_ObjDef_Using_Mapping_Rule(ends, object, step.NextRule());
    return std::any_of(ends.begin(), ends.end(), [&](const ARISObjDef& end) {
        return end->Guid() == target->Guid();
    });
}

}  // namespace

std::optional<PathCollection> Find_Relating_Paths_Using_Mapping_Rule(const PathCollection& prefixPaths,
                                                                     const ARISObjDef& fromObj,
                                                                     const ARISObjDef& toObj,
                                                                     std::string_view ruleName) {
    return Procedure(pathsProcedure, [&](Frame& frame) -> std::optional<PathCollection> {
        if (!IsDrawn(fromObj) || !IsDrawn(toObj)) return std::nullopt;
        return ConcatenatePaths(prefixPaths, PathSearch(toObj).PathsFrom(frame, fromObj, ruleName));
    });
}

bool ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(const ARISObjDef& fromObj,
                                                              const ARISObjDef& toObj,
                                                              std::string_view ruleName) {
    return Procedure(relationProcedure, [&](Frame& frame) {
        if (!IsDrawn(fromObj) || !IsDrawn(toObj)) return false;
        for (const RuleStep& step : StepsOfRule(frame, fromObj, ruleName)) {
            for (const ARISObjDef& object : step.Objects()) {
                if (!Arrives(step, object, toObj)) continue;
                frame.KeepName();
                return true;
            }
        }
        return false;
    });
}

}  // namespace wxbrg
