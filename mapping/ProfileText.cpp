#include "mapping/ProfileText.h"

#include "mapping/ProfileNames.h"

namespace wxbrg {

namespace {

RuleSort SortOf(const clsMappingRule& rule) {
    if (!rule.ColObjectMapping.IsEmpty()) return RuleSort::object;
    return rule.AttributeMapping.empty() ? RuleSort::connection : RuleSort::attribute;
}

std::string StepText(const clsConnectionMapping& step) {
    const std::string text = "SOURCE_OBJECT_TYPE = " + std::to_string(step.SourceObjTypeNum) +
                             " TARGET_OBJECT_TYPE = " + std::to_string(step.TargetObjTypeNum) +
                             " CONNECTION_KIND = " + std::to_string(step.CnxKind) +
                             " CONNECTION_TYPE = " + std::to_string(step.CnxTypeNum);
    return step.IsChainedConnection() ? text + " TARGET_OBJECT_RULE = " + step.TargetObjRule : text;
}

}  // namespace

std::vector<std::string> EntryTexts(const clsMappingRule& rule) {
    std::vector<std::string> entries;
    for (const clsObjectMapping& mapping : rule.ColObjectMapping)
        entries.push_back("OBJECT_TYPE = " + std::to_string(mapping.ObjTypeNum));
    if (!rule.AttributeMapping.empty()) entries.push_back("ATTRIBUTE_TYPE = " + rule.AttributeMapping);
    for (const clsConnectionMapping& step : rule.ColConnectionMapping) entries.push_back(StepText(step));
    return entries;
}

std::string ProfileText(const RuleTable& rules) {
    std::string text;
    for (const clsMappingRule& rule : rules) {
        text += std::string(KeywordOf(SortOf(rule))) + " " + rule.Name + "\n";
        for (const std::string& entry : EntryTexts(rule)) text += "  " + entry + "\n";
        text += "END\n";
    }
    return text;
}

}  // namespace wxbrg
