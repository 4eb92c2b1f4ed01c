#include "data/modROLE.h"

#include "data/clsROLE.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

void ROLE_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels) {
    FindBatch("modROLE.ROLE_Find_ARIS_Mapping", ColARISModels, gBlock.gColROLE, "ROLE");
}

void ROLE_SetupProperties() {
    SetupBatch("modROLE.ROLE_SetupProperties", gBlock.gColROLE);
}

void ROLE_Create(const Collection<ARISModel>& ColARISModels) {
    Procedure("modROLE.ROLE_Create", [&](Frame&) {
        ROLE_Find_ARIS_Mapping(ColARISModels);
        ROLE_SetupProperties();
    });
}

Ref<clsROLE> ROLE_Add_ARIS_Mapping(const ARISObjDef& item) {
    return AddARISMapping({"modROLE.ROLE_Add_ARIS_Mapping", "ROLE", "ROLE", "ROLE"}, item, gBlock.gColROLE);
}

}  // namespace wxbrg
