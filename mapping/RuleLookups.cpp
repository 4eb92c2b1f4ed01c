#include "mapping/RuleLookups.h"

#include "mapping/ArisTypes.h"
#include "mapping/DrawnItems.h"
#include "mapping/RuleTable.h"
#include "run/Frame.h"
#include "run/modGlobals.h"

namespace wxbrg {

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
                if (IsDrawnIn(item, model)) result.AddNew(item, item->Guid());
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

bool ARIS_ObjDef_Conforms_To_Mapping_Rule(const ARISObjDef& item, std::string_view ruleName) {
    return Procedure("modMappingRule.ARIS_ObjDef_Conforms_To_Mapping_Rule", [&](Frame& frame) {
        const Ref<const clsMappingRule> rule = FetchRule(frame, ruleName);
        for (const clsObjectMapping& mapping : rule->ColObjectMapping)
            if (mapping.ObjTypeNum == item->TypeNum()) return true;
        return false;
    });
}

}  // namespace wxbrg
