#include "run/clsWPX_Export.h"

#include "data/modDATA_STRUCTURE.h"
#include "data/modORGANIZATION.h"
#include "data/modPERSON.h"
#include "data/modPROCESS_CATEGORY.h"
#include "data/modPROGRAM.h"
#include "data/modROLE.h"
#include "model/modPROCESS.h"
#include "options/frmExportOptions.h"
#include "output/clsWPXWriter.h"
#include "run/Frame.h"
#include "run/clsARIS_Interface.h"
#include "run/clsIOHandler.h"
#include "run/modGlobals.h"

namespace wxbrg {

void clsWPX_Export::Run() {
    Procedure("clsWPX_Export.Run", [&](Frame&) {
        if (!gBlock.gOptionsForm) gBlock.gOptionsForm = gBlock.gPool.Create<frmExportOptions>();
        gBlock.gOptionsForm->ShowModal();
        gBlock.gDataStructureNamePrefix = "DATA_STRUCTURE_";
        gBlock.gNextDataStructureSuffix = gBlock.gOptFirstSuffixNumber;
        gBlock.gIOHandler->FileSelectDialog();
        gBlock.gIOHandler->ParseMappingFile();
        Collection<ARISModel> pending = CreateWPXObjects(gBlock.gARISInterface->ColSelectedModels);
        while (!pending.IsEmpty()) pending = CreateWPXObjects(pending);
        gBlock.gWPXWriter->WriteAll();
    });
}

Collection<ARISModel> clsWPX_Export::CreateWPXObjects(const Collection<ARISModel>& ColARISModels) {
    return Procedure("clsWPX_Export.CreateWPXObjects", [&](Frame&) {
        PROCESS_CATEGORY_Create(ColARISModels);
        ORGANIZATION_Create(ColARISModels);
        ROLE_Create(ColARISModels);
        PERSON_Create(ColARISModels);
        DATA_STRUCTURE_Create(ColARISModels);
        PROGRAM_Create(ColARISModels);
        return PROCESS_Create(ColARISModels);
    });
}

}  // namespace wxbrg
