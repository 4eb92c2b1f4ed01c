#include "aris/xml/XmlParser.h"

#include <algorithm>
#include <new>

#include "support/Failure.h"

namespace wxbrg::xml {

namespace {

// A token that is not complete is scanned again with each piece: the pieces grow with what is pending, so
// that a long value costs time in its length.
constexpr std::size_t smallestPiece = std::size_t{1} << 20U;
constexpr std::size_t largestPiece = std::size_t{32} << 20U;

// Exports use entities for the numbers of languages, which are shorter than the references to them.
constexpr float largestAmplification = 10;

constexpr std::string_view exportAgain = "Export the database from ARIS again.";

struct Complaint {
    std::string_view reason;
    std::string_view whatToDo = exportAgain;
};

constexpr Complaint emptyFile = {"the file is empty"};
constexpr Complaint endsEarly = {"the file ends before the export does"};

Complaint ComplaintOf(XML_Error error) {
    switch (error) {
        case XML_ERROR_NO_ELEMENTS:
        case XML_ERROR_UNCLOSED_TOKEN:
        case XML_ERROR_UNCLOSED_CDATA_SECTION:
        case XML_ERROR_PARTIAL_CHAR:
            return endsEarly;
        case XML_ERROR_SYNTAX:
            return {"this is no XML", "Choose a file that ARIS has written with its XML export."};
        case XML_ERROR_INVALID_TOKEN:
            return {"this is no XML, or its text is not in the encoding that it declares",
                    "Export the database from ARIS again, and keep the file as it is."};
        case XML_ERROR_UNKNOWN_ENCODING:
        case XML_ERROR_INCORRECT_ENCODING:
            return {"the file's encoding is unknown or not the one that it declares",
                    "Save the export as UTF-8."};
        case XML_ERROR_UNDEFINED_ENTITY:
            return {"an entity is used that the file does not declare",
                    "Declare the entity at the start of the file, or export the database from ARIS again."};
        case XML_ERROR_RECURSIVE_ENTITY_REF:
        case XML_ERROR_AMPLIFICATION_LIMIT_BREACH:
            return {"the file's entities expand without end", "This is no export that ARIS has written."};
        default:
            return {XML_ErrorString(error)};
    }
}

bool IsPredefined(std::string_view entity) {
    return entity.starts_with('#') || entity == "amp" || entity == "lt" || entity == "gt" ||
           entity == "quot" || entity == "apos";
}

}  // namespace

/// What expat calls. An exception is kept, and the parsing stopped.
struct XmlParser::Callbacks {
    template <class Event>
    static void Report(XmlParser& self, Event event) {
        if (self.thrown_) return;
        try {
            event();
        } catch (...) {
            self.thrown_ = std::current_exception();
            XML_StopParser(self.parser_.get(), XML_FALSE);
        }
    }
    static XmlParser& Self(void* data) { return *static_cast<XmlParser*>(data); }

