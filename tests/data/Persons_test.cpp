#include <gmock/gmock.h>

#include "data/clsORGANIZATION.h"
#include "data/clsPERSON.h"
#include "data/clsROLE.h"
#include "data/modPERSON.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PersonsTest : public CoreTest {
  protected:
    Ref<FakeObject> Role(const std::string& name) { return Drawn(ObjectType::personType, name); }
    Ref<FakeObject> Organization(const std::string& name) { return Drawn(ObjectType::organization, name); }
    Ref<FakeObject> Person(const std::string& name) { return Drawn(ObjectType::person, name); }

    Ref<FakeObject> object = Person("John Doe");
};

TEST_F(PersonsTest, APersonBeginsEmpty) {
    const clsPERSON person;
    for (const std::string* text : {&person.PersonName, &person.FIRST_NAME, &person.LAST_NAME, &person.PHONE,
                                    &person.SECOND_PHONE, &person.SUBSTITUTE, &person.RELATED_ROLE,
                                    &person.RELATED_ORGANIZATION, &person.DESCRIPTION, &person.OtherSettings})
        EXPECT_EQ(*text, "");
    EXPECT_FALSE(person.SetupFinished);
}

TEST_F(PersonsTest, TextsAreReadFromTheirAttributes) {
    object->With(509, "jdoe@site")
        ->With(1243, "John")
        ->With(245, "12.3")
        ->With(246, "45")
        ->With(9, "Some\tone")
        ->With(985, "SETTING 'x'\t.");
    gBlock.gOptUseOtherSettings = true;
    const Ref<clsPERSON> person = PERSON_Add_ARIS_Mapping(object);
    EXPECT_EQ(person->PersonName, "'JDOE'");
    EXPECT_EQ(person->FIRST_NAME, "'John'");
    EXPECT_EQ(person->LAST_NAME, "'John Doe'");
    EXPECT_EQ(person->PHONE, "'12.3'");
    EXPECT_EQ(person->SECOND_PHONE, "'45'");
    EXPECT_EQ(person->DESCRIPTION, "'Some one'");
    EXPECT_EQ(person->OtherSettings, "SETTING 'x'\t.");
    EXPECT_TRUE(person->SetupFinished);
    EXPECT_EQ(Notes(3090), std::vector<std::string>{"I3090|PERSON|'JDOE'"});
}

TEST_F(PersonsTest, NamesAndPhonesAreReadWhateverTheOptionsSay) {
    gBlock.gOptUseDescriptionAttr = gBlock.gOptUseDocumentationAttr = gBlock.gOptUseOtherSettings = false;
    object->With(1243, "John")->With(245, "1")->With(246, "2")->With(9, "text")->With(985, "SETTING");
    const Ref<clsPERSON> person = PERSON_Add_ARIS_Mapping(object);
    EXPECT_EQ(person->FIRST_NAME, "'John'");
    EXPECT_EQ(person->PHONE, "'1'");
    EXPECT_EQ(person->SECOND_PHONE, "'2'");
    EXPECT_EQ(person->DESCRIPTION, "");
    EXPECT_EQ(person->OtherSettings, "");
}

TEST_F(PersonsTest, RolesAreListedWithoutABlankInFront) {
    for (const char* name : {"A", "", "B", "C"}) repository.Connect(object, 61, Role(name));
    EXPECT_EQ(PERSON_Add_ARIS_Mapping(object)->RELATED_ROLE, "'A' 'B' 'C'");
    EXPECT_EQ(gBlock.gColROLE.Count(), 3);
}

TEST_F(PersonsTest, WithoutARoleTheListIsEmpty) {
    const Ref<clsPERSON> person = PERSON_Add_ARIS_Mapping(object);
    EXPECT_EQ(person->RELATED_ROLE, "");
    EXPECT_EQ(person->RELATED_ORGANIZATION, "");
    EXPECT_EQ(person->SUBSTITUTE, "");
}

TEST_F(PersonsTest, RolesAndOrganizationsAreCitedByTheirPlainNames) {
    const Ref<FakeObject> role = Role("Clerk")->With(4711, "by rule");
    const Ref<FakeObject> organization = Organization("No. 1")->With(4711, "by rule");
    repository.Connect(object, 61, role);
    repository.Connect(object, 6, organization);
    NewAttributeRule("ROLE_ObjectName", "4711");
    NewAttributeRule("ORGANIZATION_ObjectName", "4711");
    const Ref<clsPERSON> person = PERSON_Add_ARIS_Mapping(object);
    EXPECT_EQ(person->RELATED_ROLE, "'Clerk'");
    EXPECT_EQ(person->RELATED_ORGANIZATION, "'No_ 1'");
    EXPECT_EQ(gBlock.gColROLE.Item(role->Guid())->ObjectName, "'by rule'");
    EXPECT_EQ(gBlock.gColORGANIZATION.Item(organization->Guid())->ObjectName, "'by rule'");
}

TEST_F(PersonsTest, TheFirstOrganizationAndTheFirstSubstituteCount) {
    repository.Connect(object, 6, Organization("first"));
    repository.Connect(object, 6, Organization("second"));
    repository.Connect(Person("third"), 318, object);
    repository.Connect(Person("fourth"), 318, object);
    const Ref<clsPERSON> person = PERSON_Add_ARIS_Mapping(object);
    EXPECT_EQ(person->RELATED_ORGANIZATION, "'first'");
    EXPECT_EQ(person->SUBSTITUTE, "'THIRD'");
    EXPECT_THAT(Notes(3000), ElementsAre("E3000|SUBSTITUTE|PERSON", "E3000|RELATED_ORGANIZATION|PERSON"));
    EXPECT_THAT(Notes(3030), ElementsAre("I3030|fourth|T46", "I3030|second|T43"));
    EXPECT_EQ(gBlock.gColPERSON.Count(), 2);
    EXPECT_EQ(gBlock.gColORGANIZATION.Count(), 1);
}

