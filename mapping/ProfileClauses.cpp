#include "mapping/ProfileClauses.h"

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "mapping/ProfileGrammar.h"
#include "support/Numbers.h"
#include "support/TerminalText.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

/// What a number is expected to be, by the failure that its absence brings.
std::string_view WordsForNumber(Message failure) {
    switch (failure) {
        case Message::objectTypeExpected:
            return "the number of an object type (in the rule PROCESS, of a model type)";
        case Message::attributeTypeExpected:
            return "the number of an attribute type, or -1 for the name,";
        case Message::connectionKindExpected:
            return "the direction, 2 for incoming or 4 for outgoing,";
        default:
            return "the number of a connection type";
    }
}

/// What a state accepts, in words.
std::string Expected(ProfileState state) {
    const std::span<const ProfileRow> rows = profileGrammar::RowsOf(state);
    switch (rows.front().tokenType) {
        case TokenType::word:
            return "the name of a rule";
        case TokenType::equals:
            return "\"=\"";
        case TokenType::number:
            return std::string(WordsForNumber(profileGrammar::FailureOf(state).message));
        case TokenType::keyword:
            break;
    }
    std::string text;
    for (const ProfileRow& row : rows) {
        if (&row != &rows.front()) text += &row == &rows.back() ? " or " : ", ";
        text += row.keyword;
    }
    return text;
}

class ClauseReader : public ProfileParser {
  public:
    ClauseReader(const ProfileTokens& tokens, char32_t decimalSeparator)
        : tokens_(tokens.tokens), decimalSeparator_(decimalSeparator) {
        if (tokens.overflow)
            Find(FindingSeverity::error, *tokens.overflow,
                 "of blanks, tabs, line ends and \"=\", one sort that follows here stands for the next time "
                 "more than 32,767 characters away; use each sort throughout the file, or nowhere",
                 FailureKind::overflow);
    }

    ProfileClauses Read() {
        while (next_ < tokens_.size()) Take(tokens_[next_++]);
        if (IsInRule()) ComplainOfTheEnd();
        return {TakeClauses(), std::move(findings_)};
    }

  private:
    void OnAccepted(const clsMappingRuleToken& token) override {
        if (token.TokenType == TokenType::keyword && IsGlued(token)) WarnOfGlue(token);
    }

    /// A value of the wrong sort is taken for one of the right sort.
    std::optional<clsMappingRuleToken> OnMistake(const clsMappingRuleToken& token) override {
        const TokenType due = Due().tokenType;
        if (due == TokenType::word && token.TokenType == TokenType::keyword && IsGlued(token))
            return SplitName(token);
        Complain(token);
        if (IsValue(due) && IsValue(token.TokenType)) return token;
        return std::nullopt;
    }

    static bool IsValue(TokenType type) { return type == TokenType::word || type == TokenType::number; }

    /// The first row of what is due.
    const ProfileRow& Due() const { return profileGrammar::RowsOf(State()).front(); }
    std::int32_t RunEndsWith() const { return wxbrg::NumberOf(profileGrammar::FailureOf(State()).message); }

    /// Whether the token behind this one follows at once, and is no equals sign.
    bool IsGlued(const clsMappingRuleToken& token) const {
        return next_ < tokens_.size() && tokens_[next_].begin == token.end &&
               tokens_[next_].TokenType != TokenType::equals;
    }

    void WarnOfGlue(const clsMappingRuleToken& token) {
        Find(FindingSeverity::warning, token.place,
             PrintableInQuotes(token.written + tokens_[next_].written) +
                 " is read as two words; put a blank behind " + PrintableInQuotes(token.written));
    }

