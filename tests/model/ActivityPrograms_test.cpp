// The programs, support tools and staff of an activity.

#include <gmock/gmock.h>

#include "data/clsPERSON.h"
#include "data/clsPROGRAM.h"
#include "data/clsROLE.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ActivityProgramsTest : public CoreTest {
  protected:
    Ref<FakeObject> AddProgram(const std::string& name) {
        const Ref<FakeObject> program = Drawn(ObjectType::applicationSystem, name);
        repository.Connect(program, 221, object);
        return program;
    }
    Ref<clsACTIVITY> Finished() { return FinishedProcess()->Col_ACTIVITY.Item(object->Guid()); }

    Ref<FakeObject> object = Function("f");
};

TEST_F(ActivityProgramsTest, WithoutAProgramThereIsNone) {
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->PROGRAM + activity->SUPPORT_TOOL, "");
    EXPECT_THAT(Notes(3010), IsEmpty());
}

TEST_F(ActivityProgramsTest, OneProgramIsTheProgramAndNoSupportTool) {
    AddProgram("SAP. R3");
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->PROGRAM, "'SAP_ R3'");
    EXPECT_EQ(activity->SUPPORT_TOOL, "");
    EXPECT_EQ(gBlock.gColPROGRAM.Item(1)->ObjectName, "'SAP_ R3'");
    EXPECT_THAT(Notes(3010), IsEmpty());
}

TEST_F(ActivityProgramsTest, TheFirstOfThreeIsTheProgramAndTheOthersAreSupportTools) {
    for (const char* name : {"one", "two. x", "three"}) AddProgram(name);
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->PROGRAM, "'one'");
    EXPECT_EQ(activity->SUPPORT_TOOL, "'two_ x' 'three'");
    EXPECT_EQ(gBlock.gColPROGRAM.Count(), 1);
    EXPECT_THAT(Notes(3010), ElementsAre("I3010|PROGRAM|ACTIVITY"));
    EXPECT_THAT(Notes(3060), ElementsAre("I3060|f|T22|PROGRAM_ACTIVITY", "I3060|one|T6|PROGRAM",
                                         "I3060|two. x|T6|SUPPORT_TOOL", "I3060|three|T6|SUPPORT_TOOL"));
}

TEST_F(ActivityProgramsTest, AProcessActivityHasSupportToolsOnly) {
    for (const char* name : {"one", "two", "three"}) AddProgram(name);
    object->Assign(repository.Model(processType, "Refined", group));
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->PROGRAM, "");
    EXPECT_EQ(activity->SUPPORT_TOOL, "'one' 'two' 'three'");
    EXPECT_TRUE(gBlock.gColPROGRAM.IsEmpty());
    EXPECT_THAT(Notes(3010), IsEmpty());
}

TEST_F(ActivityProgramsTest, AnUnnamedProgramIsNotMappedAndTheSecondStaysASupportTool) {
    AddProgram("");
    AddProgram("two");
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->PROGRAM, "");
    EXPECT_EQ(activity->SUPPORT_TOOL, "'two'");
    EXPECT_TRUE(gBlock.gColPROGRAM.IsEmpty());
    EXPECT_THAT(Notes(3010), ElementsAre("I3010|PROGRAM|ACTIVITY"));
}

TEST_F(ActivityProgramsTest, AnUnnamedSupportToolIsAWarningAndSkipped) {
    for (const char* name : {"one", "", "three", "  "}) AddProgram(name);
    EXPECT_EQ(Finished()->SUPPORT_TOOL, "'three'");
    EXPECT_THAT(Boxes(), ElementsAre("E2050 in modMappingRule.ConvertARISName"));
    EXPECT_EQ(gBlock.gCurrentProcedure, "modTest.Test");
}

