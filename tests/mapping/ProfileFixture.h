#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mapping/ProfileTable.h"
#include "mapping/ProfileText.h"
#include "mapping/clsMappingRuleToken.h"
#include "run/clsIOHandler.h"
#include "tests/run/RunFixture.h"

namespace wxbrg {

/// A table as one text, with every field of its rules.
inline std::string Whole(const RuleTable& rules) {
    std::string text;
    for (const clsMappingRule& rule : rules) {
        text += rule.Name + ":";
        for (const clsObjectMapping& mapping : rule.ColObjectMapping)
            text += " type " + std::to_string(mapping.ObjTypeNum);
        text += " attribute [" + rule.AttributeMapping + "]";
        for (const clsConnectionMapping& step : rule.ColConnectionMapping)
            text += " step " + std::to_string(step.SourceObjTypeNum) + "," + std::to_string(step.CnxKind) +
                    "," + std::to_string(step.CnxTypeNum) + "," + std::to_string(step.TargetObjTypeNum) +
                    ",[" + step.TargetObjRule + "]";
        text += "\n";
    }
    return text;
}

/// A run that comes to its mapping profile, which stands beside the program.
class ProfileTest : public RunFixture {
  public:
    static std::string TokenText(TokenType type, const std::string& value) {
        switch (type) {
            case TokenType::keyword:
                return "keyword " + value;
            case TokenType::word:
                return "word " + value;
            case TokenType::number:
                return "number " + value;
            case TokenType::equals:
                return "equals " + value;
        }
        return "type " + std::to_string(static_cast<std::int32_t>(type)) + " " + value;
    }

  protected:
    static constexpr const char* profileName = "/program/wxbrg.prf";

    /// Reads a profile of these bytes into the rule table, as a procedure of the run. Nothing when the run
    /// goes on behind it.
    std::optional<RunEnd> Parse(const std::string& bytes) {
        fileSystem_.Put(profileName, bytes);
        gBlock.gColMappingRule = {};
        return RunIn("test.Caller", [](Frame&) {
            gBlock.gIOHandler->ParseMappingFile();
        });
    }
    /// The tokens of a text, as "keyword END", "word A", "number 1", "equals ="; "failure 6" where the run
    /// ends at them.
    static std::vector<std::string> Tokens(const std::string& text) {
        std::vector<std::string> tokens;
        const std::optional<RunEnd> end = RunIn("test.Caller", [&](Frame&) {
            for (const Ref<clsMappingRuleToken>& token : gBlock.gIOHandler->TokenizeMappingProfile(text))
                tokens.push_back(TokenText(token->TokenType, token->TokenValue));
        });
        if (end) return {"failure " + std::to_string(end->number)};
        return tokens;
    }
    /// The table of the run.
    static std::string Table() { return Whole(RulesOf(gBlock.gColMappingRule)); }
};

}  // namespace wxbrg
