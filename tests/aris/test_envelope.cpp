#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "aris/xml/XmlRepository.h"
#include "tests/aris/OpenAml.h"

// What stands around the items: header, languages, groups; and what an export holds that nobody asks for.

namespace wxbrg::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string Replaced(std::string text, std::string_view what, std::string_view by) {
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos);
    return text.replace(at, what.size(), by);
}

TEST(XmlDatabase, ServerIsLocal) {
    EXPECT_EQ(OpenAml(RepositoryText{}).Database()->ServerName(), "LOCAL");
}

TEST(XmlDatabase, NameIsTheOneOfTheHeader) {
    EXPECT_EQ(OpenAml({.databaseName = "Köln & Co"}).Database()->Name(english), "Köln & Co");
}

TEST(XmlDatabase, NameIsTheFilesWithoutAHeader) {
    EXPECT_EQ(OpenAml(AmlGroupDocument(""), "my orders.2024.aml").Database()->Name(english),
              "my orders.2024");
}

TEST(XmlDatabase, NameIsTheFilesWhereTheHeaderHasNone) {
    const std::string aml = AmlDocument("<Header-Info UserName=\"system\"/>");
    EXPECT_EQ(OpenAml(aml, "orders.aml").Database()->Name(english), "orders");
}

TEST(XmlDatabase, ActiveUserIsTheHeadersUnlessOneIsGiven) {
    OpenAml aml(RepositoryText{.userName = "hazim"});
    EXPECT_EQ(aml.Database()->ActiveUser()->Name(english), "hazim");
    EXPECT_EQ(aml.Database("anna")->ActiveUser()->Name(german), "anna");
}

TEST(XmlDatabase, ConnectionsUnderDifferentUsersLiveSideBySide) {
    OpenAml aml(RepositoryText{});
    const ARISDatabase first = aml.Database("first");
    const ARISDatabase second = aml.Database("second");
    EXPECT_EQ(first->ActiveUser()->Name(english), "first");
    EXPECT_EQ(second->ActiveUser()->Name(english), "second");
}

TEST(XmlDatabase, OtherComponentsAreNotThere) {
    OpenAml aml(RepositoryText{});
    EXPECT_FALSE(aml.Catalogue().Application()->GetComponent("Designer"));
}

TEST(XmlDatabase, FindModelsGivesThoseOfOneNameInTheOrderOfTheFile) {
    RepositoryText content;
    content.root.models = {{.id = "M1", .name = "Twin", .guid = "a"},
                           {.id = "M2", .name = "Other"},
                           {.id = "M3", .type = "MT_ORG_CHRT", .name = "Twin"},
                           {.id = "M4", .name = "Twin", .guid = "b"}};
    OpenAml aml(content);
    EXPECT_THAT(Guids(aml.Database()->FindModels(1, 13, 1, english, "Twin", 0)), ElementsAre("a", "b"));
}

TEST(XmlDatabase, FindModelsRefusesWhatItDoesNotServe) {
    OpenAml aml(RepositoryText{});
    const ARISDatabase database = aml.Database();
    EXPECT_THROW(database->FindModels(9, 13, 1, english, "x", 0), Failure);
    EXPECT_THROW(database->FindModels(1, 13, 2, english, "x", 0), Failure);
    EXPECT_THROW(database->FindModels(1, 13, 1, english, "x", 1), Failure);
}

TEST(XmlCatalogue, LocalesStandInTheOrderOfTheFileEachOnce) {
    OpenAml aml(
        AmlDocument("<Language LocaleId=\"&LocaleId.USen;\"><LanguageName> English\n</LanguageName>"
                    "<LogFont FaceName=\"Arial\"/></Language>"
                    "<Language LocaleId=\"&LocaleId.DEde;\"/>"
                    "<Language LocaleId=\"1033\"><LanguageName>Again</LanguageName></Language>"));
    const auto& locales = aml.Catalogue().Locales();
    ASSERT_EQ(locales.size(), 2U);
    EXPECT_EQ(locales[0].number, english);
    EXPECT_EQ(locales[0].name, "English");
    EXPECT_EQ(locales[1].number, german);
    EXPECT_EQ(locales[1].name, "");
}

