// How clsARIS_Interface finds the models of /SEL, or those that a front end has selected, in the database.

#include "mapping/StringLists.h"
#include "run/Frame.h"
#include "run/clsARIS_Interface.h"
#include "run/modGlobals.h"
#include "support/Numbers.h"

namespace wxbrg {

void clsARIS_Interface::RetrieveSelectedARISModels() {
    Procedure("clsARIS_Interface.RetrieveSelectedARISModels", [&](Frame& frame) {
        oApplication = gBlock.gAutomation->CreateObject(arisProgramId);
        if (!oApplication) frame.Raise(Message::arisNotStarted);
        oReportComponent = oApplication->GetComponent(arisReportComponent);
        Database = oReportComponent->OpenDatabase(sServer, sDatabase, sRegistry, sUser, "");
        std::string item;
        const bool good = AddSelectedModels(item);
        if (!good || ColSelectedModels.IsEmpty()) frame.Raise(Message::wrongSelection, item);
        gBlock.gRunReport.modelsSelected = static_cast<std::uint64_t>(ColSelectedModels.Count());
    });
}

bool clsARIS_Interface::AddSelectedModels(std::string& item) {
    if (gBlock.gRunRequest->selection) {
        for (const ARISModel& model : gBlock.gRunRequest->selection->models)
            ColSelectedModels.Add(model, model->Guid());
        return true;
    }
    for (const std::string& next : ConvertStringListToCollection(sSelection, ";")) {
        item = next;
        if (!AddSelectedModel(item)) return false;
    }
    return true;
}

bool clsARIS_Interface::AddSelectedModel(const std::string& item) {
    const std::string guid = GetStringListItem(item, 0, ",");
    if (guid.empty()) return false;
    const std::string name = GetStringListItem(item, 1, ",");
    if (name.empty()) return false;
    const std::string type = GetStringListItem(item, 2, ",");
    if (!IsNumeric(type, DecimalSeparator())) return false;
    const std::int32_t typeNum = ToInt32(type, DecimalSeparator());
    for (const ARISModel& model : Database->FindModels(nameAttribute, typeNum, 1, gBlock.gLocale, name, 0)) {
        if (model->Guid() != guid) continue;
        ColSelectedModels.Add(model, guid);
        break;
    }
    return true;
}

}  // namespace wxbrg
