#include <gmock/gmock.h>

#include <limits>

#include "data/Containers.h"
#include "data/clsDATA_MEMBER.h"
#include "data/clsDATA_STRUCTURE.h"
#include "data/modDATA_STRUCTURE.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StructuresTest : public CoreTest {
  protected:
    Ref<FakeObject> Attribute(const std::string& name) { return Drawn(ObjectType::ermAttribute, name); }

    static std::vector<std::string> MemberNames(const clsDATA_STRUCTURE& structure) {
        std::vector<std::string> names;
        for (const Ref<clsDATA_MEMBER>& member : structure.ColDATA_MEMBER)
            names.push_back(member->MemberName);
        return names;
    }
    static std::vector<std::string> StructureNames() {
        std::vector<std::string> names;
        for (const Ref<clsDATA_STRUCTURE>& structure : gBlock.gColDATA_STRUCTURE)
            names.push_back(structure->ObjectName);
        return names;
    }
};

TEST_F(StructuresTest, AStructureBeginsAsTheDefaultOne) {
    const clsDATA_STRUCTURE structure;
    EXPECT_FALSE(structure.ARISObjectDefinition);
    EXPECT_EQ(structure.ObjectName, "'Default Data Structure'");
    EXPECT_EQ(structure.DESCRIPTION + structure.DOCUMENTATION, "");
    EXPECT_TRUE(structure.ColARISDataMemberObjectDefinition.IsEmpty());
    EXPECT_TRUE(structure.ColDATA_MEMBER.IsEmpty());
    EXPECT_FALSE(structure.IsGenerated);
    EXPECT_FALSE(structure.SetupFinished);
}

TEST_F(StructuresTest, ADataObjectWithMembersIsAStructure) {
    const Ref<FakeObject> order = EntityType("Order", {"Number"});
    EXPECT_TRUE(DATA_STRUCTURE_Is_DATA_STRUCTURE(order));
    EXPECT_FALSE(DATA_STRUCTURE_Is_DATA_STRUCTURE(EntityType("Bare", {})));
    EXPECT_FALSE(DATA_STRUCTURE_Is_DATA_STRUCTURE(Attribute("alone")));
    NewTypeRule("DATA_OBJECT", {ObjectType::cluster});
    EXPECT_FALSE(DATA_STRUCTURE_Is_DATA_STRUCTURE(order));
}

TEST_F(StructuresTest, EachKindOfDataHasItsMembers) {
    const Ref<FakeObject> cluster = Drawn(ObjectType::cluster, "Cluster");
    const Ref<FakeObject> entity = Drawn(ObjectType::entityType, "Entity");
    const Ref<FakeObject> relation = Drawn(ObjectType::relationType, "Relation");
    const Ref<FakeObject> attributes = Drawn(ObjectType::attributeTypeGroup, "Group");
    AddMember(cluster, Drawn(ObjectType::cluster, "Inner"));
    AddMember(cluster, attributes);
    AddMember(cluster, entity);
    AddMember(entity, attributes);
    repository.Connect(Attribute("e79"), 79, entity);
    repository.Connect(Attribute("e80"), 80, entity);
    repository.Connect(Attribute("e78"), 78, entity);
    AddMember(relation, Attribute("r78"));
    AddMember(relation, attributes);
    AddMember(attributes, Attribute("g269"));
    const auto members = [](const Ref<FakeObject>& object) {
        return MemberNames(*DATA_STRUCTURE_Add_ARIS_Mapping(object));
    };
    EXPECT_THAT(members(cluster), ElementsAre("'Entity'", "'Group'", "'Inner'"));
    EXPECT_THAT(members(entity), ElementsAre("'e78'", "'e80'", "'e79'", "'Group'"));
    EXPECT_THAT(members(relation), ElementsAre("'r78'", "'Group'"));
    EXPECT_THAT(members(attributes), ElementsAre("'g269'"));
}

TEST_F(StructuresTest, ABatchMakesAMappedStructureOfEachObjectWithMembers) {
    const Ref<FakeObject> order = EntityType("Order", {"Number", "Date"});
    Attribute("alone");
    DATA_STRUCTURE_Create(ModelsOf({model}));
    ASSERT_EQ(gBlock.gColDATA_STRUCTURE.Count(), 1);
    const Ref<clsDATA_STRUCTURE> structure = gBlock.gColDATA_STRUCTURE.Item(order->Guid());
    EXPECT_EQ(structure->ObjectName, "'Order'");
    EXPECT_FALSE(structure->IsGenerated);
    EXPECT_THAT(MemberNames(*structure), ElementsAre("'Number'", "'Date'"));
    EXPECT_THAT(Notes(), ElementsAre("I3060|Order|T17|DATA_STRUCTURE", "I3060|Number|T19|DATA_MEMBER",
                                     "I3060|Date|T19|DATA_MEMBER", "I3090|DATA_STRUCTURE|'Order'"));
}