TEST(XmlCatalogue, ModelsStandInTheOrderOfTheFile) {
    RepositoryText content;
    content.root.groups = {{.id = "G", .models = {{.id = "M2", .name = "b"}, {.id = "M1", .name = "a"}}}};
    content.root.models = {{.id = "M0", .type = "MT_ORG_CHRT", .name = "c"}};
    OpenAml aml(content);
    EXPECT_THAT(Names(aml.Catalogue().Models()), ElementsAre("b", "a", "c"));
}

TEST(XmlCatalogue, GroupPathLeavesTheRootGroupOut) {
    RepositoryText content;
    content.root.name = "Main group";
    content.root.groups = {
        {.id = "G1", .name = "Outer", .groups = {{.id = "G2", .name = "Inner", .models = {{.id = "M1"}}}}}};
    content.root.models = {{.id = "M2"}};
    OpenAml aml(content);
    EXPECT_THAT(Names(aml.Catalogue().GroupPath(aml.Catalogue().Models().Get(0))),
                ElementsAre("Outer", "Inner"));
    EXPECT_THAT(aml.Catalogue().GroupPath(aml.Catalogue().Models().Get(1)), IsEmpty());
}

TEST(XmlGroup, AttributesCountBehindItsModelsToo) {
    OpenAml aml(
        AmlGroupDocument("<Model Model.ID=\"M\" Model.Type=\"13\"/>"
                         "<Group Group.ID=\"G\"><AttrDef AttrDef.Type=\"AT_NAME\">"
                         "<AttrValue LocaleId=\"1033\">Inner</AttrValue></AttrDef></Group>"
                         "<AttrDef AttrDef.Type=\"AT_NAME\"><AttrValue LocaleId=\"1033\">Late</AttrValue>"
                         "</AttrDef><GUID>late</GUID>"));
    EXPECT_EQ(aml.Model()->Group()->Name(english), "Late");
    EXPECT_EQ(aml.Model()->Group()->Guid(), "late");
}

TEST(XmlGroup, AModelOutsideOfAnyGroupHasOneWithoutNameAndGuid) {
    OpenAml aml(AmlDocument("<Model Model.ID=\"M\" Model.Type=\"MT_EEPC\"/>"));
    const ARISGroup group = aml.Model()->Group();
    EXPECT_EQ(group->Name(english), "");
    EXPECT_EQ(group->Guid(), "");
    EXPECT_FALSE(group->Attribute(9, english)->IsMaintained());
    EXPECT_THAT(aml.Catalogue().GroupPath(aml.Model()), IsEmpty());
}

TEST(XmlReader, PassesOverWhatTheExportDoesNotNeed) {
    const std::string named =
        "<AttrDef AttrDef.Type=\"AT_NAME\"><AttrValue LocaleId=\"1033\">Wrong</AttrValue></AttrDef>";
    OpenAml aml(AmlDocument(
        "<Database>" + named + "</Database><LDAPSettings>\n</LDAPSettings>" +
        "<User User.ID=\"U\"><GUID>wrong</GUID>" + named + "</User><UserGroup>" + named + "</UserGroup>" +
        "<FontStyleSheet FontSS.ID=\"S\"><GUID>wrong</GUID>" + named + "</FontStyleSheet>" + "<FFTextDef>" +
        named + "</FFTextDef><OLEDef><OLEData>TVqQAAMA</OLEData></OLEDef>" +
        "<Future Pos.X=\"none\"><Group><Model Model.ID=\"X\"/></Group></Future>" +
        "<Group Group.ID=\"Group.Root\"><Model Model.ID=\"M\" Model.Type=\"MT_EEPC\" Future=\"1\">"
        "<Lane Lane.Type=\"x\"><GUID>wrong</GUID>" +
        named + "</Lane><Future><ObjOcc ObjDef.IdRef=\"D\"/></Future>" +
        "<GfxObj><Position Pos.X=\"none\"/></GfxObj><FFTextOcc>" + named + "</FFTextOcc>" +
        "</Model></Group><Delete>" + named + "</Delete>"));
    EXPECT_EQ(aml.Catalogue().Models().Count(), 1);
    EXPECT_EQ(aml.Model()->Name(english), "");
    EXPECT_EQ(aml.Model()->Guid(), "M");
    EXPECT_EQ(aml.Model()->Group()->Guid(), "Group.Root");
    EXPECT_EQ(aml.Catalogue().Dangling().Total(), 0U);
}

