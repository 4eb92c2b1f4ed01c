// The names under which the procedures of this room are reported.

#include <gmock/gmock.h>

#include "model/clsACTIVITY.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"
#include "model/modACTIVITY.h"
#include "model/modCONTROL_CONNECTOR.h"
#include "model/modPROCESS.h"
#include "model/modPoint.h"
#include "tests/fixture/CoreTest.h"
#include "tests/fixture/ProcedureNames.h"

namespace wxbrg::test {
namespace {

class ModelProcedureNamesTest : public CoreTest {
  protected:
    Collection<ARISModel> newModels;
    clsPROCESS process;
    clsACTIVITY activity;
    clsCONTROL_CONNECTOR connector;
};

// clang-format off
TEST_F(ModelProcedureNamesTest, Process) {
    const std::string own = "clsPROCESS.";
    EXPECT_EQ(NameOf([&] { process.SetupProperties(newModels); }), own + "SetupProperties");
    EXPECT_EQ(NameOf([&] { process.SetupProperty_Constructs(newModels); }), own + "SetupProperty_Constructs");
    EXPECT_EQ(NameOf([&] { process.GeneratedDataSourceName(); }), own + "GeneratedDataSourceName");
    EXPECT_EQ(NameOf([&] { process.GeneratedDataSinkName(); }), own + "GeneratedDataSinkName");
    ExpectNames<clsPROCESS>("clsPROCESS", {
        {&clsPROCESS::SetupProperty_ProcessName, "SetupProperty_ProcessName"},
        {&clsPROCESS::SetupProperty_InputContainer, "SetupProperty_InputContainer"},
        {&clsPROCESS::SetupProperty_OutputContainer, "SetupProperty_OutputContainer"},
        {&clsPROCESS::SetupProperty_ProcessSetting, "SetupProperty_ProcessSetting"},
        {&clsPROCESS::SetupProperty_DESCRIPTION, "SetupProperty_DESCRIPTION"},
        {&clsPROCESS::SetupProperty_DOCUMENTATION, "SetupProperty_DOCUMENTATION"},
        {&clsPROCESS::SetupProperty_CATEGORY, "SetupProperty_CATEGORY"},
        {&clsPROCESS::PROCESS_SetupProperty_ACTIVITY_LAYOUT, "PROCESS_SetupProperty_ACTIVITY_LAYOUT"},
        {&clsPROCESS::SetupProperty_ProcessGraphicsSetting, "SetupProperty_ProcessGraphicsSetting"},
        {&clsPROCESS::SetupProperty_WINDOW, "SetupProperty_WINDOW"},
        {&clsPROCESS::SetupProperty_SOURCE, "SetupProperty_SOURCE"},
        {&clsPROCESS::SetupProperty_SINK, "SetupProperty_SINK"},
        {&clsPROCESS::SetupPropertiesOfProcessInputConnectors, "SetupPropertiesOfProcessInputConnectors"},
        {&clsPROCESS::SetupPropertiesOfProcessOutputConnectors, "SetupPropertiesOfProcessOutputConnectors"},
        {&clsPROCESS::SetupProperty_OtherSettings, "SetupProperty_OtherSettings"},
        {&clsPROCESS::ConvertARISLayoutToWPXLayout, "ConvertARISLayoutToWPXLayout"}});
}

TEST_F(ModelProcedureNamesTest, Activity) {
    const std::string own = "clsACTIVITY.";
    EXPECT_EQ(NameOf([&] { activity.SetupIndependentProperties(newModels); }), own + "SetupIndependentProperties");
    EXPECT_EQ(NameOf([&] { activity.SetupDependentProperties(process); }), own + "SetupDependentProperties");
    EXPECT_EQ(NameOf([&] { activity.SetupProperty_ActivityExtensionSetting(process); }),
              own + "SetupProperty_ActivityExtensionSetting");
    EXPECT_EQ(NameOf([&] { activity.SetupProperty_ProcessActivitySetting(newModels); }),
              own + "SetupProperty_ProcessActivitySetting");
    EXPECT_EQ(NameOf([&] { activity.SetupProperty_StartCondition(process); }), own + "SetupProperty_StartCondition");
    EXPECT_EQ(NameOf([&] { activity.GetProperty_StartCondition("", process); }), own + "GetProperty_StartCondition");
    EXPECT_EQ(NameOf([&] { activity.GetProperty_ExitCondition(""); }), own + "GetProperty_ExitCondition");
    ExpectNames<clsACTIVITY>("clsACTIVITY", {
        {&clsACTIVITY::SetupProperty_ActivityName, "SetupProperty_ActivityName"},
        {&clsACTIVITY::SetupProperty_ActivitySetting, "SetupProperty_ActivitySetting"},
        {&clsACTIVITY::SetupProperty_InputContainer, "SetupProperty_InputContainer"},
        {&clsACTIVITY::SetupProperty_OutputContainer, "SetupProperty_OutputContainer"},
        {&clsACTIVITY::SetupProperty_LAYOUT, "SetupProperty_LAYOUT"},
        {&clsACTIVITY::SetupProperty_DESCRIPTION, "SetupProperty_DESCRIPTION"},
        {&clsACTIVITY::SetupProperty_DOCUMENTATION, "SetupProperty_DOCUMENTATION"},
        {&clsACTIVITY::SetupProperty_PROCESS, "SetupProperty_PROCESS"},
        {&clsACTIVITY::SetupProperty_ProgramActivitySetting, "SetupProperty_ProgramActivitySetting"},
        {&clsACTIVITY::SetupProperty_PROGRAM, "SetupProperty_PROGRAM"},
        {&clsACTIVITY::SetupProperty_SUPPORT_TOOL, "SetupProperty_SUPPORT_TOOL"},
        {&clsACTIVITY::SetupProperty_StartMode, "SetupProperty_StartMode"},
        {&clsACTIVITY::SetupProperty_ExitCondition, "SetupProperty_ExitCondition"},
        {&clsACTIVITY::SetupProperty_ExitMode, "SetupProperty_ExitMode"},
        {&clsACTIVITY::SetupProperty_ExplicitStaffAssignment, "SetupProperty_ExplicitStaffAssignment"},
        {&clsACTIVITY::SetupProperty_PERSON, "SetupProperty_PERSON"},
        {&clsACTIVITY::SetupProperty_MEMBER_OF_ROLE, "SetupProperty_MEMBER_OF_ROLE"},
        {&clsACTIVITY::SetupProperty_ORGANIZATION, "SetupProperty_ORGANIZATION"},
        {&clsACTIVITY::SetupProperty_OtherSettings, "SetupProperty_OtherSettings"}});
}

TEST_F(ModelProcedureNamesTest, ControlConnector) {
    const std::string own = "clsCONTROL_CONNECTOR.";
    ExpectNames<clsCONTROL_CONNECTOR>("clsCONTROL_CONNECTOR", {
        {&clsCONTROL_CONNECTOR::FindARISObjectDefinitionsOnConnectorPaths,
         "FindARISObjectDefinitionsOnConnectorPaths"},
        {&clsCONTROL_CONNECTOR::SetupProperties, "SetupProperties"},
        {&clsCONTROL_CONNECTOR::SetupProperty_Condition, "SetupProperty_Condition"},
        {&clsCONTROL_CONNECTOR::SetupProperty_DESCRIPTION, "SetupProperty_DESCRIPTION"},
        {&clsCONTROL_CONNECTOR::SetupProperty_Linking, "SetupProperty_Linking"},
        {&clsCONTROL_CONNECTOR::SetupProperty_LAYOUT, "SetupProperty_LAYOUT"}});
    EXPECT_EQ(NameOf([&] { connector.IsLoopConnector(); }), own + "IsLoopConnector");
    EXPECT_EQ(NameOf([&] { connector.IsMemberOfInvalidControlFlowLoop(process); }),
              own + "IsMemberOfInvalidControlFlowLoop");
    EXPECT_EQ(NameOf([&] { connector.GetProperty_Condition("", {}); }), own + "GetProperty_Condition");
}

TEST_F(ModelProcedureNamesTest, Modules) {
    const std::string processes = "modPROCESS.";
    EXPECT_EQ(NameOf([&] { PROCESS_Find_ARIS_Mapping({}); }), processes + "PROCESS_Find_ARIS_Mapping");
    EXPECT_EQ(NameOf([&] { PROCESS_SetupProperties(); }), processes + "PROCESS_SetupProperties");
    EXPECT_EQ(NameOf([&] { PROCESS_Create({}); }), processes + "PROCESS_Create");
    EXPECT_EQ(NameOf([&] { PROCESS_Find_ARIS_Model_In_ModelCollection_Using_Mapping_Rule({}, ""); }),
              processes + "PROCESS_Find_ARIS_Model_In_ModelCollection_Using_Mapping_Rule");
    EXPECT_EQ(NameOf([&] { Find_ARIS_Model_In_ModelList({}, ""); }), processes + "Find_ARIS_Model_In_ModelList");
    EXPECT_EQ(NameOf([&] { PROCESS_Find_ARIS_Model_Attribute({}, 0); }),
              processes + "PROCESS_Find_ARIS_Model_Attribute");
    const std::string activities = "modACTIVITY.";
    EXPECT_EQ(NameOf([&] { ACTIVITY_Create(newModels, process); }), activities + "ACTIVITY_Create");
    EXPECT_EQ(NameOf([&] { ACTIVITY_Find_ARIS_Mapping(process); }), activities + "ACTIVITY_Find_ARIS_Mapping");
    EXPECT_EQ(NameOf([&] { ACTIVITY_SetupIndependentProperties(newModels, process); }),
              activities + "ACTIVITY_SetupIndependentProperties");
    EXPECT_EQ(NameOf([&] { ACTIVITY_SetupDependentProperties(process); }),
              activities + "ACTIVITY_SetupDependentProperties");
    const std::string connectors = "modCONTROL_CONNECTOR.";
    EXPECT_EQ(NameOf([&] { CONTROL_CONNECTOR_Create(process); }), connectors + "CONTROL_CONNECTOR_Create");
    EXPECT_EQ(NameOf([&] { CONTROL_CONNECTOR_Find_ARIS_Mapping(process); }),
              connectors + "CONTROL_CONNECTOR_Find_ARIS_Mapping");
    EXPECT_EQ(NameOf([&] { CONTROL_CONNECTOR_SetupProperties(process); }),
              connectors + "CONTROL_CONNECTOR_SetupProperties");
    EXPECT_EQ(NameOf([&] { CalculateGraphicalCenterOfARISObjects({}, process); }),
              "modPoint.CalculateGraphicalCenterOfARISObjects");
}
// clang-format on

}  // namespace
}  // namespace wxbrg::test
