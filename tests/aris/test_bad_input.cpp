#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "aris/xml/XmlRepository.h"
#include "tests/aris/OpenAml.h"

// Input that is broken, hostile or merely enormous: a clear error, or read within bounds; never a crash.

namespace wxbrg::test {

namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

/// Expects "invalid file format", the file, a place, and a reason that holds `reason`.
void ExpectInvalid(const Failure& failure, std::string_view place, std::string_view reason) {
    EXPECT_EQ(failure.Number, FailureKind::invalidFileFormat) << failure.Description;
    EXPECT_THAT(failure.Description, StartsWith("invalid file format: "));
    EXPECT_THAT(failure.Description, HasSubstr("demo.aml, " + std::string(place)));
    EXPECT_THAT(failure.Description, HasSubstr(std::string(reason)));
    EXPECT_THAT(failure.Description, EndsWith("."));
}

TEST(XmlBadFile, AMissingFileIsNotFound) {
    const TemporaryFolder folder;
    const Failure failure = FailureOfOpeningFile(folder.NameOf("none.aml"));
    EXPECT_EQ(failure.Number, FailureKind::fileNotFound);
    EXPECT_THAT(failure.Description, AllOf(StartsWith("file not found: "), HasSubstr("none.aml")));
}

TEST(XmlBadFile, AFolderIsNoFile) {
    const TemporaryFolder folder;
    const Failure failure = FailureOfOpeningFile(folder.Path().string());
    EXPECT_EQ(failure.Number, FailureKind::pathNotFound);
    EXPECT_THAT(failure.Description, AllOf(StartsWith("path not found: "), HasSubstr("folder")));
}

TEST(XmlBadFile, AMissingFolderOnTheWayIsAPathThatIsNotFound) {
    const TemporaryFolder folder;
    EXPECT_EQ(FailureOfOpeningFile(folder.NameOf("no/demo.aml")).Number, FailureKind::pathNotFound);
    folder.Write("file", "x");
    EXPECT_EQ(FailureOfOpeningFile(folder.NameOf("file/demo.aml")).Number, FailureKind::pathNotFound);
}

TEST(XmlBadFile, AnyOtherFileFailureIsAFileAccessError) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("circle.aml", folder.Path() / "circle.aml");
    const Failure failure = FailureOfOpeningFile(folder.NameOf("circle.aml"));
    EXPECT_EQ(failure.Number, FailureKind::fileAccess);
    EXPECT_THAT(failure.Description, AllOf(StartsWith("file access error: "), HasSubstr("circle.aml")));
}

TEST(XmlBadFile, FileNamesMayHoldCharactersOutsideAscii) {
    const TemporaryFolder folder;
    EXPECT_EQ(FailureOfOpeningFile(folder.Write("Größe 日本.aml", AmlOf({}))).Number, 0);
}

TEST(XmlBadInput, AnEmptyFile) {
    ExpectInvalid(FailureOfOpening(""), "line 1, column 1", "the file is empty");
}

TEST(XmlBadInput, ATextThatIsNoXml) {
    ExpectInvalid(FailureOfOpening("Dear Sir,\n"), "line 1, column 1", "no XML");
    ExpectInvalid(FailureOfOpening("Dear"), "line 1, column 1", "no XML");
    ExpectInvalid(FailureOfOpening("\x7F\x45LF\x02\x01\x01\x02"), "line 1, column 1", "no XML");
}

TEST(XmlBadInput, XmlThatIsNoExport) {
    ExpectInvalid(FailureOfOpening("<?xml version=\"1.0\"?>\n  <html><body/></html>"), "line 2, column 3",
                  "\"html\"");
    ExpectInvalid(FailureOfOpening("<aml/>"), "line 1, column 1", "\"aml\"");
    ExpectInvalid(FailureOfOpening("<" + std::string(100000, 'x') + "/>"), "line 1, column 1", "xxx...\"");
}

