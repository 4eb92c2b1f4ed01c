#include "mapping/RuleLookups.h"

#include <map>
#include <utility>

#include "mapping/ArisTypes.h"
#include "mapping/RuleTable.h"
#include "mapping/modPath.h"
#include "run/Frame.h"
#include "run/modGlobals.h"
#include "support/Numbers.h"

namespace wxbrg {

namespace {

bool IsDrawn(const ARISObjDef& item) {
    return item->OccList().Count() > 0;
}

/// The last position of an ARIS list, which is counted in 16 bits.
template <class List>
std::int16_t LastPosition(const List& list) {
    return NarrowTo<std::int16_t>(list.Count() - 1);
}

/// The objects that one step of a rule leads to.
Collection<ARISObjDef> StepsFrom(const ARISObjDef& item, const clsConnectionMapping& step) {
    Collection<ARISObjDef> steps;
    Find_Related_ARIS_ObjDef(steps, item, step.CnxKind, step.CnxTypeNum, step.TargetObjTypeNum);
    return steps;
}

constexpr std::string_view pathsProcedure = "modMappingRule.Find_Relating_Paths_Using_Mapping_Rule";
constexpr std::string_view relationProcedure =
    "modMappingRule.ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule";

/// One search for all paths to an object. Told plainly, it looks for the ways on from an object again with
/// each way that leads there; here they are looked for once, and shared.
class PathSearch {
  public:
    explicit PathSearch(const ARISObjDef& target) : target_(target) {}

