#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace wxbrg {

/// How many cells of a screen a character takes: 2 for the wide ones of East Asian scripts, 0 for marks that
/// combine with the character before them, else 1.
std::size_t CellsOf(char32_t character);
std::size_t CellsOf(std::u32string_view text);

/// A part of a text, in characters.
struct TextPart {
    std::size_t start = 0;
    std::size_t length = 0;

    bool operator==(const TextPart&) const = default;
};

/// Breaks a text into lines of at most `width` cells, at blanks, which are left out there; a word that is
/// longer than a line is broken anywhere. An empty text is one empty line.
std::vector<TextPart> WrapText(std::u32string_view text, std::size_t width);

/// The longest front part of a text that takes at most `width` cells.
std::u32string_view CutToWidth(std::u32string_view text, std::size_t width);

}  // namespace wxbrg
