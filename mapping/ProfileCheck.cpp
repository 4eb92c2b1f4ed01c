#include "mapping/ProfileCheck.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>

#include "aris/Repository.h"
#include "mapping/ArisTypes.h"
#include "mapping/ProfileChains.h"
#include "mapping/ProfileClauses.h"
#include "mapping/ProfileNames.h"
#include "mapping/ProfileTokenizer.h"
#include "mapping/RuleTable.h"
#include "support/TerminalText.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

std::string_view TakenAs(RuleSort sort) {
    switch (sort) {
        case RuleSort::object:
            return "looks for types in it, and finds none";
        case RuleSort::attribute:
            return "looks for an attribute in it, and ends with 13";
        case RuleSort::connection:
            break;
    }
    return "looks for connections in it, and finds none";
}

/// Whether a number is written with a sign and digits alone.
bool IsPlain(std::string_view number) {
    if (number.starts_with('-') || number.starts_with('+')) number.remove_prefix(1);
    return number.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Holds the rules of a profile against what the export asks for, and against each other.
class RuleCheck {
  public:
    RuleCheck(const ProfileClauses& clauses, TextPlace end) : clauses_(clauses), end_(end) {
        for (const ProfileClause& clause : clauses.clauses)
            rules_.emplace(UpperCase(clause.name.text), &clause);
    }

    std::vector<ProfileFinding> Findings() {
        const std::vector<std::string_view> asked = NamesAskedFor();
        for (const std::string_view name : asked) CheckAsked(name);
        for (const ProfileClause& clause : clauses_.clauses) CheckEntries(clause);
        CheckUnread(asked);
        for (const ChainCircle& circle : CirclesOf(clauses_)) FindCircle(circle);
        return std::move(findings_);
    }

  private:
    void Error(TextPlace place, std::string text) {
        findings_.push_back({FindingSeverity::error, place, std::move(text)});
    }
    void Warn(TextPlace place, std::string text) {
        findings_.push_back({FindingSeverity::warning, place, std::move(text)});
    }

    const ProfileClause* Rule(std::string_view name) const {
        const auto found = rules_.find(UpperCase(name));
        return found == rules_.end() ? nullptr : found->second;
    }

    /// A rule that the export asks for has to be there, and of the right sort.
    void CheckAsked(std::string_view name) {
        const RuleSort sort = BuiltInSort(name).value();
        const ProfileClause* const clause = Rule(name);
        if (clause == nullptr)
            return Error(end_, "the rule " + PrintableInQuotes(name) +
                                   " is missing, and a run that asks for it ends with 2100; add it. \"wxbrg "
                                   "profile print --default\" shows the built-in one");
        if (clause->sort != sort)
            Error(clause->name.place, "the rule " + PrintableInQuotes(clause->name.text) +
                                          " has to begin with " + std::string(KeywordOf(sort)) + "; a run " +
                                          std::string(TakenAs(sort)));
    }

    void CheckEntries(const ProfileClause& clause) {
        for (const ProfileField& type : clause.types) CheckTypeNumber(type);
        if (clause.attribute.number != AttributeType::itemName) CheckTypeNumber(clause.attribute);
        for (const ProfileStep& step : clause.steps) CheckStep(step);
        CheckRepeatedTypes(clause);
        CheckRepeatedSteps(clause);
    }

    void CheckTypeNumber(const ProfileField& field) {
        if (!field.number) return;
        CheckSpelling(field);
        if (*field.number < 1)
            Warn(field.place, "no type of ARIS has the number " + std::to_string(*field.number) +
                                  "; give the number of one");
    }

    void CheckSpelling(const ProfileField& field) {
        if (!IsPlain(field.text))
            Warn(field.place, field.text + " is read as " + std::to_string(*field.number) + "; write " +
                                  std::to_string(*field.number));
    }

    void CheckStep(const ProfileStep& step) {
        CheckTypeNumber(step.source);
        CheckTypeNumber(step.target);
        CheckTypeNumber(step.connection);
        CheckDirection(step.kind);
        if (!step.continues.text.empty()) CheckChain(step);
    }

    void CheckDirection(const ProfileField& kind) {
        if (!kind.number) return;
        CheckSpelling(kind);
        if (*kind.number != CxnKind::incoming && *kind.number != CxnKind::outgoing)
            Error(kind.place, "the direction " + kind.text +
                                  " does not exist; give 2 for incoming or 4 for outgoing connections. A run "
                                  "warns with 2030 and ends with 91 where it takes the step");
    }

    void CheckChain(const ProfileStep& step) {
        const ProfileClause* const next = Rule(step.continues.text);
        const std::string name =
            "the rule " + PrintableInQuotes(step.continues.text) + ", with which this step goes on, ";
        if (next == nullptr)
            return Error(step.continues.place,
                         name + "is missing, and a run that takes the step ends with 2100; add it");
        if (next->sort != RuleSort::connection)
            return Error(step.continues.place,
                         name + "has to begin with CONNECTION_MAPPING; the step leads nowhere");
        const bool leadsOn =
            std::any_of(next->steps.begin(), next->steps.end(), [&](const ProfileStep& behind) {
                return behind.source.number == step.target.number;
            });
        if (!leadsOn && step.target.number)
            Warn(step.continues.place,
                 name + "has no step from objects of the type " + step.target.text +
                     ", so that this step leads nowhere; add one, or take this one out");
    }

    void CheckRepeatedTypes(const ProfileClause& clause) {
        std::map<std::int32_t, std::size_t> lines;
        for (const ProfileField& type : clause.types)
            if (type.number) CheckRepeated(lines, *type.number, type.place, "the type " + type.text);
    }

    void CheckRepeatedSteps(const ProfileClause& clause) {
        std::map<std::tuple<std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::string>, std::size_t>
            lines;
        for (const ProfileStep& step : clause.steps)
            if (step.source.number && step.target.number && step.kind.number && step.connection.number)
                CheckRepeated(lines,
                              {*step.source.number, *step.target.number, *step.kind.number,
                               *step.connection.number, UpperCase(step.continues.text)},
                              step.source.place, "the same step");
    }

    template <class Lines>
    void CheckRepeated(Lines& lines, typename Lines::key_type entry, TextPlace place,
                       const std::string& what) {
        const auto [first, isNew] = lines.emplace(std::move(entry), place.line);
        if (!isNew)
            Warn(place, what + " is in this rule already, in line " + std::to_string(first->second) +
                            "; take one of the two out");
    }

    /// Rules that nothing leads to, from those that the export asks for along the chains.
    void CheckUnread(const std::vector<std::string_view>& asked) {
        std::set<const ProfileClause*> read;
        std::vector<const ProfileClause*> open;
        const auto reach = [&](std::string_view name) {
            const ProfileClause* const clause = Rule(name);
            if (clause != nullptr && read.insert(clause).second) open.push_back(clause);
        };
        for (const std::string_view name : asked) reach(name);
        while (!open.empty()) {
            const ProfileClause* const clause = open.back();
            open.pop_back();
            for (const ProfileStep& step : clause->steps) reach(step.continues.text);
        }
        for (const auto& [upper, clause] : rules_)
            if (!clause->misnamed && !read.contains(clause) && !IsIdleBuiltIn(upper))
                Warn(clause->name.place, "nothing asks for the rule " + PrintableInQuotes(clause->name.text) +
                                             "; correct its name, or take it out. \"wxbrg profile print "
                                             "--default\" shows the names there are");
    }

    void FindCircle(const ChainCircle& circle) {
        std::string way;
        for (const std::string& rule : circle.rules) way += (way.empty() ? "" : " -> ") + rule;
        Warn(circle.place, "from here the steps can turn in a circle: " + way +
                               ". A run ends with 2230 where the connections of a model do so");
    }

    const ProfileClauses& clauses_;
    TextPlace end_;
    std::map<std::string, const ProfileClause*> rules_;  ///< the first of each name, by its upper case
    std::vector<ProfileFinding> findings_;
};

void SortByPlace(std::vector<ProfileFinding>& findings) {
    std::stable_sort(findings.begin(), findings.end(), [](const ProfileFinding& a, const ProfileFinding& b) {
        return a.place < b.place;
    });
}

}  // namespace

