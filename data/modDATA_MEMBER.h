#pragma once

#include "aris/Repository.h"
#include "support/Ref.h"

namespace wxbrg {

class clsDATA_MEMBER;

/// The member of a data object, created and filled if need be, with its nested structure first. Ends the run
/// with 2120 for an object that is no data object. No object for one that meets itself while its nested
/// structure is filled.
Ref<clsDATA_MEMBER> DATA_MEMBER_Add_ARIS_Mapping(const ARISObjDef& item);

}  // namespace wxbrg
