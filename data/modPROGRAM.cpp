#include "data/modPROGRAM.h"

#include "data/clsPROGRAM.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

namespace {
constexpr KindWords words{"PROGRAM", "modPROGRAM.PROGRAM_Find_ARIS_Mapping",
                          "modPROGRAM.PROGRAM_SetupProperties", "modPROGRAM.PROGRAM_Create",
                          "modPROGRAM.PROGRAM_Add_ARIS_Mapping"};
}  // namespace

void PROGRAM_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels) {
    FindBatch(words, ColARISModels, gBlock.gColPROGRAM);
}

void PROGRAM_SetupProperties() {
    SetupBatch(words.setup, gBlock.gColPROGRAM);
}

void PROGRAM_Create(const Collection<ARISModel>& ColARISModels) {
    CreateBatch(words, ColARISModels, gBlock.gColPROGRAM);
}

Ref<clsPROGRAM> PROGRAM_Add_ARIS_Mapping(const ARISObjDef& item) {
    return AddARISMapping(words.OnDemand(), item, gBlock.gColPROGRAM);
}

}  // namespace wxbrg
