// The blocks of processes, activities and connectors.

#include <gmock/gmock.h>

#include "data/clsDATA_CONNECTOR.h"
#include "data/clsDATA_STRUCTURE.h"
#include "model/clsACTIVITY.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"
#include "output/clsWPXWriter.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;

constexpr const char* containers = " ('Default Data Structure', 'Default Data Structure')\n";

class WrittenProcessesTest : public CoreTest {
  protected:
    WrittenProcessesTest() {
        activity.ActivityName = "'Check'";
        connector.FROM_ARISObjectDefinition = Function("Check");
        connector.TO_ARISObjectDefinition = Function("Pay");
    }

    clsACTIVITY activity;
    clsCONTROL_CONNECTOR connector;
};

TEST_F(WrittenProcessesTest, AProcessWithoutActivitiesIsItsHeadAndItsEnd) {
    clsPROCESS process;
    process.ProcessName = "'Orders'";
    EXPECT_EQ(gBlock.gWPXWriter->WriteProcess(process), 0);
    EXPECT_EQ(Written(), std::string("\nPROCESS 'Orders'") + containers + "\nEND 'Orders'\n");
}

TEST_F(WrittenProcessesTest, AProcessWithAllItsLines) {
    clsPROCESS process;
    process.ProcessName = "'Orders'";
    process.InputContainer->ObjectName = "'In'";
    process.OutputContainer->ObjectName = "'Out'";
    process.DESCRIPTION = "'what'";
    process.DOCUMENTATION = "'how'";
    process.CATEGORY = "'Sales'";
    process.WINDOW = "PAPERSIZE WIDTH 1 HEIGHT 2";
    process.Col_SOURCE.Add("SOURCE 1 XPOS 1 YPOS 2");
    process.Col_SOURCE.Add("SOURCE 2 XPOS 3 YPOS 4");
    process.Col_SINK.Add("SINK 1 XPOS 5 YPOS 6");
    process.OtherSettings = "PRIORITY 1";
    gBlock.gWPXWriter->WriteProcess(process);
    EXPECT_EQ(Written(),
              "\nPROCESS 'Orders' ('In', 'Out')\n"
              "\tDESCRIPTION 'what'\n"
              "\tDOCUMENTATION 'how'\n"
              "\tCATEGORY 'Sales'\n"
              "\tWINDOW PAPERSIZE WIDTH 1 HEIGHT 2\n"
              "\tSOURCE 1 XPOS 1 YPOS 2\n"
              "\tSOURCE 2 XPOS 3 YPOS 4\n"
              "\tSINK 1 XPOS 5 YPOS 6\n"
              "\tPRIORITY 1\n"
              "\nEND 'Orders'\n");
}

TEST_F(WrittenProcessesTest, AProcessWithoutAContainerEndsTheRun) {
    clsPROCESS process;
    process.OutputContainer = nullptr;
    EXPECT_EQ(EndOf([&] {
                  gBlock.gWPXWriter->WriteProcess(process);
              }),
              FailureKind::objectNotSet);
    EXPECT_THAT(Boxes(), ElementsAre("C91 in clsWPXWriter.WriteProcess: object not set"));
    EXPECT_EQ(Written(), "");
}

TEST_F(WrittenProcessesTest, AnActivityWithoutAContainerEndsTheRun) {
    for (Ref<clsDATA_STRUCTURE> clsACTIVITY::*container :
         {&clsACTIVITY::InputContainer, &clsACTIVITY::OutputContainer}) {
        clsACTIVITY bare;
        bare.*container = nullptr;
        EXPECT_EQ(EndOf([&] {
                      gBlock.gWPXWriter->WriteActivity(bare);
                  }),
                  FailureKind::objectNotSet);
        EXPECT_EQ(Boxes().back(), "C91 in clsWPXWriter.WriteActivity: object not set");
    }
    EXPECT_EQ(Written(), "");
}

TEST_F(WrittenProcessesTest, UnnamedOnesAreBareKeywords) {
    clsPROCESS process;
    activity.ActivityName = "";
    process.Col_ACTIVITY.Add(&activity);
    EXPECT_EQ(gBlock.gWPXWriter->WriteProcess(process), 1);
    EXPECT_EQ(Written(), std::string("\nPROCESS ") + containers + "\n\tPROGRAM_ACTIVITY " + containers +
                             "\t\tSTART MANUAL WHEN AT_LEAST_ONE CONNECTOR TRUE\n"
                             "\tEND \n"
                             "\nEND \n");
}

