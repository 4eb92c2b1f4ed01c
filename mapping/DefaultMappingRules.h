#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "aris/Repository.h"
#include "mapping/ArisTypes.h"

/// The mapping that the program assumes when no profile is there: functions are activities, events and rule
/// objects carry control flow, entity types and their relatives are data, and so on.
///
/// Rows of one rule are together; within a rule their order is the order of search.
///
/// Not mistakes, though they look like some: PROGRAM_RECEIVES_DATA and PROGRAM_SENDS_DATA have the same rows,
/// so that a program has the same data in both containers. ACTIVITY_PERSON and ACTIVITY_ORGANIZATION differ
/// in their targets alone. User attribute 1 serves six rules, each for objects of another kind.
/// RULE_SENDS_CONTROL_TO_FUNCTION continues with itself, for a rule object may follow another.
namespace wxbrg::defaultRules {

/// One type that conforms to an object rule.
struct TypeRow {
    std::string_view rule;
    std::int32_t type;  ///< object type number; model type number in the rule PROCESS
};

/// The attribute that an attribute rule reads.
struct AttributeRow {
    std::string_view rule;
    std::int32_t attribute;  ///< attribute type number, or `AttributeType::itemName`
};

/// One step of a connection rule.
struct StepRow {
    std::string_view rule;
    std::int32_t source;         ///< object type that the step starts from
    std::int32_t kind;           ///< direction of the connection, of `CxnKind`
    std::int32_t connection;     ///< connection type
    std::int32_t target;         ///< object type that the step arrives at
    std::string_view continues;  ///< the rule that goes on from there; empty: the step ends there
};

// clang-format off
inline constexpr std::array types{std::to_array<TypeRow>({
    {"ACTIVITY",       ObjectType::function},
    {"CONTROL_OBJECT", ObjectType::event},
    {"DATA_OBJECT",    ObjectType::entityType},
    {"DATA_OBJECT",    ObjectType::relationType},
    {"DATA_OBJECT",    ObjectType::ermAttribute},
    {"DATA_OBJECT",    ObjectType::cluster},
    {"DATA_OBJECT",    ObjectType::attributeTypeGroup},
    {"DATA_OBJECT",    ObjectType::informationFlow},
    {"ORGANIZATION",   ObjectType::organization},
    {"PERSON",         ObjectType::person},
    {"PROGRAM",        ObjectType::applicationSystem},
    {"PROGRAM",        ObjectType::itFunctionType},
    {"PROGRAM",        ObjectType::moduleType},
    {"PROCESS",        ModelType::epc},
    {"PROCESS",        ModelType::epcMaterialFlow},
    {"PROCESS",        ModelType::epcColumnDisplay},
    {"PROCESS",        ModelType::epcTableDisplay},
    {"PROCESS",        ModelType::epcRowDisplay},
    {"PROCESS",        ModelType::functionAllocationDiagram},
    {"PROCESS",        ModelType::industrialProcess},
    {"PROCESS",        ModelType::officeProcess},
    {"PROCESS",        ModelType::otherProcess},
    {"PROCESS",        ModelType::processChainDiagram},
    {"PROCESS",        ModelType::processChainMaterialFlow},
    {"PROCESS",        ModelType::umlActivityDiagram},
    {"PROCESS",        ModelType::valueAddedChainDiagram},
    {"ROLE",           ObjectType::personType},
})};

inline constexpr std::array attributes{std::to_array<AttributeRow>({
    {"ACTIVITY_ActivityName",           AttributeType::itemName},
    {"ACTIVITY_DESCRIPTION",            AttributeType::description},
    {"ACTIVITY_DOCUMENTATION",          AttributeType::remark},
    {"ACTIVITY_START_CONDITION",        AttributeType::userAttribute1},
    {"ACTIVITY_EXIT_CONDITION",         AttributeType::userAttribute2},
    {"ACTIVITY_START_MODE",             AttributeType::userAttribute3},
    {"ACTIVITY_EXIT_MODE",              AttributeType::userAttribute4},
    {"ACTIVITY_OTHER_SETTINGS",         AttributeType::userAttribute5},
    {"CONTROL_CONNECTOR_DESCRIPTION",   AttributeType::description},
    {"CONTROL_CONNECTOR_CONDITION",     AttributeType::userAttribute1},
    {"DATA_CONNECTOR_DESCRIPTION",      AttributeType::description},
    {"DATA_MEMBER_MemberName",          AttributeType::itemName},
    {"DATA_MEMBER_DESCRIPTION",         AttributeType::description},
    {"DATA_MEMBER_DOCUMENTATION",       AttributeType::remark},
    {"DATA_MEMBER_TYPE",                AttributeType::dataType},
    {"DATA_MEMBER_SIZE_OF_ARRAY",       AttributeType::userAttribute1},
    {"DOMAINTYPE_DOM_TYPE",             AttributeType::domainTypeWord},
    {"DATA_STRUCTURE_ObjectName",       AttributeType::itemName},
    {"DATA_STRUCTURE_DESCRIPTION",      AttributeType::description},
    {"DATA_STRUCTURE_DOCUMENTATION",    AttributeType::remark},
    {"EVENT_COMPARE_OPERATOR",          AttributeType::compareOperator},
    {"EVENT_COMPARE_VALUE",             AttributeType::compareValue},
    {"ORGANIZATION_ObjectName",         AttributeType::itemName},
    {"ORGANIZATION_DESCRIPTION",        AttributeType::description},
    {"PERSON_PersonName",               AttributeType::login},
    {"PERSON_DESCRIPTION",              AttributeType::description},
    {"PERSON_FIRST_NAME",               AttributeType::firstName},
    {"PERSON_LAST_NAME",                AttributeType::itemName},
    {"PERSON_PHONE",                    AttributeType::phone},
    {"PERSON_SECOND_PHONE",             AttributeType::secondPhone},
    {"PERSON_OTHER_SETTINGS",           AttributeType::userAttribute1},
    {"PROCESS_ProcessName",             AttributeType::itemName},
    {"PROCESS_DESCRIPTION",             AttributeType::description},
    {"PROCESS_DOCUMENTATION",           AttributeType::remark},
    {"PROCESS_OTHER_SETTINGS",          AttributeType::userAttribute1},
    {"PROCESS_CATEGORY_ObjectName",     AttributeType::itemName},
    {"PROCESS_CATEGORY_DESCRIPTION",    AttributeType::description},
    {"PROCESS_CATEGORY_DOCUMENTATION",  AttributeType::remark},
    {"PROGRAM_ObjectName",              AttributeType::itemName},
    {"PROGRAM_DESCRIPTION",             AttributeType::description},
    {"PROGRAM_DOCUMENTATION",           AttributeType::remark},
    {"PROGRAM_OTHER_SETTINGS",          AttributeType::userAttribute1},
    {"ROLE_ObjectName",                 AttributeType::itemName},
    {"ROLE_DESCRIPTION",                AttributeType::description},
})};

namespace stepWords {
using namespace ObjectType;
using namespace ConnectionType;
inline constexpr std::int32_t in = CxnKind::incoming;
inline constexpr std::int32_t out = CxnKind::outgoing;

inline constexpr std::array rows{std::to_array<StepRow>({
    {"ACTIVITY_PROGRAM",                          function,           in , supports,                  applicationSystem,  ""},
    {"ACTIVITY_PROGRAM",                          function,           in , itFunctionSupports,        itFunctionType,     ""},
    {"ACTIVITY_PROGRAM",                          function,           in , supports,                  moduleType,         ""},
    {"ACTIVITY_PERSON",                           function,           in , carriesOut1,               person,             ""},
    {"ACTIVITY_PERSON",                           function,           in , isTechnicallyResponsible1, person,             ""},
    {"ACTIVITY_MEMBER_OF_ROLE",                   function,           in , carriesOut2,               personType,         ""},
    {"ACTIVITY_MEMBER_OF_ROLE",                   function,           in , isTechnicallyResponsible3, personType,         ""},
    {"ACTIVITY_ORGANIZATION",                     function,           in , carriesOut1,               organization,       ""},
    {"ACTIVITY_ORGANIZATION",                     function,           in , isTechnicallyResponsible1, organization,       ""},
    {"DATA_MEMBER_HAS_DOMAINTYPE",                ermAttribute,       out, hasDomain,                 domainType,         ""},
    {"DATA_MEMBER_HAS_DOMAINTYPE",                ermAttribute,       out, hasDomain,                 unit,               "UNIT_NUM_HAS_DOMAINTYPE"},
    {"UNIT_NUM_HAS_DOMAINTYPE",                   unit,               out, hasDomain,                 domainType,         ""},
    {"DATA_STRUCTURE_MEMBER",                     entityType,         in , isPrimaryKeyFor,           ermAttribute,       ""},
    {"DATA_STRUCTURE_MEMBER",                     entityType,         in , isDescribingFor,           ermAttribute,       ""},
    {"DATA_STRUCTURE_MEMBER",                     entityType,         in , isForeignKeyFor,           ermAttribute,       ""},
    {"DATA_STRUCTURE_MEMBER",                     relationType,       in , isPrimaryKeyFor,           ermAttribute,       ""},
    {"DATA_STRUCTURE_MEMBER",                     relationType,       in , isDescribingFor,           ermAttribute,       ""},
    {"DATA_STRUCTURE_MEMBER",                     relationType,       in , isForeignKeyFor,           ermAttribute,       ""},
    {"DATA_STRUCTURE_MEMBER",                     attributeTypeGroup, in , isInGroup,                 ermAttribute,       ""},
    {"DATA_STRUCTURE_MEMBER",                     entityType,         in , isGroupOf,                 attributeTypeGroup, ""},
    {"DATA_STRUCTURE_MEMBER",                     relationType,       in , isGroupOf,                 attributeTypeGroup, ""},
    {"DATA_STRUCTURE_MEMBER",                     cluster,            out, consistsOf,                entityType,         ""},
    {"DATA_STRUCTURE_MEMBER",                     cluster,            out, consistsOf,                attributeTypeGroup, ""},
    {"DATA_STRUCTURE_MEMBER",                     cluster,            out, consistsOf,                cluster,            ""},
    {"ORGANIZATION_MANAGER",                      organization,       in , heads,                     person,             ""},
    {"ORGANIZATION_MANAGER",                      organization,       in , isDisciplinarySuperior,    position,           "POSITION_IS_OCCUPIED_BY_PERSON"},
    {"ORGANIZATION_MANAGER",                      organization,       in , isHigherSuperior,          position,           "POSITION_IS_OCCUPIED_BY_PERSON"},
    {"ORGANIZATION_PARENT_ORGANIZATION",          organization,       in , isDisciplinarySuperior,    organization,       ""},
    {"ORGANIZATION_PARENT_ORGANIZATION",          organization,       in , isHigherSuperior,          organization,       ""},
    {"ORGANIZATION_PARENT_ORGANIZATION",          organization,       in , isParentOf,                organization,       ""},
    {"ORGANIZATION_PARENT_ORGANIZATION",          organization,       in , isSuperior,                organization,       ""},
    {"ORGANIZATION_PARENT_ORGANIZATION",          organization,       in , isComposedOf,              organization,       ""},
    {"ORGANIZATION_RELATED_PERSON",               organization,       in , belongsTo,                 person,             ""},
    {"PERSON_SUBSTITUTE",                         person,             in , substitutes,               person,             ""},
    {"PERSON_RELATED_ROLE",                       person,             out, carriesOut5,               personType,         ""},
    {"PERSON_RELATED_ORGANIZATION",               person,             out, belongsTo,                 organization,       ""},
    {"ROLE_RELATED_PERSON",                       personType,         in , carriesOut5,               person,             ""},
    {"ROLE_COORDINATOR",                          personType,         in , heads,                     person,             ""},
    {"ATTRIBUTETYPEGROUP_SENDS_DATA_TO_FUNCTION", attributeTypeGroup, out, isInputFor,                function,           ""},
    {"CLUSTER_SENDS_DATA_TO_FUNCTION",            cluster,            out, isInputFor,                function,           ""},
    {"ENTITY_TYPE_SENDS_DATA_TO_FUNCTION",        entityType,         out, isInputFor,                function,           ""},
    {"ERM_ATTRIBUTE_SENDS_DATA_TO_FUNCTION",      ermAttribute,       out, isInputFor,                function,           ""},
    {"EVENT_IS_COMPARED_WITH_DATA",               event,              in , isCompared,                ermAttribute,       ""},
    {"EVENT_IS_COMPARED_WITH_DATA",               event,              in , isAttributeCompared1,      ermAttribute,       ""},
    {"EVENT_IS_COMPARED_WITH_DATA",               event,              in , isAttributeCompared2,      ermAttribute,       ""},
    {"EVENT_IS_COMPARED_WITH_DATA",               event,              in , isCompared,                entityType,         ""},
    {"EVENT_IS_COMPARED_WITH_DATA",               event,              in , isCompared,                relationType,       ""},
    {"EVENT_IS_COMPARED_WITH_DATA",               event,              in , isCompared,                cluster,            ""},
    {"EVENT_RECEIVES_CONTROL_FROM_RULE",          event,              in , leadsTo2,                  rule,               ""},
    {"EVENT_SENDS_CONTROL_TO_FUNCTION",           event,              out, activates,                 function,           ""},
    {"EVENT_SENDS_CONTROL_TO_FUNCTION",           event,              out, isEvaluatedBy,             rule,               "RULE_SENDS_CONTROL_TO_FUNCTION"},
    {"FUNCTION_RECEIVES_CONTROL_FROM_RULE",       function,           in , activates,                 rule,               ""},
    {"FUNCTION_RECEIVES_CONTROL_FROM_RULE",       function,           in , activates,                 event,              "EVENT_RECEIVES_CONTROL_FROM_RULE"},
    {"FUNCTION_RECEIVES_DATA",                    function,           in , isInputFor,                entityType,         ""},
    {"FUNCTION_RECEIVES_DATA",                    function,           in , isInputFor,                relationType,       ""},
    {"FUNCTION_RECEIVES_DATA",                    function,           in , isInputFor,                ermAttribute,       ""},
    {"FUNCTION_RECEIVES_DATA",                    function,           in , isInputFor,                cluster,            ""},
    {"FUNCTION_RECEIVES_DATA",                    function,           in , isInputFor,                attributeTypeGroup, ""},
    {"FUNCTION_RECEIVES_DATA",                    function,           in , flowsTo,                   informationFlow,    ""},
    {"FUNCTION_SENDS_CONTROL_TO_FUNCTION",        function,           out, isPredecessorOf,           function,           ""},
    {"FUNCTION_SENDS_CONTROL_TO_FUNCTION",        function,           out, creates,                   event,              "EVENT_SENDS_CONTROL_TO_FUNCTION"},
    {"FUNCTION_SENDS_CONTROL_TO_FUNCTION",        function,           out, leadsTo1,                  rule,               "RULE_SENDS_CONTROL_TO_FUNCTION"},
    {"FUNCTION_SENDS_DATA",                       function,           out, hasOutput,                 entityType,         ""},
    {"FUNCTION_SENDS_DATA",                       function,           out, hasOutput,                 relationType,       ""},
    {"FUNCTION_SENDS_DATA",                       function,           out, hasOutput,                 ermAttribute,       ""},
    {"FUNCTION_SENDS_DATA",                       function,           out, hasOutput,                 cluster,            ""},
    {"FUNCTION_SENDS_DATA",                       function,           out, hasOutput,                 attributeTypeGroup, ""},
    {"FUNCTION_SENDS_DATA",                       function,           out, sendsFlow,                 informationFlow,    ""},
    {"FUNCTION_SENDS_DATA_TO_FUNCTION",           function,           out, hasOutput,                 entityType,         "ENTITY_TYPE_SENDS_DATA_TO_FUNCTION"},
    {"FUNCTION_SENDS_DATA_TO_FUNCTION",           function,           out, hasOutput,                 relationType,       "RELATION_TYPE_SENDS_DATA_TO_FUNCTION"},
    {"FUNCTION_SENDS_DATA_TO_FUNCTION",           function,           out, hasOutput,                 ermAttribute,       "ERM_ATTRIBUTE_SENDS_DATA_TO_FUNCTION"},
    {"FUNCTION_SENDS_DATA_TO_FUNCTION",           function,           out, hasOutput,                 cluster,            "CLUSTER_SENDS_DATA_TO_FUNCTION"},
    {"FUNCTION_SENDS_DATA_TO_FUNCTION",           function,           out, hasOutput,                 attributeTypeGroup, "ATTRIBUTETYPEGROUP_SENDS_DATA_TO_FUNCTION"},
    {"FUNCTION_SENDS_DATA_TO_FUNCTION",           function,           out, sendsFlow,                 informationFlow,    "INFO_FLOW_SENDS_DATA_TO_FUNCTION"},
    {"INFO_FLOW_SENDS_DATA_TO_FUNCTION",          informationFlow,    out, flowsTo,                   function,           ""},
    {"POSITION_IS_OCCUPIED_BY_PERSON",            position,           in , occupies,                  person,             ""},
    {"PROGRAM_RECEIVES_DATA",                     applicationSystem,  in , isHandledBy,               entityType,         ""},
    {"PROGRAM_RECEIVES_DATA",                     applicationSystem,  in , isHandledBy,               relationType,       ""},
    {"PROGRAM_RECEIVES_DATA",                     applicationSystem,  out, handles,                   entityType,         ""},
    {"PROGRAM_RECEIVES_DATA",                     applicationSystem,  out, handles,                   relationType,       ""},
    {"PROGRAM_RECEIVES_DATA",                     applicationSystem,  out, handles,                   ermAttribute,       ""},
    {"PROGRAM_RECEIVES_DATA",                     applicationSystem,  out, handles,                   cluster,            ""},
    {"PROGRAM_RECEIVES_DATA",                     moduleType,         out, handles,                   entityType,         ""},
    {"PROGRAM_RECEIVES_DATA",                     moduleType,         out, handles,                   relationType,       ""},
    {"PROGRAM_RECEIVES_DATA",                     moduleType,         out, handles,                   ermAttribute,       ""},
    {"PROGRAM_RECEIVES_DATA",                     moduleType,         out, handles,                   cluster,            ""},
    {"PROGRAM_RECEIVES_DATA",                     itFunctionType,     out, itFunctionHandles,         entityType,         ""},
    {"PROGRAM_RECEIVES_DATA",                     itFunctionType,     out, itFunctionHandles,         relationType,       ""},
    {"PROGRAM_RECEIVES_DATA",                     itFunctionType,     out, itFunctionHandles,         ermAttribute,       ""},
    {"PROGRAM_RECEIVES_DATA",                     itFunctionType,     out, itFunctionHandles,         cluster,            ""},
    {"PROGRAM_SENDS_DATA",                        applicationSystem,  in , isHandledBy,               entityType,         ""},
    {"PROGRAM_SENDS_DATA",                        applicationSystem,  in , isHandledBy,               relationType,       ""},
    {"PROGRAM_SENDS_DATA",                        applicationSystem,  out, handles,                   entityType,         ""},
    {"PROGRAM_SENDS_DATA",                        applicationSystem,  out, handles,                   relationType,       ""},
    {"PROGRAM_SENDS_DATA",                        applicationSystem,  out, handles,                   ermAttribute,       ""},
    {"PROGRAM_SENDS_DATA",                        applicationSystem,  out, handles,                   cluster,            ""},
    {"PROGRAM_SENDS_DATA",                        moduleType,         out, handles,                   entityType,         ""},
    {"PROGRAM_SENDS_DATA",                        moduleType,         out, handles,                   relationType,       ""},
    {"PROGRAM_SENDS_DATA",                        moduleType,         out, handles,                   ermAttribute,       ""},
    {"PROGRAM_SENDS_DATA",                        moduleType,         out, handles,                   cluster,            ""},
    {"PROGRAM_SENDS_DATA",                        itFunctionType,     out, itFunctionHandles,         entityType,         ""},
    {"PROGRAM_SENDS_DATA",                        itFunctionType,     out, itFunctionHandles,         relationType,       ""},
    {"PROGRAM_SENDS_DATA",                        itFunctionType,     out, itFunctionHandles,         ermAttribute,       ""},
    {"PROGRAM_SENDS_DATA",                        itFunctionType,     out, itFunctionHandles,         cluster,            ""},
    {"RELATION_TYPE_SENDS_DATA_TO_FUNCTION",      relationType,       out, isInputFor,                function,           ""},
    {"RULE_SENDS_CONTROL_TO_FUNCTION",            rule,               out, activates,                 function,           ""},
    {"RULE_SENDS_CONTROL_TO_FUNCTION",            rule,               out, leadsTo2,                  event,              "EVENT_SENDS_CONTROL_TO_FUNCTION"},
    {"RULE_SENDS_CONTROL_TO_FUNCTION",            rule,               out, links,                     rule,               "RULE_SENDS_CONTROL_TO_FUNCTION"},
})};
}  // namespace stepWords
// clang-format on

inline constexpr const auto& steps = stepWords::rows;

// What the compiler checks of the tables.

constexpr char FoldAscii(char byte) {
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
}

constexpr bool SameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return FoldAscii(x) == FoldAscii(y);
    });
}

