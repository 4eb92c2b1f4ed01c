#include "data/modORGANIZATION.h"

#include "data/clsORGANIZATION.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

void ORGANIZATION_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels) {
    FindBatch("modORGANIZATION.ORGANIZATION_Find_ARIS_Mapping", ColARISModels, gBlock.gColORGANIZATION,
              "ORGANIZATION");
}

void ORGANIZATION_SetupProperties() {
    SetupBatch("modORGANIZATION.ORGANIZATION_SetupProperties", gBlock.gColORGANIZATION);
}

void ORGANIZATION_Create(const Collection<ARISModel>& ColARISModels) {
    Procedure("modORGANIZATION.ORGANIZATION_Create", [&](Frame&) {
        ORGANIZATION_Find_ARIS_Mapping(ColARISModels);
        ORGANIZATION_SetupProperties();
    });
}

Ref<clsORGANIZATION> ORGANIZATION_Add_ARIS_Mapping(const ARISObjDef& item) {
    return AddARISMapping(
        {"modORGANIZATION.ORGANIZATION_Add_ARIS_Mapping", "ORGANIZATION", "ORGANIZATION", "ORGANIZATION"},
        item, gBlock.gColORGANIZATION);
}

}  // namespace wxbrg
