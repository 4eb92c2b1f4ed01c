#include "mapping/ProfileClauses.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <utility>

#include "mapping/ProfileGrammar.h"
#include "support/Numbers.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

const ProfileRow* RowFor(std::int32_t state, const ProfileToken& token) {
    const auto* const row = std::find_if(
        profileGrammar::rows.begin(), profileGrammar::rows.end(), [&](const ProfileRow& candidate) {
            return candidate.state == state && candidate.tokenType == token.type &&
                   (candidate.keyword.empty() || candidate.keyword == token.value);
        });
    return row == profileGrammar::rows.end() ? nullptr : row;
}

/// The rows of a state; there is one at least.
std::vector<const ProfileRow*> RowsOf(std::int32_t state) {
    std::vector<const ProfileRow*> rows;
    for (const ProfileRow& row : profileGrammar::rows)
        if (row.state == state) rows.push_back(&row);
    return rows;
}

std::int32_t FailureOf(std::int32_t state) {
    return NumberOf(profileGrammar::failures[static_cast<std::size_t>(state)].message);
}

/// What a number is expected to be, by the failure that its absence brings.
std::string_view WordsForNumber(std::int32_t failure) {
    switch (failure) {
        case 2160:
            return "the number of an object type (in the rule PROCESS, of a model type)";
        case 2170:
            return "the number of an attribute type, or -1 for the name,";
        case 2180:
            return "the direction, 2 for incoming or 4 for outgoing,";
        default:
            return "the number of a connection type";
    }
}

/// What a state accepts, in words.
std::string Expected(std::int32_t state) {
    const std::vector<const ProfileRow*> rows = RowsOf(state);
    switch (rows.front()->tokenType) {
        case TokenType::word:
            return "the name of a rule";
        case TokenType::equals:
            return "\"=\"";
        case TokenType::number:
            return std::string(WordsForNumber(FailureOf(state)));
        default:
            break;
    }
    std::string text;
    for (const ProfileRow* row : rows) {
        if (row != rows.front()) text += row == rows.back() ? " or " : ", ";
        text += row->keyword;
    }
    return text;
}

bool OpensRule(const ProfileToken& token) {
    return RowFor(0, token) != nullptr;
}

bool IsEnd(const ProfileToken& token) {
    return token.type == TokenType::keyword && token.value == "END";
}

/// The sort of the rule whose name a state takes.
RuleSort SortNamedIn(std::int32_t state) {
    const auto leadsHere = [&](RuleSort sort) {
        return RowFor(0, {TokenType::keyword, std::string(KeywordOf(sort)), {}, {}, 0, 0})->nextState ==
               state;
    };
    if (leadsHere(RuleSort::object)) return RuleSort::object;
    return leadsHere(RuleSort::attribute) ? RuleSort::attribute : RuleSort::connection;
}

class ClauseReader {
  public:
    ClauseReader(const ProfileReading& reading, char32_t decimalSeparator)
        : tokens_(reading.tokens), decimalSeparator_(decimalSeparator) {
        if (reading.overflow)
            Find(FindingSeverity::error, *reading.overflow,
                 "of blanks, tabs, line ends and \"=\", one sort that follows here stands for the next time "
                 "more than 32,767 characters away; use each sort throughout the file, or nowhere",
                 FailureKind::overflow);
    }

    ProfileClauses Read() {
        for (next_ = 0; next_ < tokens_.size();) Take(tokens_[next_++]);
        if (state_ != 0 && !lost_) ComplainOfTheEnd();
        return std::move(result_);
    }

  private:
    void Take(const ProfileToken& token) {
        if (lost_) {
            if (OpensRule(token))
                BeginAnew();
            else if (IsEnd(token))
                return BeginAnew();
            else
                return;
        }
        const ProfileRow* const row = RowFor(state_, token);
        if (row == nullptr) return TakeMistake(token);
        if (token.type == TokenType::keyword && IsGlued(token)) WarnOfGlue(token);
        Act(*row, token, token.value);
    }

