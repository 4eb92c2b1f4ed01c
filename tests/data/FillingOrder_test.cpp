// The order in which the properties of an object are filled, as the log shows it.

#include <gmock/gmock.h>

#include "data/clsPERSON.h"
#include "data/clsPROGRAM.h"
#include "data/modDATA_MEMBER.h"
#include "data/modDATA_STRUCTURE.h"
#include "data/modORGANIZATION.h"
#include "data/modPERSON.h"
#include "data/modPROGRAM.h"
#include "data/modROLE.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FillingOrderTest : public CoreTest {
  protected:
    /// Gives an object a description and a documentation whose conversions are noted.
    static Ref<FakeObject> Described(Ref<FakeObject> object) {
        return object->With(9, "what\t")->With(8, "how\t");
    }
    /// A program that receives x and sends y.
    Ref<FakeObject> Program() {
        AddStep(NewRule("PROGRAM_RECEIVES_DATA"), ObjectType::applicationSystem, CxnKind::outgoing, 125,
                ObjectType::ermAttribute);
        AddStep(NewRule("PROGRAM_SENDS_DATA"), ObjectType::applicationSystem, CxnKind::outgoing, 126,
                ObjectType::ermAttribute);
        const Ref<FakeObject> program = Described(Drawn(ObjectType::applicationSystem, "A.B"));
        repository.Connect(program, 126, Drawn(ObjectType::ermAttribute, "y"));
        repository.Connect(program, 125, Drawn(ObjectType::ermAttribute, "x"));
        return program;
    }
};

TEST_F(FillingOrderTest, OfAProgramIsTextsThenInputThenOutput) {
    PROGRAM_Add_ARIS_Mapping(Program());
    EXPECT_THAT(Notes(), ElementsAre("I3100|A.B|A_B", "I3100|what\t|what", "I3100|how\t|how",
                                     "I3060|x|T19|DATA_MEMBER", "I3090|DATA_STRUCTURE|'DATA_STRUCTURE_0'",
                                     "I3060|y|T19|DATA_MEMBER", "I3090|DATA_STRUCTURE|'DATA_STRUCTURE_1'",
                                     "I3090|PROGRAM|'A_B'", "I3060|A.B|T6|PROGRAM"));
}

TEST_F(FillingOrderTest, OfAProgramHasTheSettingsBehindTheTextsAndInFrontOfTheContainers) {
    const Ref<FakeObject> program = Program();
    gBlock.gOptUseOtherSettings = true;
    gBlock.gColMappingRule.Remove("PROGRAM_OTHER_SETTINGS");
    EXPECT_EQ(EndOf([&] {
                  PROGRAM_Add_ARIS_Mapping(program);
              }),
              2100);
    EXPECT_THAT(Notes(), ElementsAre("I3100|A.B|A_B", "I3100|what\t|what", "I3100|how\t|how"));
    EXPECT_TRUE(gBlock.gColDATA_STRUCTURE.IsEmpty());
}

TEST_F(FillingOrderTest, OfAStructureIsTextsThenMembers) {
    DATA_STRUCTURE_Add_ARIS_Mapping(Described(EntityType("A.B", {"m"})));
    // The name is converted as a member's and within that as an identifier.
    EXPECT_THAT(Notes(), ElementsAre("I3100|A.B|A_B", "I3100|A.B|A_B", "I3100|what\t|what", "I3100|how\t|how",
                                     "I3060|m|T19|DATA_MEMBER", "I3090|DATA_STRUCTURE|'A_B'",
                                     "I3060|A.B|T17|DATA_STRUCTURE"));
}

TEST_F(FillingOrderTest, OfAMemberIsNameThenTypeThenTexts) {
    const Ref<FakeObject> member = Described(Drawn(ObjectType::ermAttribute, "A.B"));
    for (const char* word : {"Float", "Hex"})
        repository.Connect(member, 121, Drawn(ObjectType::domainType, word)->With(123, word));
    DATA_MEMBER_Add_ARIS_Mapping(member);
    EXPECT_THAT(Notes(), ElementsAre("I3100|A.B|A_B", "I3100|A.B|A_B", "E3000|DATA_MEMBER|DOMAINTYPE",
                                     "I3030|Hex|T20", "I3100|Float|FLOAT", "I3100|what\t|what",
                                     "I3100|how\t|how", "I3060|A.B|T19|DATA_MEMBER"));
}

