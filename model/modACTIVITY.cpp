#include "model/modACTIVITY.h"

#include "model/ObjectProtocol.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "model/modPROCESS.h"

namespace wxbrg {

namespace {

/// Gives an activity the first of its object's models that is a process; the others are noted and ignored.
void AssignModel(clsACTIVITY& activity) {
    const ARISModelList assigned = activity.ARISObjectDefinition->AssignedModels();
    if (assigned.Count() == 0) return;
    const Collection<ARISModel> models = Find_ARIS_Model_In_ModelList(assigned, "PROCESS");
    if (models.IsEmpty()) return;
    activity.AssignedModel = models.Item(1);
    if (models.Count() == 1) return;
    WriteNote(Message::oneOfSeveralTaken, "PROCESS", "PROCESS_ACTIVITY");
    for (std::int32_t i = 2; i <= models.Count(); ++i)
        WriteNote(Message::furtherModel, models.Item(i)->Name(gBlock.gLocale), models.Item(i)->Type());
}

void AddActivity(clsPROCESS& process, const ARISObjDef& object, const ARISObjOcc& occurrence) {
    const Ref<clsACTIVITY> activity = gBlock.gPool.Create<clsACTIVITY>();
    activity->ARISObjectDefinition = object;
    activity->ARIS_XPos = occurrence->X();
    activity->ARIS_YPos = occurrence->Y();
    AssignModel(*activity);
    process.Col_ACTIVITY.AddNew(activity, object->Guid());
    NoteMapped(object, activity->Is_PROCESS_ACTIVITY() ? "PROCESS_ACTIVITY" : "PROGRAM_ACTIVITY");
}

}  // namespace

Collection<ARISObjDef> ActivityObjects(const clsPROCESS& Process) {
    Collection<ARISModel> models;
    models.Add(Process.ARIS_Model, Process.ARIS_Model->Guid());
    Collection<ARISObjDef> objects;
    Find_ARIS_ObjDef_Using_Mapping_Rule(models, objects, "ACTIVITY");
    return objects;
}

void ACTIVITY_Create(Collection<ARISModel>& ColNewModels, clsPROCESS& Process) {
    Procedure("modACTIVITY.ACTIVITY_Create", [&](Frame&) {
        if (Process.CreateActivitiesFinished) return;
        ACTIVITY_Find_ARIS_Mapping(Process);
        ACTIVITY_SetupIndependentProperties(ColNewModels, Process);
        Process.CreateActivitiesFinished = true;
    });
}

void ACTIVITY_Find_ARIS_Mapping(clsPROCESS& Process) {
    Procedure("modACTIVITY.ACTIVITY_Find_ARIS_Mapping", [&](Frame&) {
        for (const ARISObjDef& object : ActivityObjects(Process)) {
            const ARISObjOccList occurrences = object->OccListInModel(Process.ARIS_Model);
            if (occurrences.Count() > 0) AddActivity(Process, object, occurrences.Get(0));
        }
    });
}

void ACTIVITY_SetupIndependentProperties(Collection<ARISModel>& ColNewModels, const clsPROCESS& Process) {
    Procedure("modACTIVITY.ACTIVITY_SetupIndependentProperties", [&](Frame&) {
        for (const Ref<clsACTIVITY>& activity : Process.Col_ACTIVITY)
            activity->SetupIndependentProperties(ColNewModels);
    });
}

void ACTIVITY_SetupDependentProperties(const clsPROCESS& Process) {
    Procedure("modACTIVITY.ACTIVITY_SetupDependentProperties", [&](Frame&) {
        for (const Ref<clsACTIVITY>& activity : Process.Col_ACTIVITY)
            activity->SetupDependentProperties(Process);
    });
}

}  // namespace wxbrg