    void BeginAnew() {
        lost_ = false;
        state_ = 0;
    }

    /// A token that the state does not accept.
    void TakeMistake(const ProfileToken& token) {
        const ProfileRow& accepted = *RowsOf(state_).front();
        if (accepted.tokenType == TokenType::word && token.type == TokenType::keyword && IsGlued(token))
            return TakeSplitName(accepted, token);
        Complain(token);
        const bool standsForIt = (accepted.tokenType == TokenType::number && token.type == TokenType::word) ||
                                 (accepted.tokenType == TokenType::word && token.type == TokenType::number);
        if (standsForIt) return ActOnMistake(accepted, token, token.value);
        lost_ = true;
        if (OpensRule(token) || IsEnd(token)) Take(token);
    }

    /// Whether the token behind this one follows at once, and is no equals sign.
    bool IsGlued(const ProfileToken& token) const {
        return next_ < tokens_.size() && tokens_[next_].begin == token.end &&
               tokens_[next_].type != TokenType::equals;
    }

    void WarnOfGlue(const ProfileToken& token) {
        Find(FindingSeverity::warning, token.place,
             InQuotes(token.written + tokens_[next_].written) + " is read as two words; put a blank behind " +
                 InQuotes(token.written));
    }

    void TakeSplitName(const ProfileRow& accepted, const ProfileToken& token) {
        std::string name = token.written;
        const ProfileToken* last = &token;
        while (IsGlued(*last)) {
            last = &tokens_[next_++];
            name += last->written;
        }
        Find(FindingSeverity::error, token.place,
             "the name " + InQuotes(name) + " begins with the keyword " + token.value +
                 " and is split behind it; choose a name that does not begin so",
             FailureOf(state_));
        ActOnMistake(accepted, token, name);
    }

    void ActOnMistake(const ProfileRow& accepted, const ProfileToken& token, const std::string& text) {
        Act(accepted, token, text);
        if (accepted.action == ProfileAction::newRule) Clause().misnamed = true;
    }

    void Complain(const ProfileToken& token) {
        const bool closes = RowFor(state_, {TokenType::keyword, "END", {}, {}, 0, 0}) != nullptr;
        std::string text = "expected " + Expected(state_) + " and not " + InQuotes(token.written);
        if (OpensRule(token) && closes)
            text = RuleName() + " is not closed; put END in front of " + token.value;
        else if (IsEnd(token) && EntryIsDue())
            text = RuleName() + " is empty; give it " + Expected(state_) + " in front of END, or take it out";
        Find(FindingSeverity::error, token.place, std::move(text), FailureOf(state_));
    }

    /// Whether a rule has its name, and its first entry has to begin.
    bool EntryIsDue() {
        if (state_ == 0 || RowsOf(state_).front()->tokenType != TokenType::keyword) return false;
        return Clause().types.empty() && Clause().steps.empty() && Clause().attribute.text.empty();
    }

    void ComplainOfTheEnd() {
        const ProfileToken& last = tokens_.back();
        const bool named = RowsOf(state_).front()->action != ProfileAction::newRule;
        const std::string what = named ? RuleName() : "a rule without a name";
        Find(FindingSeverity::error, named ? Clause().name.place : last.place,
             what +
                 " is cut off by the end of the file, and a run drops it without a word; close it with END");
        result_.findings.back().unreadable = true;
    }

    void Find(FindingSeverity severity, TextPlace place, std::string text, std::int32_t endsWith = 0) {
        if (endsWith != 0) text += " (a run ends here with " + std::to_string(endsWith) + ")";
        result_.findings.push_back({severity, place, std::move(text), endsWith, endsWith != 0});
    }

    ProfileClause& Clause() { return result_.clauses.back(); }
    ProfileStep& Step() { return Clause().steps.back(); }
    std::string RuleName() { return "the rule " + InQuotes(Clause().name.text); }

