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
        gWPXExport->Run();
        Shutdown();
    });
}

void Setup() {
    Procedure("modMain.Setup", [](Frame&) {
        if (!LoadLocalizedResources()) throw RunEnd{RunEnding::noLanguageLibrary, 0};
        gExceptionHandler = gPool.Create<clsExceptionHandler>();
        gARISInterface = gPool.Create<clsARIS_Interface>();
        gIOHandler = gPool.Create<clsIOHandler>();
        gWPXExport = gPool.Create<clsWPX_Export>();
        gWPXWriter = gPool.Create<clsWPXWriter>();
        gStructureIndex = gPool.Create<StructureIndex>();
        gARISInterface->SaveCommandlineArguments();
        gARISInterface->RetrieveSelectedARISModels();
    });
}

void Shutdown() {
    Procedure("modMain.Shutdown", [](Frame&) {
        gColMappingRule = {};
        gColDATA_MEMBER = {};
        gColDATA_STRUCTURE = {};
        gStructureIndex = nullptr;
        gColORGANIZATION = {};
        gColPERSON = {};
        gColPROCESS = {};
        gColPROCESS_CATEGORY = {};
        gColPROGRAM = {};
        gColROLE = {};
        gWPXWriter = nullptr;
        gWPXExport = nullptr;
        gIOHandler = nullptr;
        gARISInterface = nullptr;
        gExceptionHandler = nullptr;
        gResourceLibrary.reset();
    });
}

}  // namespace wxbrg
