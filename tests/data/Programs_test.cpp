#include <gmock/gmock.h>

#include "data/clsDATA_MEMBER.h"
#include "data/clsPROGRAM.h"
#include "data/modDATA_STRUCTURE.h"
#include "data/modPROGRAM.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* defaultName = "'Default Data Structure'";

class ProgramsTest : public CoreTest {
  protected:
    /// Data that the program touches, as the default rules know it for an application system.
    void Touches(Ref<FakeObject> data) { repository.Connect(object, 125, data); }

    Ref<FakeObject> object = Drawn(ObjectType::applicationSystem, "Ledger");
};

TEST_F(ProgramsTest, AProgramBeginsWithTwoDefaultStructures) {
    const clsPROGRAM program;
    EXPECT_EQ(program.InputContainer->ObjectName, defaultName);
    EXPECT_EQ(program.OutputContainer->ObjectName, defaultName);
    EXPECT_NE(program.InputContainer, program.OutputContainer);
    EXPECT_FALSE(program.InputContainer->IsGenerated);
    EXPECT_TRUE(gBlock.gColDATA_STRUCTURE.IsEmpty());
    EXPECT_FALSE(program.SetupFinished);
}

TEST_F(ProgramsTest, WithoutDataTheDefaultStructuresStay) {
    const Ref<clsPROGRAM> program = PROGRAM_Add_ARIS_Mapping(object);
    EXPECT_EQ(program->ObjectName, "'Ledger'");
    EXPECT_EQ(program->InputContainer->ObjectName, defaultName);
    EXPECT_EQ(program->OutputContainer->ObjectName, defaultName);
    EXPECT_TRUE(gBlock.gColDATA_STRUCTURE.IsEmpty());
    EXPECT_THAT(Notes(), ElementsAre("I3090|PROGRAM|'Ledger'", "I3060|Ledger|T6|PROGRAM"));
}

TEST_F(ProgramsTest, OneEntityTypeWithMembersIsBothContainers) {
    const Ref<FakeObject> order = EntityType("Order", {"Number"});
    Touches(order);
    const Ref<clsPROGRAM> program = PROGRAM_Add_ARIS_Mapping(object);
    EXPECT_EQ(program->InputContainer, gBlock.gColDATA_STRUCTURE.Item(order->Guid()));
    EXPECT_EQ(program->OutputContainer, program->InputContainer);
    EXPECT_EQ(program->InputContainer->ObjectName, "'Order'");
}

TEST_F(ProgramsTest, SeveralObjectsGiveAGeneratedStructureThatOthersShare) {
    const Ref<FakeObject> a = Drawn(ObjectType::ermAttribute, "a");
    const Ref<FakeObject> b = Drawn(ObjectType::ermAttribute, "b");
    Touches(a);
    Touches(b);
    const Ref<clsPROGRAM> program = PROGRAM_Add_ARIS_Mapping(object);
    EXPECT_TRUE(program->InputContainer->IsGenerated);
    EXPECT_EQ(program->InputContainer->ObjectName, "'DATA_STRUCTURE_0'");
    EXPECT_EQ(program->OutputContainer, program->InputContainer);
    EXPECT_EQ(DATA_STRUCTURE_Generate(ObjectsOf({b, a})), program->InputContainer);
    EXPECT_EQ(gBlock.gColDATA_STRUCTURE.Count(), 1);
}

TEST_F(ProgramsTest, OneObjectWithoutMembersGivesAGeneratedStructure) {
    Touches(Drawn(ObjectType::cluster, "empty cluster"));
    const Ref<clsPROGRAM> program = PROGRAM_Add_ARIS_Mapping(object);
    EXPECT_TRUE(program->InputContainer->IsGenerated);
    EXPECT_EQ(program->InputContainer->ColDATA_MEMBER.Count(), 1);
}

TEST_F(ProgramsTest, OneObjectThatIsNoDataLeavesTheContainerEmpty) {
    AddStep(NewRule("PROGRAM_RECEIVES_DATA"), ObjectType::applicationSystem, CxnKind::outgoing, 125,
            ObjectType::person);
    Touches(Drawn(ObjectType::person, "Jo"));
    const Ref<clsPROGRAM> program = PROGRAM_Add_ARIS_Mapping(object);
    EXPECT_FALSE(program->InputContainer);
    EXPECT_EQ(program->OutputContainer->ObjectName, defaultName);
}

TEST_F(ProgramsTest, OneOfSeveralObjectsThatIsNoDataEndsTheRun) {
    const Ref<clsMappingRule> rule = gBlock.gColMappingRule.Item("PROGRAM_RECEIVES_DATA");
    AddStep(rule, ObjectType::applicationSystem, CxnKind::outgoing, 125, ObjectType::person);
    Touches(Drawn(ObjectType::ermAttribute, "a"));
    Touches(Drawn(ObjectType::person, "Jo"));
    EXPECT_EQ(EndOf([&] {
                  PROGRAM_Add_ARIS_Mapping(object);
              }),
              2120);
    EXPECT_THAT(Boxes(), ElementsAre("C2120 in modDATA_MEMBER.DATA_MEMBER_Add_ARIS_Mapping: T46|Jo|"
                                     "DATA_OBJECT"));
}

TEST_F(ProgramsTest, TextsAreGatedByTheirOptions) {
    object->With(9, "what")->With(8, "how")->With(985, "EXE 'a.b'\t");
    gBlock.gOptUseDescriptionAttr = gBlock.gOptUseDocumentationAttr = false;
    const Ref<clsPROGRAM> bare = PROGRAM_Add_ARIS_Mapping(object);
    EXPECT_EQ(bare->DESCRIPTION + bare->DOCUMENTATION + bare->OtherSettings, "");
    const Ref<FakeObject> other = Drawn(ObjectType::moduleType, "Module")->With(9, "what's");
    other->With(8, "how")->With(985, "EXE 'a.b'\t");
    gBlock.gOptUseDescriptionAttr = gBlock.gOptUseDocumentationAttr = gBlock.gOptUseOtherSettings = true;
    const Ref<clsPROGRAM> full = PROGRAM_Add_ARIS_Mapping(other);
    EXPECT_EQ(full->DESCRIPTION, "'what''s'");
    EXPECT_EQ(full->DOCUMENTATION, "'how'");
    EXPECT_EQ(full->OtherSettings, "EXE 'a.b'\t");
}

TEST_F(ProgramsTest, ABatchFindsAllTypesOfTheRule) {
    Drawn(ObjectType::moduleType, "a module");
    Drawn(ObjectType::itFunctionType, "a function");
    PROGRAM_Create(ModelsOf({model}));
    EXPECT_THAT(Notes(3060), ElementsAre("I3060|Ledger|T6|PROGRAM", "I3060|a function|T105|PROGRAM",
                                         "I3060|a module|T37|PROGRAM"));
    EXPECT_EQ(gBlock.gColPROGRAM.Count(), 3);
}

TEST_F(ProgramsTest, AnotherTypeIsNoProgram) {
    EXPECT_EQ(EndOf([&] {
                  PROGRAM_Add_ARIS_Mapping(Function("Check"));
              }),
              2120);
    EXPECT_THAT(Boxes(), ElementsAre("C2120 in modPROGRAM.PROGRAM_Add_ARIS_Mapping: T22|Check|PROGRAM"));
    EXPECT_THAT(Notes(), IsEmpty());
}

}  // namespace
}  // namespace wxbrg::test
