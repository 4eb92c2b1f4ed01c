#include "aris/xml/AmlReader.h"

#include <algorithm>
#include <optional>

#include "aris/xml/Spelling.h"
#include "support/Text.h"

namespace wxbrg::xml {

namespace {

constexpr std::string_view correctAndExport = "Correct it in ARIS and export again.";

/// The type in a connection's long form "OT_FUNC.CT_CRT_1.OT_EVT" is its middle part.
std::string_view ConnectionType(std::string_view spelled) {
    const std::size_t first = spelled.find('.');
    if (first == std::string_view::npos) return spelled;
    const std::size_t second = spelled.find('.', first + 1);
    if (second == std::string_view::npos || spelled.find('.', second + 1) != std::string_view::npos)
        return spelled;
    return spelled.substr(first + 1, second - first - 1);
}

/// The id that a reference holds, which may have blanks around it.
std::string_view Id(std::string_view reference) {
    return TrimSpace(reference);
}

}  // namespace

const char* XmlAttributes::Find(std::string_view name) const {
    for (const char* const* attribute = attributes_; *attribute != nullptr; attribute += 2)
        if (name == *attribute) return attribute[1];
    return nullptr;
}

std::string_view XmlAttributes::Get(std::string_view name) const {
    const char* const value = Find(name);
    return value == nullptr ? std::string_view() : std::string_view(value);
}

// clang-format off
const AmlReader::Child AmlReader::children[] = {
    {Place::document,   "AML",          &AmlReader::EnterRoot},
    {Place::aml,        "Header-Info",  &AmlReader::EnterHeader},
    {Place::aml,        "Language",     &AmlReader::EnterLanguage},
    {Place::aml,        "Group",        &AmlReader::EnterGroup},
    {Place::aml,        "ObjDef",       &AmlReader::EnterDefinition},
    {Place::aml,        "Model",        &AmlReader::EnterModel},
    {Place::language,   "LanguageName", &AmlReader::EnterLanguageName},
    {Place::group,      "GUID",         &AmlReader::EnterGuid},
    {Place::group,      "AttrDef",      &AmlReader::EnterAttribute},
    {Place::group,      "Group",        &AmlReader::EnterGroup},
    {Place::group,      "ObjDef",       &AmlReader::EnterDefinition},
    {Place::group,      "Model",        &AmlReader::EnterModel},
    {Place::definition, "GUID",         &AmlReader::EnterGuid},
    {Place::definition, "AttrDef",      &AmlReader::EnterAttribute},
    {Place::definition, "CxnDef",       &AmlReader::EnterConnection},
    {Place::model,      "GUID",         &AmlReader::EnterGuid},
    {Place::model,      "AttrDef",      &AmlReader::EnterAttribute},
    {Place::model,      "ObjOcc",       &AmlReader::EnterOccurrence},
    {Place::occurrence, "Position",     &AmlReader::EnterPosition},
    {Place::occurrence, "CxnOcc",       &AmlReader::EnterConnectionOccurrence},
    {Place::attribute,  "AttrValue",    &AmlReader::EnterValue},
};
// clang-format on

void AmlReader::StartElement(const char* name, const char* const* attributes) {
    if (passedOver_ > 0) {
        ++passedOver_;
        return;
    }
    const Place place = places_.back();
    if (place == Place::value) {
        EnterMarkup(name, XmlAttributes(attributes));
        return;
    }
    const std::string_view element = name;
    for (const Child& child : children) {
        if (child.parent != place || child.name != element) continue;
        parser_.RequireDeclaredEntities();
        (this->*child.enter)(XmlAttributes(attributes));
        return;
    }
    if (place == Place::document)
        parser_.Fail("the file holds " + ShortInQuotes(element) + ", not an ARIS XML export (AML)",
                     "Choose a file that ARIS has written with its XML export.");
    passedOver_ = 1;
}

void AmlReader::EndElement() {
    if (passedOver_ > 0) {
        --passedOver_;
    } else if (markupDepth_ > 0) {
        --markupDepth_;
    } else {
        const Place place = places_.back();
        places_.pop_back();
        Leave(place);
    }
}

void AmlReader::Leave(Place place) {
    switch (place) {
        case Place::language:
            if (hasLocale_) builder_.AddLocale(locale_, TrimSpace(text_));
            break;
        case Place::group:
            builder_.EndGroup();
            break;
        case Place::definition:
            builder_.EndDefinition();
            break;
        case Place::model:
            builder_.EndModel();
            break;
        case Place::guid:
            builder_.SetGuid(TrimSpace(text_));
            break;
        case Place::value:
            if (hasLocale_) builder_.AddValue(*attributeType_, locale_, value_.Get());
            break;
        default:
            break;
    }
}

void AmlReader::CharacterData(std::string_view piece) {
    if (passedOver_ > 0 || markupDepth_ > 0) return;
    switch (places_.back()) {
        case Place::value:
            RequireSize(value_.Get().size() + piece.size());
            value_.AddPlain(piece);
            break;
        case Place::guid:
        case Place::languageName:
            RequireSize(text_.size() + piece.size());
            text_.append(piece);
            break;
        default:
            break;
    }
}

void AmlReader::UnreadEntity(std::string_view name) {
    if (passedOver_ == 0)
        parser_.Fail("the entity " + ShortInQuotes(name) + " is not declared in the file",
                     "Declare it at the start of the file, or export the database from ARIS again.");
}

void AmlReader::EnterRoot(XmlAttributes) {
    Enter(Place::aml);
}

void AmlReader::EnterHeader(XmlAttributes attributes) {
    builder_.SetDatabase(attributes.Get("DatabaseName"), attributes.Get("UserName"));
    passedOver_ = 1;
}

void AmlReader::EnterLanguage(XmlAttributes attributes) {
    hasLocale_ = attributes.Find("LocaleId") != nullptr;
    locale_ = Number(attributes, "LocaleId");
    text_.clear();
    Enter(Place::language);
}

void AmlReader::EnterLanguageName(XmlAttributes) {
    Enter(Place::languageName);
}

void AmlReader::EnterGroup(XmlAttributes attributes) {
    builder_.BeginGroup(Id(attributes.Get("Group.ID")));
    Enter(Place::group);
}

void AmlReader::EnterDefinition(XmlAttributes attributes) {
    const ResolvedType& type = Type(TypeKind::object, attributes.Get("TypeNum"));
    builder_.BeginDefinition(Id(attributes.Get("ObjDef.ID")), type, Symbol(attributes));
    std::string_view links = TrimSpace(attributes.Get("LinkedModels.IdRefs"));
    while (!links.empty()) {
        const std::size_t end = std::min(links.find_first_of(" \t\r\n"), links.size());
        builder_.AddAssignedModel(links.substr(0, end));
        links = TrimSpace(links.substr(end));
    }
    Enter(Place::definition);
}

void AmlReader::EnterModel(XmlAttributes attributes) {
    builder_.BeginModel(Id(attributes.Get("Model.ID")), Type(TypeKind::model, attributes.Get("Model.Type")));
    Enter(Place::model);
}

void AmlReader::EnterGuid(XmlAttributes) {
    text_.clear();
    Enter(Place::guid);
}

void AmlReader::EnterAttribute(XmlAttributes attributes) {
    attributeType_ = &Type(TypeKind::attribute, attributes.Get("AttrDef.Type"));
    Enter(Place::attribute);
}

void AmlReader::EnterValue(XmlAttributes attributes) {
    hasLocale_ = attributes.Find("LocaleId") != nullptr;
    locale_ = Number(attributes, "LocaleId");
    value_.Clear();
    Enter(Place::value);
}

void AmlReader::EnterMarkup(std::string_view name, XmlAttributes attributes) {
    const std::string_view run = name == "PlainText" ? attributes.Get("TextValue") : std::string_view();
    if (!run.empty()) parser_.RequireDeclaredEntities();
    RequireSize(value_.Get().size() + run.size());
    value_.AddMarkup(name, run);
    ++markupDepth_;
}

void AmlReader::EnterConnection(XmlAttributes attributes) {
    const std::string_view type = ConnectionType(attributes.Get("CxnDef.Type"));
    builder_.AddConnection(Id(attributes.Get("CxnDef.ID")), Type(TypeKind::connection, type),
                           Id(attributes.Get("ToObjDef.IdRef")));
    passedOver_ = 1;
}

void AmlReader::EnterOccurrence(XmlAttributes attributes) {
    builder_.AddOccurrence(Id(attributes.Get("ObjDef.IdRef")), Symbol(attributes));
    hasPosition_ = false;
    Enter(Place::occurrence);
}

void AmlReader::EnterPosition(XmlAttributes attributes) {
    const std::int32_t x = Number(attributes, "Pos.X");
    const std::int32_t y = Number(attributes, "Pos.Y");
    if (!hasPosition_) builder_.SetPosition(x, y);
    hasPosition_ = true;
    passedOver_ = 1;
}

void AmlReader::EnterConnectionOccurrence(XmlAttributes attributes) {
    builder_.AddConnectionOccurrence(Id(attributes.Get("CxnDef.IdRef")));
    passedOver_ = 1;
}

const ResolvedType& AmlReader::Type(TypeKind kind, std::string_view spelled) {
    const ResolvedType* const type = builder_.Types().Resolve(kind, spelled);
    if (type == nullptr)
        parser_.Fail("the type number " + ShortInQuotes(spelled) + " is beyond 32 bits", correctAndExport);
    return *type;
}

const ResolvedType* AmlReader::Symbol(XmlAttributes attributes) {
    const std::string_view spelled = TrimSpace(attributes.Get("SymbolNum"));
    return spelled.empty() ? nullptr : &Type(TypeKind::symbol, spelled);
}

std::int32_t AmlReader::Number(XmlAttributes attributes, std::string_view name) const {
    const char* const spelled = attributes.Find(name);
    if (spelled == nullptr) return 0;
    const std::optional<std::int32_t> number = WholeNumber(spelled);
    if (!number)
        parser_.Fail(std::string(name) + "=" + ShortInQuotes(spelled) + " is no whole number of 32 bits",
                     correctAndExport);
    return *number;
}

void AmlReader::RequireSize(std::size_t size) const {
    if (size > largestValue)
        parser_.Fail("a single value is larger than 256 MiB", "Shorten the value in ARIS and export again.");
}

}  // namespace wxbrg::xml
