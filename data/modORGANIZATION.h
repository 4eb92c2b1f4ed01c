#pragma once

#include "aris/Repository.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

class clsORGANIZATION;

/// Registers the organizations that the models show, without filling them.
void ORGANIZATION_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels);
/// Fills all organizations that are not finished.
void ORGANIZATION_SetupProperties();
void ORGANIZATION_Create(const Collection<ARISModel>& ColARISModels);

/// The organization of an ARIS object, created and filled if need be. Ends the run with 2120 for an object
/// that is none.
Ref<clsORGANIZATION> ORGANIZATION_Add_ARIS_Mapping(const ARISObjDef& item);

}  // namespace wxbrg