TEST_F(WrittenProcessesTest, ActivitiesComeFirstThenControlThenDataConnectors) {
    clsPROCESS process;
    process.ProcessName = "'P'";
    clsACTIVITY other;
    other.ActivityName = "'Again'";
    clsCONTROL_CONNECTOR second;
    second.FROM_ARISObjectDefinition = connector.TO_ARISObjectDefinition;
    second.TO_ARISObjectDefinition = connector.FROM_ARISObjectDefinition;
    clsDATA_CONNECTOR data[2];
    process.Col_DATA_CONNECTOR.Add(&data[0]);
    process.Col_CONTROL_CONNECTOR.Add(&connector);
    process.Col_ACTIVITY.Add(&activity);
    process.Col_DATA_CONNECTOR.Add(&data[1]);
    process.Col_CONTROL_CONNECTOR.Add(&second);
    process.Col_ACTIVITY.Add(&other);
    EXPECT_EQ(gBlock.gWPXWriter->WriteProcess(process), 6);
    const std::string start = "\t\tSTART MANUAL WHEN AT_LEAST_ONE CONNECTOR TRUE\n";
    EXPECT_EQ(Written(), std::string("\nPROCESS 'P'") + containers + "\n\tPROGRAM_ACTIVITY 'Check'" +
                             containers + start + "\tEND 'Check'\n" + "\n\tPROGRAM_ACTIVITY 'Again'" +
                             containers + start + "\tEND 'Again'\n" +
                             "\n\tCONTROL\n\n\tCONTROL\n\n\tDATA\n\n\tDATA\n\nEND 'P'\n");
}

TEST_F(WrittenProcessesTest, AnEmptyLayoutOrMappingOfACollectionIsALineOfItsOwn) {
    clsPROCESS process;
    process.Col_SOURCE.Add("");
    process.Col_SINK.Add("");
    clsDATA_CONNECTOR data;
    data.ColMapping.Add("");
    process.Col_DATA_CONNECTOR.Add(&data);
    gBlock.gWPXWriter->WriteProcess(process);
    EXPECT_EQ(Written(),
              std::string("\nPROCESS ") + containers + "\t\n\t\n" + "\n\tDATA\n\t\t\n" + "\nEND \n");
}

TEST_F(WrittenProcessesTest, AProgramActivityBeginsWithItsStartLineOnly) {
    gBlock.gWPXWriter->WriteActivity(activity);
    EXPECT_EQ(Written(), std::string("\n\tPROGRAM_ACTIVITY 'Check'") + containers +
                             "\t\tSTART MANUAL WHEN AT_LEAST_ONE CONNECTOR TRUE\n"
                             "\tEND 'Check'\n");
}

TEST_F(WrittenProcessesTest, AnActivityWithAllItsLines) {
    activity.InputContainer->ObjectName = "'In'";
    activity.OutputContainer->ObjectName = "'Out'";
    activity.DESCRIPTION = "'what'";
    activity.DOCUMENTATION = "'how'";
    activity.LAYOUT = "XPOS 1 YPOS 2";
    activity.StartCondition = "ALL CONNECTORS";
    activity.ExitCondition = "NOT ( x = \"y\" )";
    activity.PERSON = "'A' 'B'";
    activity.MEMBER_OF_ROLE = "'Clerk'";
    activity.ORGANIZATION = "'Sales'";
    activity.PROGRAM = "'Ledger'";
    activity.PROCESS = "'not printed'";
    activity.SUPPORT_TOOL = "'not printed'";
    activity.OtherSettings = "PRIORITY 1";
    gBlock.gWPXWriter->WriteActivity(activity);
    EXPECT_EQ(Written(),
              "\n\tPROGRAM_ACTIVITY 'Check' ('In', 'Out')\n"
              "\t\tDESCRIPTION 'what'\n"
              "\t\tDOCUMENTATION 'how'\n"
              "\t\tLAYOUT XPOS 1 YPOS 2\n"
              "\t\tSTART MANUAL WHEN ALL CONNECTORS TRUE\n"
              "\t\tEXIT AUTOMATIC WHEN 'NOT ( x = \"y\" )'\n"
              "\t\tDONE_BY PERSON 'A' 'B'\n"
              "\t\tDONE_BY MEMBER OF ROLE 'Clerk'\n"
              "\t\tDONE_BY ORGANIZATION 'Sales'\n"
              "\t\tPROGRAM 'Ledger'\n"
              "\t\tPRIORITY 1\n"
              "\tEND 'Check'\n");
}

TEST_F(WrittenProcessesTest, AProcessActivityNamesItsProcessAndNoProgram) {
    activity.AssignedModel = model;
    activity.PROGRAM = "'not printed'";
    gBlock.gWPXWriter->WriteActivity(activity);
    activity.PROCESS = "'Refined'";
    gBlock.gWPXWriter->WriteActivity(activity);
    const std::string head = std::string("\n\tPROCESS_ACTIVITY 'Check'") + containers +
                             "\t\tSTART MANUAL WHEN AT_LEAST_ONE CONNECTOR TRUE\n";
    EXPECT_EQ(Written(), head + "\tEND 'Check'\n" + head + "\t\tPROCESS 'Refined'\n\tEND 'Check'\n");
}

TEST_F(WrittenProcessesTest, EmptyModesLeaveTheirBlanks) {
    activity.StartMode = activity.StartCondition = activity.ExitMode = "";
    activity.ExitCondition = "x";
    gBlock.gWPXWriter->WriteActivity(activity);
    EXPECT_EQ(Written(), std::string("\n\tPROGRAM_ACTIVITY 'Check'") + containers +
                             "\t\tSTART  WHEN  TRUE\n"
                             "\t\tEXIT  WHEN 'x'\n"
                             "\tEND 'Check'\n");
}

