#include "run/modMain.h"

#include "data/StructureIndex.h"
#include "options/MessageTexts.h"
#include "output/clsWPXWriter.h"
#include "run/Frame.h"
#include "run/clsARIS_Interface.h"
#include "run/clsExceptionHandler.h"
#include "run/clsIOHandler.h"
#include "run/clsWPX_Export.h"
#include "run/modGlobals.h"

namespace wxbrg {

void Main() {
    Procedure("modMain.Main", [](Frame&) {
        Setup();
        gBlock.gWPXExport->Run();
        Shutdown();
    });
}

void Setup() {
    Procedure("modMain.Setup", [](Frame&) {
        if (!LoadLocalizedResources()) throw RunEnd{RunEnding::noLanguageLibrary, 0};
        gBlock.gExceptionHandler = gBlock.gPool.Create<clsExceptionHandler>();
        gBlock.gARISInterface = gBlock.gPool.Create<clsARIS_Interface>();
        gBlock.gIOHandler = gBlock.gPool.Create<clsIOHandler>();
        gBlock.gWPXExport = gBlock.gPool.Create<clsWPX_Export>();
        gBlock.gWPXWriter = gBlock.gPool.Create<clsWPXWriter>();
        gBlock.gStructureIndex = gBlock.gPool.Create<StructureIndex>();
        gBlock.gARISInterface->SaveCommandlineArguments();
        gBlock.gARISInterface->RetrieveSelectedARISModels();
    });
}

void Shutdown() {
    Procedure("modMain.Shutdown", [](Frame&) {
        gBlock.gColMappingRule = {};
        gBlock.gColDATA_MEMBER = {};
        gBlock.gColDATA_STRUCTURE = {};
        gBlock.gStructureIndex = nullptr;
        gBlock.gColORGANIZATION = {};
        gBlock.gColPERSON = {};
        gBlock.gColPROCESS = {};
        gBlock.gColPROCESS_CATEGORY = {};
        gBlock.gColPROGRAM = {};
        gBlock.gColROLE = {};
        gBlock.gWPXWriter = nullptr;
        gBlock.gWPXExport = nullptr;
        gBlock.gIOHandler = nullptr;
        gBlock.gARISInterface = nullptr;
        gBlock.gExceptionHandler = nullptr;
        gBlock.gResourceLibrary.reset();
    });
}

}  // namespace wxbrg