std::vector<ProfileFinding> CheckProfile(std::string_view text, char32_t decimalSeparator) {
    if (text.empty())
        return {{FindingSeverity::error,
                 {},
                 "the file is empty; a run warns with 2210 and takes the built-in "
                 "rules. Take the file away, or fill it"}};
    const ProfileTokens tokens = TokenizeProfile(text, decimalSeparator);
    if (tokens.tokens.empty())
        return {{FindingSeverity::error,
                 {},
                 "there is no rule in the file, and a run ends with 2100 at the first "
                 "one that it asks for. Take the file away, or fill it"}};
    ProfileClauses clauses = ReadClauses(tokens, decimalSeparator);
    std::vector<ProfileFinding> findings = clauses.findings;
    std::vector<ProfileFinding> ofRules = RuleCheck(clauses, tokens.end).Findings();
    std::move(ofRules.begin(), ofRules.end(), std::back_inserter(findings));
    SortByPlace(findings);
    return findings;
}

ProfileRules ReadProfileRules(std::string_view text, char32_t decimalSeparator) {
    if (text.empty()) return {BuiltInRules(), {}};
    const ProfileClauses clauses = ReadClauses(TokenizeProfile(text, decimalSeparator), decimalSeparator);
    ProfileRules result;
    std::copy_if(clauses.findings.begin(), clauses.findings.end(), std::back_inserter(result.mistakes),
                 [](const ProfileFinding& finding) {
                     return finding.unreadable;
                 });
    SortByPlace(result.mistakes);
    if (result.mistakes.empty()) result.rules = RulesOf(clauses);
    return result;
}

}  // namespace wxbrg
