#pragma once

#include "aris/Repository.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

class clsROLE;

/// Registers the roles that the models show, without filling them.
void ROLE_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels);
/// Fills all roles that are not finished.
void ROLE_SetupProperties();
void ROLE_Create(const Collection<ARISModel>& ColARISModels);

/// The role of an ARIS object, created and filled if need be. Ends the run with 2120 for an object that is
/// none.
Ref<clsROLE> ROLE_Add_ARIS_Mapping(const ARISObjDef& item);

}  // namespace wxbrg
