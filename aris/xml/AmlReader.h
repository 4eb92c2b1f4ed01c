#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "aris/xml/AmlBuilder.h"
#include "aris/xml/ValueText.h"
#include "aris/xml/XmlParser.h"

namespace wxbrg::xml {

/// The attributes of an element that is being reported: names and values in turn, then null.
class XmlAttributes {
  public:
    explicit XmlAttributes(const char* const* attributes) : attributes_(attributes) {}

    /// The value of an attribute, or null where the element has none of the name.
    const char* Find(std::string_view name) const;
    /// The value of an attribute, empty where the element has none of the name.
    std::string_view Get(std::string_view name) const;

  private:
    const char* const* attributes_;
};

/// Reads an ARIS XML export and passes what it holds to the builder. Elements count only where they belong;
/// everything else is passed over with all that it holds.
class AmlReader final : public XmlEvents {
  public:
    explicit AmlReader(AmlBuilder& builder) : builder_(builder), parser_(*this) {}

    /// Reads the export. Throws failure 321 for one that is broken or none, failure 75 when the file cannot
    /// be read on.
    void Read(ExportFile& file, const aris::LoadProgress& progress) { parser_.Parse(file, progress); }

    void StartElement(const char* name, const char* const* attributes) override;
    void EndElement() override;
    void CharacterData(std::string_view piece) override;
    void UnreadEntity(std::string_view name) override;

  private:
    /// Where the reader is: in an element that is read, by its name.
    enum class Place : std::uint8_t {
        document,
        aml,
        language,
        languageName,
        group,
        definition,
        model,
        occurrence,
        guid,
        attribute,
        value,
    };
    /// An element that is read at its place in `parent`.
    struct Child {
        Place parent;
        std::string_view name;
        void (AmlReader::*enter)(XmlAttributes);
    };
    static const Child children[];

    void Enter(Place place) { places_.push_back(place); }
    void Leave(Place place);

    void EnterRoot(XmlAttributes attributes);
    void EnterHeader(XmlAttributes attributes);
    void EnterLanguage(XmlAttributes attributes);
    void EnterLanguageName(XmlAttributes attributes);
    void EnterGroup(XmlAttributes attributes);
    void EnterDefinition(XmlAttributes attributes);
    void EnterModel(XmlAttributes attributes);
    void EnterGuid(XmlAttributes attributes);
    void EnterAttribute(XmlAttributes attributes);
    void EnterValue(XmlAttributes attributes);
    void EnterConnection(XmlAttributes attributes);
    void EnterOccurrence(XmlAttributes attributes);
    void EnterPosition(XmlAttributes attributes);
    void EnterConnectionOccurrence(XmlAttributes attributes);
    void EnterMarkup(std::string_view name, XmlAttributes attributes);

    const ResolvedType& Type(TypeKind kind, std::string_view spelled);
    /// The symbol that an element names, or null where it names none.
    const ResolvedType* Symbol(XmlAttributes attributes);
    /// The number of an attribute; 0 where the element has none of the name.
    std::int32_t Number(XmlAttributes attributes, std::string_view name) const;
    void RequireSize(std::size_t size) const;

    AmlBuilder& builder_;
    XmlParser parser_;
    std::vector<Place> places_ = {Place::document};
    std::uint64_t passedOver_ = 0;   // depth within an element that is passed over
    std::uint64_t markupDepth_ = 0;  // depth within a value

    std::string text_;  // of a Guid or the name of a language
    ValueText value_;
    const ResolvedType* attributeType_ = nullptr;
    bool hasLocale_ = false;    // of the value or language
    std::int32_t locale_ = 0;   // likewise
    bool hasPosition_ = false;  // of the occurrence
};

}  // namespace wxbrg::xml
