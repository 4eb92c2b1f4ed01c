// The names under which the procedures of the writer are reported.

#include <gmock/gmock.h>

#include "data/clsDATA_CONNECTOR.h"
#include "data/clsDATA_STRUCTURE.h"
#include "data/clsORGANIZATION.h"
#include "data/clsPERSON.h"
#include "data/clsPROCESS_CATEGORY.h"
#include "data/clsPROGRAM.h"
#include "data/clsROLE.h"
#include "model/clsACTIVITY.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"
#include "output/clsWPXWriter.h"
#include "output/modWPXWriter.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

class WriterProcedureNamesTest : public CoreTest {
  protected:
    const std::string own = "clsWPXWriter.";
    clsWPXWriter writer;
    clsPROCESS process;
};

// clang-format off
TEST_F(WriterProcedureNamesTest, Sections) {
    EXPECT_EQ(NameOf([&] { writer.WriteWPXHeader(); }), own + "WriteWPXHeader");
    EXPECT_EQ(NameOf([&] { writer.WriteSectionHeader(""); }), own + "WriteSectionHeader");
    EXPECT_EQ(NameOf([&] { writer.WriteAll(); }), own + "WriteAll");
    EXPECT_EQ(NameOf([&] { writer.WriteAllProcessCategory(); }), own + "WriteAllProcessCategory");
    EXPECT_EQ(NameOf([&] { writer.WriteAllDataStructure(); }), own + "WriteAllDataStructure");
    EXPECT_EQ(NameOf([&] { writer.WriteAllProgram(); }), own + "WriteAllProgram");
    EXPECT_EQ(NameOf([&] { writer.WriteAllRole(); }), own + "WriteAllRole");
    EXPECT_EQ(NameOf([&] { writer.WriteAllOrganization(false); }), own + "WriteAllOrganization");
    EXPECT_EQ(NameOf([&] { writer.WriteAllPerson(false); }), own + "WriteAllPerson");
    EXPECT_EQ(NameOf([&] { writer.WriteAllProcess(); }), own + "WriteAllProcess");
    EXPECT_EQ(NameOf([&] { writer.WriteAllActivity(process); }), own + "WriteAllActivity");
    EXPECT_EQ(NameOf([&] { writer.WriteAllDataConnector(process); }), own + "WriteAllDataConnector");
    EXPECT_EQ(NameOf([&] { writer.WriteAllControlConnector(process); }), own + "WriteAllControlConnector");
}

TEST_F(WriterProcedureNamesTest, Blocks) {
    EXPECT_EQ(NameOf([&] { writer.WriteProcessCategory({}); }), own + "WriteProcessCategory");
    EXPECT_EQ(NameOf([&] { writer.WriteDataStructure({}); }), own + "WriteDataStructure");
    EXPECT_EQ(NameOf([&] { writer.WriteProgram({}); }), own + "WriteProgram");
    EXPECT_EQ(NameOf([&] { writer.WriteRole({}); }), own + "WriteRole");
    EXPECT_EQ(NameOf([&] { writer.WritePerson({}, false); }), own + "WritePerson");
    EXPECT_EQ(NameOf([&] { writer.WriteProcess(process); }), own + "WriteProcess");
    EXPECT_EQ(NameOf([&] { writer.WriteActivity({}); }), own + "WriteActivity");
    EXPECT_EQ(NameOf([&] { writer.WriteDataConnector({}); }), own + "WriteDataConnector");
    EXPECT_EQ(NameOf([&] { writer.WriteControlConnector({}); }), own + "WriteControlConnector");
    EXPECT_EQ(NameOf([&] { SetupPrintingOfConnectorAttribute({}); }),
              "modWPXWriter.SetupPrintingOfConnectorAttribute");
}

TEST_F(WriterProcedureNamesTest, AnOrganizationIsWrittenUnderTheNameOfItsSection) {
    EXPECT_EQ(NameOf([&] { writer.WriteOrganization({}, false); }), own + "WriteAllOrganization");
}
// clang-format on

}  // namespace
}  // namespace wxbrg::test
