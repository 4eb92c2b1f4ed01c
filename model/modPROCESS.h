#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "support/Collection.h"

namespace wxbrg {

/// Registers a process for each model of a process type. A model of another type is dropped without a word.
void PROCESS_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels);
/// Fills all processes that are not finished. Returns the models that they need and that have none yet.
Collection<ARISModel> PROCESS_SetupProperties();
Collection<ARISModel> PROCESS_Create(const Collection<ARISModel>& ColARISModels);

/// The models whose type the rule names, each once, by Guid.
Collection<ARISModel> PROCESS_Find_ARIS_Model_In_ModelCollection_Using_Mapping_Rule(
    const Collection<ARISModel>& ColARISModels, std::string_view RuleName);
Collection<ARISModel> Find_ARIS_Model_In_ModelList(const ARISModelList& list, std::string_view RuleName);

/// The text of a model's attribute, of its name for -1; empty where it is not maintained.
std::string PROCESS_Find_ARIS_Model_Attribute(const ARISModel& model, std::int32_t AttributeNumber);
std::string PROCESS_Find_ARIS_Model_Attribute_Using_Mapping_Rule(const ARISModel& model,
                                                                 std::string_view RuleName);

}  // namespace wxbrg
