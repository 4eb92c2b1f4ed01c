#include "data/modROLE.h"

#include "data/clsROLE.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

namespace {
constexpr KindWords words{"ROLE", "modROLE.ROLE_Find_ARIS_Mapping", "modROLE.ROLE_SetupProperties",
                          "modROLE.ROLE_Create", "modROLE.ROLE_Add_ARIS_Mapping"};
}  // namespace

void ROLE_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels) {
    FindBatch(words, ColARISModels, gBlock.gColROLE);
}

void ROLE_SetupProperties() {
    SetupBatch(words.setup, gBlock.gColROLE);
}

void ROLE_Create(const Collection<ARISModel>& ColARISModels) {
    CreateBatch(words, ColARISModels, gBlock.gColROLE);
}

Ref<clsROLE> ROLE_Add_ARIS_Mapping(const ARISObjDef& item) {
    return AddARISMapping(words.OnDemand(), item, gBlock.gColROLE);
}

}  // namespace wxbrg
