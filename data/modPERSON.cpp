#include "data/modPERSON.h"

#include "data/clsPERSON.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

void PERSON_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels) {
    FindBatch("modPERSON.PERSON_Find_ARIS_Mapping", ColARISModels, gBlock.gColPERSON, "PERSON");
}

void PERSON_SetupProperties() {
    SetupBatch("modPERSON.PERSON_SetupProperties", gBlock.gColPERSON);
}

void PERSON_Create(const Collection<ARISModel>& ColARISModels) {
    Procedure("modPERSON.PERSON_Create", [&](Frame&) {
        PERSON_Find_ARIS_Mapping(ColARISModels);
        PERSON_SetupProperties();
    });
}

Ref<clsPERSON> PERSON_Add_ARIS_Mapping(const ARISObjDef& item) {
    return AddARISMapping({"modPERSON.PERSON_Add_ARIS_Mapping", "PERSON", "PERSON", "PERSON"}, item,
                          gBlock.gColPERSON);
}

}  // namespace wxbrg
