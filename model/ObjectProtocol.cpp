#include "model/ObjectProtocol.h"

namespace wxbrg {

namespace {

std::optional<std::string> ObjectNameOf(const std::string& text) {
    if (text.empty()) return std::nullopt;
    return ConvertARISName(text, NameKind::objectName, "");
}

std::optional<std::string> AttributeNameOf(const ARISObjDef& item, std::string_view rule) {
    return ObjectNameOf(Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(item, rule));
}

}  // namespace

std::string Quoted(std::string_view text) {
    return std::string("'").append(text).append("'");
}

void NoteMapped(const ARISObjDef& item, std::string_view kind) {
    WriteNote(Message::objectMapped, item->Name(gBlock.gLocale), item->Type(), kind);
}

void NoteFurtherIgnored(const Collection<ARISObjDef>& related, std::string_view first,
                        std::string_view second) {
    if (related.Count() < 2) return;
    WriteNote(Message::oneOfSeveralTaken, first, second);
    for (std::int32_t i = 2; i <= related.Count(); ++i)
        WriteNote(Message::furtherObject, related.Item(i)->Name(gBlock.gLocale), related.Item(i)->Type());
}

void SetupText(std::string_view procedure, std::string& property, bool gate, NameKind nameKind,
               const ARISObjDef& item, std::string_view rule) {
    SetupText(procedure, property, gate, nameKind, [&] {
        return Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(item, rule);
    });
}

void SetupSettings(std::string_view procedure, std::string& property, const ARISObjDef& item,
                   std::string_view rule) {
    SetupSettings(procedure, property, [&] {
        return Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(item, rule);
    });
}

std::optional<std::string> NameOfPerson(const ARISObjDef& item) {
    std::string name = ConvertARISPersonName(item);
    if (name.empty()) return std::nullopt;
    return name;
}

std::optional<std::string> NameOfObject(const ARISObjDef& item) {
    return ObjectNameOf(item->Name(gBlock.gLocale));
}

std::optional<std::string> NameOfOrganization(const ARISObjDef& item) {
    return AttributeNameOf(item, "ORGANIZATION_ObjectName");
}

std::optional<std::string> NameOfRole(const ARISObjDef& item) {
    return AttributeNameOf(item, "ROLE_ObjectName");
}

std::optional<std::string> NameOfProgram(const ARISObjDef& item) {
    return AttributeNameOf(item, "PROGRAM_ObjectName");
}

}  // namespace wxbrg