TEST_F(StructuresTest, AMappedStructureIsNamedAsAMemberIs) {
    EXPECT_EQ(DATA_STRUCTURE_Add_ARIS_Mapping(EntityType("_ORDER no. 1", {}))->ObjectName, "'_DER no_ 1'");
    EXPECT_EQ(DATA_STRUCTURE_Add_ARIS_Mapping(EntityType("", {}))->ObjectName, "'Default Data Structure'");
}

TEST_F(StructuresTest, TextsOfAMappedStructureAreGatedByTheirOptions) {
    const Ref<FakeObject> order = EntityType("Order", {})->With(9, "what\t")->With(8, "how");
    const Ref<clsDATA_STRUCTURE> full = DATA_STRUCTURE_Add_ARIS_Mapping(order);
    EXPECT_EQ(full->DESCRIPTION, "'what'");
    EXPECT_EQ(full->DOCUMENTATION, "'how'");
    gBlock.gOptUseDescriptionAttr = gBlock.gOptUseDocumentationAttr = false;
    const Ref<clsDATA_STRUCTURE> bare =
        DATA_STRUCTURE_Add_ARIS_Mapping(EntityType("Item", {})->With(9, "what")->With(8, "how"));
    EXPECT_EQ(bare->DESCRIPTION + bare->DOCUMENTATION, "");
}

TEST_F(StructuresTest, OnDemandNeitherMembersNorAnEqualOneAreAskedFor) {
    const Ref<FakeObject> attribute = Attribute("a");
    const Ref<clsDATA_STRUCTURE> generated = DATA_STRUCTURE_Generate(ObjectsOf({attribute}));
    const Ref<FakeObject> equal = EntityType("Equal", {});
    AddMember(equal, attribute);
    const Ref<clsDATA_STRUCTURE> mapped = DATA_STRUCTURE_Add_ARIS_Mapping(equal);
    EXPECT_NE(mapped, generated);
    EXPECT_TRUE(DATA_STRUCTURE_Add_ARIS_Mapping(attribute)->ColDATA_MEMBER.IsEmpty());
    EXPECT_EQ(gBlock.gColDATA_STRUCTURE.Count(), 3);
}

TEST_F(StructuresTest, AnotherTypeIsNoDataObject) {
    EXPECT_EQ(EndOf([&] {
                  DATA_STRUCTURE_Add_ARIS_Mapping(Function("Check"));
              }),
              2120);
    EXPECT_THAT(Boxes(), ElementsAre("C2120 in modDATA_STRUCTURE.DATA_STRUCTURE_Add_ARIS_Mapping: T22|Check|"
                                     "DATA_OBJECT"));
    EXPECT_TRUE(gBlock.gColDATA_STRUCTURE.IsEmpty());
}

TEST_F(StructuresTest, AGeneratedStructureGathersObjectsUnderAGeneratedName) {
    const Ref<clsDATA_STRUCTURE> structure =
        DATA_STRUCTURE_Generate(ObjectsOf({Attribute("b")->With(9, "x"), Attribute("a")}));
    EXPECT_TRUE(structure->IsGenerated);
    EXPECT_FALSE(structure->ARISObjectDefinition);
    EXPECT_THAT(NamesOf(structure->ColARISDataMemberObjectDefinition), ElementsAre("b", "a"));
    EXPECT_THAT(MemberNames(*structure), ElementsAre("'b'", "'a'"));
    EXPECT_EQ(structure->DESCRIPTION + structure->DOCUMENTATION, "");
    EXPECT_THAT(Notes(), ElementsAre("I3060|b|T19|DATA_MEMBER", "I3060|a|T19|DATA_MEMBER",
                                     "I3090|DATA_STRUCTURE|'DATA_STRUCTURE_0'"));
}

TEST_F(StructuresTest, GeneratedNamesCountFromTheFirstSuffix) {
    gBlock.gNextDataStructureSuffix = 7;
    DATA_STRUCTURE_Generate(ObjectsOf({Attribute("a")}));
    DATA_STRUCTURE_Generate(ObjectsOf({Attribute("b")}));
    EXPECT_THAT(StructureNames(), ElementsAre("'DATA_STRUCTURE_7'", "'DATA_STRUCTURE_8'"));
    gBlock.gDataStructureNamePrefix = "P.";
    EXPECT_EQ(DATA_STRUCTURE_GenerateName(), "P.9");
    EXPECT_EQ(gBlock.gNextDataStructureSuffix, 10);
}

