#pragma once

#include "aris/Repository.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

class clsPROGRAM;

/// Registers the programs that the models show, without filling them.
void PROGRAM_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels);
/// Fills all programs that are not finished.
void PROGRAM_SetupProperties();
void PROGRAM_Create(const Collection<ARISModel>& ColARISModels);

/// The program of an ARIS object, created and filled if need be. Ends the run with 2120 for an object that is
/// none.
Ref<clsPROGRAM> PROGRAM_Add_ARIS_Mapping(const ARISObjDef& item);

}  // namespace wxbrg
