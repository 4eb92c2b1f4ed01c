#include "data/Containers.h"

#include "data/modDATA_STRUCTURE.h"
#include "mapping/RelatedObjectSearch.h"
#include "mapping/RuleLookups.h"
#include "run/Frame.h"

namespace wxbrg {

void SetupContainer(Ref<clsDATA_STRUCTURE>& container, const Collection<ARISObjDef>& objects) {
    if (objects.IsEmpty()) return;
    const ARISObjDef first = objects.Item(1);
    if (objects.Count() > 1)
        container = DATA_STRUCTURE_Generate(objects);
    else if (DATA_STRUCTURE_Is_DATA_STRUCTURE(first))
        container = DATA_STRUCTURE_Add_ARIS_Mapping(first);
    else if (ARIS_ObjDef_Conforms_To_Mapping_Rule(first, "DATA_OBJECT"))
        container = DATA_STRUCTURE_Generate(objects);
    else
        container = nullptr;
}

void SetupRelatedContainer(std::string_view procedure, Ref<clsDATA_STRUCTURE>& container,
                           const ARISObjDef& item, std::string_view rule) {
    Procedure(procedure, [&](Frame&) {
        Collection<ARISObjDef> objects;
        SetupContainer(container, Find_Related_ARIS_ObjDef_Using_Mapping_Rule(objects, item, rule));
    });
}

}  // namespace wxbrg
