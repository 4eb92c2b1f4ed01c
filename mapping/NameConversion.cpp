#include "mapping/NameConversion.h"

#include <array>
#include <cstdint>

#include "mapping/ArisTypes.h"
#include "mapping/RuleLookups.h"
#include "mapping/RuleTable.h"
#include "options/MessageTexts.h"
#include "run/Frame.h"
#include "run/LogLine.h"
#include "run/clsExceptionHandler.h"
#include "run/modGlobals.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

std::string ReplaceEach(std::string text, NameParts what, std::string_view by) {
    for (const std::string_view one : what) text = Replace(text, one, by);
    return text;
}

std::string_view WithoutDomain(std::string_view login) {
    const std::size_t at = login.rfind('@');
    return at != std::string_view::npos && at > 0 ? login.substr(0, at) : login;
}

/// A name that begins with a digit keeps it, and loses the first "sChar" instead. Odd as that is, to change
/// it would rename objects in the definitions that sites have.
void ReplaceMarkBehindDigit(std::string& name) {
    if (name.empty() || name.front() < '0' || name.front() > '9') return;
    constexpr std::string_view mark = "sChar";
    const std::size_t found = name.find(mark);
    if (found != std::string::npos) name.replace(found, mark.size(), "_");
}

/// A domain type's name and the data type that it becomes. A Boolean is a string on purpose, for there is
/// no other type than these three.
struct DataTypeRow {
    std::string_view domainType;
    std::string_view dataType;
};
constexpr std::array dataTypes{std::to_array<DataTypeRow>({
    {"Boolean", "STRING"},
    {"Hex", "LONG"},
    {"Integer", "LONG"},
    {"Number (n)", "LONG"},
    {"Okt", "LONG"},
    {"Smallint", "LONG"},
    {"Decimal (n,m)", "FLOAT"},
    {"Float", "FLOAT"},
    {"Real", "FLOAT"},
    {"Number (n,m)", "FLOAT"},
})};
std::string DataTypeText(std::string_view text) {
    const std::string_view word = Trim(text);
    for (const DataTypeRow& row : dataTypes)
        if (row.domainType == word) return std::string(row.dataType);
    if (word == GetNLSString(NumberOf(Message::floatTypeWord))) return "FLOAT";
    if (word == GetNLSString(NumberOf(Message::longTypeWord))) return "LONG";
    return "STRING";
}

const NameKindRow& RowOf(NameKind kind, std::string_view text) {
    for (const NameKindRow& row : nameKinds::rows)
        if (row.kind == kind) return row;
    Fail(Message::unknownNameKind, std::to_string(static_cast<std::int32_t>(kind)), text);
}

/// What the kind does to a text, before the steps that all kinds share. `attribute` is where the text was
/// read.
std::string ConvertByKind(std::string_view text, NameKind kind, std::string_view ruleName,
                          std::int32_t attribute) {
    const NameKindRow& row = RowOf(kind, text);
    if (row.extra == NameExtra::mustNotBeEmpty && text.empty()) Fail(Message::nameMissing);
    if (row.extra == NameExtra::login && attribute == AttributeType::login) text = WithoutDomain(text);
    if (row.extra == NameExtra::asIdentifierBehind && text.starts_with('_')) text.remove_prefix(1);
    std::string name = ReplaceEach(ReplaceEach(std::string(text), row.blanked, " "), row.underscored, "_");
    switch (row.extra) {
        case NameExtra::asIdentifier:
        case NameExtra::asIdentifierBehind:
            return ConvertARISName(name, NameKind::identifier, ruleName);
        case NameExtra::login:
            name = UpperCase(name);
            break;
        case NameExtra::digitInFront:
            ReplaceMarkBehindDigit(name);
            break;
        case NameExtra::unequalSign:
            name = Replace(name, "!=", "<>");
            break;
        case NameExtra::typeWord:
            return DataTypeText(name);
        case NameExtra::none:
        case NameExtra::mustNotBeEmpty:
            break;
    }
    if (row.collapsesBlanks) name = CollapseBlanks(name);
    return std::string(Left(name, row.length));
}

/// The attribute of a rule that the caller has just read with success; 0 without a rule.
std::int32_t AttributeOfRule(std::string_view ruleName) {
    if (ruleName.empty()) return 0;
    gBlock.gFailureContext = "Retrieve rule";
    const Ref<clsMappingRule> rule = gBlock.gColMappingRule.Item(ruleName);
    gBlock.gFailureContext = "";
    return AttributeNumber(*rule);
}

}  // namespace

std::string ConvertARISName(std::string_view text, NameKind kind, std::string_view ruleName) {
    const NamedScope scope("modMappingRule.ConvertARISName");
    const std::int32_t attribute = AttributeOfRule(ruleName);
    std::string converted(text);
    if (gBlock.gOptConvertNames) {
        converted = Trim(Replace(ConvertByKind(text, kind, ruleName, attribute), "'", "''"));
        if (converted != text) WriteNote(Message::textChanged, text, converted);
    }
    scope.End();
    return converted;
}

std::string ConvertARISPersonName(const ARISObjDef& item) {
    return Procedure("modMappingRule.ConvertARISPersonName", [&](Frame&) {
        constexpr std::string_view rule = "PERSON_PersonName";
        const std::string login = Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(item, rule);
        if (!login.empty()) return ConvertARISName(login, NameKind::personId, rule);
        const std::string name = item->Name(gBlock.gLocale);
        return name.empty() ? std::string() : ConvertARISName(name, NameKind::personId, "");
    });
}

}  // namespace wxbrg
