#pragma once

#include <string>

#include "aris/Repository.h"
#include "data/clsDATA_STRUCTURE.h"

namespace wxbrg {

/// An application, a module or the like that an activity runs.
class clsPROGRAM {
  public:
    clsPROGRAM();

    ARISObjDef ARISObjectDefinition;
    std::string ObjectName;                  ///< printed, with its quotes
    Ref<clsDATA_STRUCTURE> InputContainer;   ///< what the program takes; a default structure at first
    Ref<clsDATA_STRUCTURE> OutputContainer;  ///< what the program gives; a default structure at first
    std::string DESCRIPTION;                 ///< printed, with its quotes
    std::string DOCUMENTATION;               ///< printed, with its quotes
    std::string OtherSettings;               ///< as read
    bool SetupFinished = false;

    void SetupProperties();
    void SetupProperty_ObjectName();
    void SetupProperty_ProgramSetting();
    void SetupProperty_DESCRIPTION();
    void SetupProperty_DOCUMENTATION();
    void SetupProperty_InputContainer();
    void SetupProperty_OutputContainer();
    void SetupProperty_OtherSettings();
};

}  // namespace wxbrg
