#include "mapping/RuleTable.h"

#include <string>

#include "mapping/DefaultMappingRules.h"
#include "run/modGlobals.h"
#include "support/Numbers.h"

namespace wxbrg {

namespace {

void AddRow(clsMappingRule& rule, const defaultRules::TypeRow& row) {
    rule.ColObjectMapping.Add(clsObjectMapping{row.type});
}
void AddRow(clsMappingRule& rule, const defaultRules::AttributeRow& row) {
    rule.AttributeMapping = std::to_string(row.attribute);
}
void AddRow(clsMappingRule& rule, const defaultRules::StepRow& row) {
    rule.ColConnectionMapping.Add(
        clsConnectionMapping{row.kind, row.connection, row.source, row.target, std::string(row.continues)});
}

template <class Rows>
void AppendRules(std::vector<clsMappingRule>& rules, const Rows& rows) {
    for (std::size_t i = 0; i < rows.size();) {
        clsMappingRule& rule = rules.emplace_back();
        rule.Name = rows[i].rule;
        for (; i < rows.size() && rows[i].rule == rule.Name; ++i) AddRow(rule, rows[i]);
    }
}

}  // namespace

std::vector<clsMappingRule> BuiltInRules() {
    std::vector<clsMappingRule> rules;
    AppendRules(rules, defaultRules::types);
    AppendRules(rules, defaultRules::attributes);
    AppendRules(rules, defaultRules::steps);
    return rules;
}

void CreateDefaultMappingRules() {
    Procedure("modMappingRule.CreateDefaultMappingRules", [&](Frame& frame) {
        for (const clsMappingRule& builtIn : BuiltInRules()) {
            const Ref<clsMappingRule> rule = gBlock.gPool.Create<clsMappingRule>(builtIn);
            if (!gBlock.gColMappingRule.AddNew(rule, rule->Name))
                frame.Raise(Message::ruleDoubled, rule->Name);
        }
    });
}

Ref<const clsMappingRule> FetchRule(Frame& frame, std::string_view ruleName) {
    gBlock.gFailureContext = "Retrieve rule";
    if (const Ref<clsMappingRule>* rule = gBlock.gColMappingRule.Find(ruleName)) {
        gBlock.gFailureContext = "";
        return rule->Get();
    }
    gBlock.gFailureContext = "failed";
    frame.Raise(Message::ruleMissing, ruleName);
    return nullptr;
}

std::int32_t AttributeNumber(const clsMappingRule& rule) {
    return ToInt32(rule.AttributeMapping, DecimalSeparator());
}

}  // namespace wxbrg
