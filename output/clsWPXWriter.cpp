#include "output/clsWPXWriter.h"

#include "output/Block.h"
#include "run/Frame.h"
#include "run/LogLine.h"
#include "run/clsExceptionHandler.h"
#include "run/clsIOHandler.h"
#include "run/modGlobals.h"

namespace wxbrg {

void WriteText(const std::string& text) {
    gBlock.gIOHandler->WriteFile(text, "");
}

void clsWPXWriter::WriteSectionHeader(std::string_view Title) {
    Procedure("clsWPXWriter.WriteSectionHeader", [&](Frame&) {
        WriteBlock(Block(0, "/*").Always(0, "*  ").Always(0, "*  ", Title).Always(0, "*  ").Always(0, "*/"));
    });
}

void clsWPXWriter::WriteAll() {
    Procedure("clsWPXWriter.WriteAll", [&](Frame&) {
        WriteWPXHeader();
        std::int32_t count = WriteAllDataStructure();
        count += WriteAllProcessCategory();
        count += WriteAllProgram();
        count += WriteAllPerson(false);
        count += WriteAllPerson(true);
        count += WriteAllRole();
        count += WriteAllOrganization(false);
        count += WriteAllOrganization(true);
        count += WriteAllProcess();
        WriteNote(Message::exportComplete, std::to_string(count));
        gBlock.gRunReport.objectsWritten = static_cast<std::uint64_t>(count);
        gBlock.gRunReport.processes = static_cast<std::uint64_t>(gBlock.gColPROCESS.Count());
    });
}

}  // namespace wxbrg
