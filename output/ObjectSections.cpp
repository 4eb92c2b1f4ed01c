// The sections in front of the processes: structures, categories, programs and staff.

#include "data/clsDATA_MEMBER.h"
#include "data/clsDATA_STRUCTURE.h"
#include "data/clsORGANIZATION.h"
#include "data/clsPERSON.h"
#include "data/clsPROCESS_CATEGORY.h"
#include "data/clsPROGRAM.h"
#include "data/clsROLE.h"
#include "output/Block.h"
#include "output/Sections.h"
#include "output/clsWPXWriter.h"
#include "run/Frame.h"
#include "run/modGlobals.h"

namespace wxbrg {

namespace {

/// The UPDATE block of a reference that may point forward. Without a reference an empty text is written, and
/// an empty line is what the file gets of it.
void WriteUpdate(std::string_view keyword, const std::string& name, std::string_view property,
                 const std::string& reference) {
    if (reference.empty())
        WriteText("");
    else
        WriteBlock(Block(0, std::string("UPDATE ").append(keyword).append(name))
                       .Line(1, property, reference)
                       .Always(0, "END ", name));
}

void AddMember(Block& block, const clsDATA_MEMBER& member) {
    block.Always(1, member.MemberName, ": " + member.DataType + " " + member.SizeOfArray)
        .Line(2, "DESCRIPTION ", member.DESCRIPTION)
        .Line(2, "DOCUMENTATION ", member.DOCUMENTATION)
        .Append(";");
}

}  // namespace

std::int32_t clsWPXWriter::WriteAllDataStructure() {
    return WriteEach(*this, "clsWPXWriter.WriteAllDataStructure", "DATA_STRUCTUREs",
                     gBlock.gColDATA_STRUCTURE, &clsWPXWriter::WriteDataStructure);
}

void clsWPXWriter::WriteDataStructure(const clsDATA_STRUCTURE& STRUCTURE) {
    Procedure("clsWPXWriter.WriteDataStructure", [&](Frame&) {
        Block block(0, "STRUCTURE " + STRUCTURE.ObjectName);
        block.Line(1, "DESCRIPTION ", STRUCTURE.DESCRIPTION)
            .Line(1, "DOCUMENTATION ", STRUCTURE.DOCUMENTATION);
        for (const Ref<clsDATA_MEMBER>& member : STRUCTURE.ColDATA_MEMBER) AddMember(block, *member);
        WriteBlock(block.Always(0, "END ", STRUCTURE.ObjectName));
    });
}

std::int32_t clsWPXWriter::WriteAllProcessCategory() {
    return WriteEach(*this, "clsWPXWriter.WriteAllProcessCategory", "PROCESS_CATEGORYs",
                     gBlock.gColPROCESS_CATEGORY, &clsWPXWriter::WriteProcessCategory);
}

void clsWPXWriter::WriteProcessCategory(const clsPROCESS_CATEGORY& CATEGORY) {
    Procedure("clsWPXWriter.WriteProcessCategory", [&](Frame&) {
        WriteBlock(Block(0, "PROCESS_CATEGORY " + CATEGORY.ObjectName)
                       .Line(1, "DESCRIPTION ", CATEGORY.DESCRIPTION)
                       .Line(1, "DOCUMENTATION ", CATEGORY.DOCUMENTATION)
                       .Always(0, "END ", CATEGORY.ObjectName));
    });
}

std::int32_t clsWPXWriter::WriteAllProgram() {
    return WriteEach(*this, "clsWPXWriter.WriteAllProgram", "PROGRAMs", gBlock.gColPROGRAM,
                     &clsWPXWriter::WriteProgram);
}

void clsWPXWriter::WriteProgram(const clsPROGRAM& PROGRAM) {
    Procedure("clsWPXWriter.WriteProgram", [&](Frame&) {
        WriteBlock(Block(0, "PROGRAM " + PROGRAM.ObjectName +
                                ContainersText(PROGRAM.InputContainer, PROGRAM.OutputContainer))
                       .Line(1, "DESCRIPTION ", PROGRAM.DESCRIPTION)
                       .Line(1, "DOCUMENTATION ", PROGRAM.DOCUMENTATION)
                       .Line(1, "", PROGRAM.OtherSettings)
                       .Always(0, "END ", PROGRAM.ObjectName));
    });
}

std::int32_t clsWPXWriter::WriteAllRole() {
    return WriteEach(*this, "clsWPXWriter.WriteAllRole", "ROLEs", gBlock.gColROLE, &clsWPXWriter::WriteRole);
}

void clsWPXWriter::WriteRole(const clsROLE& ROLE) {
    Procedure("clsWPXWriter.WriteRole", [&](Frame&) {
        WriteBlock(Block(0, "ROLE " + ROLE.ObjectName)
                       .Line(1, "DESCRIPTION ", ROLE.DESCRIPTION)
                       .Line(1, "COORDINATOR ", ROLE.COORDINATOR)
                       .Line(1, "RELATED_PERSON ", ROLE.RELATED_PERSON)
                       .Always(0, "END ", ROLE.ObjectName));
    });
}

std::int32_t clsWPXWriter::WriteAllPerson(bool Update) {
    const std::int32_t count = WriteEach(*this, "clsWPXWriter.WriteAllPerson", Update ? noTitle : "PERSONs",
                                         gBlock.gColPERSON, &clsWPXWriter::WritePerson, Update);
    return Update ? 0 : count;
}

void clsWPXWriter::WritePerson(const clsPERSON& PERSON, bool Update) {
    Procedure("clsWPXWriter.WritePerson", [&](Frame&) {
        if (Update) {
            WriteUpdate("PERSON ", PERSON.PersonName, "SUBSTITUTE ", PERSON.SUBSTITUTE);
            return;
        }
        WriteBlock(Block(0, "PERSON " + PERSON.PersonName)
                       .Line(1, "DESCRIPTION ", PERSON.DESCRIPTION)
                       .Line(1, "FIRST_NAME ", PERSON.FIRST_NAME)
                       .Line(1, "LAST_NAME ", PERSON.LAST_NAME)
                       .Line(1, "PHONE ", PERSON.PHONE)
                       .Line(1, "SECOND_PHONE ", PERSON.SECOND_PHONE)
                       .Line(1, "", PERSON.OtherSettings)
                       .Always(0, "END ", PERSON.PersonName));
    });
}

std::int32_t clsWPXWriter::WriteAllOrganization(bool Update) {
    const std::int32_t count =
        WriteEach(*this, "clsWPXWriter.WriteAllOrganization", Update ? noTitle : "ORGANIZATIONs",
                  gBlock.gColORGANIZATION, &clsWPXWriter::WriteOrganization, Update);
    return Update ? 0 : count;
}

void clsWPXWriter::WriteOrganization(const clsORGANIZATION& ORGANIZATION, bool Update) {
    // This procedure bears the name of the one above.
    Procedure("clsWPXWriter.WriteAllOrganization", [&](Frame&) {
        if (Update) {
            WriteUpdate("ORGANIZATION ", ORGANIZATION.ObjectName, "PARENT_ORGANIZATION ",
                        ORGANIZATION.PARENT_ORGANIZATION);
            return;
        }
        WriteBlock(Block(0, "ORGANIZATION " + ORGANIZATION.ObjectName)
                       .Line(1, "DESCRIPTION ", ORGANIZATION.DESCRIPTION)
                       .Line(1, "MANAGER ", ORGANIZATION.MANAGER)
                       .Line(1, "RELATED_PERSON ", ORGANIZATION.RELATED_PERSON)
                       .Always(0, "END ", ORGANIZATION.ObjectName));
    });
}

}  // namespace wxbrg
