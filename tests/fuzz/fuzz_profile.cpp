// Reads any bytes as a mapping profile: as a run does, and as the check of profiles does. Both find the
// tokens, the failure and the rules of the plain model; what can be read can be printed, and comes back as it
// was.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "mapping/ProfileCheck.h"
#include "mapping/ProfileClauses.h"
#include "mapping/ProfileText.h"
#include "mapping/ProfileTokenizer.h"
#include "mapping/clsMappingRuleToken.h"
#include "run/Frame.h"
#include "run/clsExceptionHandler.h"
#include "run/clsIOHandler.h"
#include "tests/fixture/MemoryPlatform.h"
#include "tests/mapping/PlainProfile.h"

namespace {

using namespace wxbrg;

constexpr const char* profileName = "/wxbrg.prf";
constexpr std::uint32_t utf8CodePage = 65001;

/// A run that has come to its mapping profile.
class ProfileRun {
  public:
    explicit ProfileRun(std::string bytes) {
        memory_.fileSystem.Put(profileName, std::move(bytes));
        RenewGlobals();
        gBlock.gPlatform = &memory_.platform;
        gBlock.gExceptionHandler = gBlock.gPool.Create<clsExceptionHandler>();
        gBlock.gIOHandler = gBlock.gPool.Create<clsIOHandler>();
    }
    ~ProfileRun() { RenewGlobals(); }
    ProfileRun(const ProfileRun&) = delete;
    ProfileRun& operator=(const ProfileRun&) = delete;

    /// Runs a part of it; the number of the failure that ends it, or 0.
    template <class Part>
    std::int32_t EndOf(const Part& part) {
        try {
            Procedure("modFuzz.Run", [&](Frame&) {
                part();
            });
        } catch (const RunEnd& end) {
            return end.number;
        }
        return 0;
    }

  private:
    MemoryPlatform memory_{utf8CodePage, LocalTime{}, "/"};
};

void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

std::string_view KindOf(TokenType type) {
    switch (type) {
        case TokenType::keyword:
            return "keyword";
        case TokenType::word:
            return "word";
        case TokenType::number:
            return "number";
        case TokenType::equals:
            break;
    }
    return "equals";
}

void CompareTokensOfRun(ProfileRun& run, const std::string& text, const plain::Tokens& expected) {
    Collection<Ref<clsMappingRuleToken>> tokens;
    const std::int32_t end = run.EndOf([&] {
        tokens = gBlock.gIOHandler->TokenizeMappingProfile(text);
    });
    Require(end == (expected.overflow ? FailureKind::overflow : 0), "a run overflows as the model does");
    if (end != 0) return;
    Require(static_cast<std::size_t>(tokens.Count()) == expected.tokens.size(), "a run has as many tokens");
    std::size_t next = 0;
    for (const Ref<clsMappingRuleToken>& token : tokens) {
        const plain::Token& other = expected.tokens[next++];
        Require(KindOf(token->TokenType) == other.kind && token->TokenValue == other.value,
                "a run has the tokens of the model");
    }
}

void ComparePlaces(const ProfileTokens& profile, const plain::Tokens& expected) {
    Require(profile.overflow == expected.overflow, "the overflow is found");
    Require(profile.end == expected.end, "the end is where it is");
    Require(profile.tokens.size() == expected.tokens.size(), "there are as many tokens");
    for (std::size_t i = 0; i < expected.tokens.size(); ++i) {
        const clsMappingRuleToken& token = profile.tokens[i];
        const plain::Token& other = expected.tokens[i];
        Require(KindOf(token.TokenType) == other.kind && token.TokenValue == other.value &&
                    token.written == other.written,
                "the tokens are the same");
        Require(token.begin == other.begin && token.place == other.place, "the places are the same");
    }
}

void CompareRules(ProfileRun& run, const std::string& text, const ProfileTokens& profile) {
    const std::int32_t end = run.EndOf([] {
        gBlock.gIOHandler->ParseMappingFile();
    });
    if (text.empty()) return;
    const plain::Reading expected = plain::Read(text, DecimalSeparator());
    Require(end == expected.endsWith, "a run fails as the model does");
    Require(ProfileText(RulesOf(gBlock.gColMappingRule)) == ProfileText(expected.rules),
            "a run has the rules of the model");
    const ProfileClauses clauses = ReadClauses(profile, DecimalSeparator());
    std::int32_t reported = 0;
    for (const ProfileFinding& finding : clauses.findings)
        if (reported == 0) reported = finding.endsWith;
    Require(reported == end, "the failure of a run is reported");
    if (end == 0)
        Require(ProfileText(RulesOf(clauses)) == ProfileText(expected.rules), "the rules are the same");
}

/// Profiles that can be read come back from their printed text.
void PrintAndReadBack(const std::string& text, char32_t separator) {
    CheckProfile(text, separator);
    if (text.empty()) return;
    const ProfileRules read = ReadProfileRules(text, separator);
    const std::string printed = ProfileText(read.rules);
    const ProfileRules again = ReadProfileRules(printed + "\n", separator);
    Require(again.mistakes.empty() && ProfileText(again.rules) == printed, "a printed profile can be read");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ProfileRun run(std::string(reinterpret_cast<const char*>(data), size));
    std::string text;
    run.EndOf([&] {
        text = gBlock.gIOHandler->ReadFile(profileName);
    });
    const char32_t separator = DecimalSeparator();
    const plain::Tokens expected = plain::Tokenize(text, separator);
    const ProfileTokens profile = TokenizeProfile(text, separator);
    CompareTokensOfRun(run, text, expected);
    ComparePlaces(profile, expected);
    CompareRules(run, text, profile);
    PrintAndReadBack(text, separator);
    return 0;
}
