#include "platform/terminal/form/ScreenText.h"

#include <algorithm>
#include <array>

namespace wxbrg {

namespace {

struct CharacterRange {
    char32_t first;
    char32_t last;
};

constexpr std::array combiningMarks{CharacterRange{0x0300, 0x036F}, CharacterRange{0x1AB0, 0x1AFF},
                                    CharacterRange{0x1DC0, 0x1DFF}, CharacterRange{0x200B, 0x200F},
                                    CharacterRange{0x20D0, 0x20FF}, CharacterRange{0xFE00, 0xFE0F},
                                    CharacterRange{0xFE20, 0xFE2F}};

constexpr std::array wideCharacters{
    CharacterRange{0x1100, 0x115F},   CharacterRange{0x2E80, 0x303E},  CharacterRange{0x3041, 0xA4CF},
    CharacterRange{0xA960, 0xA97F},   CharacterRange{0xAC00, 0xD7A3},  CharacterRange{0xF900, 0xFAFF},
    CharacterRange{0xFE30, 0xFE6F},   CharacterRange{0xFF00, 0xFF60},  CharacterRange{0xFFE0, 0xFFE6},
    CharacterRange{0x1F300, 0x1F64F}, CharacterRange{0x20000, 0x3FFFD}};

template <std::size_t size>
bool IsIn(const std::array<CharacterRange, size>& ranges, char32_t character) {
    return std::any_of(ranges.begin(), ranges.end(), [character](const CharacterRange& range) {
        return range.first <= character && character <= range.last;
    });
}

std::size_t SkipBlanks(std::u32string_view text, std::size_t position) {
    return std::min(text.find_first_not_of(U' ', position), text.size());
}

}  // namespace

std::size_t CellsOf(char32_t character) {
    if (IsIn(combiningMarks, character)) return 0;
    return IsIn(wideCharacters, character) ? 2 : 1;
}

std::size_t CellsOf(std::u32string_view text) {
    std::size_t cells = 0;
    for (const char32_t character : text) cells += CellsOf(character);
    return cells;
}

std::u32string_view CutToWidth(std::u32string_view text, std::size_t width) {
    std::size_t length = 0;
    for (std::size_t cells = 0; length < text.size(); ++length) {
        cells += CellsOf(text[length]);
        if (cells > width) break;
    }
    return text.substr(0, length);
}

std::vector<TextPart> WrapText(std::u32string_view text, std::size_t width) {
    std::vector<TextPart> lines;
    std::size_t start = 0;
    do {
        const std::size_t fits = std::max<std::size_t>(CutToWidth(text.substr(start), width).size(), 1);
        std::size_t end = std::min(start + fits, text.size());
        if (end < text.size() && text[end] != U' ') {
            const std::size_t blank = text.find_last_of(U' ', end);
            if (blank != std::u32string_view::npos && blank > start) end = blank;
        }
        const std::size_t next = SkipBlanks(text, end);
        while (end > start && text[end - 1] == U' ') --end;
        lines.push_back({start, end - start});
        start = next;
    } while (start < text.size());
    return lines;
}

}  // namespace wxbrg
