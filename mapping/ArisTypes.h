#pragma once

#include <cstdint>

namespace wxbrg {

/// ARIS object type numbers.
namespace ObjectType {
inline constexpr std::int32_t applicationSystem = 6;
inline constexpr std::int32_t relationType = 11;
inline constexpr std::int32_t cluster = 14;
inline constexpr std::int32_t entityType = 17;
inline constexpr std::int32_t event = 18;
inline constexpr std::int32_t ermAttribute = 19;
inline constexpr std::int32_t domainType = 20;
inline constexpr std::int32_t function = 22;
inline constexpr std::int32_t informationFlow = 26;
inline constexpr std::int32_t moduleType = 37;
inline constexpr std::int32_t organization = 43;
inline constexpr std::int32_t position = 45;
inline constexpr std::int32_t person = 46;
inline constexpr std::int32_t rule = 50;
inline constexpr std::int32_t personType = 78;
inline constexpr std::int32_t itFunctionType = 105;
inline constexpr std::int32_t attributeTypeGroup = 111;
inline constexpr std::int32_t unit = 185;
}  // namespace ObjectType

/// ARIS attribute type numbers.
namespace AttributeType {
inline constexpr std::int32_t itemName = -1;  ///< the program's own mark: no attribute, the item's name
inline constexpr std::int32_t remark = 8;
inline constexpr std::int32_t description = 9;
inline constexpr std::int32_t domainTypeWord = 123;
inline constexpr std::int32_t phone = 245;
inline constexpr std::int32_t secondPhone = 246;
inline constexpr std::int32_t dataType = 494;
inline constexpr std::int32_t compareOperator = 497;
inline constexpr std::int32_t compareValue = 498;
inline constexpr std::int32_t login = 509;
inline constexpr std::int32_t userAttribute1 = 985;
inline constexpr std::int32_t userAttribute2 = 986;
inline constexpr std::int32_t userAttribute3 = 1207;
inline constexpr std::int32_t userAttribute4 = 1208;
inline constexpr std::int32_t userAttribute5 = 1209;
inline constexpr std::int32_t firstName = 1243;
}  // namespace AttributeType

/// ARIS model type numbers: those that are processes.
namespace ModelType {
inline constexpr std::int32_t valueAddedChainDiagram = 12;
inline constexpr std::int32_t epc = 13;
inline constexpr std::int32_t functionAllocationDiagram = 14;
inline constexpr std::int32_t processChainDiagram = 18;
inline constexpr std::int32_t epcMaterialFlow = 50;
inline constexpr std::int32_t processChainMaterialFlow = 51;
inline constexpr std::int32_t officeProcess = 100;
inline constexpr std::int32_t industrialProcess = 103;
inline constexpr std::int32_t umlActivityDiagram = 124;
inline constexpr std::int32_t epcColumnDisplay = 134;
inline constexpr std::int32_t otherProcess = 138;  ///< ARIS's name for it is not known
inline constexpr std::int32_t epcRowDisplay = 140;
inline constexpr std::int32_t epcTableDisplay = 154;
}  // namespace ModelType

/// ARIS connection type numbers.
namespace ConnectionType {
// Named as in ARIS, a number at the end where ARIS has several of one name.
inline constexpr std::int32_t isSuperior = 3;
inline constexpr std::int32_t isComposedOf = 7;
inline constexpr std::int32_t isDisciplinarySuperior = 9;
inline constexpr std::int32_t isTechnicallyResponsible1 = 10;
inline constexpr std::int32_t activates = 43;
inline constexpr std::int32_t creates = 44;
inline constexpr std::int32_t isEvaluatedBy = 48;
inline constexpr std::int32_t isInputFor = 49;
inline constexpr std::int32_t hasOutput = 50;
inline constexpr std::int32_t links = 54;
inline constexpr std::int32_t carriesOut5 = 61;
inline constexpr std::int32_t carriesOut1 = 65;
inline constexpr std::int32_t isPrimaryKeyFor = 78;
inline constexpr std::int32_t isForeignKeyFor = 79;
inline constexpr std::int32_t isDescribingFor = 80;
inline constexpr std::int32_t leadsTo1 = 116;
inline constexpr std::int32_t leadsTo2 = 117;
inline constexpr std::int32_t isPredecessorOf = 118;
inline constexpr std::int32_t occupies = 210;
inline constexpr std::int32_t carriesOut2 = 218;
inline constexpr std::int32_t isTechnicallyResponsible3 = 220;
inline constexpr std::int32_t supports = 221;

// Named after what the default rules take them for; ARIS's names for them are not known.
inline constexpr std::int32_t belongsTo = 6;               ///< a person to an organization
inline constexpr std::int32_t isHigherSuperior = 8;        ///< an organization or position to an organization
inline constexpr std::int32_t itFunctionHandles = 60;      ///< data that a program takes or gives
inline constexpr std::int32_t isCompared = 75;             ///< data with an event
inline constexpr std::int32_t consistsOf = 85;             ///< a cluster of its parts
inline constexpr std::int32_t hasDomain = 121;             ///< an attribute of the data model
inline constexpr std::int32_t handles = 125;               ///< data that a program takes or gives
inline constexpr std::int32_t itFunctionSupports = 147;    ///< a function
inline constexpr std::int32_t isParentOf = 211;            ///< an organization of another
inline constexpr std::int32_t isInGroup = 269;             ///< an attribute of the data model
inline constexpr std::int32_t isGroupOf = 270;             ///< attributes, of an entity or relation type
inline constexpr std::int32_t isHandledBy = 317;           ///< data, by a program
inline constexpr std::int32_t substitutes = 318;           ///< a person for another
inline constexpr std::int32_t isAttributeCompared1 = 319;  ///< an attribute of the data model with an event
inline constexpr std::int32_t isAttributeCompared2 = 322;  ///< the same
inline constexpr std::int32_t heads = 395;      ///< a person an organization or the holders of a role
inline constexpr std::int32_t sendsFlow = 407;  ///< a function an information flow
inline constexpr std::int32_t flowsTo = 408;    ///< an information flow to a function
}  // namespace ConnectionType

/// The symbol of a rule object under which all incoming branches must have arrived.
inline constexpr std::int32_t andRuleSymbol = 42;

}  // namespace wxbrg
