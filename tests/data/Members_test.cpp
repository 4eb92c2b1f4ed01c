#include <gmock/gmock.h>

#include "data/clsDATA_MEMBER.h"
#include "data/clsDATA_STRUCTURE.h"
#include "data/modDATA_MEMBER.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MembersTest : public CoreTest {
  protected:
    Ref<FakeObject> Attribute(const std::string& name) { return Drawn(ObjectType::ermAttribute, name); }
    /// A domain of an attribute, whose word is given.
    Ref<FakeObject> AddDomain(Ref<FakeObject> attribute, const std::string& word) {
        const Ref<FakeObject> domain = Drawn(ObjectType::domainType, "Domain of " + word)->With(123, word);
        repository.Connect(attribute, 121, domain);
        return domain;
    }
    static std::string TypeOf(Ref<FakeObject> attribute) {
        return DATA_MEMBER_Add_ARIS_Mapping(attribute)->DataType;
    }
};

TEST_F(MembersTest, AMemberBeginsAsAString) {
    const clsDATA_MEMBER member;
    EXPECT_FALSE(member.ARISObjectDefinition);
    EXPECT_EQ(member.DataType, "STRING");
    EXPECT_EQ(member.MemberName + member.DESCRIPTION + member.DOCUMENTATION + member.SizeOfArray, "");
    EXPECT_FALSE(member.DATA_STRUCTURE);
    EXPECT_FALSE(member.IsDataStructure);
    EXPECT_FALSE(member.SetupFinished);
}