TEST(XmlBadInput, ATruncatedExport) {
    RepositoryText content;
    content.root.models = {{.id = "M", .name = "Ümläut", .occurrences = {{.definition = "none"}}}};
    const std::string aml = AmlOf(content);
    for (std::size_t size = 1; size + 1 < aml.size(); ++size)
        ExpectInvalid(FailureOfOpening(aml.substr(0, size)), "line ", "the file ends before the export does");
}

TEST(XmlBadInput, BrokenMarkupTellsItsPlace) {
    ExpectInvalid(FailureOfOpening("<AML>\n<Group>\n</Model></AML>"), "line 3, column 3", "mismatched tag");
    ExpectInvalid(FailureOfOpening("<AML/>\n<AML/>"), "line 2, column 1", "junk after document element");
    ExpectInvalid(FailureOfOpening("<AML>\n<a b=\"1\" b=\"2\"/></AML>"), "line 2, column 10",
                  "duplicate attribute");
}

TEST(XmlBadInput, TextInAnotherEncodingThanTheDeclaredOne) {
    ExpectInvalid(
        FailureOfOpening("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<AML>\n<!-- Gr\xF6\xDF -->\n</AML>"),
        "line 3, column 8", "not in the encoding");
    ExpectInvalid(FailureOfOpening("<?xml version=\"1.0\" encoding=\"KOI8-X\"?><AML/>"), "line 1",
                  "encoding");
    ExpectInvalid(FailureOfOpening("<?xml version=\"1.0\" encoding=\"UTF-16\"?><AML/>"), "line 1",
                  "encoding");
}

TEST(XmlBadInput, Latin1IsReadWhereItIsDeclared) {
    OpenAml aml(
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><AML><Header-Info DatabaseName=\"K\xF6ln\"/></AML>");
    EXPECT_EQ(aml.Database()->Name(english), "Köln");
}

TEST(XmlBadInput, Utf16IsReadWhereItIsMarked) {
    std::string aml = "\xFF\xFE";
    for (const char byte : std::string_view("<!DOCTYPE AML SYSTEM \"x\" [<!ENTITY firm \"Wood\">]>"
                                            "<AML><Header-Info DatabaseName=\"&firm; works\"/></AML>"))
        aml.append({byte, '\0'});
    EXPECT_EQ(OpenAml(aml).Database()->Name(english), "Wood works");
}

std::string WithPosition(std::string_view position) {
    return AmlGroupDocument(
        "<ObjDef ObjDef.ID=\"F\" TypeNum=\"22\"/>\n<Model Model.ID=\"M\" Model.Type=\"13\">\n"
        "<ObjOcc ObjDef.IdRef=\"F\">\n <Position Pos.X=\"" +
        std::string(position) + "\" Pos.Y=\"0\"/></ObjOcc></Model>");
}

TEST(XmlBadInput, APositionThatIsNoNumberOf32Bits) {
    for (const std::string_view position : {"", "ten", "1.5", "1e3", "0x10", "2147483648", "-2147483649",
                                            "1 2", "+-1", "--1", "99999999999999999999"})
        ExpectInvalid(FailureOfOpening(WithPosition(position)), "line 10, column 2",
                      "Pos.X=\"" + std::string(position) + "\" is no whole number");
}

TEST(XmlBadInput, ALocaleThatIsNoNumber) {
    ExpectInvalid(FailureOfOpening(AmlDocument("<Language LocaleId=\"de\"/>")), "line 7, column 1",
                  "LocaleId=\"de\" is no whole number");
    ExpectInvalid(FailureOfOpening(AmlGroupDocument("<AttrDef AttrDef.Type=\"AT_NAME\">"
                                                    "<AttrValue LocaleId=\"\">x</AttrValue></AttrDef>")),
                  "line 7", "LocaleId=\"\" is no whole number");
}

TEST(XmlBadInput, ATypeNumberBeyond32Bits) {
    ExpectInvalid(FailureOfOpening(AmlGroupDocument("<ObjDef ObjDef.ID=\"F\" TypeNum=\"2147483648\"/>")),
                  "line 7", "\"2147483648\" is beyond 32 bits");
    ExpectInvalid(
        FailureOfOpening(AmlGroupDocument("<Model Model.ID=\"M\" Model.Type=\"99999999999999999999\"/>")),
        "line 7", "beyond 32 bits");
}

