#include "mapping/NameConversion.h"

#include <array>
#include <cstdint>
#include <span>

#include "mapping/ArisTypes.h"
#include "mapping/RuleLookups.h"
#include "mapping/RuleTable.h"
#include "options/MessageTexts.h"
#include "run/Frame.h"
#include "run/LogNotes.h"
#include "run/clsExceptionHandler.h"
#include "run/modGlobals.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::size_t nameLength = 32;

constexpr auto lineBreaksAndTab = std::to_array<std::string_view>({"\r", "\n", "\t"});
constexpr auto tab = std::to_array<std::string_view>({"\t"});
/// Characters that a person identifier cannot hold.
constexpr auto personCharacters =
    std::to_array<std::string_view>({"@", "<", ">", "[", "]", "\\", "\"", ";", "\r", "\n", "\t"});
/// Characters that a process name cannot hold.
constexpr auto processCharacters = std::to_array<std::string_view>({"*", "?", "\"", ";", ":", ".", "$"});
/// Characters and words that the output keeps for itself, in the order in which they are replaced.
constexpr auto reserved = std::to_array<std::string_view>(
    {"!",     "'",   "[",   "]",    "*",  "+",      ",",     "-",     ".",      ";",      "/",
     ":",     "<",   "=",   ">",    "(",  ")",      "\\",    "^",     "\"",     "AND",    "IS",
     "LOWER", "MOD", "NOT", "NULL", "OR", "SUBSTR", "UPPER", "VALUE", "_BLOCK", "_STRUCT"});

std::string ReplaceEach(std::string text, std::span<const std::string_view> what, std::string_view by) {
    for (const std::string_view one : what) text = Replace(text, one, by);
    return text;
}

std::string ShortName(std::string_view text) {
    return std::string(Left(CollapseBlanks(text), nameLength));
}

std::string ObjectNameText(std::string_view text) {
    if (text.empty()) Fail(Message::nameMissing);
    return ShortName(Replace(ReplaceEach(std::string(text), lineBreaksAndTab, " "), ".", "_"));
}

std::string PersonIdText(std::string_view text, std::int32_t attribute) {
    if (attribute == AttributeType::login) {
        const std::size_t at = text.rfind('@');
        if (at != std::string_view::npos && at > 0) text = text.substr(0, at);
    }
    const std::string upper = UpperCase(ReplaceEach(std::string(text), personCharacters, "_"));
    return std::string(Left(Replace(upper, " ", "_"), nameLength));
}

std::string IdentifierText(std::string_view text) {
    std::string name = ReplaceEach(std::string(text), reserved, "_");
    if (!name.empty() && name.front() >= '0' && name.front() <= '9') {
        constexpr std::string_view mark = "sChar";
        const std::size_t found = name.find(mark);
        if (found != std::string::npos) name.replace(found, mark.size(), "_");
    }
    return ShortName(ReplaceEach(std::move(name), lineBreaksAndTab, "_"));
}

std::string MemberNameText(std::string_view text, std::string_view ruleName) {
    if (text.starts_with('_')) text.remove_prefix(1);
    return ConvertARISName(text, NameKind::identifier, ruleName);
}

/// A domain type's name and the data type that it becomes.
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

/// What the kind does to a text, before the steps that all kinds share.
std::string ConvertByKind(std::string_view text, std::string_view kind, std::string_view ruleName,
                          std::int32_t attribute) {
    constexpr std::size_t descriptionLength = 254;
    constexpr std::size_t documentationLength = 4096;
    std::string plain(text);
    if (kind == NameKind::activityName) return ConvertARISName(text, NameKind::identifier, ruleName);
    if (kind == NameKind::description)
        return std::string(Left(ReplaceEach(std::move(plain), tab, " "), descriptionLength));
    if (kind == NameKind::documentation)
        return std::string(Left(ReplaceEach(std::move(plain), tab, " "), documentationLength));
    if (kind == NameKind::memberName) return MemberNameText(text, ruleName);
    if (kind == NameKind::personField)
        return std::string(Left(ReplaceEach(std::move(plain), lineBreaksAndTab, " "), nameLength));
    if (kind == NameKind::objectName) return ObjectNameText(text);
    if (kind == NameKind::personId) return PersonIdText(text, attribute);
    if (kind == NameKind::processName)
        return ShortName(ReplaceEach(std::move(plain), processCharacters, "_"));
    if (kind == NameKind::identifier) return IdentifierText(text);
    if (kind == NameKind::compareOperator) return Replace(text, "!=", "<>");
    if (kind == NameKind::dataType) return DataTypeText(text);
    Fail(Message::unknownNameKind, kind, text);
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

std::string ConvertARISName(std::string_view text, std::string_view kind, std::string_view ruleName) {
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
