#include "data/clsPROCESS_CATEGORY.h"

#include "data/modPROCESS_CATEGORY.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

void clsPROCESS_CATEGORY::SetupProperties() {
    SetupOnce("clsPROCESS_CATEGORY.SetupProperties", SetupFinished, "PROCESS_CATEGORY", ObjectName, [&] {
        SetupProperty_ObjectName();
        SetupProperty_ProcessCategorySetting();
    });
}

void clsPROCESS_CATEGORY::SetupProperty_ObjectName() {
    SetupText("clsPROCESS_CATEGORY.SetupProperty_ObjectName", ObjectName, true, NameKind::objectName, [&] {
        return PROCESS_CATEGORY_Find_ARIS_Group_Attribute_Using_Mapping_Rule(ARIS_Group,
                                                                             "PROCESS_CATEGORY_ObjectName");
    });
}

void clsPROCESS_CATEGORY::SetupProperty_ProcessCategorySetting() {
    Procedure("clsPROCESS_CATEGORY.SetupProperty_ProcessCategorySetting", [&](Frame&) {
        SetupProperty_DESCRIPTION();
        SetupProperty_DOCUMENTATION();
    });
}

void clsPROCESS_CATEGORY::SetupProperty_DESCRIPTION() {
    SetupText("clsPROCESS_CATEGORY.SetupProperty_DESCRIPTION", DESCRIPTION, gBlock.gOptUseDescriptionAttr,
              NameKind::description, [&] {
                  return PROCESS_CATEGORY_Find_ARIS_Group_Attribute_Using_Mapping_Rule(
                      ARIS_Group, "PROCESS_CATEGORY_DESCRIPTION");
              });
}

void clsPROCESS_CATEGORY::SetupProperty_DOCUMENTATION() {
    SetupText("clsPROCESS_CATEGORY.SetupProperty_DOCUMENTATION", DOCUMENTATION,
              gBlock.gOptUseDocumentationAttr, NameKind::documentation, [&] {
                  return PROCESS_CATEGORY_Find_ARIS_Group_Attribute_Using_Mapping_Rule(
                      ARIS_Group, "PROCESS_CATEGORY_DOCUMENTATION");
              });
}

}  // namespace wxbrg