TEST_F(WrittenProcessesTest, AConnectorWithNothingIsItsKeyword) {
    clsDATA_CONNECTOR data;
    gBlock.gWPXWriter->WriteControlConnector(connector);
    gBlock.gWPXWriter->WriteDataConnector(data);
    EXPECT_EQ(Written(), "\n\tCONTROL\n\n\tDATA\n");
}

TEST_F(WrittenProcessesTest, AControlConnectorWithAllItsLines) {
    connector.DESCRIPTION = "'what'";
    connector.Linking = "FROM 'A' TO 'B'";
    connector.Condition = "''x y'' = \"1\"";
    connector.LAYOUT = "XPOS 1 YPOS 2";
    gBlock.gWPXWriter->WriteControlConnector(connector);
    EXPECT_EQ(Written(),
              "\n\tCONTROL\n"
              "\t\tDESCRIPTION 'what'\n"
              "\t\tFROM 'A' TO 'B'\n"
              "\t\tWHEN '''x y'' = \"1\"'\n"
              "\t\tLAYOUT XPOS 1 YPOS 2\n");
}

TEST_F(WrittenProcessesTest, AControlConnectorFromAnActivityToItselfIsNotPrinted) {
    connector.TO_ARISObjectDefinition = connector.FROM_ARISObjectDefinition;
    connector.Condition = "x";
    gBlock.gWPXWriter->WriteControlConnector(connector);
    EXPECT_EQ(Written(), "");
}

TEST_F(WrittenProcessesTest, ADataConnectorWithAllItsLines) {
    clsDATA_CONNECTOR data;
    data.DESCRIPTION = "'what'";
    data.Linking = "LOOP 'A'";
    data.ColMapping.Add("MAP 'x' TO 'x'");
    data.ColMapping.Add("MAP 'y' TO 'y'");
    data.LAYOUT = "XPOS 1 YPOS 2";
    gBlock.gWPXWriter->WriteDataConnector(data);
    EXPECT_EQ(Written(),
              "\n\tDATA\n"
              "\t\tDESCRIPTION 'what'\n"
              "\t\tLOOP 'A'\n"
              "\t\tMAP 'x' TO 'x'\n"
              "\t\tMAP 'y' TO 'y'\n"
              "\t\tLAYOUT XPOS 1 YPOS 2\n");
}

TEST_F(WrittenProcessesTest, AWholeProcess) {
    model = repository.Model(processType, "Claims", group);
    const Ref<FakeObject> check = Function("Check", 0, 0);
    const Ref<FakeObject> pay = Function("Pay", 1000, 0);
    const Ref<FakeObject> data = Drawn(ObjectType::ermAttribute, "Claim", 500, 300);
    Flow({pay, pay});
    Flow({check, Event("Approved", 500, 0), pay});
    Writes(check, data);
    Reads(pay, data);
    FinishedProcess();
    EXPECT_EQ(gBlock.gWPXWriter->WriteAllProcess(), 6);
    EXPECT_EQ(Written(),
              "\n/*\n*  \n*  PROCESSES\n*  \n*/\n"
              "\nPROCESS 'Claims' ('Default Data Structure', 'Default Data Structure')\n"
              "\tCATEGORY 'Sales'\n"
              "\tWINDOW PAPERSIZE WIDTH 21000 HEIGHT 21000\n"
              "\n\tPROGRAM_ACTIVITY 'Check' ('Default Data Structure', 'DATA_STRUCTURE_0')\n"
              "\t\tLAYOUT XPOS -500 YPOS 0\n"
              "\t\tSTART MANUAL WHEN AT_LEAST_ONE CONNECTOR TRUE\n"
              "\tEND 'Check'\n"
              "\n\tPROGRAM_ACTIVITY 'Pay' ('DATA_STRUCTURE_0', 'Default Data Structure')\n"
              "\t\tLAYOUT XPOS 500 YPOS 0\n"
              "\t\tSTART MANUAL WHEN AT_LEAST_ONE CONNECTOR TRUE\n"
              "\tEND 'Pay'\n"
              "\n\tCONTROL\n"
              "\t\tFROM 'Check' TO 'Pay'\n"
              "\t\tLAYOUT XPOS -1 YPOS 0\n"
              "\n\tDATA\n"
              "\t\tFROM 'Check' TO 'Pay'\n"
              "\t\tMAP '_STRUCT' TO '_STRUCT'\n"
              "\t\tLAYOUT XPOS -1 YPOS -100\n"
              "\nEND 'Claims'\n");
}

TEST_F(WrittenProcessesTest, ProcessesComeInTheirOrder) {
    for (const char* name : {"'B'", "'A'"}) {
        const Ref<clsPROCESS> process = gBlock.gPool.Create<clsPROCESS>();
        process->ProcessName = name;
        gBlock.gColPROCESS.Add(process);
    }
    EXPECT_EQ(gBlock.gWPXWriter->WriteAllProcess(), 2);
    EXPECT_LT(Written().find("END 'B'"), Written().find("PROCESS 'A'"));
}

}  // namespace
}  // namespace wxbrg::test
