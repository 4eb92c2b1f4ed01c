#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "mapping/clsMappingRuleToken.h"
#include "run/Messages.h"

/// The grammar of a mapping profile, as a table of states.
namespace wxbrg {

/// The keywords in the order in which they are tested. Each is recognised, in any case, at the beginning of a
/// longer word too.
inline constexpr auto profileKeywords = std::to_array<std::string_view>(
    {"OBJECT_MAPPING", "ATTRIBUTE_MAPPING", "CONNECTION_MAPPING", "OBJECT_TYPE", "ATTRIBUTE_TYPE",
     "SOURCE_OBJECT_TYPE", "TARGET_OBJECT_TYPE", "CONNECTION_KIND", "CONNECTION_TYPE", "TARGET_OBJECT_RULE",
     "END"});

/// What is due next. A state that takes one sort of token is named after it; one that takes keywords, after
/// the first of them or after what they come behind.
enum class ProfileState : std::int32_t {
    ruleSort,  ///< between two rules
    objectName,
    objectType,
    objectTypeEquals,
    objectTypeNumber,
    behindObjectType,
    attributeName,
    attributeType,
    attributeTypeEquals,
    attributeTypeNumber,
    behindAttributeType,
    connectionName,
    sourceType,
    sourceTypeEquals,
    sourceTypeNumber,
    targetType,
    targetTypeEquals,
    targetTypeNumber,
    connectionKind,
    connectionKindEquals,
    connectionKindNumber,
    connectionType,
    connectionTypeEquals,
    connectionTypeNumber,
    behindConnectionType,
    targetRuleEquals,
    targetRuleName,
    behindTargetRule,
};

/// What an accepted token does, in front of the change of state.
enum class ProfileAction {
    none,
    newRule,
    addType,
    setAttribute,
    newStep,
    setSource,
    setTarget,
    setKind,
    setConnectionType,
    setTargetRule,
    addRule,           ///< the rule is complete; of two rules of a name the first one counts
    addRuleUnguarded,  ///< likewise; but a name that is taken is an unknown failure
};

/// One accepted token of a state.
struct ProfileRow {
    ProfileState state;
    TokenType tokenType;
    std::string_view keyword;  ///< for a token that is a keyword
    ProfileAction action;
    ProfileState nextState;

