#include "cli/ReplayCase.h"

#include <cerrno>
#include <charconv>
#include <fstream>
#include <optional>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "cli/UsageError.h"
#include "platform/Path.h"
#include "platform/scripted/ScriptLines.h"
#include "support/Text.h"

namespace wxbrg::cli {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view fileAnswer = "file ";

[[noreturn]] void FailToRead(const fs::path& file, const std::string& cause) {
    throw UsageError(TextOf(file) + " cannot be read: " + cause + ".");
}

/// Whether a file of the case is there. Throws `UsageError` for what is there and is no regular file, and
/// where the system does not know.
bool IsThere(const fs::path& file) {
    std::error_code error;
    const fs::file_status named = fs::symlink_status(file, error);
    if (named.type() == fs::file_type::not_found) return false;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found) FailToRead(file, "it is a link that leads nowhere");
    if (status.type() == fs::file_type::none) FailToRead(file, error.message());
    if (!fs::is_regular_file(status)) FailToRead(file, "it is no regular file");
    return true;
}

/// Opens a file that is there.
std::ifstream Opened(const fs::path& file) {
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    const int error = errno;
    if (!stream) FailToRead(file, std::generic_category().message(error));
    return stream;
}

std::string BytesOf(const fs::path& file) {
    std::ifstream stream = Opened(file);
    std::ostringstream bytes;
    errno = 0;
    if (stream.peek() != std::ifstream::traits_type::eof()) bytes << stream.rdbuf();
    const int error = errno;
    if (error != 0 || stream.bad()) FailToRead(file, std::generic_category().message(error));
    return bytes.str();
}

/// A text file as UTF-8, or nothing where it is absent.
std::optional<std::string> ReadText(const fs::path& file) {
    if (!IsThere(file)) return std::nullopt;
    std::string text = BytesOf(file);
    if (text.starts_with(byteOrderMark)) text.erase(0, byteOrderMark.size());
    if (!IsUtf8(text)) throw UsageError(TextOf(file) + " is not in UTF-8.");
    return text;
}

std::string Required(const fs::path& file) {
    std::optional<std::string> text = ReadText(file);
    if (!text) throw UsageError("The case has no file " + TextOf(file) + ".");
    return *std::move(text);
}

/// The text without the line end at its end.
std::string ReadCommand(const fs::path& file) {
    std::string command = Required(file);
    if (command.ends_with('\n')) command.pop_back();
    if (command.ends_with('\r')) command.pop_back();
    return command;
}

/// Whether a name given to the file dialog stays below the folder that it counts from.
bool StaysInside(const fs::path& name) {
    const fs::path plain = name.lexically_normal();
    return !plain.has_root_path() && (plain.empty() || *plain.begin() != "..");
}

std::string ReadAnswers(const fs::path& file) {
    std::string text = ReadText(file).value_or("");
    for (const ScriptLine& line : ScriptLines(text))
        if (line.text.starts_with(fileAnswer) && !StaysInside(PathOf(line.text.substr(fileAnswer.size()))))
            throw UsageError(TextOf(file) + ":" + std::to_string(line.number) + ": " +
                             std::string(line.text) + " leads out of the folder of the output.");
    return text;
}

std::uint32_t ReadCodePage(const fs::path& file, std::uint32_t byDefault) {
    const std::optional<std::string> text = ReadText(file);
    if (!text) return byDefault;
    const std::vector<ScriptLine> lines = ScriptLines(*text);
    const std::string_view digits = lines.empty() ? std::string_view() : Trim(lines.front().text);
    std::uint32_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [parsed, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || parsed != end)
        throw UsageError(TextOf(file) + " must hold the number of a code page, such as 1252.");
    return number;
}

}  // namespace

ReplayCase ReadReplayCase(const fs::path& folder) {
    std::error_code error;
    if (!fs::is_directory(folder, error)) throw UsageError("There is no folder " + TextOf(folder) + ".");
    ReplayCase read;
    read.repository = folder / "repository.aml";
    if (!IsThere(read.repository)) throw UsageError("The case has no file " + TextOf(read.repository) + ".");
    Opened(read.repository);
    if (const fs::path profile = folder / "profile.prf"; IsThere(profile)) Opened(profile);
    read.commandLine = ReadCommand(folder / "command");
    read.options = ReadText(folder / "options").value_or("");
    read.machineOptions = ReadText(folder / "machine-options").value_or("");
    read.answers = ReadAnswers(folder / "answers");
    read.codePage = ReadCodePage(folder / "code-page", read.codePage);
    return read;
}

}  // namespace wxbrg::cli
