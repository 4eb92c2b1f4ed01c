#include "mapping/ProfileParser.h"

namespace wxbrg {

namespace {

RuleSort SortNamedIn(ProfileState state) {
    switch (state) {
        case ProfileState::objectName:
            return RuleSort::object;
        case ProfileState::attributeName:
            return RuleSort::attribute;
        default:
            return RuleSort::connection;
    }
}

}  // namespace

bool ProfileParser::OpensRule(const clsMappingRuleToken& token) {
    return profileGrammar::RowFor(ProfileState::ruleSort, token.TokenType, token.TokenValue) != nullptr;
}

bool ProfileParser::IsEnd(const clsMappingRuleToken& token) {
    return token.TokenType == TokenType::keyword && token.TokenValue == "END";
}

void ProfileParser::Take(const clsMappingRuleToken& token) {
    if (lost_ && !FindsBackAt(token)) return;
    const ProfileRow* const row = profileGrammar::RowFor(state_, token.TokenType, token.TokenValue);
    if (row == nullptr) return TakeMistake(token);
    OnAccepted(token);
    Act(*row, token);
}

/// Whether a token behind a mistake begins a rule. Behind an END the next one may.
bool ProfileParser::FindsBackAt(const clsMappingRuleToken& token) {
    if (!OpensRule(token) && !IsEnd(token)) return false;
    lost_ = false;
    state_ = ProfileState::ruleSort;
    return OpensRule(token);
}

void ProfileParser::TakeMistake(const clsMappingRuleToken& token) {
    if (const std::optional<clsMappingRuleToken> substitute = OnMistake(token)) {
        const ProfileRow& due = profileGrammar::RowsOf(state_).front();
        Act(due, *substitute);
        if (due.action == ProfileAction::newRule) Clause().misnamed = true;
        return;
    }
    lost_ = true;
    if (OpensRule(token) || IsEnd(token)) Take(token);
}

void ProfileParser::Act(const ProfileRow& row, const clsMappingRuleToken& token) {
    switch (row.action) {
        case ProfileAction::none:
            break;
        case ProfileAction::newRule:
            OpenRule(row.state, token);
            break;
        case ProfileAction::addType:
            Clause().types.push_back(Number(token, row.action));
            break;
        case ProfileAction::setAttribute:
            Clause().attribute = Number(token, row.action);
            break;
        case ProfileAction::newStep:
            Clause().steps.emplace_back();
            break;
        case ProfileAction::setSource:
            Step().source = Number(token, row.action);
            break;
        case ProfileAction::setTarget:
            Step().target = Number(token, row.action);
            break;
        case ProfileAction::setKind:
            Step().kind = Number(token, row.action);
            break;
        case ProfileAction::setConnectionType:
            Step().connection = Number(token, row.action);
            break;
        case ProfileAction::setTargetRule:
            Step().continues = {token.TokenValue, token.place, {}};
            break;
        case ProfileAction::addRule:
        case ProfileAction::addRuleUnguarded:
            Clause().whole = true;
            OnRule(row.action == ProfileAction::addRule);
            break;
    }
    state_ = row.nextState;
}

void ProfileParser::OpenRule(ProfileState state, const clsMappingRuleToken& token) {
    clauses_.push_back({.sort = SortNamedIn(state),
                        .name = {token.TokenValue, token.place, {}},
                        .types = {},
                        .attribute = {},
                        .steps = {}});
}

ProfileField ProfileParser::Number(const clsMappingRuleToken& token, ProfileAction action) {
    ProfileField field{token.TokenValue, token.place, {}};
    if (token.TokenType == TokenType::number) field.number = NumberOf(token, action);
    return field;
}

}  // namespace wxbrg