    constexpr bool Accepts(TokenType type, std::string_view value) const {
        return type == tokenType && (type != TokenType::keyword || value == keyword);
    }
};

/// What any other token of a state fails with.
struct ProfileFailure {
    ProfileState state;
    Message message;
    std::string_view expected;  ///< second argument of the failure 2130
};

namespace profileGrammar {
using enum ProfileState;
using enum ProfileAction;
inline constexpr TokenType key = TokenType::keyword;
inline constexpr TokenType word = TokenType::word;
inline constexpr TokenType number = TokenType::number;
inline constexpr TokenType equals = TokenType::equals;

// clang-format off
inline constexpr auto rows = std::to_array<ProfileRow>({
    {ruleSort,             key,    "OBJECT_MAPPING",     none,              objectName},
    {ruleSort,             key,    "ATTRIBUTE_MAPPING",  none,              attributeName},
    {ruleSort,             key,    "CONNECTION_MAPPING", none,              connectionName},
    {objectName,           word,   "",                   newRule,           objectType},
    {objectType,           key,    "OBJECT_TYPE",        none,              objectTypeEquals},
    {objectTypeEquals,     equals, "",                   none,              objectTypeNumber},
    {objectTypeNumber,     number, "",                   addType,           behindObjectType},
    {behindObjectType,     key,    "END",                addRule,           ruleSort},
    {behindObjectType,     key,    "OBJECT_TYPE",        none,              objectTypeEquals},
    {attributeName,        word,   "",                   newRule,           attributeType},
    {attributeType,        key,    "ATTRIBUTE_TYPE",     none,              attributeTypeEquals},
    {attributeTypeEquals,  equals, "",                   none,              attributeTypeNumber},
    {attributeTypeNumber,  number, "",                   setAttribute,      behindAttributeType},
    {behindAttributeType,  key,    "END",                addRuleUnguarded,  ruleSort},
    {connectionName,       word,   "",                   newRule,           sourceType},
    {sourceType,           key,    "SOURCE_OBJECT_TYPE", newStep,           sourceTypeEquals},
    {sourceTypeEquals,     equals, "",                   none,              sourceTypeNumber},
    {sourceTypeNumber,     number, "",                   setSource,         targetType},
    {targetType,           key,    "TARGET_OBJECT_TYPE", none,              targetTypeEquals},
    {targetTypeEquals,     equals, "",                   none,              targetTypeNumber},
    {targetTypeNumber,     number, "",                   setTarget,         connectionKind},
    {connectionKind,       key,    "CONNECTION_KIND",    none,              connectionKindEquals},
    {connectionKindEquals, equals, "",                   none,              connectionKindNumber},
    {connectionKindNumber, number, "",                   setKind,           connectionType},
    {connectionType,       key,    "CONNECTION_TYPE",    none,              connectionTypeEquals},
    {connectionTypeEquals, equals, "",                   none,              connectionTypeNumber},
    {connectionTypeNumber, number, "",                   setConnectionType, behindConnectionType},
    {behindConnectionType, key,    "END",                addRule,           ruleSort},
    {behindConnectionType, key,    "SOURCE_OBJECT_TYPE", newStep,           sourceTypeEquals},
    {behindConnectionType, key,    "TARGET_OBJECT_RULE", none,              targetRuleEquals},
    {targetRuleEquals,     equals, "",                   none,              targetRuleName},
    {targetRuleName,       word,   "",                   setTargetRule,     behindTargetRule},
    {behindTargetRule,     key,    "SOURCE_OBJECT_TYPE", newStep,           sourceTypeEquals},
    {behindTargetRule,     key,    "END",                addRule,           ruleSort},
});

/// The list of `behindConnectionType` does not name END, which is accepted there all the same.
inline constexpr auto failures = std::to_array<ProfileFailure>({
    {ruleSort,             Message::keywordExpected,          R"("OBJECT_MAPPING", "ATTRIBUTE_MAPPING", "CONNECTION_MAPPING")"},
    {objectName,           Message::ruleNameExpected,         ""},
    {objectType,           Message::keywordExpected,          R"("OBJECT_TYPE")"},
    {objectTypeEquals,     Message::equalsExpected,           ""},
    {objectTypeNumber,     Message::objectTypeExpected,       ""},
    {behindObjectType,     Message::keywordExpected,          R"("END", "OBJECT_TYPE")"},
    {attributeName,        Message::ruleNameExpected,         ""},
    {attributeType,        Message::keywordExpected,          R"("ATTRIBUTE_TYPE")"},
    {attributeTypeEquals,  Message::equalsExpected,           ""},
    {attributeTypeNumber,  Message::attributeTypeExpected,    ""},
    {behindAttributeType,  Message::keywordExpected,          R"("END")"},
    {connectionName,       Message::ruleNameExpected,         ""},
    {sourceType,           Message::keywordExpected,          R"("SOURCE_OBJECT_TYPE")"},
    {sourceTypeEquals,     Message::equalsExpected,           ""},
    {sourceTypeNumber,     Message::objectTypeExpected,       ""},
    {targetType,           Message::keywordExpected,          R"("TARGET_OBJECT_TYPE")"},
    {targetTypeEquals,     Message::equalsExpected,           ""},
    {targetTypeNumber,     Message::objectTypeExpected,       ""},
    {connectionKind,       Message::keywordExpected,          R"("CONNECTION_KIND")"},
    {connectionKindEquals, Message::equalsExpected,           ""},
    {connectionKindNumber, Message::connectionKindExpected,   ""},
    {connectionType,       Message::keywordExpected,          R"("CONNECTION_TYPE")"},
    {connectionTypeEquals, Message::equalsExpected,           ""},
    {connectionTypeNumber, Message::connectionTypeExpected,   ""},
    {behindConnectionType, Message::keywordExpected,          R"("SOURCE_OBJECT_TYPE", "TARGET_OBJECT_RULE")"},
    {targetRuleEquals,     Message::equalsExpected,           ""},
    {targetRuleName,       Message::ruleNameExpected,         ""},
    {behindTargetRule,     Message::keywordExpected,          R"("SOURCE_OBJECT_TYPE", "END")"},
});
// clang-format on

/// What a state accepts; one token at least.
constexpr std::span<const ProfileRow> RowsOf(ProfileState state) {
    const auto isOfState = [&](const ProfileRow& row) {
        return row.state == state;
    };
    const auto* const first = std::find_if(rows.begin(), rows.end(), isOfState);
    return {first, std::find_if_not(first, rows.end(), isOfState)};
}

/// The row by which a state accepts a token; null where it does not.
constexpr const ProfileRow* RowFor(ProfileState state, TokenType type, std::string_view value) {
    for (const ProfileRow& row : RowsOf(state))
        if (row.Accepts(type, value)) return &row;
    return nullptr;
}

constexpr const ProfileFailure& FailureOf(ProfileState state) {
    return failures[static_cast<std::size_t>(state)];
}

/// Whether each state has its failure at its index, and its rows together, in the order of the states.
constexpr bool StatesAreInOrder() {
    std::size_t rowCount = 0;
    for (std::size_t i = 0; i < failures.size(); ++i) {
        const auto state = static_cast<ProfileState>(i);
        if (failures[i].state != state || RowsOf(state).empty()) return false;
        if (RowsOf(state).data() != &rows[rowCount]) return false;
        rowCount += RowsOf(state).size();
    }
    return rowCount == rows.size() && failures.back().state == behindTargetRule;
}
static_assert(StatesAreInOrder());

/// Whether every state but the first is led to, and no two rows of a state accept the same token.
constexpr bool RowsLeadOn() {
    for (const ProfileFailure& failure : failures) {
        const bool isLedTo = std::any_of(rows.begin(), rows.end(), [&](const ProfileRow& row) {
            return row.nextState == failure.state && row.state != failure.state;
        });
        if (!isLedTo) return false;
    }
    return std::all_of(rows.begin(), rows.end(), [](const ProfileRow& row) {
        return RowFor(row.state, row.tokenType, row.keyword) == &row &&
               row.tokenType == RowsOf(row.state).front().tokenType;
    });
}
static_assert(RowsLeadOn());

/// Whether a keyword is named in double quotes in a list of what is expected.
constexpr bool IsNamedIn(std::string_view expected, std::string_view keyword) {
    const std::size_t at = expected.find(keyword);
    return at != std::string_view::npos && at > 0 && expected[at - 1] == '"' &&
           expected.substr(at + keyword.size()).starts_with('"');
}

/// Whether each row is of a keyword that there is and that the failure of its state names, or of none, and
/// the failure is of the sort of what is accepted.
constexpr bool FailuresFit() {
    return std::all_of(rows.begin(), rows.end(), [](const ProfileRow& row) {
        const ProfileFailure& failure = FailureOf(row.state);
        if (row.tokenType != key) {
            const bool fits = row.tokenType == word ? failure.message == Message::ruleNameExpected
                              : row.tokenType == equals
                                  ? failure.message == Message::equalsExpected
                                  : failure.message >= Message::objectTypeExpected &&
                                        failure.message <= Message::connectionTypeExpected;
            return fits && row.keyword.empty() && failure.expected.empty();
        }
        const bool isUnnamed = row.state == behindConnectionType && row.keyword == "END";
        return failure.message == Message::keywordExpected &&
               IsNamedIn(failure.expected, row.keyword) != isUnnamed &&
               std::find(profileKeywords.begin(), profileKeywords.end(), row.keyword) !=
                   profileKeywords.end();
    });
}
static_assert(FailuresFit());

/// Whether no failure names what its state does not accept.
constexpr bool FailuresNameNothingElse() {
    return std::all_of(failures.begin(), failures.end(), [](const ProfileFailure& failure) {
        const auto rowsOfState = RowsOf(failure.state);
        const auto named = std::count_if(rowsOfState.begin(), rowsOfState.end(), [&](const ProfileRow& row) {
            return row.tokenType == key && IsNamedIn(failure.expected, row.keyword);
        });
        return std::count(failure.expected.begin(), failure.expected.end(), '"') == 2 * named;
    });
}
static_assert(FailuresNameNothingElse());
}  // namespace profileGrammar

}  // namespace wxbrg
