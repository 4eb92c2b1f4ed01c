#include <gmock/gmock.h>

#include "data/clsPERSON.h"
#include "data/clsROLE.h"
#include "data/modPERSON.h"
#include "data/modROLE.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RolesTest : public CoreTest {
  protected:
    Ref<FakeObject> Person(const std::string& name) { return Drawn(ObjectType::person, name); }
    void Coordinates(Ref<FakeObject> person) { repository.Connect(person, 395, object); }
    void Performs(Ref<FakeObject> person) { repository.Connect(person, 61, object); }

    Ref<FakeObject> object = Drawn(ObjectType::personType, "Clerk");
};

TEST_F(RolesTest, ARoleBeginsEmpty) {
    const clsROLE role;
    EXPECT_FALSE(role.ARISObjectDefinition);
    EXPECT_EQ(role.ObjectName + role.DESCRIPTION + role.COORDINATOR + role.RELATED_PERSON, "");
    EXPECT_FALSE(role.SetupFinished);
}

TEST_F(RolesTest, ARoleIsFilledOnceAndNoted) {
    object->Set(9, "Works\there");
    const Ref<clsROLE> role = ROLE_Add_ARIS_Mapping(object);
    EXPECT_EQ(role->ObjectName, "'Clerk'");
    EXPECT_EQ(role->DESCRIPTION, "'Works here'");
    EXPECT_EQ(role->COORDINATOR, "");
    EXPECT_EQ(role->RELATED_PERSON, "");
    EXPECT_TRUE(role->SetupFinished);
    EXPECT_THAT(Notes(),
                ElementsAre("I3100|Works\there|Works here", "I3090|ROLE|'Clerk'", "I3060|Clerk|T78|ROLE"));
    ForgetNotes();
    role->SetupProperties();
    EXPECT_EQ(ROLE_Add_ARIS_Mapping(object), role);
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(RolesTest, TheDescriptionIsGatedByItsOption) {
    object->Set(9, "text");
    gBlock.gOptUseDescriptionAttr = false;
    EXPECT_EQ(ROLE_Add_ARIS_Mapping(object)->DESCRIPTION, "");
}

TEST_F(RolesTest, TheFirstCoordinatorCountsAndFurtherOnesAreIgnored) {
    Coordinates(Person("first"));
    Coordinates(Person("second"));
    Coordinates(Person("third"));
    EXPECT_EQ(ROLE_Add_ARIS_Mapping(object)->COORDINATOR, "'FIRST'");
    EXPECT_THAT(Notes(3000), ElementsAre("E3000|COORDINATOR|ROLE"));
    EXPECT_THAT(Notes(3030), ElementsAre("I3030|second|T46", "I3030|third|T46"));
    EXPECT_EQ(gBlock.gColPERSON.Count(), 1);
}

TEST_F(RolesTest, ACoordinatorWithoutANameIsSkippedAndTheNextIsNotTaken) {
    Coordinates(Person(""));
    Coordinates(Person("second"));
    EXPECT_EQ(ROLE_Add_ARIS_Mapping(object)->COORDINATOR, "");
    EXPECT_TRUE(gBlock.gColPERSON.IsEmpty());
    EXPECT_THAT(Notes(3000), ElementsAre("E3000|COORDINATOR|ROLE"));
    EXPECT_THAT(Notes(3030), ElementsAre("I3030|second|T46"));
}

TEST_F(RolesTest, PersonsAreListedWithOneBlankBetweenAndUnnamedOnesSkipped) {
    Performs(Person("a"));
    Performs(Person(""));
    Performs(Person("b b"));
    Performs(Person("c"));
    EXPECT_EQ(ROLE_Add_ARIS_Mapping(object)->RELATED_PERSON, "'A' 'B_B' 'C'");
    EXPECT_EQ(gBlock.gColPERSON.Count(), 3);
    EXPECT_THAT(Notes(3000), IsEmpty());
    EXPECT_THAT(Notes(3030), IsEmpty());
}

TEST_F(RolesTest, ARoleAndAPersonThatNameEachOtherBothEndFinished) {
    const Ref<FakeObject> someone = Person("someone");
    Performs(someone);
    Coordinates(someone);
    const Ref<clsROLE> role = ROLE_Add_ARIS_Mapping(object);
    const Ref<clsPERSON> person = gBlock.gColPERSON.Item(someone->Guid());
    EXPECT_EQ(role->COORDINATOR, "'SOMEONE'");
    EXPECT_EQ(role->RELATED_PERSON, "'SOMEONE'");
    EXPECT_EQ(person->RELATED_ROLE, "'Clerk'");
    EXPECT_TRUE(role->SetupFinished);
    EXPECT_TRUE(person->SetupFinished);
    EXPECT_EQ(gBlock.gColROLE.Count(), 1);
    EXPECT_EQ(gBlock.gColPERSON.Count(), 1);
    EXPECT_THAT(Notes(3060), ElementsAre("I3060|someone|T46|PERSON", "I3060|Clerk|T78|ROLE"));
}

TEST_F(RolesTest, ANeighbourOfAnUnselectedModelIsMadeOnTheSpot) {
    Performs(DrawnElsewhere(ObjectType::person, "elsewhere"));
    ROLE_Create(ModelsOf({model}));
    EXPECT_EQ(gBlock.gColPERSON.Count(), 1);
    EXPECT_TRUE(gBlock.gColPERSON.Item(1)->SetupFinished);
    EXPECT_THAT(Notes(),
                ElementsAre("I3060|Clerk|T78|ROLE", "I3100|elsewhere|ELSEWHERE", "I3100|elsewhere|ELSEWHERE",
                            "I3090|PERSON|'ELSEWHERE'", "I3060|elsewhere|T46|PERSON", "I3090|ROLE|'Clerk'"));
}

TEST_F(RolesTest, APersonThatABatchMeetsAgainIsNotedAgainAndStays) {
    Performs(Person("Someone"));
    ROLE_Create(ModelsOf({model}));
    const Ref<clsPERSON> person = gBlock.gColPERSON.Item(1);
    ForgetNotes();
    PERSON_Create(ModelsOf({model}));
    EXPECT_THAT(Notes(), ElementsAre("I3060|Someone|T46|PERSON"));
    EXPECT_EQ(gBlock.gColPERSON.Count(), 1);
    EXPECT_EQ(gBlock.gColPERSON.Item(1), person);
}

TEST_F(RolesTest, ARelationRuleThatReachesAnotherTypeEndsTheRun) {
    AddStep(NewRule("ROLE_COORDINATOR"), ObjectType::personType, CxnKind::incoming, 395,
            ObjectType::position);
    Coordinates(Drawn(ObjectType::position, "Head"));
    EXPECT_EQ(EndOf([&] {
                  ROLE_Add_ARIS_Mapping(object);
              }),
              2120);
    EXPECT_THAT(Boxes(), ElementsAre("C2120 in modPERSON.PERSON_Add_ARIS_Mapping: T45|Head|PERSON"));
    EXPECT_TRUE(gBlock.gColPERSON.IsEmpty());
}

TEST_F(RolesTest, PersonsWhoseGuidsDifferInCaseAloneAreOneUnderTwoNames) {
    const auto person = [&](const std::string& name, const std::string& guid) {
        const Ref<FakeObject> made = repository.Object(ObjectType::person, name, guid);
        repository.Draw(model, made);
        return made;
    };
    Coordinates(person("LOWER", "{p}"));
    Performs(person("UPPER", "{P}"));
    const Ref<clsROLE> role = ROLE_Add_ARIS_Mapping(object);
    EXPECT_EQ(role->COORDINATOR, "'LOWER'");
    EXPECT_EQ(role->RELATED_PERSON, "'UPPER'");
    ASSERT_EQ(gBlock.gColPERSON.Count(), 1);
    EXPECT_EQ(gBlock.gColPERSON.Item(1)->PersonName, "'LOWER'");
    EXPECT_THAT(Boxes(), IsEmpty());
}

}  // namespace
}  // namespace wxbrg::test
