// Who does an activity: persons, roles, an organization; and with which tools.

#include "data/modORGANIZATION.h"
#include "data/modPERSON.h"
#include "data/modROLE.h"
#include "model/ObjectProtocol.h"
#include "model/clsACTIVITY.h"
#include "support/Text.h"

namespace wxbrg {

void clsACTIVITY::SetupProperty_ExplicitStaffAssignment() {
    Procedure("clsACTIVITY.SetupProperty_ExplicitStaffAssignment", [&](Frame&) {
        if (!gBlock.gOptDynamicStaffAssignment) SetupProperty_PERSON();
        if (PERSON.empty()) {
            SetupProperty_MEMBER_OF_ROLE();
            SetupProperty_ORGANIZATION();
        }
        if (gBlock.gOptDynamicStaffAssignment && MEMBER_OF_ROLE.empty() && ORGANIZATION.empty())
            SetupProperty_PERSON();
    });
}

void clsACTIVITY::SetupProperty_PERSON() {
    SetupNeighbours({"clsACTIVITY.SetupProperty_PERSON", "ACTIVITY_PERSON", NameOfPerson, {}, {}},
                    ARISObjectDefinition, PERSON, PERSON_Add_ARIS_Mapping);
}

void clsACTIVITY::SetupProperty_MEMBER_OF_ROLE() {
    SetupNeighbours(
        {"clsACTIVITY.SetupProperty_MEMBER_OF_ROLE", "ACTIVITY_MEMBER_OF_ROLE", NameOfRole, {}, {}},
        ARISObjectDefinition, MEMBER_OF_ROLE, ROLE_Add_ARIS_Mapping);
}

void clsACTIVITY::SetupProperty_ORGANIZATION() {
    SetupNeighbour({"clsACTIVITY.SetupProperty_ORGANIZATION", "ACTIVITY_ORGANIZATION", NameOfOrganization,
                    "ORGANIZATION", "ACTIVITY"},
                   ARISObjectDefinition, ORGANIZATION, ORGANIZATION_Add_ARIS_Mapping);
}

void clsACTIVITY::SetupProperty_SUPPORT_TOOL() {
    Procedure("clsACTIVITY.SetupProperty_SUPPORT_TOOL", [&](Frame& frame) {
        Collection<ARISObjDef> programs;
        Find_Related_ARIS_ObjDef_Using_Mapping_Rule(programs, ARISObjectDefinition, "ACTIVITY_PROGRAM");
        // A program activity runs the first. The name is the object's own, not the attribute of a rule, and
        // no program is made of a tool.
        for (std::int32_t i = Is_PROCESS_ACTIVITY() ? 1 : 2; i <= programs.Count(); ++i) {
            std::string name = programs.Item(i)->Name(gBlock.gLocale);
            frame.Step([&] {
                name = ConvertARISName(name, NameKind::objectName, "");
            });
            if (!name.empty()) SUPPORT_TOOL.append(" ").append(Quoted(name));
        }
        SUPPORT_TOOL = TrimLeft(SUPPORT_TOOL);
    });
}

}  // namespace wxbrg
