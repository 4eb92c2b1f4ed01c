#include "tests/cases/runner/Difference.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <vector>

#include "support/Text.h"
#include "tests/cases/runner/Arguments.h"
#include "tests/cases/runner/JsonLines.h"

namespace wxbrg::cases {

namespace {

constexpr std::size_t linesBefore = 3;
constexpr std::size_t linesShown = 12;

/// The lines with their ends.
std::vector<std::string_view> LinesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        lines.push_back(text.substr(0, end == std::string_view::npos ? end : end + 1));
        text.remove_prefix(lines.back().size());
    }
    return lines;
}

std::string Numbered(char mark, std::size_t index, std::string_view line) {
    const std::string number = std::to_string(index + 1);
    const bool ends = line.ends_with('\n');
    if (ends) line.remove_suffix(1);
    return std::string(1, mark) + std::string(number.size() < 5 ? 5 - number.size() : 0, ' ') + number +
           "  " + Visible(line) + (ends ? "\n" : " (no line end)\n");
}

std::string NumberedLines(char mark, const std::vector<std::string_view>& lines, std::size_t from,
                          std::size_t to) {
    std::string text;
    for (std::size_t index = from; index < std::min(to, from + linesShown); ++index)
        text += Numbered(mark, index, lines[index]);
    if (to > from + linesShown)
        text += std::string(1, mark) + "       ... " + std::to_string(to - from - linesShown) + " more\n";
    return text;
}

/// Whether a reader sees the character: no control character, no blank but the plain one, nothing of no
/// width.
bool Shows(char32_t character) {
    const bool control = character < 0x20 || (character >= 0x7F && character <= 0xA0) || character == 0xAD;
    const bool spacing = (character >= 0x2000 && character <= 0x200F) ||
                         (character >= 0x2028 && character <= 0x202F) || character == 0x3000;
    return !control && !spacing && character != 0xFEFF;
}

std::string InHexadecimal(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += {'\\', 'x', digits[value >> 4], digits[value & 0xF]};
    }
    return text;
}

/// Whether a text is the one line that says why a run has failed; it depends on the system.
bool IsCause(std::string_view text) {
    return text.starts_with("wxbrg: ") && text.find('\n') == text.size() - 1;
}

std::string FileDifference(const std::string& name, const std::string& expected, const std::string& got) {
    if (name != transcriptName) return TextDifference(expected, got);
    try {
        return TextDifference(CanonicalJsonLines(expected), CanonicalJsonLines(got));
    } catch (const std::invalid_argument& error) {
        return std::string(error.what()) + "\n";
    }
}

}  // namespace

std::string Difference(const Files& expected, const ReplayOutcome& outcome) {
    std::string text;
    if (outcome.status != 0) text += "wxbrg ended with status " + std::to_string(outcome.status) + ".\n";
    if (!outcome.err.empty() && !IsCause(outcome.err))
        text += "wxbrg wrote to its standard error:\n" + Visible(outcome.err) + "\n";
    std::set<std::string> names;
    for (const Files* files : {&expected, &outcome.files})
        for (const auto& [name, bytes] : *files) names.insert(name);
    for (const std::string& name : names) {
        const auto wanted = expected.find(name);
        const auto got = outcome.files.find(name);
        if (got == outcome.files.end()) {
            text += name + " was not written.\n";
        } else if (wanted == expected.end()) {
            text += name + " was written, which is not expected:\n" + TextDifference("", got->second);
        } else {
            const std::string difference = FileDifference(name, wanted->second, got->second);
            if (!difference.empty()) text += name + " differs:\n" + difference;
        }
    }
    return text;
}

std::string TextDifference(std::string_view expected, std::string_view got) {
    if (expected == got) return "";
    const std::vector<std::string_view> wanted = LinesOf(expected);
    const std::vector<std::string_view> came = LinesOf(got);
    const auto from = static_cast<std::size_t>(
        std::mismatch(wanted.begin(), wanted.end(), came.begin(), came.end()).first - wanted.begin());
    std::size_t same = 0;
    while (same < std::min(wanted.size(), came.size()) - from &&
           wanted[wanted.size() - 1 - same] == came[came.size() - 1 - same])
        ++same;
    std::string text;
    for (std::size_t index = from - std::min(from, linesBefore); index < from; ++index)
        text += Numbered(' ', index, wanted[index]);
    return text + NumberedLines('-', wanted, from, wanted.size() - same) +
           NumberedLines('+', came, from, came.size() - same);
}

std::string Visible(std::string_view text) {
    std::string visible;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        const char32_t character = TakeCharacter(text, position);
        const std::string_view bytes = text.substr(start, position - start);
        if (character == U'\t') {
            visible += "\\t";
        } else if (character == U'\r') {
            visible += "\\r";
        } else if (character == U'\n' || (IsUtf8(bytes) && Shows(character))) {
            visible += bytes;
        } else {
            visible += InHexadecimal(bytes);
        }
    }
    return visible;
}

std::string RecordCommand(const Case& wanted) {
    const Arguments& arguments = TheArguments();
    const bool asBuilt = arguments.program == Arguments().program;
    return "tests/cases/record " + (asBuilt ? "" : "-p " + arguments.program.string() + " ") + wanted.name;
}

}  // namespace wxbrg::cases
