#include <gmock/gmock.h>

#include "data/clsORGANIZATION.h"
#include "data/clsPERSON.h"
#include "data/modORGANIZATION.h"
#include "data/modPERSON.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OrganizationsTest : public CoreTest {
  protected:
    Ref<FakeObject> Person(const std::string& name) { return Drawn(ObjectType::person, name); }
    void Manages(Ref<FakeObject> person) { repository.Connect(person, 395, object); }
    /// A position at the head of the organization, by a connection type, with an occupant.
    void Heads(std::int32_t connection, Ref<FakeObject> person) {
        const Ref<FakeObject> position = Drawn(ObjectType::position, "Head");
        repository.Connect(position, connection, object);
        repository.Connect(person, 210, position);
    }

    Ref<FakeObject> object = Drawn(ObjectType::organization, "Sales");
};

TEST_F(OrganizationsTest, AnOrganizationBeginsEmptyWithAdminAsItsManager) {
    const clsORGANIZATION organization;
    EXPECT_EQ(organization.MANAGER, "'ADMIN'");
    EXPECT_EQ(organization.ObjectName + organization.DESCRIPTION + organization.PARENT_ORGANIZATION +
                  organization.RELATED_PERSON,
              "");
    EXPECT_FALSE(organization.SetupFinished);
}

TEST_F(OrganizationsTest, WithoutAManagerAdminStaysAndNothingIsMadeForIt) {
    const Ref<clsORGANIZATION> organization = ORGANIZATION_Add_ARIS_Mapping(object);
    EXPECT_EQ(organization->ObjectName, "'Sales'");
    EXPECT_EQ(organization->MANAGER, "'ADMIN'");
    EXPECT_TRUE(gBlock.gColPERSON.IsEmpty());
    EXPECT_THAT(Notes(), ElementsAre("I3090|ORGANIZATION|'Sales'", "I3060|Sales|T43|ORGANIZATION"));
}

TEST_F(OrganizationsTest, AManagerWithoutANameLeavesAdmin) {
    Manages(Person(""));
    Manages(Person("second"));
    EXPECT_EQ(ORGANIZATION_Add_ARIS_Mapping(object)->MANAGER, "'ADMIN'");
    EXPECT_TRUE(gBlock.gColPERSON.IsEmpty());
    EXPECT_THAT(Notes(3000), ElementsAre("E3000|MANAGER|ORGANIZATION"));
    EXPECT_THAT(Notes(3030), ElementsAre("I3030|second|T46"));
}

TEST_F(OrganizationsTest, AManagerIsFoundDirectlyOrOverAPosition) {
    Manages(Person("direct"));
    Heads(8, Person("by eight"));
    Heads(9, Person("by nine"));
    EXPECT_EQ(ORGANIZATION_Add_ARIS_Mapping(object)->MANAGER, "'DIRECT'");
    EXPECT_THAT(Notes(3030), ElementsAre("I3030|by nine|T46", "I3030|by eight|T46"));
    object = Drawn(ObjectType::organization, "Other");
    Heads(8, Person("head"));
    EXPECT_EQ(ORGANIZATION_Add_ARIS_Mapping(object)->MANAGER, "'HEAD'");
}

TEST_F(OrganizationsTest, TheParentIsFoundByFiveConnectionsInTheirOrder) {
    for (const std::int32_t connection : {7, 3, 211, 8, 9})
        repository.Connect(Drawn(ObjectType::organization, "by " + std::to_string(connection)), connection,
                           object);
    EXPECT_EQ(ORGANIZATION_Add_ARIS_Mapping(object)->PARENT_ORGANIZATION, "'by 9'");
    EXPECT_THAT(Notes(3000), ElementsAre("E3000|PARENT_ORGANIZATION|ORGANIZATION"));
    EXPECT_THAT(Notes(3030),
                ElementsAre("I3030|by 8|T43", "I3030|by 211|T43", "I3030|by 3|T43", "I3030|by 7|T43"));
    EXPECT_EQ(gBlock.gColORGANIZATION.Count(), 2);
}

