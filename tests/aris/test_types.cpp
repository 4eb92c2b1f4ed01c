#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "aris/xml/BuiltInTypes.h"
#include "aris/xml/TypeTable.h"
#include "tests/aris/OpenAml.h"

namespace wxbrg::test {

namespace {

using testing::HasSubstr;

RepositoryText OneFunction(const std::string& type, const std::string& modelType = "MT_EEPC") {
    RepositoryText content;
    content.root.definitions = {{.id = "F", .type = type}};
    content.root.models = {{.id = "M", .type = modelType, .occurrences = {{.definition = "F"}}}};
    return content;
}

ARISObjDef FirstObject(OpenAml& aml, std::int32_t type) {
    return OpenAml::Objects(aml.Model(), type).Get(0);
}

TEST(TypeTable, FindsEachBuiltInTypeByNameAndByNumber) {
    const xml::TypeTable table;
    for (const xml::TypeRow& row : xml::builtInTypes) {
        ASSERT_NE(table.Find(row.kind, row.apiName), nullptr) << row.apiName;
        EXPECT_EQ(table.Find(row.kind, row.apiName)->number, row.number);
        EXPECT_EQ(table.Find(row.kind, row.apiName)->readableName, row.readableName);
        EXPECT_EQ(*table.NameOf(row.kind, row.number), row.readableName);
    }
    EXPECT_EQ(table.Find(xml::TypeKind::object, "MT_EEPC"), nullptr);
    EXPECT_EQ(table.NameOf(xml::TypeKind::model, 22222), nullptr);
}

TEST(XmlType, ApiNameGivesNumberAndReadableName) {
    OpenAml aml(OneFunction("OT_FUNC", "MT_VAL_ADD_CHN_DGM"));
    EXPECT_EQ(aml.Model()->TypeNum(), 12);
    EXPECT_EQ(aml.Model()->Type(), "Value-added chain diagram");
    EXPECT_EQ(FirstObject(aml, 22)->Type(), "Function");
}

TEST(XmlType, PlainNumberIsTheNumberAndItsNameTheTables) {
    OpenAml aml(OneFunction("022", "13"));
    EXPECT_EQ(aml.Model()->Type(), "EPC");
    EXPECT_EQ(FirstObject(aml, 22)->Type(), "Function");
}

TEST(XmlType, PlainNumberThatTheTableLacksIsItsOwnName) {
    OpenAml aml(OneFunction("26", "138"));
    EXPECT_EQ(aml.Model()->Type(), "138");
    EXPECT_EQ(FirstObject(aml, 26)->Type(), "26");
    EXPECT_TRUE(aml.Catalogue().UnknownTypes().empty());
}

TEST(XmlType, NamesOfOneKindAreNotThoseOfAnother) {
    OpenAml aml(OneFunction("MT_EEPC"));
    EXPECT_EQ(FirstObject(aml, 100000)->Type(), "MT_EEPC");
}

TEST(XmlType, NamesDifferByCase) {
    OpenAml aml(OneFunction("ot_func"));
    EXPECT_EQ(FirstObject(aml, 100000)->Type(), "ot_func");
}

TEST(XmlType, BlanksAroundANameSayNothing) {
    OpenAml aml(OneFunction(" OT_FUNC "));
    EXPECT_EQ(FirstObject(aml, 22)->TypeNum(), 22);
}

TEST(XmlType, AMissingTypeIsZero) {
    OpenAml aml(
        AmlGroupDocument("<Model Model.ID=\"M\"><ObjOcc ObjDef.IdRef=\"F\"/></Model>"
                         "<ObjDef ObjDef.ID=\"F\"/>"));
    EXPECT_EQ(aml.Model()->TypeNum(), 0);
    EXPECT_EQ(FirstObject(aml, 0)->TypeNum(), 0);
    EXPECT_TRUE(aml.Catalogue().UnknownTypes().empty());
}

TEST(XmlType, UnknownNamesAreNumberedByKindInTheOrderOfTheirAppearanceAndListed) {
    RepositoryText content;
    content.root.definitions = {
        {.id = "A", .type = "OT_NEW", .symbol = "ST_NEW"},
        {.id = "B", .type = "OT_FUNC", .values = {{"AT_NEW", "x"}}},
        {.id = "C", .type = "OT_OTHER", .connections = {{"c", "OT_A.CT_NEW.OT_B", "C"}}},
        {.id = "D", .type = "OT_NEW"}};
    content.root.models = {
        {.id = "M", .type = "MT_NEW", .occurrences = {{.definition = "A"}, {.definition = "C"}}}};
    OpenAml aml(content);
    EXPECT_EQ(aml.Model()->TypeNum(), 100000);
    EXPECT_EQ(aml.Model()->Type(), "MT_NEW");
    EXPECT_EQ(FirstObject(aml, 100000)->Type(), "OT_NEW");
    EXPECT_EQ(FirstObject(aml, 100001)->Type(), "OT_OTHER");
    EXPECT_EQ(FirstObject(aml, 100000)->OccList().Get(0)->SymbolNum(), 100000);
    EXPECT_EQ(Connections(FirstObject(aml, 100001), CxnKind::outgoing, 100000).Count(), 1);

    using Kind = aris::UnknownType::Kind;
    const auto& unknown = aml.Catalogue().UnknownTypes();
    ASSERT_EQ(unknown.size(), 6U);
    const auto expect = [&](std::size_t at, Kind kind, std::string_view name, std::int32_t number,
                            int count) {
        EXPECT_EQ(unknown[at].kind, kind);
        EXPECT_EQ(unknown[at].apiName, name);
        EXPECT_EQ(unknown[at].number, number);
        EXPECT_EQ(unknown[at].occurrences, static_cast<std::uint64_t>(count));
    };
    expect(0, Kind::object, "OT_NEW", 100000, 2);
    expect(1, Kind::symbol, "ST_NEW", 100000, 1);
    expect(2, Kind::attribute, "AT_NEW", 100000, 1);
    expect(3, Kind::object, "OT_OTHER", 100001, 1);
    expect(4, Kind::connection, "CT_NEW", 100000, 1);
    expect(5, Kind::model, "MT_NEW", 100000, 1);
}

TEST(XmlType, TheNameOfAnUnknownAttributeIsKnownWithoutAValueToo) {
    RepositoryText content = OneFunction("22");
    content.root.definitions[0].values = {{"AT_NEW", "x", german}};
    OpenAml aml(content);
    EXPECT_EQ(FirstObject(aml, 22)->Attribute(100000, english)->Type(), "AT_NEW");
    EXPECT_EQ(FirstObject(aml, 22)->Attribute(123, english)->Type(), "123");
    EXPECT_EQ(FirstObject(aml, 22)->Attribute(509, english)->Type(), "E-mail address");
}

TEST(TypesFile, ExtendsTheTableAndLaterLinesWin) {
    constexpr std::string_view types =
        "\xEF\xBB\xBF# kind\tAPI name\tnumber\treadable name\tcertainty\r\n"
        "\r\n"
        "OT\tOT_INFO_FLOW\t27\tFlow\tknown\r\n"
        "OT\tOT_INFO_FLOW\t26\tInformation flow\r\n"
        "MT\tMT_EEPC\t13\tEreignisgesteuerte Prozesskette\tknown\textra\r\n"
        "OT\tOT_FUNC\t9022\tMoved function\n";
    OpenAml flow(AmlOf(OneFunction("OT_INFO_FLOW")), "demo.aml", types);
    EXPECT_EQ(flow.Model()->Type(), "Ereignisgesteuerte Prozesskette");
    EXPECT_EQ(FirstObject(flow, 26)->Type(), "Information flow");
    OpenAml moved(AmlOf(OneFunction("OT_FUNC")), "demo.aml", types);
    EXPECT_EQ(FirstObject(moved, 9022)->Type(), "Moved function");
}

TEST(TypesFile, NumbersOfTheTableAreNotGivenToUnknownNames) {
    OpenAml aml(AmlOf(OneFunction("OT_NEW")), "demo.aml", "OT\tOT_MINE\t100000\tMine\n");
    EXPECT_EQ(FirstObject(aml, 100001)->Type(), "OT_NEW");
}

/// What opening with a types file of this content says.
Failure FailureWithTypes(std::string_view types) {
    const TemporaryFolder folder;
    return FailureOfOpeningFile(folder.Write("demo.aml", AmlOf({})), folder.Write("types.tsv", types));
}

TEST(TypesFile, ARowThatIsNoneIsAnErrorWithFileAndLine) {
    for (const std::string_view row :
         {"OT\tOT_X\t5", "XT\tXT_X\t5\tX", "OT\t \t5\tX", "OT\tOT_X\tfive\tX", "OT\tOT_X\t-5\tX",
          "OT\tOT_X\t2147483648\tX", "OT\tOT_X\t5\t ", "OT\tOT_X\t5\tX\xFF", "OT OT_X 5 X"}) {
        const Failure failure = FailureWithTypes("# comment\n" + std::string(row) + "\nOT\tOT_Y\t6\tY\n");
        EXPECT_EQ(failure.Number, FailureKind::invalidFileFormat) << row;
        EXPECT_THAT(failure.Description, HasSubstr("invalid file format: ")) << row;
        EXPECT_THAT(failure.Description, HasSubstr("types.tsv, line 2: ")) << row;
    }
}

TEST(TypesFile, AMissingFileIsAnError) {
    const TemporaryFolder folder;
    const Failure failure =
        FailureOfOpeningFile(folder.Write("demo.aml", AmlOf({})), folder.NameOf("none.tsv"));
    EXPECT_EQ(failure.Number, FailureKind::fileNotFound);
    EXPECT_THAT(failure.Description, HasSubstr("none.tsv"));
}

}  // namespace

}  // namespace wxbrg::test
