#include "data/modPERSON.h"

#include "data/clsPERSON.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

namespace {
constexpr KindWords words{"PERSON", "modPERSON.PERSON_Find_ARIS_Mapping", "modPERSON.PERSON_SetupProperties",
                          "modPERSON.PERSON_Create", "modPERSON.PERSON_Add_ARIS_Mapping"};
}  // namespace

void PERSON_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels) {
    FindBatch(words, ColARISModels, gBlock.gColPERSON);
}

void PERSON_SetupProperties() {
    SetupBatch(words.setup, gBlock.gColPERSON);
}

void PERSON_Create(const Collection<ARISModel>& ColARISModels) {
    CreateBatch(words, ColARISModels, gBlock.gColPERSON);
}

Ref<clsPERSON> PERSON_Add_ARIS_Mapping(const ARISObjDef& item) {
    return AddARISMapping(words.OnDemand(), item, gBlock.gColPERSON);
}

}  // namespace wxbrg