    /// The whole name that begins with a keyword.
    clsMappingRuleToken SplitName(const clsMappingRuleToken& token) {
        clsMappingRuleToken name = token;
        name.TokenType = TokenType::word;
        for (const clsMappingRuleToken* last = &token; IsGlued(*last);) {
            last = &tokens_[next_++];
            name.written += last->written;
        }
        name.TokenValue = name.written;
        Find(FindingSeverity::error, token.place,
             "the name " + PrintableInQuotes(name.written) + " begins with the keyword " + token.TokenValue +
                 " and is split behind it; choose a name that does not begin so",
             RunEndsWith());
        return name;
    }

    void Complain(const clsMappingRuleToken& token) {
        const bool closes = profileGrammar::RowFor(State(), TokenType::keyword, "END") != nullptr;
        std::string text = "expected " + Expected(State()) + " and not " + PrintableInQuotes(token.written);
        if (OpensRule(token) && closes)
            text = RuleName() + " is not closed; put END in front of " + token.TokenValue;
        else if (IsEnd(token) && EntryIsDue())
            text =
                RuleName() + " is empty; give it " + Expected(State()) + " in front of END, or take it out";
        Find(FindingSeverity::error, token.place, std::move(text), RunEndsWith());
    }

    /// Whether a rule has its name, and its first entry has to begin.
    bool EntryIsDue() {
        if (State() == ProfileState::ruleSort || Due().tokenType != TokenType::keyword) return false;
        return Clause().types.empty() && Clause().steps.empty() && Clause().attribute.text.empty();
    }

    void ComplainOfTheEnd() {
        const bool named = Due().action != ProfileAction::newRule;
        const std::string what = named ? RuleName() : "a rule without a name";
        Find(FindingSeverity::error, named ? Clause().name.place : tokens_.back().place,
             what +
                 " is cut off by the end of the file, and a run drops it without a word; close it with END");
        findings_.back().unreadable = true;
    }

    /// A name that is taken brings a warning of a run where it is guarded.
    void OnRule(bool guarded) override {
        ProfileClause& clause = Clause();
        const auto [first, isNew] = lines_.emplace(UpperCase(clause.name.text), clause.name.place.line);
        if (isNew) return;
        clause.doubled = true;
        const std::string warns = guarded ? ". A run warns with 2110 and takes the first one" : "";
        Find(FindingSeverity::error, clause.name.place,
             RuleName() + " is in line " + std::to_string(first->second) +
                 " already; take one of the two out" + warns,
             guarded ? 0 : FailureKind::duplicateKey);
    }

    std::optional<std::int32_t> NumberOf(const clsMappingRuleToken& token, ProfileAction action) override {
        try {
            return ToInt32(token.TokenValue, decimalSeparator_);
        } catch (const Failure& failure) {
            if (failure.Number != FailureKind::overflow) throw;
        }
        const std::string beyond =
            token.written + " is outside -2147483648 to 2147483647; give the number of an ARIS type";
        if (action == ProfileAction::setAttribute)
            Find(FindingSeverity::error, token.place,
                 beyond + ". A run ends with 6 where it asks for the attribute");
        else
            Find(FindingSeverity::error, token.place, beyond, FailureKind::overflow);
        return std::nullopt;
    }

    void Find(FindingSeverity severity, TextPlace place, std::string text, std::int32_t endsWith = 0) {
        if (endsWith != 0) text += " (a run ends here with " + std::to_string(endsWith) + ")";
        findings_.push_back({severity, place, std::move(text), endsWith, endsWith != 0});
    }

    std::string RuleName() { return "the rule " + PrintableInQuotes(Clause().name.text); }

    const std::vector<clsMappingRuleToken>& tokens_;
    char32_t decimalSeparator_;
    std::size_t next_ = 0;
    std::map<std::string, std::size_t> lines_;  ///< the line in which each name is first, by its upper case
    std::vector<ProfileFinding> findings_;
};

}  // namespace

ProfileClauses ReadClauses(const ProfileTokens& tokens, char32_t decimalSeparator) {
    return ClauseReader(tokens, decimalSeparator).Read();
}

}  // namespace wxbrg
