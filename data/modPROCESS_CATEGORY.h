#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "support/Collection.h"

namespace wxbrg {

/// A category for each group of the models; one that an earlier batch made stays.
void PROCESS_CATEGORY_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels);
void PROCESS_CATEGORY_SetupProperties();
void PROCESS_CATEGORY_Create(const Collection<ARISModel>& ColARISModels);

/// The groups of the models, each once, in the order of first appearance.
Collection<ARISGroup> PROCESS_CATEGORY_Find_ARIS_Group_In_ModelCollection(
    const Collection<ARISModel>& ColARISModels);

/// The text of a group's attribute, of its name for -1; empty where it is not maintained.
std::string PROCESS_CATEGORY_Find_ARIS_Group_Attribute(const ARISGroup& group, std::int32_t AttributeNumber);
std::string PROCESS_CATEGORY_Find_ARIS_Group_Attribute_Using_Mapping_Rule(const ARISGroup& group,
                                                                          std::string_view RuleName);

}  // namespace wxbrg
