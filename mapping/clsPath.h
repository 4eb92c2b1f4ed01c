#pragma once

#include "aris/Repository.h"
#include "support/Collection.h"

namespace wxbrg {

/// A walk over ARIS objects between two ends: one way in which a connector comes about.
class clsPath {
  public:
    ARISObjDef FROM_ARISObjectDefinition;
    ARISObjDef TO_ARISObjectDefinition;
    /// The objects between the two ends in walking order, by Guid; empty for a path of one step.
    Collection<ARISObjDef> ColARISObjectDefinitionsOnPath;
};

}  // namespace wxbrg
