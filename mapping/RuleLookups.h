#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "support/Collection.h"
#include "support/Ref.h"

/// The objects and attributes that a rule names. Together with `RelatedObjectSearch.h` and `RelatingPaths.h`
/// the only way in which the logic finds things in ARIS: by rule name. A rule name that the table does not
/// hold ends the run with 2100. Results hold each object once, under its Guid.
namespace wxbrg {

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

/// Whether the object's type is one that a rule names, wherever the object is drawn.
bool ARIS_ObjDef_Conforms_To_Mapping_Rule(const ARISObjDef& item, std::string_view ruleName);

}  // namespace wxbrg