TEST(XmlBadInput, AnEntityThatTheFileDoesNotDeclare) {
    const std::string_view expected = "\"LocaleId.FRfr\" is not declared";
    ExpectInvalid(FailureOfOpening(AmlDocument("<Language LocaleId=\"&LocaleId.FRfr;\"/>")),
                  "line 7, column 1", expected);
    ExpectInvalid(
        FailureOfOpening(AmlGroupDocument("<ObjDef ObjDef.ID=\"&LocaleId.USen;&LocaleId.FRfr;\"/>")),
        "line 7, column 30", expected);
    const std::string value = "<AttrDef AttrDef.Type=\"1\"><AttrValue LocaleId=\"1033\">";
    ExpectInvalid(FailureOfOpening(AmlGroupDocument(value + "a &LocaleId.FRfr; b</AttrValue></AttrDef>")),
                  "line 7", expected);
    ExpectInvalid(FailureOfOpening(AmlGroupDocument(
                      value + "<PlainText TextValue=\"&amp;&LocaleId.FRfr;\"/></AttrValue></AttrDef>")),
                  "line 7", expected);
    ExpectInvalid(FailureOfOpening("<AML><Group Group.ID=\"&x;\"/></AML>"), "line 1",
                  "an entity is used that the file does not declare");
}

TEST(XmlBadInput, AnEntityOutsideOfTheFileIsNeverRead) {
    const TemporaryFolder folder;
    const std::string secret = folder.Write("secret.txt", "secret");
    const std::string declared = "<!DOCTYPE AML [<!ENTITY x SYSTEM \"" + secret + "\">]>\n<AML><Group>";
    const std::string value =
        "<AttrDef AttrDef.Type=\"1\"><AttrValue LocaleId=\"1033\">&x;</AttrValue></AttrDef>";
    ExpectInvalid(FailureOfOpening(declared + value + "</Group></AML>"), "line 2", "\"x\" is not declared");
    ExpectInvalid(FailureOfOpening(declared + "<Group Group.ID=\"&x;\"/></Group></AML>"), "line 2",
                  "external entity");
}

TEST(XmlBadInput, ADtdOfTheNameIsNeverRead) {
    const TemporaryFolder folder;
    folder.Write("ARIS-Export.dtd", "<!this is no DTD>");
    EXPECT_EQ(FailureOfOpeningFile(folder.Write("demo.aml", AmlOf({}))).Number, 0);
}

TEST(XmlBadInput, EntitiesThatExpandWithoutEnd) {
    std::string bomb = "<!DOCTYPE AML [<!ENTITY e0 \"0123456789\">";
    for (int i = 1; i < 12; ++i) {
        bomb += "<!ENTITY e" + std::to_string(i) + " \"";
        for (int j = 0; j < 10; ++j) bomb += "&e" + std::to_string(i - 1) + ";";
        bomb += "\">";
    }
    bomb += "]><AML><Group Group.ID=\"G\"><AttrDef AttrDef.Type=\"1\">";
    const std::string end = "</AttrValue></AttrDef></Group></AML>";
    ExpectInvalid(FailureOfOpening(bomb + "<AttrValue LocaleId=\"1033\">&e11;" + end), "line 1",
                  "expand without end");
    ExpectInvalid(
        FailureOfOpening(bomb + "<AttrValue LocaleId=\"1033\"><PlainText TextValue=\"&e11;\"/>" + end),
        "line 1", "expand without end");
    ExpectInvalid(FailureOfOpening("<!DOCTYPE AML [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]><AML a=\"&a;\"/>"),
                  "line 1", "expand without end");
}

