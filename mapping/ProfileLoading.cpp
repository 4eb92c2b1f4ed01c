// How clsIOHandler finds the mapping profile of a run and fills the rule table from it.

#include <cstdint>
#include <optional>
#include <string>

#include "mapping/ProfileFile.h"
#include "mapping/ProfileParser.h"
#include "mapping/ProfileTable.h"
#include "mapping/ProfileTokenizer.h"
#include "mapping/RuleTable.h"
#include "mapping/clsMappingRule.h"
#include "run/Frame.h"
#include "run/clsIOHandler.h"
#include "support/Numbers.h"

namespace wxbrg {

namespace {

/// Adds each rule of a profile to the table at its end, and fails at the first mistake.
class RuleLoader : public ProfileParser {
  public:
    explicit RuleLoader(Frame& frame) : frame_(frame) {}

  private:
    std::optional<clsMappingRuleToken> OnMistake(const clsMappingRuleToken& token) override {
        const ProfileFailure& failure = profileGrammar::FailureOf(State());
        frame_.RaiseOfTable(failure.message, {token.TokenValue, failure.expected});
        return std::nullopt;
    }

    /// An attribute is kept as text, and converted where it is asked for.
    std::optional<std::int32_t> NumberOf(const clsMappingRuleToken& token, ProfileAction action) override {
        if (action == ProfileAction::setAttribute) return std::nullopt;
        return ToInt32(token.TokenValue, DecimalSeparator());
    }

    /// A name that is taken brings the warning 2110 where it is guarded, and the first rule stays.
    void OnRule(bool guarded) override {
        const Ref<clsMappingRule> rule = gBlock.gPool.Create<clsMappingRule>(RuleOf(Clause()));
        if (!guarded) {
            gBlock.gColMappingRule.Add(rule, rule->Name);
            return;
        }
        gBlock.gFailureContext = "Add mapping rule";
        if (!gBlock.gColMappingRule.AddNew(rule, rule->Name)) frame_.Raise(Message::ruleDoubled, rule->Name);
        gBlock.gFailureContext = "";
    }

    Frame& frame_;
};

}  // namespace

std::string clsIOHandler::ReadMappingProfile() {
    return Procedure("clsIOHandler.ReadMappingProfile", [&](Frame&) {
        const std::string path = MappingProfilePath(*gBlock.gPlatform);
        MappingProfileFound = !path.empty() && FileExists(path);
        return MappingProfileFound ? ReadFile(path) : std::string();
    });
}

Collection<Ref<clsMappingRuleToken>> clsIOHandler::TokenizeMappingProfile(const std::string& Text) {
    return Procedure("clsIOHandler.TokenizeMappingProfile", [&](Frame&) {
        ProfileTokens profile = TokenizeProfile(Text, DecimalSeparator());
        if (profile.overflow) throw Failure(FailureKind::overflow);
        Collection<Ref<clsMappingRuleToken>> tokens;
        for (clsMappingRuleToken& token : profile.tokens)
            tokens.Add(gBlock.gPool.Create<clsMappingRuleToken>(std::move(token)));
        return tokens;
    });
}

void clsIOHandler::ParseMappingFile() {
    Procedure("clsIOHandler.ParseMappingFile", [&](Frame& frame) {
        const std::string text = ReadMappingProfile();
        if (text.empty()) {
            if (MappingProfileFound) frame.Raise(Message::profileEmpty);
            CreateDefaultMappingRules();
            return;
        }
        gBlock.gColProfileTokens = TokenizeMappingProfile(text);
        RuleLoader loader(frame);
        for (const Ref<clsMappingRuleToken>& token : gBlock.gColProfileTokens) loader.Take(*token);
    });
}

}  // namespace wxbrg
