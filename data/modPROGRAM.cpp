#include "data/modPROGRAM.h"

#include "data/clsPROGRAM.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

void PROGRAM_Find_ARIS_Mapping(const Collection<ARISModel>& ColARISModels) {
    FindBatch("modPROGRAM.PROGRAM_Find_ARIS_Mapping", ColARISModels, gBlock.gColPROGRAM, "PROGRAM");
}

void PROGRAM_SetupProperties() {
    SetupBatch("modPROGRAM.PROGRAM_SetupProperties", gBlock.gColPROGRAM);
}

void PROGRAM_Create(const Collection<ARISModel>& ColARISModels) {
    Procedure("modPROGRAM.PROGRAM_Create", [&](Frame&) {
        PROGRAM_Find_ARIS_Mapping(ColARISModels);
        PROGRAM_SetupProperties();
    });
}

Ref<clsPROGRAM> PROGRAM_Add_ARIS_Mapping(const ARISObjDef& item) {
    return AddARISMapping({"modPROGRAM.PROGRAM_Add_ARIS_Mapping", "PROGRAM", "PROGRAM", "PROGRAM"}, item,
                          gBlock.gColPROGRAM);
}

}  // namespace wxbrg
