#pragma once

#include <string>

#include "aris/Repository.h"

namespace wxbrg {

/// An organization. All texts are printed forms with their quotes; a neighbour's name is kept here, and the
/// neighbour itself in its registry.
class clsORGANIZATION {
  public:
    ARISObjDef ARISObjectDefinition;
    std::string ObjectName;
    std::string DESCRIPTION;
    std::string MANAGER = "'ADMIN'";  ///< one person; every organization has a manager
    std::string PARENT_ORGANIZATION;  ///< one organization
    std::string RELATED_PERSON;       ///< a list of persons
    bool SetupFinished = false;

    void SetupProperties();
    void SetupProperty_ObjectName();
    void SetupProperty_DESCRIPTION();
    void SetupProperty_MANAGER();
    void SetupProperty_PARENT_ORGANIZATION();
    void SetupProperty_RELATED_PERSON();
};

}  // namespace wxbrg
