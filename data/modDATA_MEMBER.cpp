#include "data/modDATA_MEMBER.h"

#include "data/clsDATA_MEMBER.h"
#include "data/modDATA_STRUCTURE.h"
#include "model/ObjectProtocol.h"

namespace wxbrg {

Ref<clsDATA_MEMBER> DATA_MEMBER_Add_ARIS_Mapping(const ARISObjDef& item) {
    return AddARISMapping(
        {"modDATA_MEMBER.DATA_MEMBER_Add_ARIS_Mapping", "DATA_OBJECT", "DATA_MEMBER", "DATA_OBJECT"}, item,
        gBlock.gColDATA_MEMBER, [](clsDATA_MEMBER& member) {
            const ARISObjDef& object = member.ARISObjectDefinition;
            if (!DATA_STRUCTURE_Is_DATA_STRUCTURE(object)) return;
            member.DATA_STRUCTURE = DATA_STRUCTURE_Add_ARIS_Mapping(object);
            member.IsDataStructure = true;
        });
}

}  // namespace wxbrg
