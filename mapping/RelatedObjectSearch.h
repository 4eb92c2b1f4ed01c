#pragma once

#include <cstdint>
#include <string_view>

#include "aris/Repository.h"
#include "support/Collection.h"

/// The objects that a connection rule leads to. Results hold each object once, under its Guid. Objects and
/// connections that are not drawn anywhere do not count.
namespace wxbrg {

/// How deep the search along chained rules may nest; the next level ends the run with 2230.
inline constexpr std::int32_t relatedSearchLimit = 100;

/// Adds the objects that a connection rule leads to from `item`, over chained steps to their ends, depth
/// first in the order of the rule. A rule name that the table does not hold ends the run with 2100. Cost:
/// each pair of an object and a rule is looked at once, however many ways lead to it; the limit of the
/// nesting is met exactly where a search without that memory would meet it.
Collection<ARISObjDef>& Find_Related_ARIS_ObjDef_Using_Mapping_Rule(Collection<ARISObjDef>& result,
                                                                    const ARISObjDef& item,
                                                                    std::string_view ruleName);

/// One step: adds the objects of a type at the other end of the item's connections of a type and direction.
/// Another direction than those of `CxnKind` brings the warning 2030 at the first drawn connection, and then
/// failure 91. Fails with 6 for more than 32,768 connections.
Collection<ARISObjDef>& Find_Related_ARIS_ObjDef(Collection<ARISObjDef>& result, const ARISObjDef& item,
                                                 std::int32_t cnxKind, std::int32_t cnxTypeNum,
                                                 std::int32_t targetObjTypeNum);

}  // namespace wxbrg