TEST_F(StructuresTest, ASuffixBeyond32BitsEndsTheRun) {
    gBlock.gNextDataStructureSuffix = std::numeric_limits<std::int32_t>::max() - 1;
    EXPECT_EQ(DATA_STRUCTURE_GenerateName(), "DATA_STRUCTURE_2147483646");
    EXPECT_EQ(EndOf([] {
                  DATA_STRUCTURE_GenerateName();
              }),
              FailureKind::overflow);
    EXPECT_THAT(Boxes(), ElementsAre("C6 in modDATA_STRUCTURE.DATA_STRUCTURE_GenerateName: overflow"));
}

TEST_F(StructuresTest, TheSameObjectsInAnyOrderShareAStructureAndUseNoNumber) {
    const Ref<FakeObject> a = Attribute("a");
    const Ref<FakeObject> b = Attribute("b");
    const Ref<clsDATA_STRUCTURE> one = DATA_STRUCTURE_Generate(ObjectsOf({a}));
    const Ref<clsDATA_STRUCTURE> both = DATA_STRUCTURE_Generate(ObjectsOf({a, b}));
    EXPECT_NE(one, both);
    EXPECT_EQ(DATA_STRUCTURE_Generate(ObjectsOf({a})), one);
    EXPECT_EQ(DATA_STRUCTURE_Generate(ObjectsOf({b, a})), both);
    EXPECT_EQ(gBlock.gNextDataStructureSuffix, 2);
    EXPECT_EQ(gBlock.gColDATA_STRUCTURE.Count(), 2);
}

TEST_F(StructuresTest, AGeneratedStructureWithoutObjectsIsQuotedTwice) {
    clsDATA_STRUCTURE structure;
    structure.IsGenerated = true;
    structure.SetupProperty_ObjectName();
    EXPECT_EQ(structure.ObjectName, "'''Default Data Structure'''");
    EXPECT_EQ(gBlock.gNextDataStructureSuffix, 0);
}

TEST_F(StructuresTest, OneMemberIsSharedByAllItsStructures) {
    const Ref<FakeObject> attribute = Attribute("shared");
    const Ref<clsDATA_STRUCTURE> generated = DATA_STRUCTURE_Generate(ObjectsOf({attribute}));
    const Ref<FakeObject> order = EntityType("Order", {});
    AddMember(order, attribute);
    const Ref<clsDATA_STRUCTURE> mapped = DATA_STRUCTURE_Add_ARIS_Mapping(order);
    EXPECT_EQ(mapped->ColDATA_MEMBER.Item(1), generated->ColDATA_MEMBER.Item(1));
    EXPECT_THAT(Notes(3060), ElementsAre("I3060|shared|T19|DATA_MEMBER", "I3060|Order|T17|DATA_STRUCTURE"));
}

TEST_F(StructuresTest, MembersWhoseGuidsDifferInCaseAloneEndTheRun) {
    const Ref<FakeObject> lower = repository.Object(ObjectType::ermAttribute, "lower", "{abc}");
    const Ref<FakeObject> upper = repository.Object(ObjectType::ermAttribute, "upper", "{ABC}");
    clsDATA_STRUCTURE structure;
    structure.IsGenerated = true;
    structure.ColARISDataMemberObjectDefinition.Add(lower);
    structure.ColARISDataMemberObjectDefinition.Add(upper);
    EXPECT_EQ(EndOf([&] {
                  structure.SetupProperty_MemberDeclarations();
              }),
              FailureKind::duplicateKey);
}

class ContainersTest : public StructuresTest {
  protected:
    Ref<clsDATA_STRUCTURE> ContainerOf(std::initializer_list<ARISObjDef> objects) {
        Ref<clsDATA_STRUCTURE> container = original;
        SetupContainer(container, ObjectsOf(objects));
        return container;
    }

    Ref<clsDATA_STRUCTURE> original = gBlock.gPool.Create<clsDATA_STRUCTURE>();
};

TEST_F(ContainersTest, GoByTheNumberAndSortOfTheObjects) {
    const Ref<FakeObject> order = EntityType("Order", {"Number"});
    const Ref<FakeObject> attribute = Attribute("a");
    EXPECT_EQ(ContainerOf({}), original);
    const Ref<clsDATA_STRUCTURE> mapped = ContainerOf({order});
    EXPECT_EQ(mapped, gBlock.gColDATA_STRUCTURE.Item(order->Guid()));
    const Ref<clsDATA_STRUCTURE> one = ContainerOf({attribute});
    EXPECT_TRUE(one->IsGenerated);
    EXPECT_THAT(MemberNames(*one), ElementsAre("'a'"));
    EXPECT_THAT(MemberNames(*ContainerOf({order, attribute})), ElementsAre("'Order'", "'a'"));
    EXPECT_FALSE(ContainerOf({Function("no data")}));
    EXPECT_THAT(Boxes(), IsEmpty());
}

}  // namespace
}  // namespace wxbrg::test
