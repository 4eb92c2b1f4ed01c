// The second phase of an activity: what needs its connectors.

#include <algorithm>

#include "data/modORGANIZATION.h"
#include "data/modPERSON.h"
#include "data/modROLE.h"
#include "mapping/ArisTypes.h"
#include "model/ObjectProtocol.h"
#include "model/clsACTIVITY.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"
#include "support/Text.h"

namespace wxbrg {

namespace {
constexpr std::string_view startConditionRule = "ACTIVITY_START_CONDITION";
constexpr std::string_view joinRule = "FUNCTION_RECEIVES_CONTROL_FROM_RULE";
constexpr std::string_view exitConditionRule = "ACTIVITY_EXIT_CONDITION";
constexpr std::string_view anyConnector = "AT_LEAST_ONE CONNECTOR";
constexpr std::string_view allConnectors = "ALL CONNECTORS";
}  // namespace

void clsACTIVITY::SetupDependentProperties(const clsPROCESS& Process) {
    Procedure("clsACTIVITY.SetupDependentProperties", [&](Frame&) {
        if (!SetupIndependentPropertiesFinished || SetupDependentPropertiesFinished) return;
        SetupProperty_ActivityExtensionSetting(Process);
        SetupDependentPropertiesFinished = true;
    });
}

void clsACTIVITY::SetupProperty_ActivityExtensionSetting(const clsPROCESS& Process) {
    Procedure("clsACTIVITY.SetupProperty_ActivityExtensionSetting", [&](Frame&) {
        SetupProperty_SUPPORT_TOOL();
        SetupProperty_StartCondition(Process);
        SetupProperty_StartMode();
        SetupProperty_ExitCondition();
        SetupProperty_ExitMode();
        SetupProperty_ExplicitStaffAssignment();
    });
}

void clsACTIVITY::SetupProperty_SUPPORT_TOOL() {
    Procedure("clsACTIVITY.SetupProperty_SUPPORT_TOOL", [&](Frame& frame) {
        Collection<ARISObjDef> programs;
        Find_Related_ARIS_ObjDef_Using_Mapping_Rule(programs, ARISObjectDefinition, "ACTIVITY_PROGRAM");
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

void clsACTIVITY::SetupProperty_StartCondition(const clsPROCESS& Process) {
    Procedure("clsACTIVITY.SetupProperty_StartCondition", [&](Frame&) {
        std::string text;
        if (gBlock.gOptStartConditions) text = GetProperty_StartCondition(startConditionRule, Process);
        if (text.empty()) text = GetProperty_StartCondition(joinRule, Process);
        StartCondition = text.empty() ? std::string(anyConnector) : text;
    });
}

std::string clsACTIVITY::GetProperty_StartCondition(std::string_view RuleName, const clsPROCESS& Process) {
    return Procedure("clsACTIVITY.GetProperty_StartCondition", [&](Frame&) -> std::string {
        if (RuleName == startConditionRule)
            return Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(ARISObjectDefinition, RuleName);
        if (RuleName != joinRule || Col_CONTROL_CONNECTOR_IN.Count() <= 1) return {};
        Collection<ARISObjDef> rules;
        Find_Related_ARIS_ObjDef_Using_Mapping_Rule(rules, ARISObjectDefinition, RuleName);
        if (rules.Count() != 1) return {};
        const ARISObjDef rule = rules.Item(1);
        const ARISObjOccList occurrences = rule->OccListInModel(Process.ARIS_Model);
        if (occurrences.Count() == 0 || occurrences.Get(0)->SymbolNum() != andRuleSymbol) return {};
        return std::string(IsOnAllIncomingPaths(rule) ? allConnectors : anyConnector);
    });
}

bool clsACTIVITY::IsOnAllIncomingPaths(const ARISObjDef& ruleObject) const {
    const bool onAll = std::all_of(Col_CONTROL_CONNECTOR_IN.begin(), Col_CONTROL_CONNECTOR_IN.end(),
                                   [&](const Ref<clsCONTROL_CONNECTOR>& connector) {
                                       return connector->ColPath.AllPassThrough(ruleObject->Guid());
                                   });
    gBlock.gFailureContext = "";
    return onAll;
}

void clsACTIVITY::SetupProperty_StartMode() {
    SetupSettings("clsACTIVITY.SetupProperty_StartMode", StartMode, ARISObjectDefinition,
                  "ACTIVITY_START_MODE");
}

void clsACTIVITY::SetupProperty_ExitCondition() {
    Procedure("clsACTIVITY.SetupProperty_ExitCondition", [&](Frame&) {
        std::string text;
        if (gBlock.gOptExitConditions) text = GetProperty_ExitCondition(exitConditionRule);
        if (text.empty()) text = GetProperty_ExitCondition("");
        if (!text.empty()) ExitCondition = text;
    });
}

std::string clsACTIVITY::GetProperty_ExitCondition(std::string_view RuleName) {
    return Procedure("clsACTIVITY.GetProperty_ExitCondition", [&](Frame&) -> std::string {
        if (RuleName == exitConditionRule)
            return Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(ARISObjectDefinition, RuleName);
        for (const Ref<clsCONTROL_CONNECTOR>& connector : Col_CONTROL_CONNECTOR_OUT) {
            if (!connector->IsLoopConnector()) continue;
            return connector->Condition.empty() ? std::string() : "NOT ( " + connector->Condition + " )";
        }
        return {};
    });
}

void clsACTIVITY::SetupProperty_ExitMode() {
    SetupSettings("clsACTIVITY.SetupProperty_ExitMode", ExitMode, ARISObjectDefinition, "ACTIVITY_EXIT_MODE");
}

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

}  // namespace wxbrg