TEST_F(MembersTest, AMemberIsFilledAndNotedWhenItIsMade) {
    const Ref<FakeObject> object = Attribute("_No. 1")->With(9, "what\t")->With(8, "how");
    const Ref<clsDATA_MEMBER> member = DATA_MEMBER_Add_ARIS_Mapping(object);
    EXPECT_EQ(member->MemberName, "'No_ 1'");
    EXPECT_EQ(member->DESCRIPTION, "'what'");
    EXPECT_EQ(member->DOCUMENTATION, "'how'");
    EXPECT_EQ(member->DataType, "STRING");
    EXPECT_TRUE(member->SetupFinished);
    EXPECT_EQ(gBlock.gColDATA_MEMBER.Item(object->Guid()), member);
    EXPECT_THAT(Notes(3060), ElementsAre("I3060|_No. 1|T19|DATA_MEMBER"));
    EXPECT_THAT(Notes(3090), IsEmpty());
    ForgetNotes();
    EXPECT_EQ(DATA_MEMBER_Add_ARIS_Mapping(object), member);
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(MembersTest, TextsAreGatedByTheirOptions) {
    gBlock.gOptUseDescriptionAttr = gBlock.gOptUseDocumentationAttr = false;
    const Ref<clsDATA_MEMBER> member =
        DATA_MEMBER_Add_ARIS_Mapping(Attribute("a")->With(9, "what")->With(8, "how"));
    EXPECT_EQ(member->DESCRIPTION + member->DOCUMENTATION, "");
}

TEST_F(MembersTest, TheOptionDecidesWhetherTheAttributeOrTheDomainComesFirst) {
    const auto both = [&] {
        const Ref<FakeObject> attribute = Attribute("both")->With(494, "Real");
        AddDomain(attribute, "Integer");
        return attribute;
    };
    gBlock.gOptDataTypeFromAttribute = true;
    EXPECT_EQ(TypeOf(both()), "FLOAT");
    gBlock.gOptDataTypeFromAttribute = false;
    EXPECT_EQ(TypeOf(both()), "LONG");
}

TEST_F(MembersTest, TheOtherSourceServesWhereTheFirstIsEmpty) {
    for (const bool attributeFirst : {true, false}) {
        gBlock.gOptDataTypeFromAttribute = attributeFirst;
        EXPECT_EQ(TypeOf(Attribute("by attribute")->With(494, "Real")), "FLOAT");
        const Ref<FakeObject> byDomain = Attribute("by domain");
        AddDomain(byDomain, "Okt");
        EXPECT_EQ(TypeOf(byDomain), "LONG");
        EXPECT_EQ(TypeOf(Attribute("neither")), "STRING");
    }
}

TEST_F(MembersTest, TheWordIsTrimmedAndComparedWithCase) {
    EXPECT_EQ(TypeOf(Attribute("a")->With(494, " Smallint ")), "LONG");
    EXPECT_EQ(TypeOf(Attribute("b")->With(494, "smallint")), "STRING");
    EXPECT_EQ(TypeOf(Attribute("c")->With(494, "Number (n)")), "LONG");
    EXPECT_EQ(TypeOf(Attribute("d")->With(494, "Number (n,m)")), "FLOAT");
    EXPECT_EQ(TypeOf(Attribute("e")->With(494, "Boolean")), "STRING");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(MembersTest, WithoutNameConversionTheWordStays) {
    gBlock.gOptConvertNames = false;
    EXPECT_EQ(TypeOf(Attribute("a")->With(494, "Number (n)")), "Number (n)");
    EXPECT_EQ(TypeOf(Attribute("b")), "STRING");
}

TEST_F(MembersTest, ADomainIsReachedDirectlyOrOverAUnit) {
    const Ref<FakeObject> attribute = Attribute("a");
    const Ref<FakeObject> unit = Drawn(ObjectType::unit, "Unit");
    repository.Connect(attribute, 121, unit);
    repository.Connect(unit, 121, Drawn(ObjectType::domainType, "Domain")->With(123, "Float"));
    EXPECT_EQ(TypeOf(attribute), "FLOAT");
}

TEST_F(MembersTest, TheFirstDomainCountsAndFurtherOnesAreNoted) {
    const Ref<FakeObject> attribute = Attribute("a");
    AddDomain(attribute, "Float");
    AddDomain(attribute, "Hex");
    AddDomain(attribute, "Okt");
    EXPECT_EQ(TypeOf(attribute), "FLOAT");
    EXPECT_THAT(Notes(3000), ElementsAre("E3000|DATA_MEMBER|DOMAINTYPE"));
    EXPECT_THAT(Notes(3030), ElementsAre("I3030|Domain of Hex|T20", "I3030|Domain of Okt|T20"));
}

TEST_F(MembersTest, AnEmptyFirstDomainIsNotReplacedByTheSecond) {
    const Ref<FakeObject> attribute = Attribute("a");
    AddDomain(attribute, "");
    AddDomain(attribute, "Float");
    EXPECT_EQ(TypeOf(attribute), "STRING");
}

TEST_F(MembersTest, AnyOtherRuleGivesNoDataType) {
    clsDATA_MEMBER member;
    EXPECT_EQ(member.GetProperty_DataType("DATA_MEMBER_DESCRIPTION"), "");
    EXPECT_EQ(member.GetProperty_DataType("NO_RULE"), "");
}

TEST_F(MembersTest, TheSizeOfAnArrayIsANumberAsItStands) {
    gBlock.gOptUseOtherSettings = true;
    const auto size = [&](const std::string& text) {
        return DATA_MEMBER_Add_ARIS_Mapping(Attribute("a")->With(985, text))->SizeOfArray;
    };
    EXPECT_EQ(size("12"), "(12)");
    EXPECT_EQ(size(" 1.5e2 "), "( 1.5e2 )");
    EXPECT_EQ(size("-3"), "(-3)");
    EXPECT_EQ(size("twelve"), "");
    EXPECT_EQ(size("1,000"), "");
    EXPECT_EQ(size("&H10"), "");
    EXPECT_EQ(size(""), "");
    gBlock.gOptUseOtherSettings = false;
    EXPECT_EQ(size("12"), "");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(MembersTest, AStructureIsAMemberOfItsOwnNameWhoseTypeIsNotRead) {
    const Ref<FakeObject> order = EntityType("Order", {"Number"})->With(494, "Real");
    const Ref<clsDATA_MEMBER> member = DATA_MEMBER_Add_ARIS_Mapping(order);
    EXPECT_TRUE(member->IsDataStructure);
    EXPECT_EQ(member->DataType, "'Order'");
    EXPECT_EQ(member->DATA_STRUCTURE, gBlock.gColDATA_STRUCTURE.Item(order->Guid()));
    EXPECT_THAT(Notes(3060), ElementsAre("I3060|Number|T19|DATA_MEMBER", "I3060|Order|T17|DATA_STRUCTURE",
                                         "I3060|Order|T17|DATA_MEMBER"));
}

TEST_F(MembersTest, AStructureAsAMemberIsOfTheMembersNameNotTheStructures) {
    NewAttributeRule("DATA_MEMBER_MemberName", "4711");
    const Ref<FakeObject> order = EntityType("Order", {"Number"})->With(4711, "Purchase");
    const Ref<clsDATA_MEMBER> member = DATA_MEMBER_Add_ARIS_Mapping(order);
    EXPECT_EQ(member->DataType, "'Purchase'");
    EXPECT_EQ(member->DATA_STRUCTURE->ObjectName, "'Order'");
}

TEST_F(MembersTest, AStructureAsAMemberMayHaveASize) {
    gBlock.gOptUseOtherSettings = true;
    EXPECT_EQ(DATA_MEMBER_Add_ARIS_Mapping(EntityType("Order", {"Number"})->With(985, "3"))->SizeOfArray,
              "(3)");
}

TEST_F(MembersTest, AnUnnamedStructureIsOfAnEmptyType) {
    const Ref<clsDATA_MEMBER> member = DATA_MEMBER_Add_ARIS_Mapping(EntityType("", {"Number"}));
    EXPECT_EQ(member->MemberName, "");
    EXPECT_EQ(member->DataType, "");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(MembersTest, ADataObjectWithoutMembersIsAPlainMember) {
    const Ref<clsDATA_MEMBER> member = DATA_MEMBER_Add_ARIS_Mapping(EntityType("Bare", {}));
    EXPECT_FALSE(member->IsDataStructure);
    EXPECT_EQ(member->DataType, "STRING");
    EXPECT_TRUE(gBlock.gColDATA_STRUCTURE.IsEmpty());
}

TEST_F(MembersTest, AnotherTypeIsNoDataObject) {
    EXPECT_EQ(EndOf([&] {
                  DATA_MEMBER_Add_ARIS_Mapping(Function("Check"));
              }),
              2120);
    EXPECT_THAT(Boxes(),
                ElementsAre("C2120 in modDATA_MEMBER.DATA_MEMBER_Add_ARIS_Mapping: T22|Check|DATA_OBJECT"));
}

}  // namespace
}  // namespace wxbrg::test
