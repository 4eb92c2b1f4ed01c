#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/aris/OpenAml.h"

// The texts of attributes: by locale, plain and with markup.

namespace wxbrg::test {

namespace {

using testing::ElementsAre;

/// An export whose one model holds these elements.
std::string WithModel(std::string_view inside) {
    return AmlGroupDocument("<Model Model.ID=\"M\" Model.Type=\"13\">" + std::string(inside) + "</Model>");
}

/// The name that a value with this content is.
std::string NameOfValue(std::string_view value) {
    OpenAml aml(WithModel("<AttrDef AttrDef.Type=\"AT_NAME\"><AttrValue LocaleId=\"1033\">" +
                          std::string(value) + "</AttrValue></AttrDef>"));
    EXPECT_TRUE(aml.Model()->Attribute(1, english)->IsMaintained());
    return aml.Model()->Name(english);
}

TEST(XmlValue, PlainTextStandsExactlyAsItIs) {
    EXPECT_EQ(NameOfValue("  two  blanks\n\tand a tab "), "  two  blanks\n\tand a tab ");
    EXPECT_EQ(NameOfValue("&lt;a&gt; &amp; &#228;&#x20AC;"), "<a> & ä€");
    EXPECT_EQ(NameOfValue("<![CDATA[a <b> c]]> d"), "a <b> c d");
    EXPECT_EQ(NameOfValue("\n"), "\n");
}

TEST(XmlValue, AnEmptyValueIsMaintained) {
    EXPECT_EQ(NameOfValue(""), "");
    EXPECT_EQ(NameOfValue("<StyledElement>\n</StyledElement>"), "");
}

TEST(XmlValue, RunsOfMarkupAreJoinedWithoutTheIndentationBetweenThem) {
    EXPECT_EQ(
        NameOfValue("\n <StyledElement>\n  <Paragraph Alignment=\"UNDEFINED\" Indent=\"0\"/>\n"
                    "  <StyledElement>\n   <Bold/>\n   <StyledElement><PlainText TextValue=\"Order \"/>"
                    "</StyledElement>\n  </StyledElement>\n"
                    "  <StyledElement>\n   <PlainText TextValue=\"&#228;nd&amp;rn\"/>\n  </StyledElement>\n"
                    " </StyledElement>\n"),
        "Order änd&rn");
}

TEST(XmlValue, PlainTextMayStandStraightInTheValue) {
    EXPECT_EQ(NameOfValue("\n<PlainText TextValue=\"a\"/>\n<PlainText TextValue=\"b\"/>\n"), "ab");
}

TEST(XmlValue, LineBreaksAndFurtherParagraphsAreLineBreaks) {
    EXPECT_EQ(
        NameOfValue("<StyledElement><Paragraph/><PlainText TextValue=\"a\"/><LineBreak/>"
                    "<PlainText TextValue=\"b\"/><Paragraph/><PlainText TextValue=\"c\"/></StyledElement>"
                    "<StyledElement><Paragraph/><PlainText TextValue=\"d\"/></StyledElement>"),
        "a\nb\nc\nd");
}

TEST(XmlValue, SoftHyphensSayNothing) {
    EXPECT_EQ(NameOfValue("<StyledElement><PlainText TextValue=\"Auf\"/><SoftHyphen/>"
                          "<PlainText TextValue=\"trag\"/></StyledElement>"),
              "Auftrag");
    EXPECT_EQ(NameOfValue(" <SoftHyphen/> "), "");
}

TEST(XmlValue, UnknownElementsSayNothing) {
    EXPECT_EQ(NameOfValue("a<Future><More>x</More></Future>b"), "ab");
    EXPECT_EQ(NameOfValue("<StyledElement><Future>x<PlainText/></Future><PlainText TextValue=\"a\"/>"
                          "</StyledElement>"),
              "a");
}

TEST(XmlValue, MarkupMayNestDeeply) {
    std::string value = "<PlainText TextValue=\"deep\"/>";
    std::string opening;
    std::string closing;
    for (int i = 0; i < 100000; ++i) {
        opening += "<StyledElement>";
        closing += "</StyledElement>";
    }
    EXPECT_EQ(NameOfValue(opening + value + closing), "deep");
}

TEST(XmlValue, EachKindOfLineBreakBecomesOneBlankOnDemand) {
    OpenAml aml(
        WithModel("<AttrDef AttrDef.Type=\"8\"><AttrValue LocaleId=\"1033\">a&#13;&#10;b&#13;c\nd"
                  "</AttrValue></AttrDef>"));
    EXPECT_EQ(aml.Model()->Attribute(8, english)->GetValue(false), "a\r\nb\rc\nd");
    EXPECT_EQ(aml.Model()->Attribute(8, english)->GetValue(true), "a b c d");
}

TEST(XmlValue, NameKeepsItsLineBreaks) {
    EXPECT_EQ(NameOfValue("<PlainText TextValue=\"Check\"/><LineBreak/><PlainText TextValue=\"order\"/>"),
              "Check\norder");
}

TEST(XmlValue, LocaleIsTheOneThatItsEntityExpandsTo) {
    OpenAml aml(
        WithModel("<AttrDef AttrDef.Type=\"AT_NAME\"><AttrValue LocaleId=\"&LocaleId.DEde;\">Auftrag"
                  "</AttrValue><AttrValue LocaleId=\" 1033 \">Order</AttrValue></AttrDef>"));
    EXPECT_EQ(aml.Model()->Name(german), "Auftrag");
    EXPECT_EQ(aml.Model()->Name(english), "Order");
    EXPECT_EQ(aml.Model()->Name(1036), "");
}

TEST(XmlValue, ThereIsNoFallingBackToAnotherLocale) {
    OpenAml aml(
        WithModel("<AttrDef AttrDef.Type=\"AT_DESC\"><AttrValue LocaleId=\"1031\">Nur deutsch</AttrValue>"
                  "</AttrDef>"));
    EXPECT_FALSE(aml.Model()->Attribute(9, english)->IsMaintained());
    EXPECT_EQ(aml.Model()->Attribute(9, english)->GetValue(false), "");
}

TEST(XmlValue, AValueWithoutALocaleBelongsToNone) {
    OpenAml aml(WithModel("<AttrDef AttrDef.Type=\"AT_NAME\"><AttrValue>Nowhere</AttrValue></AttrDef>"));
    EXPECT_FALSE(aml.Model()->Attribute(1, 0)->IsMaintained());
}

TEST(XmlValue, TheFirstOfTwoValuesForOneLocaleCounts) {
    OpenAml aml(
        WithModel("<AttrDef AttrDef.Type=\"AT_NAME\"><AttrValue LocaleId=\"1033\">first</AttrValue>"
                  "<AttrValue LocaleId=\"1033\">second</AttrValue></AttrDef>"
                  "<AttrDef AttrDef.Type=\"1\"><AttrValue LocaleId=\"1033\">third</AttrValue></AttrDef>"));
    EXPECT_EQ(aml.Model()->Name(english), "first");
}

TEST(XmlValue, AttributeListKeepsTheOrderOfTheFile) {
    RepositoryText content;
    content.root.definitions = {
        {.id = "F", .values = {{"985", "c"}, {"AT_NAME", "a"}, {"9", "d", german}, {"AT_REM", "b"}}}};
    content.root.models = {{.id = "M", .occurrences = {{.definition = "F"}}}};
    OpenAml aml(content);
    std::vector<std::string> values;
    for (const ARISAttr& attribute : aml.Function()->AttrList(english))
        values.push_back(attribute->GetValue(false) + " " + std::string(attribute->Type()));
    EXPECT_THAT(values, ElementsAre("c User attribute 1", "a Name", "b Remark/Example"));
}

TEST(XmlValue, AttributesOfOccurrencesAndConnectionsAreNotTheObjects) {
    OpenAml aml(
        AmlGroupDocument("<ObjDef ObjDef.ID=\"F\" TypeNum=\"22\"><CxnDef CxnDef.ID=\"C\" CxnDef.Type=\"1\" "
                         "ToObjDef.IdRef=\"F\">"
                         "<AttrDef AttrDef.Type=\"AT_NAME\"><AttrValue "
                         "LocaleId=\"none\">wrong</AttrValue></AttrDef></CxnDef></ObjDef>"
                         "<Model Model.ID=\"M\" Model.Type=\"13\"><ObjOcc ObjDef.IdRef=\"F\"><AttrDef "
                         "AttrDef.Type=\"AT_NAME\">"
                         "<AttrValue LocaleId=\"1033\">wrong</AttrValue></AttrDef></ObjOcc></Model>"));
    EXPECT_EQ(aml.Function()->Name(english), "");
    EXPECT_EQ(aml.Model()->Name(english), "");
}

TEST(XmlValue, ManyValuesOfOneItemAreFound) {
    RepositoryText content;
    content.root.models = {{.id = "M"}};
    for (int type = 5000; type > 0; --type)
        content.root.models[0].values.push_back({std::to_string(type), "v" + std::to_string(type)});
    OpenAml aml(content);
    EXPECT_EQ(aml.Model()->Name(english), "v1");
    EXPECT_EQ(aml.Model()->Attribute(4999, english)->GetValue(false), "v4999");
}

TEST(XmlValue, MillionsOfReferencesAreAValue) {
    constexpr std::size_t count = 4000000;
    std::string references;
    for (std::size_t i = 0; i < count; ++i) references += "&amp;";
    EXPECT_EQ(NameOfValue("<PlainText TextValue=\"" + references + "\"/>").size(), count);
}

TEST(XmlValue, AHundredMegabytesAreAValue) {
    constexpr std::size_t size = 100U << 20U;
    const std::string text(size, 'x');
    EXPECT_EQ(NameOfValue(text).size(), size);
    EXPECT_EQ(NameOfValue("<PlainText TextValue=\"" + text + "\"/>").size(), size);
}

}  // namespace

}  // namespace wxbrg::test
