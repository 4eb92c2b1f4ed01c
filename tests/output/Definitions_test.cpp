// The blocks in front of the processes.

#include <gmock/gmock.h>

#include "data/clsDATA_MEMBER.h"
#include "data/clsDATA_STRUCTURE.h"
#include "data/clsORGANIZATION.h"
#include "data/clsPERSON.h"
#include "data/clsPROCESS_CATEGORY.h"
#include "data/clsPROGRAM.h"
#include "data/clsROLE.h"
#include "output/clsWPXWriter.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;

class DefinitionsTest : public CoreTest {
  protected:
    static Ref<clsDATA_MEMBER> Member(const std::string& name, const std::string& type,
                                      const std::string& size = {}) {
        const Ref<clsDATA_MEMBER> member = gBlock.gPool.Create<clsDATA_MEMBER>();
        member->MemberName = name;
        member->DataType = type;
        member->SizeOfArray = size;
        return member;
    }
    static Ref<clsPERSON> Person(const std::string& name, const std::string& substitute) {
        const Ref<clsPERSON> person = gBlock.gPool.Create<clsPERSON>();
        person->PersonName = name;
        person->SUBSTITUTE = substitute;
        return person;
    }
};

TEST_F(DefinitionsTest, AStructureWithoutMembers) {
    clsDATA_STRUCTURE structure;
    structure.ObjectName = "'Order'";
    gBlock.gWPXWriter->WriteDataStructure(structure);
    EXPECT_EQ(Written(), "\nSTRUCTURE 'Order'\nEND 'Order'\n");
}

TEST_F(DefinitionsTest, AStructureWithAllItsLines) {
    clsDATA_STRUCTURE structure;
    structure.ObjectName = "'Order'";
    structure.DESCRIPTION = "'what'";
    structure.DOCUMENTATION = "'how'";
    const Ref<clsDATA_MEMBER> described = Member("'b'", "FLOAT");
    described->DESCRIPTION = "'what b is'";
    const Ref<clsDATA_MEMBER> documented = Member("'c'", "'Item'", "(3)");
    documented->DESCRIPTION = "'what c is'";
    documented->DOCUMENTATION = "'how c is'";
    structure.ColDATA_MEMBER.Add(Member("'a'", "LONG", "(12)"));
    structure.ColDATA_MEMBER.Add(described);
    structure.ColDATA_MEMBER.Add(documented);
    structure.ColDATA_MEMBER.Add(Member("", "STRING"));
    gBlock.gWPXWriter->WriteDataStructure(structure);
    EXPECT_EQ(Written(),
              "\nSTRUCTURE 'Order'\n"
              "\tDESCRIPTION 'what'\n"
              "\tDOCUMENTATION 'how'\n"
              "\t'a': LONG (12);\n"
              "\t'b': FLOAT \n"
              "\t\tDESCRIPTION 'what b is';\n"
              "\t'c': 'Item' (3)\n"
              "\t\tDESCRIPTION 'what c is'\n"
              "\t\tDOCUMENTATION 'how c is';\n"
              "\t: STRING ;\n"
              "END 'Order'\n");
}

TEST_F(DefinitionsTest, AnEmptyMemberEndsTheRun) {
    clsDATA_STRUCTURE structure;
    structure.ColDATA_MEMBER.Add(nullptr, "{1}");
    EXPECT_EQ(EndOf([&] {
                  gBlock.gWPXWriter->WriteDataStructure(structure);
              }),
              FailureKind::objectNotSet);
    EXPECT_THAT(Boxes(), ElementsAre("C91 in clsWPXWriter.WriteDataStructure: object not set"));
    EXPECT_EQ(Written(), "");
}