    /// Does what goes with an accepted token, whose text is `text`, and goes to the next state.
    void Act(const ProfileRow& row, const ProfileToken& token, const std::string& text) {
        switch (row.action) {
            case ProfileAction::newRule:
                OpenRule(row.state, {text, token.place, {}});
                break;
            case ProfileAction::newObjectMapping:
                Clause().types.push_back(Number(token));
                break;
            case ProfileAction::setAttribute:
                Clause().attribute = Attribute(token);
                break;
            case ProfileAction::addRuleUnguarded:
                CloseRule(FailureKind::duplicateKey);
                break;
            case ProfileAction::finishObjectAndRule:
            case ProfileAction::finishConnectionAndRule:
                CloseRule(0);
                break;
            default:
                ActOnStep(row.action, token, text);
        }
        state_ = row.nextState;
    }

    void ActOnStep(ProfileAction action, const ProfileToken& token, const std::string& text) {
        switch (action) {
            case ProfileAction::newConnection:
            case ProfileAction::finishConnectionAndStartNext:
                Clause().steps.emplace_back();
                break;
            case ProfileAction::setSource:
                Step().source = Number(token);
                break;
            case ProfileAction::setTarget:
                Step().target = Number(token);
                break;
            case ProfileAction::setKind:
                Step().kind = Number(token);
                break;
            case ProfileAction::setConnectionType:
                Step().connection = Number(token);
                break;
            case ProfileAction::setTargetRule:
                Step().continues = {text, token.place, {}};
                break;
            default:
                break;
        }
    }

    void OpenRule(std::int32_t state, ProfileField name) {
        const RuleSort sort = SortNamedIn(state);
        ProfileClause clause{
            .sort = sort, .name = std::move(name), .types = {}, .attribute = {}, .steps = {}};
        result_.clauses.push_back(std::move(clause));
    }

    /// A rule comes to its END. A name that is taken ends a run with `failure`, or warns where that is 0.
    void CloseRule(std::int32_t failure) {
        ProfileClause& clause = Clause();
        clause.whole = true;
        const auto [first, isNew] = lines_.emplace(UpperCase(clause.name.text), clause.name.place.line);
        if (isNew) return;
        clause.doubled = true;
        const std::string warns = failure == 0 ? ". A run warns with 2110 and takes the first one" : "";
        Find(FindingSeverity::error, clause.name.place,
             RuleName() + " stands in line " + std::to_string(first->second) +
                 " already; take one of the two out" + warns,
             failure);
    }

    ProfileField Attribute(const ProfileToken& token) {
        ProfileField field{token.value, token.place, {}};
        if (!IsNumeric(token.value, decimalSeparator_)) return field;
        field.number = Converted(token.value);
        if (!field.number)
            Find(FindingSeverity::error, token.place,
                 Beyond(token) + ". A run ends with 6 where it asks for the attribute");
        return field;
    }

    ProfileField Number(const ProfileToken& token) {
        ProfileField field{token.value, token.place, {}};
        if (!IsNumeric(token.value, decimalSeparator_)) return field;
        field.number = Converted(token.value);
        if (!field.number) Find(FindingSeverity::error, token.place, Beyond(token), FailureKind::overflow);
        return field;
    }

    static std::string Beyond(const ProfileToken& token) {
        return token.written + " is outside -2147483648 to 2147483647; give the number of an ARIS type";
    }

    std::optional<std::int32_t> Converted(const std::string& text) const {
        try {
            return ToInt32(text, decimalSeparator_);
        } catch (const Failure& failure) {
            if (failure.Number != FailureKind::overflow) throw;
            return std::nullopt;
        }
    }

    const std::vector<ProfileToken>& tokens_;
    char32_t decimalSeparator_;
    std::size_t next_ = 0;
    std::int32_t state_ = 0;
    bool lost_ = false;                         ///< behind a mistake, looking for the next rule
    std::map<std::string, std::size_t> lines_;  ///< where each name stands first, by its upper case
    ProfileClauses result_;
};

}  // namespace

ProfileClauses ReadClauses(const ProfileReading& reading, char32_t decimalSeparator) {
    return ClauseReader(reading, decimalSeparator).Read();
}

}  // namespace wxbrg