    static void XMLCALL Start(void* data, const char* name, const char** attributes) {
        XmlParser& self = Self(data);
        Report(self, [&] {
            self.events_.StartElement(name, attributes);
        });
    }
    static void XMLCALL End(void* data, const char*) {
        XmlParser& self = Self(data);
        Report(self, [&] {
            self.events_.EndElement();
        });
    }
    static void XMLCALL Characters(void* data, const char* text, int length) {
        XmlParser& self = Self(data);
        Report(self, [&] {
            self.events_.CharacterData({text, static_cast<std::size_t>(length)});
        });
    }
    static void XMLCALL EntityDeclared(void* data, const char* name, int isParameter, const char* value, int,
                                       const char*, const char*, const char*, const char*) {
        XmlParser& self = Self(data);
        if (isParameter == 0 && value != nullptr)
            Report(self, [&] {
                self.entities_.emplace(name);
            });
    }
    static void XMLCALL EntitySkipped(void* data, const char* name, int isParameter) {
        XmlParser& self = Self(data);
        if (isParameter == 0)
            Report(self, [&] {
                self.events_.UnreadEntity(name);
            });
    }
    static int XMLCALL EntityOutside(XML_Parser parser, const char* name, const char*, const char*,
                                     const char*) {
        XmlParser& self = Self(XML_GetUserData(parser));
        Report(self, [&] {
            self.events_.UnreadEntity(name);
        });
        return XML_STATUS_OK;
    }
};

XmlParser::XmlParser(XmlEvents& events)
    : events_(events), parser_(XML_ParserCreate(nullptr), XML_ParserFree) {
    if (parser_ == nullptr) throw std::bad_alloc();
    XML_Parser parser = parser_.get();
    XML_SetUserData(parser, this);
    XML_SetElementHandler(parser, Callbacks::Start, Callbacks::End);
    XML_SetCharacterDataHandler(parser, Callbacks::Characters);
    XML_SetEntityDeclHandler(parser, Callbacks::EntityDeclared);
    XML_SetSkippedEntityHandler(parser, Callbacks::EntitySkipped);
    XML_SetExternalEntityRefHandler(parser, Callbacks::EntityOutside);
    XML_SetBillionLaughsAttackProtectionMaximumAmplification(parser, largestAmplification);
}

void XmlParser::Parse(ExportFile& file, const aris::LoadProgress& progress) {
    fileName_ = file.Name();
    std::size_t piece = smallestPiece;
    for (bool last = false; !last;) {
        void* const buffer = XML_GetBuffer(parser_.get(), static_cast<int>(piece));
        if (buffer == nullptr) throw std::bad_alloc();
        const std::size_t got = file.Read(static_cast<char*>(buffer), piece);
        last = got < piece;
        fed_ += got;
        Feed(got, last);
        if (progress) progress(fed_, std::max(fed_, file.Size()));
        piece = std::clamp(static_cast<std::size_t>(pending_), smallestPiece, largestPiece);
    }
}

void XmlParser::Feed(std::size_t size, bool last) {
    const XML_Status status = XML_ParseBuffer(parser_.get(), static_cast<int>(size), last ? 1 : 0);
    // Newer versions of expat put off what is not complete until there is much more of it, and report no
    // place.
    const XML_Index reported = XML_GetCurrentByteIndex(parser_.get());
    pending_ = reported < 0 ? pending_ + size : fed_ - static_cast<std::uint64_t>(reported);
    if (thrown_) std::rethrow_exception(thrown_);
    if (status != XML_STATUS_OK) FailAsParser(XML_GetErrorCode(parser_.get()), last);
    // The tag around a value of the largest size is a little larger.
    if (pending_ > largestValue + smallestPiece)
        Fail("what begins here is larger than 256 MiB", "Shorten the value in ARIS and export again.");
}

void XmlParser::Fail(std::string_view reason, std::string_view whatToDo) const {
    FailAt(XML_GetCurrentLineNumber(parser_.get()), XML_GetCurrentColumnNumber(parser_.get()), reason,
           whatToDo);
}

void XmlParser::FailAsParser(XML_Error error, bool last) const {
    if (error == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
    Complaint complaint = ComplaintOf(error);
    // A word that the end of the file cuts, in front of the root element, is bad syntax without a length.
    const bool cut = last && pending_ < fed_ && XML_GetCurrentByteCount(parser_.get()) == 0;
    if (error == XML_ERROR_SYNTAX && cut) complaint = endsEarly;
    if (fed_ == 0) complaint = emptyFile;
    FailAt(XML_GetErrorLineNumber(parser_.get()), XML_GetErrorColumnNumber(parser_.get()), complaint.reason,
           complaint.whatToDo);
}

/// expat counts columns from 0.
void XmlParser::FailAt(XML_Size line, XML_Size column, std::string_view reason,
                       std::string_view whatToDo) const {
    std::string detail = fileName_;
    detail.append(", line ").append(std::to_string(line)).append(", column ");
    detail.append(std::to_string(column + 1)).append(": ").append(reason).append(". ").append(whatToDo);
    throw Failure(FailureKind::invalidFileFormat, detail);
}

void XmlParser::RequireDeclaredEntities() const {
    int offset = 0;
    int size = 0;
    const char* const input = XML_GetInputContext(parser_.get(), &offset, &size);
    if (input == nullptr) return;
    const int length = std::min(XML_GetCurrentByteCount(parser_.get()), size - offset);
    std::string_view tag(input + offset, static_cast<std::size_t>(length));
    std::size_t ampersand = tag.find('&');
    // A tag with zero bytes is in UTF-16, which no export is: its references are not looked at.
    if (ampersand == std::string_view::npos || tag.find('\0') != std::string_view::npos) return;
    for (; ampersand != std::string_view::npos; ampersand = tag.find('&')) {
        tag.remove_prefix(ampersand + 1);
        const std::string_view name = tag.substr(0, tag.find(';'));
        if (!IsPredefined(name) && entities_.find(name) == entities_.end())
            Fail("the entity \"" + std::string(name) + "\" is not declared in the file",
                 "Declare it at the start of the file, or export the database from ARIS again.");
    }
}

}  // namespace wxbrg::xml
