#include "tests/bench/AmlWriter.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "support/Text.h"

namespace wxbrg::bench {

std::string Escaped(std::string_view text) {
    return Replace(Replace(Replace(text, "&", "&amp;"), "<", "&lt;"), "\"", "&quot;");
}

std::uint64_t Scattered(std::string_view text) {
    std::uint64_t value = 0xCBF29CE484222325U;
    for (const char byte : text) value = (value ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31U);
}

void AmlWriter::Begin(std::string_view databaseName) {
    out_ << R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE AML SYSTEM "ARIS-Export.dtd" [
	<!ENTITY LocaleId.DEde "1031">
	<!ENTITY Codepage.DEde "1252">
	<!ENTITY LocaleId.USen "1033">
	<!ENTITY Codepage.USen "1252">
]>
<AML>
	<Header-Info
		CreateTime="10:00:00.000"
		CreateDate="03-05-2024"
		DatabaseName=")"
         << Escaped(databaseName) << R"("
		UserName="system"
		ArisExeVersion="100"
	/>
	<Language LocaleId="&LocaleId.DEde;" Codepage="&Codepage.DEde;">
		<LanguageName>German</LanguageName>
	</Language>
	<Language LocaleId="&LocaleId.USen;" Codepage="&Codepage.USen;">
		<LanguageName>English</LanguageName>
	</Language>
)";
}

void AmlWriter::EmbeddedDocument(std::uint64_t bytes) {
    const std::string line = "TVqQAAMAAAAEAAAA//8AALgAAAAAAAAAQAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAgAAA\n";
    out_ << "\t<OLEDef OLEDef.ID=\"OLEDef.1\">\n\t\t<OLEData>\n";
    for (std::uint64_t written = 0; written < bytes; written += line.size()) out_ << line;
    out_ << "\t\t</OLEData>\n\t</OLEDef>\n";
}

void AmlWriter::End() {
    out_ << "</AML>\n";
}

void AmlWriter::Guid(std::string_view id) {
    const std::uint64_t first = Scattered(id);
    const std::uint64_t second = Scattered(std::string(id).append("'"));
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%08x-%04x-%04x-%04x-%012llx",
                  static_cast<unsigned>(first >> 32U), static_cast<unsigned>(first >> 16U) & 0xFFFFU,
                  static_cast<unsigned>(first) & 0xFFFFU, static_cast<unsigned>(second >> 48U),
                  static_cast<unsigned long long>(second & 0xFFFFFFFFFFFFU));
    out_ << "\t\t\t<GUID>" << text.data() << "</GUID>\n";
}

void AmlWriter::PlainAttribute(std::string_view type, std::string_view text) {
    out_ << "\t\t\t<AttrDef AttrDef.Type=\"" << type << "\">\n"
         << "\t\t\t\t<AttrValue LocaleId=\"&LocaleId.DEde;\">" << text << "</AttrValue>\n"
         << "\t\t\t</AttrDef>\n";
}

void AmlWriter::StyledValue(std::string_view localeEntity, std::string_view text) {
    out_ << "\t\t\t\t<AttrValue LocaleId=\"&" << localeEntity << ";\">\n"
         << "\t\t\t\t\t<StyledElement>\n"
         << "\t\t\t\t\t\t<Paragraph Alignment=\"UNDEFINED\" Indent=\"0\"/>\n"
         << "\t\t\t\t\t\t<StyledElement>\n"
         << "\t\t\t\t\t\t\t<PlainText TextValue=\"" << Escaped(text) << "\"/>\n"
         << "\t\t\t\t\t\t</StyledElement>\n"
         << "\t\t\t\t\t</StyledElement>\n"
         << "\t\t\t\t</AttrValue>\n";
}

void AmlWriter::StyledAttribute(std::string_view type, const TwoTexts& texts) {
    out_ << "\t\t\t<AttrDef AttrDef.Type=\"" << type << "\">\n";
    StyledValue("LocaleId.DEde", texts.german);
    StyledValue("LocaleId.USen", texts.english);
    out_ << "\t\t\t</AttrDef>\n";
}

void AmlWriter::BeginGroup(std::string_view id, const TwoTexts& name) {
    out_ << "\t<Group Group.ID=\"" << id << "\">\n";
    Guid(id);
    StyledAttribute("AT_NAME", name);
}

void AmlWriter::EndGroup() {
    out_ << "\t</Group>\n";
}

