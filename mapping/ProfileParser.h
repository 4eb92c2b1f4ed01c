#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "mapping/ProfileGrammar.h"
#include "mapping/ProfileNames.h"
#include "mapping/clsMappingRuleToken.h"

namespace wxbrg {

/// A word of a profile, or a number that is one.
struct ProfileField {
    std::string text;  ///< as written; empty: not there
    TextPlace place;
    std::optional<std::int32_t> number;  ///< nothing where it is no number of 32 bits
};

/// One step of a connection rule. Fields behind a mistake may be empty.
struct ProfileStep {
    ProfileField source;
    ProfileField target;
    ProfileField kind;
    ProfileField connection;
    ProfileField continues;
};

/// One rule of a profile.
struct ProfileClause {
    RuleSort sort;
    ProfileField name;
    std::vector<ProfileField> types;
    ProfileField attribute;
    std::vector<ProfileStep> steps;
    bool whole = false;     ///< it was read to its END
    bool doubled = false;   ///< another rule of the name comes before it
    bool misnamed = false;  ///< its name is one that no rule can have
};

/// Walks the tokens of a profile by its grammar and makes rules of them. Who reads a profile derives from it
/// and decides what comes of a mistake, of a number and of a complete rule.
class ProfileParser {
  public:
    ProfileParser() = default;
    ProfileParser(const ProfileParser&) = delete;
    ProfileParser& operator=(const ProfileParser&) = delete;
    virtual ~ProfileParser() = default;

    /// Takes the next token.
    void Take(const clsMappingRuleToken& token);

  protected:
    /// A token that `State` accepts, before it does anything.
    virtual void OnAccepted(const clsMappingRuleToken&) {}
    /// A token that `State` does not accept. Returns one to take for what is due; or nothing, to go on with
    /// the next rule.
    virtual std::optional<clsMappingRuleToken> OnMistake(const clsMappingRuleToken& token) = 0;
    /// The value of a number token for `action`; nothing where it is none of 32 bits.
    virtual std::optional<std::int32_t> NumberOf(const clsMappingRuleToken& token, ProfileAction action) = 0;
    /// `Clause` has come to its END. `guarded`: of two rules of a name the first one counts; else a name that
    /// is taken is an unknown failure.
    virtual void OnRule(bool guarded) = 0;

    /// What is due.
    ProfileState State() const { return state_; }
    /// Whether a rule has begun and neither ended nor been given up.
    bool IsInRule() const { return state_ != ProfileState::ruleSort && !lost_; }
    /// The rule of the last name.
    ProfileClause& Clause() { return clauses_.back(); }
    /// All rules so far, which are moved out.
    std::vector<ProfileClause> TakeClauses() { return std::move(clauses_); }

    static bool OpensRule(const clsMappingRuleToken& token);
    static bool IsEnd(const clsMappingRuleToken& token);

  private:
    bool FindsBackAt(const clsMappingRuleToken& token);
    void TakeMistake(const clsMappingRuleToken& token);
    void Act(const ProfileRow& row, const clsMappingRuleToken& token);
    void OpenRule(ProfileState state, const clsMappingRuleToken& token);
    ProfileField Number(const clsMappingRuleToken& token, ProfileAction action);
    ProfileStep& Step() { return Clause().steps.back(); }

    ProfileState state_ = ProfileState::ruleSort;
    bool lost_ = false;  ///< behind a mistake, looking for the next rule
    std::vector<ProfileClause> clauses_;
};

}  // namespace wxbrg
