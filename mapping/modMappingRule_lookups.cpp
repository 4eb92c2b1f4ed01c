#include "mapping/modMappingRule_lookups.h"

#include "mapping/ArisTypes.h"
#include "mapping/modMappingRule_rules.h"
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
            ARISObjDefList list = model->ObjDefListFilter("", gLocale, objTypeNum, "");
            list.Sort(nameAttribute, 0, 0, gLocale);
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
        if (attrTypeNum == AttributeType::itemName) return item->Name(gLocale);
        const ARISAttr attribute = item->Attribute(attrTypeNum, gLocale);
        return attribute->IsMaintained() ? attribute->GetValue(gOptRemoveLineBreaks) : std::string();
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
            item->CxnListFilter(cnxKind, "", gLocale, cnxTypeNum, connectionFilterConstant);
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
                    frame.Raise(2030, std::to_string(cnxKind));
            }
            if (other->TypeNum() == targetObjTypeNum && IsDrawn(other)) result.AddNew(other, other->Guid());
        }
    });
    return result;
}

std::optional<Collection<Ref<clsPath>>> Find_Relating_Paths_Using_Mapping_Rule(
    const Collection<Ref<clsPath>>& prefixPaths, const ARISObjDef& fromObj, const ARISObjDef& toObj,
    std::string_view ruleName) {
    using Paths = Collection<Ref<clsPath>>;
    return Procedure(
        "modMappingRule.Find_Relating_Paths_Using_Mapping_Rule", [&](Frame& frame) -> std::optional<Paths> {
            if (!IsDrawn(fromObj) || !IsDrawn(toObj)) return std::nullopt;
            const Ref<const clsMappingRule> rule = FetchRule(frame, ruleName);
            Paths found;
            for (const clsConnectionMapping& mapping : rule->ColConnectionMapping) {
                if (fromObj->TypeNum() != mapping.SourceObjTypeNum) continue;
                for (const ARISObjDef& step : StepsFrom(fromObj, mapping)) {
                    if (!IsDrawn(step)) continue;
                    if (!mapping.IsChainedConnection()) {
                        if (step->Guid() == toObj->Guid()) found.Add(CreatePath(fromObj, step));
                    } else if (ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(
                                   step, toObj, mapping.TargetObjRule)) {
                        Paths head;
                        head.Add(CreatePath(fromObj, step));
                        const std::optional<Paths> whole =
                            Find_Relating_Paths_Using_Mapping_Rule(head, step, toObj, mapping.TargetObjRule);
                        for (const Ref<clsPath>& path : *whole) found.Add(path);
                    }
                }
            }
            return ConcatenatePaths(prefixPaths, found);
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
    return Procedure("modMappingRule.ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule",
                     [&](Frame& frame) {
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
