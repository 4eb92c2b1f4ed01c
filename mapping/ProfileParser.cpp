// How clsIOHandler fills the rule table.

#include <algorithm>

#include "mapping/ProfileGrammar.h"
#include "mapping/RuleTable.h"
#include "mapping/clsMappingRule.h"
#include "run/Frame.h"
#include "run/clsIOHandler.h"
#include "support/Numbers.h"

namespace wxbrg {

namespace {

/// Walks the tokens of a profile, one state after the other, and adds each rule to the table at its end.
class ProfileParser {
  public:
    explicit ProfileParser(Frame& frame) : frame_(frame) {}

    void Take(const clsMappingRuleToken& token) {
        const auto* const row = std::find_if(
            profileGrammar::rows.begin(), profileGrammar::rows.end(), [&](const ProfileRow& candidate) {
                return candidate.state == state_ && candidate.tokenType == token.TokenType &&
                       (candidate.keyword.empty() || candidate.keyword == token.TokenValue);
            });
        if (row == profileGrammar::rows.end()) {
            const ProfileFailure& failure = profileGrammar::failures[static_cast<std::size_t>(state_)];
            frame_.RaiseOfTable(failure.message, {token.TokenValue, failure.expected});
        }
        Act(row->action, token);
        state_ = row->nextState;
    }

  private:
    void Act(ProfileAction action, const clsMappingRuleToken& token) {
        switch (action) {
            case ProfileAction::none:
                break;
            case ProfileAction::newRule:
                rule_ = gBlock.gPool.Create<clsMappingRule>();
                rule_->Name = token.TokenValue;
                break;
            case ProfileAction::newObjectMapping:
                object_.ObjTypeNum = Number(token);
                break;
            case ProfileAction::finishObject:
                rule_->ColObjectMapping.Add(object_);
                break;
            case ProfileAction::finishObjectAndRule:
                rule_->ColObjectMapping.Add(object_);
                AddRule();
                break;
            case ProfileAction::setAttribute:
                rule_->AttributeMapping = token.TokenValue;
                break;
            case ProfileAction::addRuleUnguarded:
                gBlock.gColMappingRule.Add(rule_, rule_->Name);
                break;
            case ProfileAction::newConnection:
                connection_ = {};
                break;
            case ProfileAction::setSource:
                connection_.SourceObjTypeNum = Number(token);
                break;
            case ProfileAction::setTarget:
                connection_.TargetObjTypeNum = Number(token);
                break;
            case ProfileAction::setKind:
                connection_.CnxKind = Number(token);
                break;
            case ProfileAction::setConnectionType:
                connection_.CnxTypeNum = Number(token);
                break;
            case ProfileAction::setTargetRule:
                connection_.TargetObjRule = token.TokenValue;
                break;
            case ProfileAction::finishConnectionAndRule:
                rule_->ColConnectionMapping.Add(connection_);
                AddRule();
                break;
            case ProfileAction::finishConnectionAndStartNext:
                rule_->ColConnectionMapping.Add(connection_);
                connection_ = {};
                break;
        }
    }

    static std::int32_t Number(const clsMappingRuleToken& token) {
        return ToInt32(token.TokenValue, DecimalSeparator());
    }

    /// A name that is taken brings the warning 2110, and the first rule stays.
    void AddRule() {
        gBlock.gFailureContext = "Add mapping rule";
        if (!gBlock.gColMappingRule.AddNew(rule_, rule_->Name))
            frame_.Raise(Message::ruleDoubled, rule_->Name);
        gBlock.gFailureContext = "";
    }

    Frame& frame_;
    std::int32_t state_ = 0;
    Ref<clsMappingRule> rule_;
    clsObjectMapping object_;
    clsConnectionMapping connection_;
};

}  // namespace

void clsIOHandler::ParseMappingFile() {
    Procedure("clsIOHandler.ParseMappingFile", [&](Frame& frame) {
        const std::string text = ReadMappingProfile();
        if (text.empty()) {
            if (MappingProfileFound) frame.Raise(Message::profileEmpty);
            CreateDefaultMappingRules();
            return;
        }
        gBlock.gColProfileTokens = TokenizeMappingProfile(text);
        ProfileParser parser(frame);
        for (const Ref<clsMappingRuleToken>& token : gBlock.gColProfileTokens) parser.Take(*token);
    });
}

}  // namespace wxbrg
