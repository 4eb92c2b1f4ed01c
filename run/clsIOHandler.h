#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"
#include "run/modGlobals.h"

namespace wxbrg {

/// How `OpenFile` opens a file.
namespace FileMode {
inline constexpr std::int16_t read = 1;    ///< text, from the start
inline constexpr std::int16_t write = 2;   ///< the file is created or emptied
inline constexpr std::int16_t append = 3;  ///< at the end; the file is created if missing
}  // namespace FileMode

/// The name of the log of a definition file: ".log" in place of the last four characters. Fails with 5 where
/// there are not as many.
std::string LogFileNameOf(std::string_view definitionName);

/// The only class that touches files: the output, its log and the mapping profile. Text in files is in the
/// active code page, each printed text is followed by CR LF. No file stays open between two calls, so that
/// whatever is written stays, however the run ends. A failure of the system ends the run with its number
/// (53, 61, 75 or 76) and the file's name.
class clsIOHandler {
  public:
    /// True when the profile file exists, whatever it holds.
    bool MappingProfileFound = false;
    std::string sOutputFileName;
    std::string sLogFileName;

    // An empty FileName means `sOutputFileName`.

    /// Creates or empties a file.
    void AllocateFile(const std::string& FileName);
    /// Appends a text and CR LF.
    void WriteFile(const std::string& Text, const std::string& FileName);
    /// The whole text of a file. Each line, the last included, ends in CR LF; a line ends in the file at CR
    /// LF, CR or LF. A UTF-8 byte order mark makes it UTF-8, whatever the code page, and is dropped.
    std::string ReadFile(const std::string& FileName);
    /// Opens a file under the next free number, which it returns in `FileNumber`. Ends the run with 2000 for
    /// a mode that is none.
    void OpenFile(const std::string& FileName, std::int16_t Mode, std::int16_t& FileNumber);
    /// Closes a file; 0 is ignored.
    void CloseFile(std::int16_t FileNumber);
    /// Whether a file is there. A folder on its way that is not there ends the run.
    bool FileExists(const std::string& FileName);

    /// Asks for the output file, empties it and its log, keeps their names and returns the output's. The log
    /// is named as the output with ".log" for its last four characters; a shorter name ends the run with 5.
    std::string FileSelectDialog();

    /// Appends a line to the log.
    void WriteLog(const std::string& Text);

    /// The text of the mapping profile beside the program; empty where there is none. Sets
    /// `MappingProfileFound`.
    std::string ReadMappingProfile();
    /// Cuts the text of a profile into its tokens. Any text gives tokens.
    Collection<Ref<clsMappingRuleToken>> TokenizeMappingProfile(const std::string& Text);
    /// Fills the rule table from the profile, or with the default rules when there is no text in it.
    void ParseMappingFile();

  private:
    const std::string& NameOr(const std::string& FileName) const;
    std::string AskOutputFile(Frame& frame);

    std::map<std::int16_t, std::unique_ptr<File>> openFiles_;
};

}  // namespace wxbrg