TEST_F(ActivityProgramsTest, AnUnnamedSupportToolIsSkippedWithoutAWordWhereNamesAreNotConverted) {
    gBlock.gOptConvertNames = false;
    for (const char* name : {"one", "", "three."}) AddProgram(name);
    EXPECT_EQ(Finished()->SUPPORT_TOOL, "'three.'");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ActivityProgramsTest, AProgramIsNamedByItsRuleAndASupportToolByItsName) {
    NewAttributeRule("PROGRAM_ObjectName", "4711");
    AddProgram("one")->Set(4711, "by rule");
    AddProgram("two")->Set(4711, "by rule as well");
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->PROGRAM, "'by rule'");
    EXPECT_EQ(activity->SUPPORT_TOOL, "'two'");
}

TEST_F(ActivityProgramsTest, AProgramOfAnUnselectedModelIsMadeOnTheSpot) {
    repository.Connect(DrawnElsewhere(ObjectType::moduleType, "Module"), 221, object);
    repository.Connect(DrawnElsewhere(ObjectType::itFunctionType, "Function"), 147, object);
    EXPECT_EQ(Finished()->PROGRAM, "'Function'");
    EXPECT_TRUE(gBlock.gColPROGRAM.Item(1)->SetupFinished);
}

TEST_F(ActivityProgramsTest, AProgramMadeOnTheSpotHasItsContainersAndNotes) {
    const Ref<FakeObject> program = DrawnElsewhere(ObjectType::itFunctionType, "Elsewhere");
    repository.Connect(program, 147, object);
    repository.Connect(program, 60, DrawnElsewhere(ObjectType::ermAttribute, "d"));
    Finished();
    const Ref<clsPROGRAM> made = gBlock.gColPROGRAM.Item(program->Guid());
    EXPECT_EQ(made->InputContainer, gBlock.gColDATA_STRUCTURE.Item(1));
    EXPECT_EQ(made->OutputContainer, made->InputContainer);
    EXPECT_THAT(Notes(3060), ElementsAre("I3060|f|T22|PROGRAM_ACTIVITY", "I3060|d|T19|DATA_MEMBER",
                                         "I3060|Elsewhere|T105|PROGRAM"));
    EXPECT_THAT(Notes(3090),
                ElementsAre("I3090|DATA_STRUCTURE|'DATA_STRUCTURE_0'", "I3090|PROGRAM|'Elsewhere'",
                            "I3090|PROGRAM_ACTIVITY|'f'", "I3090|PROCESS|'Orders'"));
}

TEST_F(ActivityProgramsTest, ANameOfBlanksIsANameThatIsPrintedEmpty) {
    AddProgram("  ");
    EXPECT_EQ(Finished()->PROGRAM, "''");
    EXPECT_EQ(gBlock.gColPROGRAM.Count(), 1);
    EXPECT_THAT(Boxes(), IsEmpty());
}

class ActivityStaffTest : public ActivityProgramsTest {
  protected:
    Ref<FakeObject> AddPerson(const std::string& name, std::int32_t connection = 65) {
        return Add(ObjectType::person, name, connection);
    }
    Ref<FakeObject> AddRole(const std::string& name, std::int32_t connection = 218) {
        return Add(ObjectType::personType, name, connection);
    }
    Ref<FakeObject> AddOrganization(const std::string& name, std::int32_t connection = 65) {
        return Add(ObjectType::organization, name, connection);
    }
    Ref<FakeObject> Add(std::int32_t type, const std::string& name, std::int32_t connection) {
        const Ref<FakeObject> staff = Drawn(type, name);
        repository.Connect(staff, connection, object);
        return staff;
    }
};

TEST_F(ActivityStaffTest, AllOfAKindAreListedOnceInTheOrderOfTheRule) {
    gBlock.gOptDynamicStaffAssignment = false;
    AddPerson("by ten", 10);
    AddPerson("a");
    AddPerson("");
    const Ref<FakeObject> twice = AddPerson("b");
    repository.Connect(twice, 10, object);
    EXPECT_EQ(Finished()->PERSON, "'A' 'B' 'BY_TEN'");
    EXPECT_EQ(gBlock.gColPERSON.Count(), 3);
}

