// The names under which the procedures of this room are reported.

#include <gmock/gmock.h>

#include "data/clsDATA_CONNECTOR.h"
#include "data/clsDATA_MEMBER.h"
#include "data/clsDATA_STRUCTURE.h"
#include "data/clsORGANIZATION.h"
#include "data/clsPERSON.h"
#include "data/clsPROCESS_CATEGORY.h"
#include "data/clsPROGRAM.h"
#include "data/clsROLE.h"
#include "data/modDATA_CONNECTOR.h"
#include "data/modDATA_MEMBER.h"
#include "data/modDATA_STRUCTURE.h"
#include "data/modORGANIZATION.h"
#include "data/modPERSON.h"
#include "data/modPROCESS_CATEGORY.h"
#include "data/modPROGRAM.h"
#include "data/modROLE.h"
#include "model/clsPROCESS.h"
#include "tests/fixture/CoreTest.h"
#include "tests/fixture/ProcedureNames.h"

namespace wxbrg::test {
namespace {

class DataProcedureNamesTest : public CoreTest {
  protected:
    struct BatchRow {
        void (*procedure)(const Collection<ARISModel>&);
        const char* name;
    };
    struct SetupRow {
        void (*procedure)();
        const char* name;
    };
};

// clang-format off
TEST_F(DataProcedureNamesTest, Staff) {
    ExpectNames<clsROLE>("clsROLE", {
        {&clsROLE::SetupProperties, "SetupProperties"},
        {&clsROLE::SetupProperty_ObjectName, "SetupProperty_ObjectName"},
        {&clsROLE::SetupProperty_DESCRIPTION, "SetupProperty_DESCRIPTION"},
        {&clsROLE::SetupProperty_COORDINATOR, "SetupProperty_COORDINATOR"},
        {&clsROLE::SetupProperty_RELATED_PERSON, "SetupProperty_RELATED_PERSON"}});
    ExpectNames<clsORGANIZATION>("clsORGANIZATION", {
        {&clsORGANIZATION::SetupProperties, "SetupProperties"},
        {&clsORGANIZATION::SetupProperty_ObjectName, "SetupProperty_ObjectName"},
        {&clsORGANIZATION::SetupProperty_DESCRIPTION, "SetupProperty_DESCRIPTION"},
        {&clsORGANIZATION::SetupProperty_MANAGER, "SetupProperty_MANAGER"},
        {&clsORGANIZATION::SetupProperty_PARENT_ORGANIZATION, "SetupProperty_PARENT_ORGANIZATION"},
        {&clsORGANIZATION::SetupProperty_RELATED_PERSON, "SetupProperty_RELATED_PERSON"}});
    ExpectNames<clsPERSON>("clsPERSON", {
        {&clsPERSON::SetupProperties, "SetupProperties"},
        {&clsPERSON::SetupProperty_PersonName, "SetupProperty_PersonName"},
        {&clsPERSON::SetupProperty_FIRST_NAME, "SetupProperty_FIRST_NAME"},
        {&clsPERSON::SetupProperty_LAST_NAME, "SetupProperty_LAST_NAME"},
        {&clsPERSON::SetupProperty_PHONE, "SetupProperty_PHONE"},
        {&clsPERSON::SetupProperty_SECOND_PHONE, "SetupProperty_SECOND_PHONE"},
        {&clsPERSON::SetupProperty_DESCRIPTION, "SetupProperty_DESCRIPTION"},
        {&clsPERSON::SetupProperty_SUBSTITUTE, "SetupProperty_SUBSTITUTE"},
        {&clsPERSON::SetupProperty_RELATED_ROLE, "SetupProperty_RELATED_ROLE"},
        {&clsPERSON::SetupProperty_RELATED_ORGANIZATION, "SetupProperty_RELATED_ORGANIZATION"},
        {&clsPERSON::SetupProperty_OtherSettings, "SetupProperty_OtherSettings"}});
}

TEST_F(DataProcedureNamesTest, ProgramsAndCategories) {
    ExpectNames<clsPROGRAM>("clsPROGRAM", {
        {&clsPROGRAM::SetupProperties, "SetupProperties"},
        {&clsPROGRAM::SetupProperty_ObjectName, "SetupProperty_ObjectName"},
        {&clsPROGRAM::SetupProperty_ProgramSetting, "SetupProperty_ProgramSetting"},
        {&clsPROGRAM::SetupProperty_DESCRIPTION, "SetupProperty_DESCRIPTION"},
        {&clsPROGRAM::SetupProperty_DOCUMENTATION, "SetupProperty_DOCUMENTATION"},
        {&clsPROGRAM::SetupProperty_InputContainer, "SetupProperty_InputContainer"},
        {&clsPROGRAM::SetupProperty_OutputContainer, "SetupProperty_OutputContainer"},
        {&clsPROGRAM::SetupProperty_OtherSettings, "SetupProperty_OtherSettings"}});
    ExpectNames<clsPROCESS_CATEGORY>("clsPROCESS_CATEGORY", {
        {&clsPROCESS_CATEGORY::SetupProperties, "SetupProperties"},
        {&clsPROCESS_CATEGORY::SetupProperty_ObjectName, "SetupProperty_ObjectName"},
        {&clsPROCESS_CATEGORY::SetupProperty_ProcessCategorySetting, "SetupProperty_ProcessCategorySetting"},
        {&clsPROCESS_CATEGORY::SetupProperty_DESCRIPTION, "SetupProperty_DESCRIPTION"},
        {&clsPROCESS_CATEGORY::SetupProperty_DOCUMENTATION, "SetupProperty_DOCUMENTATION"}});
}

TEST_F(DataProcedureNamesTest, DescriptionsOfStructuresAndMembersBearThePersonsName) {
    ExpectNames<clsDATA_STRUCTURE>("clsDATA_STRUCTURE", {
        {&clsDATA_STRUCTURE::SetupProperties, "SetupProperties"},
        {&clsDATA_STRUCTURE::SetupProperty_ObjectName, "SetupProperty_ObjectName"},
        {&clsDATA_STRUCTURE::SetupProperty_StructureSetting, "SetupProperty_StructureSetting"},
        {&clsDATA_STRUCTURE::SetupProperty_DESCRIPTION, "clsPERSON.SetupProperty_DESCRIPTION"},
        {&clsDATA_STRUCTURE::SetupProperty_DOCUMENTATION, "SetupProperty_DOCUMENTATION"},
        {&clsDATA_STRUCTURE::SetupProperty_MemberDeclarations, "SetupProperty_MemberDeclarations"}});
    ExpectNames<clsDATA_MEMBER>("clsDATA_MEMBER", {
        {&clsDATA_MEMBER::SetupProperties, "SetupProperties"},
        {&clsDATA_MEMBER::SetupProperty_MemberName, "SetupProperty_MemberName"},
        {&clsDATA_MEMBER::SetupProperty_DataType, "SetupProperty_DataType"},
        {&clsDATA_MEMBER::SetupProperty_SizeOfArray, "SetupProperty_SizeOfArray"},
        {&clsDATA_MEMBER::SetupProperty_MemberSetting, "SetupProperty_MemberSetting"},
        {&clsDATA_MEMBER::SetupProperty_DESCRIPTION, "clsPERSON.SetupProperty_DESCRIPTION"},
        {&clsDATA_MEMBER::SetupProperty_DOCUMENTATION, "SetupProperty_DOCUMENTATION"}});
    clsDATA_MEMBER member;
    EXPECT_EQ(NameOf([&] { member.GetProperty_DataType(""); }), "clsDATA_MEMBER.GetProperty_DataType");
}

TEST_F(DataProcedureNamesTest, PathsOfADataConnectorBearTheControlConnectorsName) {
    ExpectNames<clsDATA_CONNECTOR>("clsDATA_CONNECTOR", {
        {&clsDATA_CONNECTOR::FindARISObjectDefinitionsOnConnectorPaths,
         "clsCONTROL_CONNECTOR.FindARISObjectDefinitionsOnConnectorPaths"},
        {&clsDATA_CONNECTOR::SetupProperties, "SetupProperties"},
        {&clsDATA_CONNECTOR::SetupProperty_DESCRIPTION, "SetupProperty_DESCRIPTION"}});
    clsDATA_CONNECTOR connector;
    clsPROCESS process;
    const std::string own = "clsDATA_CONNECTOR.";
    EXPECT_EQ(NameOf([&] { connector.SetupProperty_Linking(""); }), own + "SetupProperty_Linking");
    EXPECT_EQ(NameOf([&] { connector.SetupProperty_Mapping(nullptr); }), own + "SetupProperty_Mapping");
    EXPECT_EQ(NameOf([&] { connector.SetupProperty_LAYOUT(""); }), own + "SetupProperty_LAYOUT");
    EXPECT_EQ(NameOf([&] { connector.IsLoopConnector(); }), own + "IsLoopConnector");
    EXPECT_EQ(NameOf([&] { connector.IsMemberOfInvalidDataFlowLoop(process); }),
              own + "IsMemberOfInvalidDataFlowLoop");
}

TEST_F(DataProcedureNamesTest, Batches) {
    const auto batches = std::to_array<BatchRow>({
        {PROCESS_CATEGORY_Find_ARIS_Mapping, "modPROCESS_CATEGORY.PROCESS_CATEGORY_Find_ARIS_Mapping"},
        {PROCESS_CATEGORY_Create, "modPROCESS_CATEGORY.PROCESS_CATEGORY_Create"},
        {ORGANIZATION_Find_ARIS_Mapping, "modORGANIZATION.ORGANIZATION_Find_ARIS_Mapping"},
        {ORGANIZATION_Create, "modORGANIZATION.ORGANIZATION_Create"},
        {ROLE_Find_ARIS_Mapping, "modROLE.ROLE_Find_ARIS_Mapping"},
        {ROLE_Create, "modROLE.ROLE_Create"},
        {PERSON_Find_ARIS_Mapping, "modPERSON.PERSON_Find_ARIS_Mapping"},
        {PERSON_Create, "modPERSON.PERSON_Create"},
        {DATA_STRUCTURE_Find_ARIS_Mapping, "modDATA_STRUCTURE.DATA_STRUCTURE_Find_ARIS_Mapping"},
        {DATA_STRUCTURE_Create, "modDATA_STRUCTURE.DATA_STRUCTURE_Create"},
        {PROGRAM_Find_ARIS_Mapping, "modPROGRAM.PROGRAM_Find_ARIS_Mapping"},
        {PROGRAM_Create, "modPROGRAM.PROGRAM_Create"},
    });
    for (const BatchRow& row : batches) EXPECT_EQ(NameOf([&] { row.procedure({}); }), row.name);
    const auto setups = std::to_array<SetupRow>({
        {PROCESS_CATEGORY_SetupProperties, "modPROCESS_CATEGORY.PROCESS_CATEGORY_SetupProperties"},
        {ORGANIZATION_SetupProperties, "modORGANIZATION.ORGANIZATION_SetupProperties"},
        {ROLE_SetupProperties, "modROLE.ROLE_SetupProperties"},
        {PERSON_SetupProperties, "modPERSON.PERSON_SetupProperties"},
        {DATA_STRUCTURE_SetupProperties, "modDATA_STRUCTURE.DATA_STRUCTURE_SetupProperties"},
        {PROGRAM_SetupProperties, "modPROGRAM.PROGRAM_SetupProperties"},
    });
    for (const SetupRow& row : setups) EXPECT_EQ(NameOf(row.procedure), row.name);
}

TEST_F(DataProcedureNamesTest, CreationOnDemand) {
    EXPECT_EQ(NameOf([] { ROLE_Add_ARIS_Mapping({}); }), "modROLE.ROLE_Add_ARIS_Mapping");
    EXPECT_EQ(NameOf([] { PERSON_Add_ARIS_Mapping({}); }), "modPERSON.PERSON_Add_ARIS_Mapping");
    EXPECT_EQ(NameOf([] { ORGANIZATION_Add_ARIS_Mapping({}); }),
              "modORGANIZATION.ORGANIZATION_Add_ARIS_Mapping");
    EXPECT_EQ(NameOf([] { PROGRAM_Add_ARIS_Mapping({}); }), "modPROGRAM.PROGRAM_Add_ARIS_Mapping");
    EXPECT_EQ(NameOf([] { DATA_MEMBER_Add_ARIS_Mapping({}); }),
              "modDATA_MEMBER.DATA_MEMBER_Add_ARIS_Mapping");
    const std::string structures = "modDATA_STRUCTURE.";
    EXPECT_EQ(NameOf([] { DATA_STRUCTURE_Add_ARIS_Mapping({}); }),
              structures + "DATA_STRUCTURE_Add_ARIS_Mapping");
    EXPECT_EQ(NameOf([] { DATA_STRUCTURE_Generate({}); }), structures + "DATA_STRUCTURE_Generate");
    EXPECT_EQ(NameOf([] { DATA_STRUCTURE_FindEquivalentStructure({}, {}); }),
              structures + "DATA_STRUCTURE_FindEquivalentStructure");
    EXPECT_EQ(NameOf([] { DATA_STRUCTURE_GenerateName(); }), structures + "DATA_STRUCTURE_GenerateName");
    EXPECT_EQ(NameOf([] { DATA_STRUCTURE_Is_DATA_STRUCTURE({}); }),
              structures + "DATA_STRUCTURE_Is_DATA_STRUCTURE");
}

TEST_F(DataProcedureNamesTest, DataConnectors) {
    clsPROCESS process;
    const std::string own = "modDATA_CONNECTOR.";
    EXPECT_EQ(NameOf([&] { DATA_CONNECTOR_Create(process); }), own + "DATA_CONNECTOR_Create");
    EXPECT_EQ(NameOf([&] { DATA_CONNECTOR_Find_ARIS_Mapping(process); }),
              own + "DATA_CONNECTOR_Find_ARIS_Mapping");
    EXPECT_EQ(NameOf([&] { DATA_CONNECTOR_SetupProperties(process); }),
              own + "DATA_CONNECTOR_SetupProperties");
}
// clang-format on

}  // namespace
}  // namespace wxbrg::test