TEST_F(DefinitionsTest, ACategory) {
    clsPROCESS_CATEGORY category;
    category.ObjectName = "'Sales'";
    gBlock.gWPXWriter->WriteProcessCategory(category);
    category.DESCRIPTION = "'what'";
    category.DOCUMENTATION = "'how'";
    gBlock.gWPXWriter->WriteProcessCategory(category);
    EXPECT_EQ(Written(),
              "\nPROCESS_CATEGORY 'Sales'\nEND 'Sales'\n"
              "\nPROCESS_CATEGORY 'Sales'\n\tDESCRIPTION 'what'\n\tDOCUMENTATION 'how'\nEND 'Sales'\n");
}

TEST_F(DefinitionsTest, AProgram) {
    clsPROGRAM program;
    program.ObjectName = "'Ledger'";
    gBlock.gWPXWriter->WriteProgram(program);
    program.InputContainer->ObjectName = "'In'";
    program.OutputContainer->ObjectName = "'Out'";
    program.DESCRIPTION = "'what'";
    program.DOCUMENTATION = "'how'";
    program.OtherSettings = "EXE (PATH 'x')\r\n\tMORE";
    gBlock.gWPXWriter->WriteProgram(program);
    EXPECT_EQ(Written(),
              "\nPROGRAM 'Ledger' ('Default Data Structure', 'Default Data Structure')\nEND 'Ledger'\n"
              "\nPROGRAM 'Ledger' ('In', 'Out')\n"
              "\tDESCRIPTION 'what'\n"
              "\tDOCUMENTATION 'how'\n"
              "\tEXE (PATH 'x')\n\tMORE\n"
              "END 'Ledger'\n");
}

TEST_F(DefinitionsTest, ARole) {
    clsROLE role;
    role.ObjectName = "'Clerk'";
    gBlock.gWPXWriter->WriteRole(role);
    role.DESCRIPTION = "'what'";
    role.COORDINATOR = "'JO'";
    role.RELATED_PERSON = "'A' 'B'";
    gBlock.gWPXWriter->WriteRole(role);
    EXPECT_EQ(Written(),
              "\nROLE 'Clerk'\nEND 'Clerk'\n"
              "\nROLE 'Clerk'\n"
              "\tDESCRIPTION 'what'\n"
              "\tCOORDINATOR 'JO'\n"
              "\tRELATED_PERSON 'A' 'B'\n"
              "END 'Clerk'\n");
}

TEST_F(DefinitionsTest, AnUnnamedObjectIsABareKeyword) {
    gBlock.gWPXWriter->WriteRole(clsROLE());
    EXPECT_EQ(Written(), "\nROLE \nEND \n");
}

TEST_F(DefinitionsTest, EverySortOfUnnamedObjectIsABareKeyword) {
    clsDATA_STRUCTURE structure;
    structure.ObjectName = "";
    gBlock.gWPXWriter->WriteDataStructure(structure);
    gBlock.gWPXWriter->WriteProcessCategory(clsPROCESS_CATEGORY());
    gBlock.gWPXWriter->WriteProgram(clsPROGRAM());
    gBlock.gWPXWriter->WritePerson(*Person("", "'JO'"), false);
    gBlock.gWPXWriter->WritePerson(*Person("", "'JO'"), true);
    gBlock.gWPXWriter->WriteOrganization(clsORGANIZATION(), false);
    EXPECT_EQ(Written(),
              "\nSTRUCTURE \nEND \n"
              "\nPROCESS_CATEGORY \nEND \n"
              "\nPROGRAM  ('Default Data Structure', 'Default Data Structure')\nEND \n"
              "\nPERSON \nEND \n"
              "\nUPDATE PERSON \n\tSUBSTITUTE 'JO'\nEND \n"
              "\nORGANIZATION \n\tMANAGER 'ADMIN'\nEND \n");
}