void AmlWriter::Definition(std::string_view id, std::string_view type, std::string_view symbol,
                           const TwoTexts& name, const TwoTexts& description, std::string_view assignedModel,
                           const std::vector<GeneratedConnection>& connections) {
    out_ << "\t\t<ObjDef ObjDef.ID=\"" << id << "\"\n\t\t\tTypeNum=\"" << type << "\"\n";
    if (!assignedModel.empty()) out_ << "\t\t\tLinkedModels.IdRefs=\"" << assignedModel << " \"\n";
    out_ << "\t\t\tSymbolNum=\"" << symbol << "\"\n\t\t>\n";
    Guid(id);
    StyledAttribute("AT_NAME", name);
    StyledAttribute("AT_DESC", description);
    PlainAttribute("AT_CREAT_TIME_STMP", "09:37:49.000;04/07/2023");
    PlainAttribute("AT_LAST_CHNG_2", "16:02:11.000;01/09/2024");
    for (const GeneratedConnection& connection : connections) {
        out_ << "\t\t\t<CxnDef CxnDef.ID=\"" << connection.id << "\"\n\t\t\t\tCxnDef.Type=\""
             << connection.type << "\"\n\t\t\t\tToObjDef.IdRef=\"" << connection.target << "\"\n\t\t\t>\n";
        Guid(connection.id);
        out_ << "\t\t\t</CxnDef>\n";
    }
    out_ << "\t\t</ObjDef>\n";
}

void AmlWriter::BeginModel(std::string_view id, std::string_view type, const TwoTexts& name) {
    out_ << "\t\t<Model Model.ID=\"" << id << "\"\n\t\t\tModel.Type=\"" << type << "\"\n"
         << "\t\t\tAttrHandling=\"BREAKATTR\"\n\t\t\tGridUse=\"YES\"\n\t\t\tGridSize=\"50\"\n\t\t\tScale="
            "\"100\"\n"
         << "\t\t\tBackColor=\"16777215\"\n\t\t>\n";
    Guid(id);
    StyledAttribute("AT_NAME", name);
    PlainAttribute("AT_CREAT_TIME_STMP", "09:37:49.000;04/07/2023");
}

void AmlWriter::BeginOccurrence(std::string_view id, std::string_view definition, std::string_view symbol,
                                int x, int y) {
    out_ << "\t\t\t<ObjOcc ObjOcc.ID=\"" << id << "\"\n\t\t\t\tObjDef.IdRef=\"" << definition
         << "\"\n\t\t\t\tActive=\"YES\"\n\t\t\t\tShadow=\"NO\"\n\t\t\t\tVisible=\"YES\"\n\t\t\t\tZorder="
            "\"17\"\n"
         << "\t\t\t\tSymbolNum=\"" << symbol << "\"\n\t\t\t>\n"
         << "\t\t\t\t<Position Pos.X=\"" << x << "\" Pos.Y=\"" << y << "\"/>\n"
         << "\t\t\t\t<Size Size.dX=\"250\" Size.dY=\"150\"/>\n"
         << "\t\t\t\t<AttrOcc AttrTypeNum=\"AT_NAME\" Port=\"CENTER\" OrderNum=\"0\" Alignment=\"CENTER\""
         << " SymbolFlag=\"TEXT\" FontSS.IdRef=\"FontSS.1----c--\" OffsetX=\"0\" OffsetY=\"0\"/>\n";
}

void AmlWriter::ConnectionOccurrence(std::string_view id, std::string_view connection,
                                     std::string_view target, int x, int y) {
    out_ << "\t\t\t\t<CxnOcc CxnOcc.ID=\"" << id << "\"\n\t\t\t\t\tCxnDef.IdRef=\"" << connection
         << "\"\n\t\t\t\t\tToObjOcc.IdRef=\"" << target
         << "\"\n\t\t\t\t\tActive=\"YES\"\n\t\t\t\t\tDiagonal=\"NO\"\n\t\t\t\t\tVisible=\"YES\"\n\t\t\t\t>\n"
         << "\t\t\t\t\t<Pen Color=\"0\" Style=\"0\" Width=\"1\"/>\n"
         << "\t\t\t\t\t<Position Pos.X=\"" << x + 125 << "\" Pos.Y=\"" << y + 150 << "\"/>\n"
         << "\t\t\t\t\t<Position Pos.X=\"" << x + 125 << "\" Pos.Y=\"" << y + 200 << "\"/>\n"
         << "\t\t\t\t</CxnOcc>\n";
}

void AmlWriter::EndOccurrence() {
    out_ << "\t\t\t</ObjOcc>\n";
}

void AmlWriter::EndModel() {
    out_ << "\t\t</Model>\n";
}

}  // namespace wxbrg::bench