TEST(XmlReader, TakesStartTagsThatSpreadOverLinesAndCarriageReturns) {
    std::string aml = AmlOf({.root = {.id = "G", .models = {{.id = "M", .name = "Order"}}}});
    aml = Replaced(aml, "<Model Model.ID=\"M\"", "<Model\n\t\tModel.ID=\"M\"\n\t\t");
    std::string withReturns;
    for (const char byte : aml) withReturns.append(byte == '\n' ? "\r\n" : std::string(1, byte));
    EXPECT_EQ(OpenAml(withReturns).Model()->Name(english), "Order");
}

TEST(XmlReader, TakesAByteOrderMark) {
    EXPECT_EQ(OpenAml("\xEF\xBB\xBF" + AmlOf({.databaseName = "Marked"})).Database()->Name(english),
              "Marked");
}

TEST(XmlReader, NeedsNeitherXmlDeclarationNorDoctype) {
    EXPECT_EQ(OpenAml("<AML><Header-Info DatabaseName=\"Bare\"/></AML>").Database()->Name(english), "Bare");
}

TEST(XmlReader, ExpandsEntitiesInAttributeValuesAndText) {
    OpenAml aml(
        "<!DOCTYPE AML SYSTEM \"ARIS-Export.dtd\" [<!ENTITY L \"1031\"><!ENTITY firm \"A &amp; B\">"
        "<!ENTITY both \"&firm; Köln\">]><AML><Group><Model Model.ID=\"M\" Model.Type=\"13\">"
        "<AttrDef AttrDef.Type=\"AT_NAME\"><AttrValue LocaleId=\"&L;\">at &both;</AttrValue></AttrDef>"
        "<AttrDef AttrDef.Type=\"AT_DESC\"><AttrValue LocaleId=\"&L;\"><PlainText TextValue=\"&firm;\"/>"
        "</AttrValue></AttrDef></Model></Group></AML>");
    EXPECT_EQ(aml.Model()->Name(german), "at A & B Köln");
    EXPECT_EQ(aml.Model()->Attribute(9, german)->GetValue(false), "A & B");
}

TEST(XmlReader, TakesEntitiesThatAreUsedHundredsOfThousandsOfTimes) {
    std::string body = "<Model Model.ID=\"M\" Model.Type=\"13\">";
    for (int i = 0; i < 200000; ++i)
        body += "<AttrDef AttrDef.Type=\"" + std::to_string(i) +
                "\"><AttrValue LocaleId=\"&LocaleId.DEde;\">v</AttrValue></AttrDef>\n";
    OpenAml aml(AmlGroupDocument(body + "</Model>"));
    EXPECT_EQ(aml.Model()->Attribute(199999, german)->GetValue(false), "v");
}

TEST(XmlReader, TellsHowFarItHasCome) {
    const TemporaryFolder folder;
    const std::string comment = "<!--" + std::string(3U << 20U, ' ') + "-->";
    const std::string aml = AmlDocument(comment);
    std::vector<std::uint64_t> reported;
    OpenXmlRepository({folder.Write("demo.aml", aml), {}, [&](std::uint64_t done, std::uint64_t total) {
                           reported.push_back(done);
                           EXPECT_EQ(total, aml.size());
                       }});
    ASSERT_GE(reported.size(), 2U);
    EXPECT_TRUE(std::is_sorted(reported.begin(), reported.end()));
    EXPECT_EQ(reported.back(), aml.size());
}

}  // namespace

}  // namespace wxbrg::test
