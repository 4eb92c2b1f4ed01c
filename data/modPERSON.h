#pragma once

#include "aris/Repository.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

class clsPERSON;

/// Registers the persons that the models show, without filling them.
void PERSON_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels);
/// Fills all persons that are not finished.
void PERSON_SetupProperties();
void PERSON_Create(const Collection<ARISModel>& ColARISModels);

/// The person of an ARIS object, created and filled if need be. Ends the run with 2120 for an object that is
/// none.
Ref<clsPERSON> PERSON_Add_ARIS_Mapping(const ARISObjDef& item);

}  // namespace wxbrg