TEST_F(ActivityStaffTest, WithoutDynamicAssignmentAPersonStandsAloneAndRolesAreNotAskedFor) {
    gBlock.gOptDynamicStaffAssignment = false;
    AddPerson("Jo");
    AddRole("Clerk");
    AddOrganization("Sales");
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->PERSON, "'JO'");
    EXPECT_EQ(activity->MEMBER_OF_ROLE + activity->ORGANIZATION, "");
    EXPECT_TRUE(gBlock.gColROLE.IsEmpty());
}

TEST_F(ActivityStaffTest, WithoutAPersonRolesAndAnOrganizationCount) {
    gBlock.gOptDynamicStaffAssignment = false;
    AddPerson("");
    AddRole("No. 1");
    AddRole("by 220", 220);
    AddOrganization("Sales");
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->PERSON, "");
    EXPECT_EQ(activity->MEMBER_OF_ROLE, "'No_ 1' 'by 220'");
    EXPECT_EQ(activity->ORGANIZATION, "'Sales'");
    EXPECT_EQ(gBlock.gColROLE.Count(), 2);
    EXPECT_EQ(gBlock.gColORGANIZATION.Count(), 1);
}

TEST_F(ActivityStaffTest, WithDynamicAssignmentARoleStandsInFrontOfPersons) {
    AddPerson("Jo");
    AddRole("Clerk");
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->MEMBER_OF_ROLE, "'Clerk'");
    EXPECT_EQ(activity->PERSON, "");
    EXPECT_TRUE(gBlock.gColPERSON.IsEmpty());
}

TEST_F(ActivityStaffTest, WithDynamicAssignmentAnOrganizationStandsInFrontOfPersonsAsWell) {
    AddPerson("Jo");
    AddOrganization("Sales", 10);
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->ORGANIZATION, "'Sales'");
    EXPECT_EQ(activity->PERSON, "");
}

TEST_F(ActivityStaffTest, WithDynamicAssignmentPersonsCountWhereThereIsNothingElse) {
    AddPerson("Jo");
    AddRole("");
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->PERSON, "'JO'");
    EXPECT_EQ(activity->MEMBER_OF_ROLE, "");
}

TEST_F(ActivityStaffTest, TheFirstOrganizationCounts) {
    AddOrganization("first");
    AddOrganization("second");
    AddOrganization("third", 10);
    EXPECT_EQ(Finished()->ORGANIZATION, "'first'");
    EXPECT_THAT(Notes(3000), ElementsAre("E3000|ORGANIZATION|ACTIVITY"));
    EXPECT_THAT(Notes(3030), ElementsAre("I3030|second|T43", "I3030|third|T43"));
    EXPECT_EQ(gBlock.gColORGANIZATION.Count(), 1);
}

TEST_F(ActivityStaffTest, RolesAndOrganizationsAreNamedByTheirRules) {
    NewAttributeRule("ROLE_ObjectName", "4711");
    NewAttributeRule("ORGANIZATION_ObjectName", "4711");
    AddRole("plain")->Set(4711, "role");
    AddOrganization("plain")->Set(4711, "organization");
    const Ref<clsACTIVITY> activity = Finished();
    EXPECT_EQ(activity->MEMBER_OF_ROLE, "'role'");
    EXPECT_EQ(activity->ORGANIZATION, "'organization'");
}

TEST_F(ActivityStaffTest, TheSecondPhaseIsSupportToolsThenRolesThenTheOrganization) {
    AddOrganization("O. x");
    AddRole("R. x");
    AddProgram("one");
    AddProgram("two. x");
    Finished();
    // A neighbour is named by the activity, then by itself.
    EXPECT_THAT(Notes(3100), ElementsAre("I3100|two. x|two_ x", "I3100|R. x|R_ x", "I3100|R. x|R_ x",
                                         "I3100|O. x|O_ x", "I3100|O. x|O_ x"));
}

}  // namespace
}  // namespace wxbrg::test