TEST_F(DefinitionsTest, APerson) {
    clsPERSON person;
    person.PersonName = "'JO'";
    person.RELATED_ROLE = "'not printed'";
    person.RELATED_ORGANIZATION = "'not printed'";
    person.SUBSTITUTE = "'not yet'";
    gBlock.gWPXWriter->WritePerson(person, false);
    person.DESCRIPTION = "'what'";
    person.FIRST_NAME = "'Jo'";
    person.LAST_NAME = "'Doe'";
    person.PHONE = "'1'";
    person.SECOND_PHONE = "'2'";
    person.OtherSettings = "LEVEL 3";
    gBlock.gWPXWriter->WritePerson(person, false);
    EXPECT_EQ(Written(),
              "\nPERSON 'JO'\nEND 'JO'\n"
              "\nPERSON 'JO'\n"
              "\tDESCRIPTION 'what'\n"
              "\tFIRST_NAME 'Jo'\n"
              "\tLAST_NAME 'Doe'\n"
              "\tPHONE '1'\n"
              "\tSECOND_PHONE '2'\n"
              "\tLEVEL 3\n"
              "END 'JO'\n");
}

TEST_F(DefinitionsTest, AnOrganization) {
    clsORGANIZATION organization;
    organization.ObjectName = "'Sales'";
    organization.PARENT_ORGANIZATION = "'not yet'";
    gBlock.gWPXWriter->WriteOrganization(organization, false);
    organization.DESCRIPTION = "'what'";
    organization.MANAGER = "'JO'";
    organization.RELATED_PERSON = "'A' 'B'";
    gBlock.gWPXWriter->WriteOrganization(organization, false);
    organization.MANAGER = "";
    gBlock.gWPXWriter->WriteOrganization(organization, false);
    EXPECT_EQ(Written(),
              "\nORGANIZATION 'Sales'\n\tMANAGER 'ADMIN'\nEND 'Sales'\n"
              "\nORGANIZATION 'Sales'\n"
              "\tDESCRIPTION 'what'\n"
              "\tMANAGER 'JO'\n"
              "\tRELATED_PERSON 'A' 'B'\n"
              "END 'Sales'\n"
              "\nORGANIZATION 'Sales'\n"
              "\tDESCRIPTION 'what'\n"
              "\tRELATED_PERSON 'A' 'B'\n"
              "END 'Sales'\n");
}

TEST_F(DefinitionsTest, TheSecondPassOverPersonsLeavesAnEmptyLineForEachWithoutASubstitute) {
    gBlock.gColPERSON.Add(Person("'A'", ""));
    gBlock.gColPERSON.Add(Person("'B'", "'C'"));
    gBlock.gColPERSON.Add(Person("'C'", ""));
    gBlock.gWPXWriter->WriteAllPerson(true);
    EXPECT_EQ(Written(), "\n\nUPDATE PERSON 'B'\n\tSUBSTITUTE 'C'\nEND 'B'\n\n");
}

TEST_F(DefinitionsTest, TheSecondPassOverOrganizationsLeavesAnEmptyLineForEachWithoutAParent) {
    const Ref<clsORGANIZATION> company = gBlock.gPool.Create<clsORGANIZATION>();
    company->ObjectName = "'Company'";
    const Ref<clsORGANIZATION> sales = gBlock.gPool.Create<clsORGANIZATION>();
    sales->ObjectName = "'Sales'";
    sales->PARENT_ORGANIZATION = "'Company'";
    gBlock.gColORGANIZATION.Add(sales);
    gBlock.gColORGANIZATION.Add(company);
    gBlock.gWPXWriter->WriteAllOrganization(true);
    EXPECT_EQ(Written(), "\nUPDATE ORGANIZATION 'Sales'\n\tPARENT_ORGANIZATION 'Company'\nEND 'Sales'\n\n");
}

TEST_F(DefinitionsTest, ASectionHoldsItsObjectsInTheirOrder) {
    gBlock.gColPERSON.Add(Person("'B'", ""));
    gBlock.gColPERSON.Add(Person("'A'", ""));
    EXPECT_EQ(gBlock.gWPXWriter->WriteAllPerson(false), 2);
    EXPECT_EQ(Written(), "\n/*\n*  \n*  PERSONs\n*  \n*/\n\nPERSON 'B'\nEND 'B'\n\nPERSON 'A'\nEND 'A'\n");
}

}  // namespace
}  // namespace wxbrg::test
