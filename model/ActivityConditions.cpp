// The second phase of an activity, and what of it needs the connectors: when it starts and when it is done.

#include <algorithm>

#include "mapping/ArisTypes.h"
#include "model/ObjectProtocol.h"
#include "model/clsACTIVITY.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"

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

// The two modes are read as settings are: only with the option for other settings.

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
            // All that is left of a loop: the activity repeats until the condition fails.
            return connector->Condition.empty() ? std::string() : "NOT ( " + connector->Condition + " )";
        }
        return {};
    });
}

void clsACTIVITY::SetupProperty_ExitMode() {
    SetupSettings("clsACTIVITY.SetupProperty_ExitMode", ExitMode, ARISObjectDefinition, "ACTIVITY_EXIT_MODE");
}

}  // namespace wxbrg
