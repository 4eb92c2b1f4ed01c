#include "mapping/ProfileTable.h"

namespace wxbrg {

namespace {

std::int32_t NumberOf(const ProfileField& field) {
    return field.number.value_or(0);
}

}  // namespace

RuleTable RulesOf(const Collection<Ref<clsMappingRule>>& rules) {
    RuleTable table;
    for (const Ref<clsMappingRule>& rule : rules) table.push_back(*rule);
    return table;
}

clsMappingRule RuleOf(const ProfileClause& clause) {
    clsMappingRule rule;
    rule.Name = clause.name.text;
    rule.AttributeMapping = clause.attribute.text;
    for (const ProfileField& type : clause.types) rule.ColObjectMapping.Add(clsObjectMapping{NumberOf(type)});
    for (const ProfileStep& step : clause.steps)
        rule.ColConnectionMapping.Add(clsConnectionMapping{NumberOf(step.kind), NumberOf(step.connection),
                                                           NumberOf(step.source), NumberOf(step.target),
                                                           step.continues.text});
    return rule;
}

RuleTable RulesOf(const ProfileClauses& clauses) {
    RuleTable table;
    for (const ProfileClause& clause : clauses.clauses)
        if (clause.whole && !clause.doubled) table.push_back(RuleOf(clause));
    return table;
}

}  // namespace wxbrg
