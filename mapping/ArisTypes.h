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

/// The symbol of a rule object under which all incoming branches must have arrived.
inline constexpr std::int32_t andRuleSymbol = 42;

}  // namespace wxbrg