TEST_F(OrganizationsTest, TheParentIsNamedByTheRuleOfItsOwnName) {
    const Ref<FakeObject> parent = Drawn(ObjectType::organization, "Company")->With(4711, "No. 1");
    repository.Connect(parent, 9, object);
    object->Set(4711, "Sales dept");
    NewAttributeRule("ORGANIZATION_ObjectName", "4711");
    const Ref<clsORGANIZATION> organization = ORGANIZATION_Add_ARIS_Mapping(object);
    EXPECT_EQ(organization->ObjectName, "'Sales dept'");
    EXPECT_EQ(organization->PARENT_ORGANIZATION, "'No_ 1'");
    EXPECT_EQ(gBlock.gColORGANIZATION.Item(parent->Guid())->ObjectName, "'No_ 1'");
}

TEST_F(OrganizationsTest, AnOrganizationMayBeItsOwnParent) {
    repository.Connect(object, 9, object);
    EXPECT_EQ(ORGANIZATION_Add_ARIS_Mapping(object)->PARENT_ORGANIZATION, "'Sales'");
    EXPECT_EQ(gBlock.gColORGANIZATION.Count(), 1);
}

TEST_F(OrganizationsTest, PersonsAreListedInTheOrderOfTheirConnections) {
    for (const char* name : {"b", "a", "c"}) repository.Connect(Person(name), 6, object);
    EXPECT_EQ(ORGANIZATION_Add_ARIS_Mapping(object)->RELATED_PERSON, "'B' 'A' 'C'");
    EXPECT_EQ(gBlock.gColPERSON.Count(), 3);
    EXPECT_EQ(gBlock.gColPERSON.Item(1)->RELATED_ORGANIZATION, "'Sales'");
}

TEST_F(OrganizationsTest, TheDescriptionIsGatedByItsOption) {
    object->Set(9, "text");
    gBlock.gOptUseDescriptionAttr = false;
    EXPECT_EQ(ORGANIZATION_Add_ARIS_Mapping(object)->DESCRIPTION, "");
    const Ref<FakeObject> other = Drawn(ObjectType::organization, "Other")->With(9, "text");
    gBlock.gOptUseDescriptionAttr = true;
    EXPECT_EQ(ORGANIZATION_Add_ARIS_Mapping(other)->DESCRIPTION, "'text'");
}

TEST_F(OrganizationsTest, ABatchFillsThoseThatJoinItOnTheWay) {
    const Ref<FakeObject> parent = DrawnElsewhere(ObjectType::organization, "Company");
    repository.Connect(parent, 9, object);
    ORGANIZATION_Create(ModelsOf({model}));
    ASSERT_EQ(gBlock.gColORGANIZATION.Count(), 2);
    EXPECT_EQ(gBlock.gColORGANIZATION.Item(1)->ObjectName, "'Sales'");
    EXPECT_EQ(gBlock.gColORGANIZATION.Item(2)->ObjectName, "'Company'");
    EXPECT_TRUE(gBlock.gColORGANIZATION.Item(2)->SetupFinished);
    EXPECT_THAT(Notes(), ElementsAre("I3060|Sales|T43|ORGANIZATION", "I3090|ORGANIZATION|'Company'",
                                     "I3060|Company|T43|ORGANIZATION", "I3090|ORGANIZATION|'Sales'"));
}

TEST_F(OrganizationsTest, AnotherTypeIsNoOrganization) {
    EXPECT_EQ(EndOf([&] {
                  ORGANIZATION_Add_ARIS_Mapping(Person("Jo"));
              }),
              2120);
    EXPECT_THAT(Boxes(),
                ElementsAre("C2120 in modORGANIZATION.ORGANIZATION_Add_ARIS_Mapping: T46|Jo|ORGANIZATION"));
    EXPECT_TRUE(gBlock.gColORGANIZATION.IsEmpty());
}

TEST_F(OrganizationsTest, AnUnnamedOneIsKeptWithAnEmptyName) {
    object = Drawn(ObjectType::organization, "");
    EXPECT_EQ(ORGANIZATION_Add_ARIS_Mapping(object)->ObjectName, "");
    EXPECT_EQ(gBlock.gColORGANIZATION.Count(), 1);
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_THAT(Notes(), ElementsAre("I3090|ORGANIZATION", "I3060"));
}

TEST_F(OrganizationsTest, ANameOfBlanksIsANameThatIsPrintedEmpty) {
    repository.Connect(Drawn(ObjectType::organization, "  "), 9, object);
    EXPECT_EQ(ORGANIZATION_Add_ARIS_Mapping(object)->PARENT_ORGANIZATION, "''");
    EXPECT_EQ(gBlock.gColORGANIZATION.Count(), 2);
}

}  // namespace
}  // namespace wxbrg::test
