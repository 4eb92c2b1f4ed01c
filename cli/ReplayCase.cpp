#include "cli/ReplayCase.h"

#include <charconv>
#include <fstream>
#include <iterator>
#include <optional>
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

/// A text file as UTF-8, or nothing where it is absent.
std::optional<std::string> ReadText(const fs::path& file) {
    std::error_code error;
    if (!fs::exists(file, error)) return std::nullopt;
    std::ifstream stream(file, std::ios::binary);
    if (!stream || !fs::is_regular_file(file, error)) throw UsageError(TextOf(file) + " cannot be read.");
    std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
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
    if (!fs::exists(read.repository, error))
        throw UsageError("The case has no file " + TextOf(read.repository) + ".");
    read.commandLine = ReadCommand(folder / "command");
    read.options = ReadText(folder / "options").value_or("");
    read.machineOptions = ReadText(folder / "machine-options").value_or("");
    read.answers = ReadAnswers(folder / "answers");
    read.codePage = ReadCodePage(folder / "code-page", read.codePage);
    return read;
}

}  // namespace wxbrg::cli
