#pragma once

#include <array>
#include <cstdint>
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

/// What an accepted token does, in front of the change of state. "Finish" adds the object or connection
/// mapping under way to the rule under way.
enum class ProfileAction {
    none,
    newRule,
    newObjectMapping,  ///< with its type
    finishObject,
    finishObjectAndRule,  ///< and adds the rule to the table; so the next two that end in "Rule"
    setAttribute,
    addRuleUnguarded,  ///< adds the rule to the table; a name that is taken is an unknown failure
    newConnection,
    setSource,
    setTarget,
    setKind,
    setConnectionType,
    setTargetRule,
    finishConnectionAndRule,
    finishConnectionAndStartNext,
};

/// One accepted token of a state.
struct ProfileRow {
    std::int32_t state;
    std::int32_t tokenType;
    std::string_view keyword;  ///< for a token that is a keyword
    ProfileAction action;
    std::int32_t nextState;
};

/// What any other token of a state fails with.
struct ProfileFailure {
    Message message;
    std::string_view expected;  ///< second argument of the failure 2130
};

namespace profileGrammar {
using enum ProfileAction;
inline constexpr std::int32_t key = TokenType::keyword;
inline constexpr std::int32_t word = TokenType::word;
inline constexpr std::int32_t number = TokenType::number;
inline constexpr std::int32_t equals = TokenType::equals;

// clang-format off
inline constexpr auto rows = std::to_array<ProfileRow>({
    { 0, key,    "OBJECT_MAPPING",     none,                          1},
    { 0, key,    "ATTRIBUTE_MAPPING",  none,                          6},
    { 0, key,    "CONNECTION_MAPPING", none,                         11},
    { 1, word,   "",                   newRule,                       2},
    { 2, key,    "OBJECT_TYPE",        none,                          3},
    { 3, equals, "",                   none,                          4},
    { 4, number, "",                   newObjectMapping,              5},
    { 5, key,    "END",                finishObjectAndRule,           0},
    { 5, key,    "OBJECT_TYPE",        finishObject,                  3},
    { 6, word,   "",                   newRule,                       7},
    { 7, key,    "ATTRIBUTE_TYPE",     none,                          8},
    { 8, equals, "",                   none,                          9},
    { 9, number, "",                   setAttribute,                 10},
    {10, key,    "END",                addRuleUnguarded,              0},
    {11, word,   "",                   newRule,                      12},
    {12, key,    "SOURCE_OBJECT_TYPE", newConnection,                13},
    {13, equals, "",                   none,                         14},
    {14, number, "",                   setSource,                    15},
    {15, key,    "TARGET_OBJECT_TYPE", none,                         16},
    {16, equals, "",                   none,                         17},
    {17, number, "",                   setTarget,                    18},
    {18, key,    "CONNECTION_KIND",    none,                         19},
    {19, equals, "",                   none,                         20},
    {20, number, "",                   setKind,                      21},
    {21, key,    "CONNECTION_TYPE",    none,                         22},
    {22, equals, "",                   none,                         23},
    {23, number, "",                   setConnectionType,            24},
    {24, key,    "END",                finishConnectionAndRule,       0},
    {24, key,    "SOURCE_OBJECT_TYPE", finishConnectionAndStartNext, 13},
    {24, key,    "TARGET_OBJECT_RULE", none,                         25},
    {25, equals, "",                   none,                         26},
    {26, word,   "",                   setTargetRule,                27},
    {27, key,    "SOURCE_OBJECT_TYPE", finishConnectionAndStartNext, 13},
    {27, key,    "END",                finishConnectionAndRule,       0},
});

/// By state. The list of state 24 does not name END, which is accepted there all the same.
inline constexpr auto failures = std::to_array<ProfileFailure>({
    {Message::keywordExpected, R"("OBJECT_MAPPING", "ATTRIBUTE_MAPPING", "CONNECTION_MAPPING")"},
    {Message::ruleNameExpected, ""},
    {Message::keywordExpected, R"("OBJECT_TYPE")"},
    {Message::equalsExpected, ""},
    {Message::objectTypeExpected, ""},
    {Message::keywordExpected, R"("END", "OBJECT_TYPE")"},
    {Message::ruleNameExpected, ""},
    {Message::keywordExpected, R"("ATTRIBUTE_TYPE")"},
    {Message::equalsExpected, ""},
    {Message::attributeTypeExpected, ""},
    {Message::keywordExpected, R"("END")"},
    {Message::ruleNameExpected, ""},
    {Message::keywordExpected, R"("SOURCE_OBJECT_TYPE")"},
    {Message::equalsExpected, ""},
    {Message::objectTypeExpected, ""},
    {Message::keywordExpected, R"("TARGET_OBJECT_TYPE")"},
    {Message::equalsExpected, ""},
    {Message::objectTypeExpected, ""},
    {Message::keywordExpected, R"("CONNECTION_KIND")"},
    {Message::equalsExpected, ""},
    {Message::connectionKindExpected, ""},
    {Message::keywordExpected, R"("CONNECTION_TYPE")"},
    {Message::equalsExpected, ""},
    {Message::connectionTypeExpected, ""},
    {Message::keywordExpected, R"("SOURCE_OBJECT_TYPE", "TARGET_OBJECT_RULE")"},
    {Message::equalsExpected, ""},
    {Message::ruleNameExpected, ""},
    {Message::keywordExpected, R"("SOURCE_OBJECT_TYPE", "END")"},
});
// clang-format on

/// Whether every state is led to, has an accepted token, and has a failure of the sort of what it accepts.
constexpr bool StatesHold() {
    for (const ProfileRow& row : rows) {
        const Message failure = failures[static_cast<std::size_t>(row.state)].message;
        const bool fits = row.tokenType == key      ? failure == Message::keywordExpected
                          : row.tokenType == word   ? failure == Message::ruleNameExpected
                          : row.tokenType == equals ? failure == Message::equalsExpected
                                                    : failure >= Message::objectTypeExpected &&
                                                          failure <= Message::connectionTypeExpected;
        const bool leads = row.nextState >= 0 && row.nextState < static_cast<std::int32_t>(failures.size());
        if (!fits || !leads) return false;
    }
    return true;
}
static_assert(StatesHold());
}  // namespace profileGrammar

}  // namespace wxbrg
