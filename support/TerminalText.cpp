#include "support/TerminalText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>

#include "support/Text.h"

namespace wxbrg {

namespace {

struct CharacterRange {
    char32_t first;
    char32_t last;
};

constexpr std::array unprintable{
    CharacterRange{0x00, 0x08},      // C0 up to the tab
    CharacterRange{0x0A, 0x1F},      // C0 behind the tab
    CharacterRange{0x7F, 0x9F},      // DEL and C1
    CharacterRange{0x061C, 0x061C},  // Arabic letter mark
    CharacterRange{0x200E, 0x200F},  // marks of the writing direction
    CharacterRange{0x2028, 0x2029},  // line and paragraph separator
    CharacterRange{0x202A, 0x202E},  // embeddings and overrides of the writing direction
    CharacterRange{0x2066, 0x2069},  // isolates of the writing direction
};

constexpr char32_t replacementCharacter = 0xFFFD;

void AppendNumber(std::string& text, char32_t character) {
    constexpr int hexadecimal = 16;
    std::array<char, 8> digits{};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                    static_cast<std::uint32_t>(character), hexadecimal)
                          .ptr;
    text.append("\\u{").append(UpperCase(std::string_view(digits.data(), end))).append("}");
}

}  // namespace

bool IsPrintable(char32_t character) {
    return std::none_of(unprintable.begin(), unprintable.end(), [character](const CharacterRange& range) {
        return range.first <= character && character <= range.last;
    });
}

std::string Printable(std::string_view text) {
    std::string shown;
    shown.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        const char32_t character = TakeCharacter(text, position);
        const bool broken = character == replacementCharacter && position - start == 1;
        if (broken || !IsPrintable(character))
            AppendNumber(shown, character);
        else
            shown.append(text.substr(start, position - start));
    }
    return shown;
}

std::string PrintableLines(std::string_view text, std::string_view lineEnd, std::string_view indent) {
    std::string shown;
    for (;;) {
        const std::size_t end = text.find(lineEnd);
        const std::string_view line = text.substr(0, end);
        if (!line.empty()) shown.append(indent).append(Printable(line));
        if (end == std::string_view::npos) return shown;
        shown.append(1, '\n');
        text.remove_prefix(end + lineEnd.size());
    }
}

std::string PrintableField(std::string_view text) {
    std::string field = RemoveLineBreaks(text);
    std::replace(field.begin(), field.end(), '\t', ' ');
    return Printable(field);
}

std::string PrintableInQuotes(std::string_view text) {
    return InQuotes(Printable(text));
}

}  // namespace wxbrg
