#pragma once

#include <string>

#include "aris/Repository.h"

namespace wxbrg {

/// A role. All texts are printed forms with their quotes; a neighbour's name is kept here, and the neighbour
/// itself in its registry.
class clsROLE {
  public:
    ARISObjDef ARISObjectDefinition;
    std::string ObjectName;
    std::string DESCRIPTION;
    std::string COORDINATOR;     ///< one person
    std::string RELATED_PERSON;  ///< a list of persons
    bool SetupFinished = false;

    void SetupProperties();
    void SetupProperty_ObjectName();
    void SetupProperty_DESCRIPTION();
    void SetupProperty_COORDINATOR();
    void SetupProperty_RELATED_PERSON();
};

}  // namespace wxbrg