/// How many runs of rows a name has; 1 for a rule of the table.
template <class Rows>
constexpr std::size_t RunsOf(const Rows& rows, std::string_view rule) {
    std::size_t runs = 0;
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (SameName(rows[i].rule, rule) && (i == 0 || rows[i - 1].rule != rows[i].rule)) ++runs;
    return runs;
}

/// How many rules the rows make.
template <class Rows>
constexpr std::size_t RuleCount(const Rows& rows) {
    std::size_t rules = 0;
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (i == 0 || rows[i - 1].rule != rows[i].rule) ++rules;
    return rules;
}

template <class Rows>
constexpr bool NamesAreUnique(const Rows& rows) {
    return std::all_of(rows.begin(), rows.end(), [](const auto& row) {
        return RunsOf(types, row.rule) + RunsOf(attributes, row.rule) + RunsOf(steps, row.rule) == 1;
    });
}

/// Whether a chained step arrives at a type that the rule behind it starts from.
constexpr bool ChainHolds(const StepRow& step) {
    return step.continues.empty() || std::any_of(steps.begin(), steps.end(), [&](const StepRow& next) {
               return next.rule == step.continues && next.source == step.target;
           });
}

/// The type of object that a rule is about is the beginning of its name.
struct RuleStart {
    std::string_view prefix;
    std::int32_t source;
};
inline constexpr std::array ruleStarts{std::to_array<RuleStart>({
    {"ACTIVITY_", ObjectType::function},
    {"FUNCTION_", ObjectType::function},
    {"EVENT_", ObjectType::event},
    {"RULE_", ObjectType::rule},
    {"ORGANIZATION_", ObjectType::organization},
    {"PERSON_", ObjectType::person},
    {"ROLE_", ObjectType::personType},
    {"POSITION_", ObjectType::position},
    {"UNIT_NUM_", ObjectType::unit},
    {"DATA_MEMBER_", ObjectType::ermAttribute},
    {"ATTRIBUTETYPEGROUP_", ObjectType::attributeTypeGroup},
    {"CLUSTER_", ObjectType::cluster},
    {"ENTITY_TYPE_", ObjectType::entityType},
    {"ERM_ATTRIBUTE_", ObjectType::ermAttribute},
    {"INFO_FLOW_", ObjectType::informationFlow},
    {"RELATION_TYPE_", ObjectType::relationType},
})};
constexpr bool StartsAsNamed(const StepRow& step) {
    return std::all_of(ruleStarts.begin(), ruleStarts.end(), [&](const RuleStart& start) {
        return !step.rule.starts_with(start.prefix) || step.source == start.source;
    });
}

static_assert(RuleCount(types) == 8 && RuleCount(attributes) == 44 && RuleCount(steps) == 33);
static_assert(attributes.size() == 44 && steps.size() == 108);
static_assert(std::count_if(steps.begin(), steps.end(), [](const StepRow& step) {
                  return !step.continues.empty();
              }) == 15);
static_assert(NamesAreUnique(types) && NamesAreUnique(attributes) && NamesAreUnique(steps));
static_assert(std::all_of(steps.begin(), steps.end(), ChainHolds));
static_assert(std::all_of(steps.begin(), steps.end(), StartsAsNamed));

}  // namespace wxbrg::defaultRules
