#include "tests/terminal/TextPicture.h"

#include "support/Text.h"

namespace wxbrg {

std::vector<std::string> LinesOf(const ScreenPicture& picture, ScreenSize size) {
    std::vector<std::u32string> cells(size.height, std::u32string(size.width, U' '));
    for (const ScreenSpan& span : picture.spans)
        for (std::size_t i = 0; i < span.text.size(); ++i)
            cells.at(span.at.row).at(span.at.column + i) = span.text[i];
    std::vector<std::string> lines;
    for (std::u32string& line : cells) {
        line.erase(line.find_last_not_of(U' ') + 1);
        lines.push_back(FromCharacters(line));
    }
    return lines;
}

std::string TextOf(const ScreenPicture& picture, ScreenSize size) {
    std::string text;
    for (const std::string& line : LinesOf(picture, size)) text += line + '\n';
    return text;
}

std::vector<std::string> PiecesOf(const ScreenPicture& picture, ScreenStyle style) {
    std::vector<std::string> pieces;
    for (const ScreenSpan& span : picture.spans)
        if (span.style == style && !span.accessKey) pieces.push_back(FromCharacters(span.text));
    return pieces;
}

}  // namespace wxbrg
