#pragma once

#include <string>

#include "mapping/clsConnectionMapping.h"
#include "mapping/clsObjectMapping.h"
#include "support/Collection.h"

namespace wxbrg {

/// What in an ARIS database counts as one thing in the definition file. The logic asks by a rule's name and
/// never compares an ARIS type number itself. A rule may fill in any of its three parts.
class clsMappingRule {
  public:
    std::string Name;                               ///< also its key in the rule table
    Collection<clsObjectMapping> ColObjectMapping;  ///< the types that conform, in order
    std::string AttributeMapping;  ///< attribute type number in decimal, "-1" for the item's name, or empty
    Collection<clsConnectionMapping> ColConnectionMapping;  ///< the steps, in the order of search
};

}  // namespace wxbrg
