#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "mapping/PathCollection.h"
#include "support/Collection.h"
#include "support/Ref.h"

/// The only way in which the logic finds things in ARIS: by rule name. A rule name that the table does not
/// hold ends the run with 2100. Results hold each object once, under its Guid. Objects and connections that
/// are not drawn anywhere do not count.
namespace wxbrg {

/// How deep the search along chained rules may nest; the next level ends the run with 2230.
inline constexpr std::int32_t relatedSearchLimit = 100;

/// Adds the objects that a rule's types name and that are drawn in one of the models: in the order of the
/// rule's types, then of the models, then by name. Cost: linear in models times types, plus the sorting.
Collection<ARISObjDef>& Find_ARIS_ObjDef_Using_Mapping_Rule(const Collection<ARISModel>& models,
                                                            Collection<ARISObjDef>& result,
                                                            std::string_view ruleName);

/// The same for one object type. Ends the run with 6 where a model holds more than 32,768 of them.
Collection<ARISObjDef>& Find_ARIS_ObjDef(const Collection<ARISModel>& models, Collection<ARISObjDef>& result,
                                         std::int32_t objTypeNum);

/// The text of the attribute that a rule names; empty where it is not maintained.
std::string Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(const ARISObjDef& item, std::string_view ruleName);

/// The text of an attribute, of the item's name for -1.
std::string Find_ARIS_ObjDef_Attribute(const ARISObjDef& item, std::int32_t attrTypeNum);

/// The two lookups above for any item that has attributes, under the names of the procedures that are theirs.
std::string ItemAttribute(std::string_view procedure, const Ref<const aris::Item>& item,
                          std::int32_t attrTypeNum);
std::string ItemAttributeUsingRule(std::string_view procedure, std::string_view attributeProcedure,
                                   const Ref<const aris::Item>& item, std::string_view ruleName);

/// Adds the objects that a connection rule leads to from `item`, over chained steps to their ends, depth
/// first in the order of the rule. Cost: each pair of an object and a rule is looked at once, however many
/// ways lead to it; the limit of the nesting is met exactly where a search without that memory would meet it.
Collection<ARISObjDef>& Find_Related_ARIS_ObjDef_Using_Mapping_Rule(Collection<ARISObjDef>& result,
                                                                    const ARISObjDef& item,
                                                                    std::string_view ruleName);

/// One step: adds the objects of a type at the other end of the item's connections of a type and direction.
/// Another direction than 2 or 4 brings the warning 2030 at the first drawn connection.
Collection<ARISObjDef>& Find_Related_ARIS_ObjDef(Collection<ARISObjDef>& result, const ARISObjDef& item,
                                                 std::int32_t cnxKind, std::int32_t cnxTypeNum,
                                                 std::int32_t targetObjTypeNum);

/// All paths by which a rule leads from one object to another, behind the paths of `prefixPaths` that end at
/// `fromObj`. Nothing, which is not an empty collection, where one of the two is not drawn anywhere. Cost:
/// one relation test for each object and rule on the ways, however many paths these make.
std::optional<PathCollection> Find_Relating_Paths_Using_Mapping_Rule(const PathCollection& prefixPaths,
                                                                     const ARISObjDef& fromObj,
                                                                     const ARISObjDef& toObj,
                                                                     std::string_view ruleName);

/// Whether a rule leads from one object to another. A positive answer leaves this procedure's name in
/// `gCurrentProcedure`.
bool ARIS_ObjDef_Is_Related_To_ARIS_ObjDef_Using_Mapping_Rule(const ARISObjDef& fromObj,
                                                              const ARISObjDef& toObj,
                                                              std::string_view ruleName);

/// Whether the object's type is one that a rule names, wherever the object is drawn.
bool ARIS_ObjDef_Conforms_To_Mapping_Rule(const ARISObjDef& item, std::string_view ruleName);

}  // namespace wxbrg
