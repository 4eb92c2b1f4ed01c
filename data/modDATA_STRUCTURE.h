#pragma once

#include <string>

#include "aris/Repository.h"
#include "data/clsDATA_STRUCTURE.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

/// Registers a structure for each data object of the models that has members and no equal yet.
void DATA_STRUCTURE_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels);
void DATA_STRUCTURE_SetupProperties();
void DATA_STRUCTURE_Create(const Collection<ARISModel>& ColARISModels);

/// The mapped structure of a data object, created and filled if need be. Ends the run with 2120 for an object
/// that is no data object. It does not test for members, nor look for an equal.
Ref<clsDATA_STRUCTURE> DATA_STRUCTURE_Add_ARIS_Mapping(const ARISObjDef& item);

/// The structure that gathers the given objects: one that has just these members, else a new generated one,
/// registered without a key and filled.
Ref<clsDATA_STRUCTURE> DATA_STRUCTURE_Generate(const Collection<ARISObjDef>& Members);

/// The first registered structure with just these members, by ARIS identity; order and names play no part.
/// With an `ARISObject` the search ends, empty, at the first mapped structure of another object.
/// Cost: linear in the members; a structure that holds itself makes it linear in all structures.
Ref<clsDATA_STRUCTURE> DATA_STRUCTURE_FindEquivalentStructure(const Collection<ARISObjDef>& Members,
                                                              const ARISObjDef& ARISObject);

/// The next name of a generated structure. Fails with 6 beyond the last 32-bit number.
std::string DATA_STRUCTURE_GenerateName();

/// Whether an object is a data object that has members.
bool DATA_STRUCTURE_Is_DATA_STRUCTURE(const ARISObjDef& item);

}  // namespace wxbrg
