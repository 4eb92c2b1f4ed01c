#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace wxbrg {

/// Flags of the file dialog; the value is their sum.
namespace FileDialogFlag {
inline constexpr std::int32_t overwritePrompt = 2;
inline constexpr std::int32_t hideReadOnly = 4;
inline constexpr std::int32_t showHelp = 16;
inline constexpr std::int32_t pathMustExist = 2048;
inline constexpr std::int32_t createPrompt = 8192;
inline constexpr std::int32_t noReadOnlyReturn = 32768;
inline constexpr std::int32_t explorer = 524288;
}  // namespace FileDialogFlag

/// What a save-file dialog starts with.
struct FileDialogSettings {
    std::int32_t flags = 0;
    std::string initialDirectory;  ///< empty: the dialog's own choice
    std::string fileName;
    std::string filter;  ///< descriptions and patterns in turn, separated by "|"
    std::string defaultExtension;
    int filterIndex = 1;  ///< from 1
    /// Shows the help page about the file; called only where the flags hold `showHelp`. It never fails.
    std::function<void()> help = {};
    /// Whether the run would lose a file that it reads by writing to a name, or to its log's; such a name is
    /// not accepted, the user is shown why, and asked again. Empty: no name is refused so. It never fails.
    std::function<bool(const std::string& name)> isInput = {};

    bool Refuses(const std::string& name) const { return isInput && isInput(name); }
    bool Has(std::int32_t flag) const { return (flags & flag) != 0; }
};

class FileDialog {
  public:
    virtual ~FileDialog() = default;
    /// Asks for the name of a file to save. Nothing when the user cancels.
    virtual std::optional<std::string> AskSaveName(const FileDialogSettings& settings) = 0;
};

/// Whether a name is a pattern such as "*.wpx", which names no file.
bool IsPattern(std::string_view name);

/// Whether an existing file can be opened for writing; it is not changed.
bool IsWritable(const std::filesystem::path& file);

/// What a front end without a real dialog makes of a typed name: the default extension is added when the last
/// part of the name holds no point.
std::string WithDefaultExtension(std::string name, const std::string& extension);

}  // namespace wxbrg
