#pragma once

#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

class clsDATA_MEMBER;

/// The printed name of a structure that has not been given one: that of every default structure.
inline constexpr std::string_view defaultStructureName = "'Default Data Structure'";

/// A container's structure. A mapped one stands for a data object with members; a generated one gathers data
/// objects that no structure stands for; a default one is neither set up nor written, only named.
class clsDATA_STRUCTURE {
  public:
    ARISObjDef ARISObjectDefinition;               ///< empty for a generated and a default structure
    std::string ObjectName{defaultStructureName};  ///< printed, with its quotes
    std::string DESCRIPTION;                       ///< printed, with its quotes
    std::string DOCUMENTATION;                     ///< printed, with its quotes
    /// The data objects that a generated structure gathers.
    Collection<ARISObjDef> ColARISDataMemberObjectDefinition;
    /// The members, by the Guid of their ARIS objects. An entry is empty for a data object that contains
    /// itself: reading it is failure 91.
    Collection<Ref<clsDATA_MEMBER>> ColDATA_MEMBER;
    bool IsGenerated = false;
    bool SetupFinished = false;

    void SetupProperties();
    void SetupProperty_ObjectName();
    void SetupProperty_StructureSetting();
    void SetupProperty_DESCRIPTION();
    void SetupProperty_DOCUMENTATION();
    void SetupProperty_MemberDeclarations();
};

}  // namespace wxbrg
