#include "data/modORGANIZATION.h"

#include "data/clsORGANIZATION.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

namespace {
constexpr KindWords words{"ORGANIZATION", "modORGANIZATION.ORGANIZATION_Find_ARIS_Mapping",
                          "modORGANIZATION.ORGANIZATION_SetupProperties",
                          "modORGANIZATION.ORGANIZATION_Create",
                          "modORGANIZATION.ORGANIZATION_Add_ARIS_Mapping"};
}  // namespace

void ORGANIZATION_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels) {
    FindBatch(words, ColARISModels, gBlock.gColORGANIZATION);
}

void ORGANIZATION_SetupProperties() {
    SetupBatch(words.setup, gBlock.gColORGANIZATION);
}

void ORGANIZATION_Create(const Collection<ARISModel>& ColARISModels) {
    CreateBatch(words, ColARISModels, gBlock.gColORGANIZATION);
}

Ref<clsORGANIZATION> ORGANIZATION_Add_ARIS_Mapping(const ARISObjDef& item) {
    return AddARISMapping(words.OnDemand(), item, gBlock.gColORGANIZATION);
}

}  // namespace wxbrg
