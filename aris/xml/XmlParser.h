#pragma once

#include <expat.h>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>

#include "aris/Catalogue.h"
#include "aris/xml/ExportFile.h"

namespace wxbrg::xml {

/// The largest single value (an attribute, the text of an element) that is read.
inline constexpr std::size_t largestValue = std::size_t{256} << 20U;

/// Hears what a document holds, in its order. What a call throws ends the parsing and comes out of it.
class XmlEvents {
  public:
    virtual ~XmlEvents() = default;
    /// `attributes` holds names and values in turn, then null.
    virtual void StartElement(const char* name, const char* const* attributes) = 0;
    virtual void EndElement() = 0;
    /// A piece of an element's text.
    virtual void CharacterData(std::string_view piece) = 0;
    /// An element's text refers to an entity that the document does not declare, or that lies outside of it.
    virtual void UnreadEntity(std::string_view name) = 0;
};

/// Reads an XML document from a file through expat, piece by piece. Nothing outside the file is ever fetched:
/// the entities that the document itself declares are expanded, within bounds, and a DTD that it names is not
/// read.
class XmlParser {
  public:
    explicit XmlParser(XmlEvents& events);

    /// Reads the document. Throws failure 321 for one that is broken, with file, line, column, reason and
    /// what to do, failure 75 when the file cannot be read on, and what the events throw.
    void Parse(ExportFile& file, const aris::LoadProgress& progress);

    /// Throws failure 321 at the place of the event that is being reported.
    [[noreturn]] void Fail(std::string_view reason, std::string_view whatToDo) const;

    /// Throws failure 321 if an attribute of the element whose start is being reported refers to an entity
    /// that the document does not declare: expat leaves such a reference out where a DTD might have declared
    /// it.
    void RequireDeclaredEntities() const;

  private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };
    struct Callbacks;

    void Feed(std::size_t size, bool last);
    [[noreturn]] void FailAsParser(XML_Error error, bool last) const;
    [[noreturn]] void FailAt(XML_Size line, XML_Size column, std::string_view reason,
                             std::string_view whatToDo) const;

    XmlEvents& events_;
    std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser_;
    std::string fileName_;
    std::uint64_t fed_ = 0;
    std::uint64_t pending_ = 0;  ///< the bytes that expat was given and has not reported yet
    std::exception_ptr thrown_;  // by an event; no exception crosses expat
    std::unordered_set<std::string, Hash, std::equal_to<>> entities_;
};

}  // namespace wxbrg::xml