TEST_F(FillingOrderTest, OfAMemberHasTheSizeBehindTheTypeAndInFrontOfTheTexts) {
    gBlock.gOptUseOtherSettings = true;
    gBlock.gColMappingRule.Remove("DATA_MEMBER_SIZE_OF_ARRAY");
    EXPECT_EQ(
        EndOf([&] {
            DATA_MEMBER_Add_ARIS_Mapping(Described(Drawn(ObjectType::ermAttribute, "a")->With(494, "Real")));
        }),
        2100);
    EXPECT_THAT(Notes(), ElementsAre("I3100|Real|FLOAT"));
}

TEST_F(FillingOrderTest, OfARoleIsTextsThenCoordinatorThenPersons) {
    const Ref<FakeObject> role = Described(Drawn(ObjectType::personType, "R.S"));
    repository.Connect(Drawn(ObjectType::person, "P"), 61, role);
    repository.Connect(Drawn(ObjectType::person, "C"), 395, role);
    ROLE_Add_ARIS_Mapping(role);
    // The person names the role as well; a role has no documentation.
    EXPECT_THAT(Notes(), ElementsAre("I3100|R.S|R_S", "I3100|what\t|what", "I3090|PERSON|'C'",
                                     "I3060|C|T46|PERSON", "I3100|R.S|R_S", "I3090|PERSON|'P'",
                                     "I3060|P|T46|PERSON", "I3090|ROLE|'R_S'", "I3060|R.S|T78|ROLE"));
}

TEST_F(FillingOrderTest, OfAnOrganizationIsTextsThenManagerThenParentThenPersons) {
    const Ref<FakeObject> organization = Described(Drawn(ObjectType::organization, "Sales"));
    repository.Connect(Drawn(ObjectType::person, "P"), 6, organization);
    repository.Connect(Drawn(ObjectType::organization, "Company"), 9, organization);
    repository.Connect(Drawn(ObjectType::person, "M"), 395, organization);
    ORGANIZATION_Add_ARIS_Mapping(organization);
    EXPECT_THAT(Notes(), ElementsAre("I3100|what\t|what", "I3090|PERSON|'M'", "I3060|M|T46|PERSON",
                                     "I3090|ORGANIZATION|'Company'", "I3060|Company|T43|ORGANIZATION",
                                     "I3090|PERSON|'P'", "I3060|P|T46|PERSON", "I3090|ORGANIZATION|'Sales'",
                                     "I3060|Sales|T43|ORGANIZATION"));
}

TEST_F(FillingOrderTest, OfAPersonIsFieldsThenRelationsThenTheDescription) {
    const Ref<FakeObject> person = Described(Drawn(ObjectType::person, "JO"));
    person->With(246, "3\t4")->With(245, "1\t2")->With(1243, "a\tb");
    repository.Connect(person, 6, Drawn(ObjectType::organization, "Sales"));
    repository.Connect(person, 61, Drawn(ObjectType::personType, "Clerk"));
    repository.Connect(Drawn(ObjectType::person, "S"), 318, person);
    PERSON_Add_ARIS_Mapping(person);
    EXPECT_THAT(Notes(), ElementsAre("I3100|a\tb|a b", "I3100|1\t2|1 2", "I3100|3\t4|3 4", "I3090|PERSON|'S'",
                                     "I3060|S|T46|PERSON", "I3090|ROLE|'Clerk'", "I3060|Clerk|T78|ROLE",
                                     "I3090|ORGANIZATION|'Sales'", "I3060|Sales|T43|ORGANIZATION",
                                     "I3100|what\t|what", "I3090|PERSON|'JO'", "I3060|JO|T46|PERSON"));
}

TEST_F(FillingOrderTest, OfAPersonHasTheSettingsLast) {
    gBlock.gOptUseOtherSettings = true;
    gBlock.gColMappingRule.Remove("PERSON_OTHER_SETTINGS");
    EXPECT_EQ(EndOf([&] {
                  PERSON_Add_ARIS_Mapping(Described(Drawn(ObjectType::person, "JO")));
              }),
              2100);
    EXPECT_THAT(Notes(), ElementsAre("I3100|what\t|what"));
    EXPECT_THAT(Boxes(), ElementsAre("C2100 in modMappingRule.Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule: "
                                     "PERSON_OTHER_SETTINGS"));
}

TEST_F(FillingOrderTest, WithoutOtherSettingsTheirRulesAreNotAskedFor) {
    gBlock.gOptUseOtherSettings = false;
    for (const char* rule : {"PROGRAM_OTHER_SETTINGS", "PERSON_OTHER_SETTINGS", "DATA_MEMBER_SIZE_OF_ARRAY"})
        gBlock.gColMappingRule.Remove(rule);
    PROGRAM_Add_ARIS_Mapping(Program());
    PERSON_Add_ARIS_Mapping(Drawn(ObjectType::person, "JO"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

}  // namespace
}  // namespace wxbrg::test
