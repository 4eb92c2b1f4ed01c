#pragma once

#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "support/Ref.h"

namespace wxbrg {

class clsDATA_STRUCTURE;

/// One line of a structure: a data object as a member. One ARIS object is one member, in however many
/// structures.
class clsDATA_MEMBER {
  public:
    ARISObjDef ARISObjectDefinition;
    std::string MemberName;                 ///< printed, with its quotes
    std::string DESCRIPTION;                ///< printed, with its quotes
    std::string DOCUMENTATION;              ///< printed, with its quotes
    std::string DataType = "STRING";        ///< "STRING", "LONG", "FLOAT" or the quoted name of a structure
    std::string SizeOfArray;                ///< a number in parentheses, or empty
    Ref<clsDATA_STRUCTURE> DATA_STRUCTURE;  ///< the nested structure, if the object is one
    bool IsDataStructure = false;
    bool SetupFinished = false;

    void SetupProperties();
    void SetupProperty_MemberName();
    void SetupProperty_DataType();
    void SetupProperty_SizeOfArray();
    void SetupProperty_MemberSetting();
    void SetupProperty_DESCRIPTION();
    void SetupProperty_DOCUMENTATION();
    /// The type as ARIS words it, from one source: "DATA_MEMBER_TYPE" the object's own attribute,
    /// "DOMAINTYPE_DOM_TYPE" that of its first domain. Empty where there is none, and for any other rule.
    std::string GetProperty_DataType(std::string_view RuleName);
};

}  // namespace wxbrg
