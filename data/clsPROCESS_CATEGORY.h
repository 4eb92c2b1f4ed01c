#pragma once

#include <string>

#include "aris/Repository.h"

namespace wxbrg {

/// The folder of a process: an ARIS group that holds a selected model.
class clsPROCESS_CATEGORY {
  public:
    ARISGroup ARIS_Group;
    std::string ObjectName;     ///< printed, with its quotes
    std::string DESCRIPTION;    ///< printed, with its quotes
    std::string DOCUMENTATION;  ///< printed, with its quotes
    bool SetupFinished = false;

    void SetupProperties();
    void SetupProperty_ObjectName();
    void SetupProperty_ProcessCategorySetting();
    void SetupProperty_DESCRIPTION();
    void SetupProperty_DOCUMENTATION();
};

}  // namespace wxbrg
