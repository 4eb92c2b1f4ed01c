#pragma once

#include <string>

#include "aris/Repository.h"

namespace wxbrg {

/// A person. All texts but `OtherSettings` are printed forms with their quotes; a neighbour's name is kept
/// here, and the neighbour itself in its registry.
class clsPERSON {
  public:
    ARISObjDef ARISObjectDefinition;
    std::string PersonName;
    std::string FIRST_NAME;
    std::string LAST_NAME;
    std::string PHONE;
    std::string SECOND_PHONE;
    std::string SUBSTITUTE;  ///< one person
    /// A list of roles. Not printed: filling it creates the roles, with their notes 3060 and 3090.
    std::string RELATED_ROLE;
    /// One organization. Not printed: filling it creates the organization, with the notes 3060, 3090 and
    /// 3000.
    std::string RELATED_ORGANIZATION;
    std::string DESCRIPTION;
    std::string OtherSettings;  ///< as read
    bool SetupFinished = false;

    void SetupProperties();
    void SetupProperty_PersonName();
    void SetupProperty_FIRST_NAME();
    void SetupProperty_LAST_NAME();
    void SetupProperty_PHONE();
    void SetupProperty_SECOND_PHONE();
    void SetupProperty_DESCRIPTION();
    void SetupProperty_SUBSTITUTE();
    void SetupProperty_RELATED_ROLE();
    void SetupProperty_RELATED_ORGANIZATION();
    void SetupProperty_OtherSettings();
};

}  // namespace wxbrg
