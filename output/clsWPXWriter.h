#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace wxbrg {

class clsACTIVITY;
class clsCONTROL_CONNECTOR;
class clsDATA_CONNECTOR;
class clsDATA_MEMBER;
class clsDATA_STRUCTURE;
class clsORGANIZATION;
class clsPERSON;
class clsPROCESS;
class clsPROCESS_CATEGORY;
class clsPROGRAM;
class clsROLE;

/// Writes the definition file in the language WPX, once all objects are complete. It decides nothing about
/// content: a property holds the exact text to print, and a line with an empty one is not printed. Each block
/// is built as one string and written by one call, so that the file holds whole blocks however the run ends.
class clsWPXWriter {
  public:
    void WriteWPXHeader();
    void WriteSectionHeader(std::string_view Title);
    /// The whole file: what a block refers to comes before it, but for references between persons and
    /// between organizations, which follow in UPDATE blocks. Ends the log with the note 3110.
    void WriteAll();

    // Each writes a section and returns how many objects it wrote; a second pass with `Update` counts none.
    std::int32_t WriteAllProcessCategory();
    void WriteProcessCategory(const clsPROCESS_CATEGORY& CATEGORY);
    std::int32_t WriteAllDataStructure();
    void WriteDataStructure(const clsDATA_STRUCTURE& STRUCTURE);
    std::int32_t WriteAllProgram();
    void WriteProgram(const clsPROGRAM& PROGRAM);
    std::int32_t WriteAllRole();
    void WriteRole(const clsROLE& ROLE);
    std::int32_t WriteAllOrganization(bool Update);
    std::int32_t WriteAllPerson(bool Update);
    std::int32_t WriteAllProcess();
    std::int32_t WriteAllDataConnector(const clsPROCESS& PROCESS);
    std::int32_t WriteAllControlConnector(const clsPROCESS& PROCESS);
    void WritePerson(const clsPERSON& PERSON, bool Update);
    void WriteOrganization(const clsORGANIZATION& ORGANIZATION, bool Update);
    std::int32_t WriteProcess(const clsPROCESS& PROCESS);
    void WriteActivity(const clsACTIVITY& ACTIVITY);
    void WriteDataConnector(const clsDATA_CONNECTOR& CONNECTOR);
    void WriteControlConnector(const clsCONTROL_CONNECTOR& CONNECTOR);
    std::int32_t WriteAllActivity(const clsPROCESS& PROCESS);
};

}  // namespace wxbrg