TEST_F(PersonsTest, APersonMayBeTheirOwnSubstitute) {
    repository.Connect(object, 318, object);
    EXPECT_EQ(PERSON_Add_ARIS_Mapping(object)->SUBSTITUTE, "'JOHN_DOE'");
    EXPECT_EQ(gBlock.gColPERSON.Count(), 1);
}

TEST_F(PersonsTest, ACircleOfSubstitutesEndsWithEachOfThemOnce) {
    const Ref<FakeObject> second = Person("second");
    const Ref<FakeObject> third = Person("third");
    repository.Connect(second, 318, object);
    repository.Connect(third, 318, second);
    repository.Connect(object, 318, third);
    PERSON_Add_ARIS_Mapping(object);
    ASSERT_EQ(gBlock.gColPERSON.Count(), 3);
    EXPECT_EQ(gBlock.gColPERSON.Item(2)->SUBSTITUTE, "'THIRD'");
    EXPECT_EQ(gBlock.gColPERSON.Item(3)->SUBSTITUTE, "'JOHN_DOE'");
    EXPECT_THAT(Notes(3090),
                ElementsAre("I3090|PERSON|'THIRD'", "I3090|PERSON|'SECOND'", "I3090|PERSON|'JOHN_DOE'"));
    EXPECT_THAT(Notes(3060), ElementsAre("I3060|third|T46|PERSON", "I3060|second|T46|PERSON",
                                         "I3060|John Doe|T46|PERSON"));
}

TEST_F(PersonsTest, TheDescriptionComesBehindTheRelations) {
    object->Set(9, "a\tb");
    repository.Connect(object, 6, Organization("Sales"));
    PERSON_Add_ARIS_Mapping(object);
    // The organization names the person as well.
    EXPECT_THAT(Notes(),
                ElementsAre("I3100|John Doe|JOHN_DOE", "I3100|John Doe|JOHN_DOE",
                            "I3090|ORGANIZATION|'Sales'", "I3060|Sales|T43|ORGANIZATION", "I3100|a\tb|a b",
                            "I3090|PERSON|'JOHN_DOE'", "I3060|John Doe|T46|PERSON"));
}

TEST_F(PersonsTest, APersonOfTwoModelsIsOne) {
    const Ref<FakeModel> second = repository.Model(processType, "Second", group);
    repository.Draw(second, object);
    PERSON_Create(ModelsOf({model, second}));
    EXPECT_EQ(gBlock.gColPERSON.Count(), 1);
    EXPECT_EQ(Notes(3060).size(), 1U);
    ForgetNotes();
    PERSON_Create(ModelsOf({second}));
    EXPECT_EQ(gBlock.gColPERSON.Count(), 1);
    EXPECT_THAT(Notes(), ElementsAre("I3060|John Doe|T46|PERSON"));
}

TEST_F(PersonsTest, TwoPersonsOfOneNameAreTwo) {
    Person("John Doe");
    PERSON_Create(ModelsOf({model}));
    EXPECT_EQ(gBlock.gColPERSON.Count(), 2);
}

TEST_F(PersonsTest, FindingABatchFillsNothing) {
    PERSON_Find_ARIS_Mapping(ModelsOf({model}));
    ASSERT_EQ(gBlock.gColPERSON.Count(), 1);
    EXPECT_EQ(gBlock.gColPERSON.Item(1)->PersonName, "");
    EXPECT_FALSE(gBlock.gColPERSON.Item(1)->SetupFinished);
    EXPECT_EQ(gBlock.gColPERSON.Item(1)->ARISObjectDefinition, ARISObjDef(object));
    PERSON_SetupProperties();
    EXPECT_EQ(gBlock.gColPERSON.Item(1)->PersonName, "'JOHN_DOE'");
    ForgetNotes();
    PERSON_SetupProperties();
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(PersonsTest, AnUnfinishedOneOfTheRegistryIsReturnedAsItIs) {
    PERSON_Find_ARIS_Mapping(ModelsOf({model}));
    ForgetNotes();
    EXPECT_EQ(PERSON_Add_ARIS_Mapping(object), gBlock.gColPERSON.Item(1));
    EXPECT_FALSE(gBlock.gColPERSON.Item(1)->SetupFinished);
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(PersonsTest, AChainOfSubstitutesIsAsDeepAsItIs) {
    Ref<FakeObject> last = object;
    for (int i = 0; i < 500; ++i) {
        const Ref<FakeObject> next = DrawnElsewhere(ObjectType::person, "P" + std::to_string(i));
        repository.Connect(next, 318, last);
        last = next;
    }
    PERSON_Create(ModelsOf({model}));
    EXPECT_EQ(gBlock.gColPERSON.Count(), 501);
    EXPECT_EQ(Notes(3090).front(), "I3090|PERSON|'P499'");
    EXPECT_EQ(Notes(3090).back(), "I3090|PERSON|'JOHN_DOE'");
}

}  // namespace
}  // namespace wxbrg::test