TEST(XmlBadInput, AHundredThousandGroupsOneInAnother) {
    constexpr int depth = 100000;
    std::string opening;
    std::string closing;
    for (int i = 0; i < depth; ++i) {
        opening +=
            "<Group Group.ID=\"G" + std::to_string(i) + "\"><GUID>guid" + std::to_string(i) + "</GUID>\n";
        closing += "</Group>";
    }
    OpenAml aml(AmlDocument(opening + "<Model Model.ID=\"M\" Model.Type=\"13\"/>" + closing));
    EXPECT_EQ(aml.Model()->Group()->Guid(), "guid99999");
    const auto path = aml.Catalogue().GroupPath(aml.Model());
    ASSERT_EQ(path.size(), depth - 1U);
    EXPECT_EQ(path.front()->Guid(), "guid1");
    EXPECT_EQ(FailureOfOpening(AmlDocument(opening)).Number, FailureKind::invalidFileFormat);
}

TEST(XmlBadInput, AHundredThousandUnknownElementsOneInAnother) {
    std::string opening;
    std::string closing;
    for (int i = 0; i < 100000; ++i) {
        opening += "<x>";
        closing += "</x>";
    }
    EXPECT_EQ(FailureOfOpening(AmlDocument(opening + closing)).Number, 0);
}

/// A file of a size that is not to be held in memory: `before`, then `megabytes` of blanks, then `after`.
std::string WriteLarge(const TemporaryFolder& folder, std::string_view before, int megabytes,
                       std::string_view after) {
    const std::string name = folder.NameOf("demo.aml");
    std::ofstream out(name, std::ios::binary);
    const std::string megabyte(std::size_t{1} << 20U, 'x');
    out << before;
    for (int i = 0; i < megabytes; ++i) out << megabyte;
    out << after;
    return name;
}

TEST(XmlBadInput, ASingleValueAbove256Megabytes) {
    const std::string before = "<AML><Group>\n<AttrDef AttrDef.Type=\"1\"><AttrValue LocaleId=\"1033\">";
    const std::string after = "</AttrValue></AttrDef></Group></AML>";
    const TemporaryFolder folder;
    ExpectInvalid(FailureOfOpeningFile(WriteLarge(folder, before, 257, after)), "line 2",
                  "larger than 256 MiB");
    ExpectInvalid(
        FailureOfOpeningFile(WriteLarge(folder, before + "<PlainText TextValue=\"", 258, "\"/>" + after)),
        "line 2, column 54", "larger than 256 MiB");
    ExpectInvalid(FailureOfOpeningFile(WriteLarge(folder, "<!--", 300, "--><AML/>")), "line 1, column 1",
                  "larger than 256 MiB");
}

TEST(XmlBadInput, AValueOf256MegabytesIsRead) {
    const TemporaryFolder folder;
    const std::string before =
        "<AML><Model Model.ID=\"M\"><AttrDef AttrDef.Type=\"1\"><AttrValue LocaleId=\"1033\">";
    const auto opened =
        OpenXmlRepository({WriteLarge(folder, before, 256, "</AttrValue></AttrDef></Model></AML>"), {}, {}});
    EXPECT_EQ(opened->Models().Get(0)->Name(english).size(), std::size_t{256} << 20U);
}

TEST(XmlBadInput, WhatIsPassedOverMayBeLarger) {
    const TemporaryFolder folder;
    EXPECT_EQ(FailureOfOpeningFile(WriteLarge(folder, "<AML><OLEDef>", 300, "</OLEDef></AML>")).Number, 0);
}

TEST(XmlBadInput, ManySmallThingsInFrontOfTheRootMayBeLarger) {
    const TemporaryFolder folder;
    const std::string comment = "<!--" + std::string(std::size_t{1} << 20U, 'x') + "-->\n";
    std::string text;
    for (int i = 0; i < 300; ++i) text += comment;
    EXPECT_EQ(FailureOfOpeningFile(folder.Write("demo.aml", text + "<AML/>")).Number, 0);
}

TEST(XmlBadInput, WhatTheProgressThrowsComesOut) {
    const TemporaryFolder folder;
    const auto stop = [](std::uint64_t, std::uint64_t) {
        throw std::runtime_error("stopped");
    };
    EXPECT_THROW(OpenXmlRepository({folder.Write("demo.aml", AmlOf({})), {}, stop}), std::runtime_error);
}

}  // namespace

}  // namespace wxbrg::test
