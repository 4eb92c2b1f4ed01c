#pragma once

#include "aris/Repository.h"
#include "support/Collection.h"

namespace wxbrg {

class clsPROCESS;

/// Finds the activities of a process and fills their independent properties, once.
void ACTIVITY_Create(Collection<ARISModel>& ColNewModels, clsPROCESS& Process);
/// An activity for each object that the rule ACTIVITY names and that occurs in the process's model, at the
/// place of its first occurrence.
void ACTIVITY_Find_ARIS_Mapping(clsPROCESS& Process);
void ACTIVITY_SetupIndependentProperties(Collection<ARISModel>& ColNewModels, const clsPROCESS& Process);
void ACTIVITY_SetupDependentProperties(const clsPROCESS& Process);

/// The objects of the process's model that the rule ACTIVITY names, in the order of the rule's result.
Collection<ARISObjDef> ActivityObjects(const clsPROCESS& Process);

}  // namespace wxbrg