    /// The paths from an object by a rule, in the order of the rule.
    PathCollection PathsFrom(Frame& frame, const ARISObjDef& from, std::string_view ruleName) {
        const Ref<const clsMappingRule> rule = FetchRule(frame, ruleName);
        PathCollection found;
        for (const clsConnectionMapping& mapping : rule->ColConnectionMapping) {
            if (from->TypeNum() != mapping.SourceObjTypeNum) continue;
            for (const ARISObjDef& step : StepsFrom(from, mapping)) {
                if (!IsDrawn(step)) continue;
                if (mapping.IsChainedConnection())
                    AddOver(found, from, step, mapping.TargetObjRule);
                else if (step->Guid() == target_->Guid())
                    found.Add(CreatePath(from, step));
            }
        }
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

}  // namespace

Collection<ARISObjDef>& Find_ARIS_ObjDef_Using_Mapping_Rule(const Collection<ARISModel>& models,
                                                            Collection<ARISObjDef>& result,
                                                            std::string_view ruleName) {
    Procedure("modMappingRule.Find_ARIS_ObjDef_Using_Mapping_Rule", [&](Frame& frame) {
        const Ref<const clsMappingRule> rule = FetchRule(frame, ruleName);
        for (const clsObjectMapping& mapping : rule->ColObjectMapping)
            Find_ARIS_ObjDef(models, result, mapping.ObjTypeNum);
    });
    return result;
}

Collection<ARISObjDef>& Find_ARIS_ObjDef(const Collection<ARISModel>& models, Collection<ARISObjDef>& result,
                                         std::int32_t objTypeNum) {
    Procedure("modMappingRule.Find_ARIS_ObjDef", [&](Frame&) {
        for (const ARISModel& model : models) {
            ARISObjDefList list = model->ObjDefListFilter("", gBlock.gLocale, objTypeNum, "");
            list.Sort(nameAttribute, 0, 0, gBlock.gLocale);
            const std::int16_t last = LastPosition(list);
            for (std::int32_t i = 0; i <= last; ++i) {
                const ARISObjDef item = list.Get(i);
                if (item->OccListInModel(model).Count() > 0) result.AddNew(item, item->Guid());
            }
        }
    });
    return result;
}

std::string ItemAttribute(std::string_view procedure, const Ref<const aris::Item>& item,
                          std::int32_t attrTypeNum) {
    return Procedure(procedure, [&](Frame&) {
        if (attrTypeNum == AttributeType::itemName) return item->Name(gBlock.gLocale);
        const ARISAttr attribute = item->Attribute(attrTypeNum, gBlock.gLocale);
        return attribute->IsMaintained() ? attribute->GetValue(gBlock.gOptRemoveLineBreaks) : std::string();
    });
}

std::string ItemAttributeUsingRule(std::string_view procedure, std::string_view attributeProcedure,
                                   const Ref<const aris::Item>& item, std::string_view ruleName) {
    return Procedure(procedure, [&](Frame& frame) {
        const Ref<const clsMappingRule> rule = FetchRule(frame, ruleName);
        return ItemAttribute(attributeProcedure, item, AttributeNumber(*rule));
    });
}

std::string Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(const ARISObjDef& item, std::string_view ruleName) {
    return ItemAttributeUsingRule("modMappingRule.Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule",
                                  "modMappingRule.Find_ARIS_ObjDef_Attribute", item, ruleName);
}

std::string Find_ARIS_ObjDef_Attribute(const ARISObjDef& item, std::int32_t attrTypeNum) {
    return ItemAttribute("modMappingRule.Find_ARIS_ObjDef_Attribute", item, attrTypeNum);
}

Collection<ARISObjDef>& Find_Related_ARIS_ObjDef(Collection<ARISObjDef>& result, const ARISObjDef& item,
                                                 std::int32_t cnxKind, std::int32_t cnxTypeNum,
                                                 std::int32_t targetObjTypeNum) {
    Procedure("modMappingRule.Find_Related_ARIS_ObjDef", [&](Frame& frame) {
        if (!IsDrawn(item)) return;
        const ARISCxnDefList list =
            item->CxnListFilter(cnxKind, "", gBlock.gLocale, cnxTypeNum, connectionFilterConstant);
        const std::int16_t last = LastPosition(list);
        ARISObjDef other;
        for (std::int32_t i = 0; i <= last; ++i) {
            const ARISCxnDef connection = list.Get(i);
            if (connection->OccList().Count() == 0) continue;
            switch (cnxKind) {
                case CxnKind::incoming:
                    other = connection->SourceObjDef();
                    break;
                case CxnKind::outgoing:
                    other = connection->TargetObjDef();
                    break;
                default:
                    frame.Raise(Message::unknownConnectionKind, std::to_string(cnxKind));
            }
            if (other->TypeNum() == targetObjTypeNum && IsDrawn(other)) result.AddNew(other, other->Guid());
        }
    });
    return result;
}

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
    /// Whether a step, or the chain behind it, arrives at the target.
    const auto arrives = [&](const ARISObjDef& step, const clsConnectionMapping& mapping) {
        if (!mapping.IsChainedConnection()) return step->Guid() == toObj->Guid();
        Collection<ARISObjDef> ends;
        for (const ARISObjDef& end :
             Find_Related_ARIS_ObjDef_Using_Mapping_Rule(ends, step, mapping.TargetObjRule))
            if (IsDrawn(end) && end->Guid() == toObj->Guid()) return true;
        return false;
    };
    return Procedure(relationProcedure, [&](Frame& frame) {
        if (!IsDrawn(fromObj) || !IsDrawn(toObj)) return false;
        const Ref<const clsMappingRule> rule = FetchRule(frame, ruleName);
        for (const clsConnectionMapping& mapping : rule->ColConnectionMapping) {
            if (fromObj->TypeNum() != mapping.SourceObjTypeNum) continue;
            for (const ARISObjDef& step : StepsFrom(fromObj, mapping)) {
                if (!IsDrawn(step) || !arrives(step, mapping)) continue;
                frame.KeepName();
                return true;
            }
        }
        return false;
    });
}

bool ARIS_ObjDef_Conforms_To_Mapping_Rule(const ARISObjDef& item, std::string_view ruleName) {
    return Procedure("modMappingRule.ARIS_ObjDef_Conforms_To_Mapping_Rule", [&](Frame& frame) {
        const Ref<const clsMappingRule> rule = FetchRule(frame, ruleName);
        for (const clsObjectMapping& mapping : rule->ColObjectMapping)
            if (mapping.ObjTypeNum == item->TypeNum()) return true;
        return false;
    });
}

}  // namespace wxbrg
