#include "data/clsDATA_MEMBER.h"

#include "data/modDATA_STRUCTURE.h"
#include "model/ObjectProtocol.h"
#include "support/Numbers.h"

namespace wxbrg {

namespace {
constexpr std::string_view attributeRule = "DATA_MEMBER_TYPE";
constexpr std::string_view domainRule = "DOMAINTYPE_DOM_TYPE";
}  // namespace

// The one kind that writes no note when it is complete.
void clsDATA_MEMBER::SetupProperties() {
    Procedure("clsDATA_MEMBER.SetupProperties", [&](Frame&) {
        if (SetupFinished) return;
        SetupProperty_MemberName();
        SetupProperty_DataType();
        SetupProperty_SizeOfArray();
        SetupProperty_MemberSetting();
        SetupFinished = true;
    });
}

void clsDATA_MEMBER::SetupProperty_MemberName() {
    SetupText("clsDATA_MEMBER.SetupProperty_MemberName", MemberName, true, NameKind::memberName,
              ARISObjectDefinition, "DATA_MEMBER_MemberName");
}

void clsDATA_MEMBER::SetupProperty_DataType() {
    Procedure("clsDATA_MEMBER.SetupProperty_DataType", [&](Frame&) {
        DataType = "STRING";
        if (DATA_STRUCTURE_Is_DATA_STRUCTURE(ARISObjectDefinition)) {
            IsDataStructure = true;
            // The member's name and not the structure's. They agree as long as DATA_MEMBER_MemberName and
            // DATA_STRUCTURE_ObjectName name the same attribute.
            DataType = MemberName;
            return;
        }
        std::string text =
            GetProperty_DataType(gBlock.gOptDataTypeFromAttribute ? attributeRule : domainRule);
        if (text.empty())
            text = GetProperty_DataType(gBlock.gOptDataTypeFromAttribute ? domainRule : attributeRule);
        if (!text.empty()) DataType = ConvertARISName(text, NameKind::dataType, "");
    });
}

std::string clsDATA_MEMBER::GetProperty_DataType(std::string_view RuleName) {
    return Procedure("clsDATA_MEMBER.GetProperty_DataType", [&](Frame&) -> std::string {
        if (RuleName == attributeRule)
            return Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(ARISObjectDefinition, RuleName);
        if (RuleName != domainRule) return {};
        Collection<ARISObjDef> domains;
        Find_Related_ARIS_ObjDef_Using_Mapping_Rule(domains, ARISObjectDefinition,
                                                    "DATA_MEMBER_HAS_DOMAINTYPE");
        if (domains.IsEmpty()) return {};
        std::string type = Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(domains.Item(1), RuleName);
        NoteFurtherIgnored(domains, "DATA_MEMBER", "DOMAINTYPE");
        return type;
    });
}

void clsDATA_MEMBER::SetupProperty_SizeOfArray() {
    Procedure("clsDATA_MEMBER.SetupProperty_SizeOfArray", [&](Frame&) {
        if (!gBlock.gOptUseOtherSettings) return;
        const std::string text =
            Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(ARISObjectDefinition, "DATA_MEMBER_SIZE_OF_ARRAY");
        if (IsNumeric(text, DecimalSeparator())) SizeOfArray = "(" + text + ")";
    });
}

void clsDATA_MEMBER::SetupProperty_MemberSetting() {
    Procedure("clsDATA_MEMBER.SetupProperty_MemberSetting", [&](Frame&) {
        SetupProperty_DESCRIPTION();
        SetupProperty_DOCUMENTATION();
    });
}

void clsDATA_MEMBER::SetupProperty_DESCRIPTION() {
    // This procedure bears the person's name.
    SetupText("clsPERSON.SetupProperty_DESCRIPTION", DESCRIPTION, gBlock.gOptUseDescriptionAttr,
              NameKind::description, ARISObjectDefinition, "DATA_MEMBER_DESCRIPTION");
}

void clsDATA_MEMBER::SetupProperty_DOCUMENTATION() {
    SetupText("clsDATA_MEMBER.SetupProperty_DOCUMENTATION", DOCUMENTATION, gBlock.gOptUseDocumentationAttr,
              NameKind::documentation, ARISObjectDefinition, "DATA_MEMBER_DOCUMENTATION");
}

}  // namespace wxbrg
