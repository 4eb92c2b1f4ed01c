#include "support/Text.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "support/Failure.h"
#include "support/UpperCaseTable.h"

namespace wxbrg {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Length and value of the valid character at `position`, length 0 where none begins.
struct Decoded {
    std::size_t length;
    char32_t character;
};

Decoded Decode(std::string_view text, std::size_t position) {
    const auto first = static_cast<unsigned char>(text[position]);
    if (first < 0x80) return {1, first};
    std::size_t length = 0;
    char32_t character = 0;
    char32_t smallest = 0;
    if ((first & 0xE0U) == 0xC0U) {
        length = 2, character = first & 0x1FU, smallest = 0x80;
    } else if ((first & 0xF0U) == 0xE0U) {
        length = 3, character = first & 0x0FU, smallest = 0x800;
    } else if ((first & 0xF8U) == 0xF0U) {
        length = 4, character = first & 0x07U, smallest = 0x10000;
    }
    if (length == 0 || text.size() - position < length) return {0, 0};
    for (std::size_t i = 1; i < length; ++i) {
        const char byte = text[position + i];
        if (!IsContinuation(byte)) return {0, 0};
        character = (character << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < smallest || character > 0x10FFFF || surrogate) return {0, 0};
    return {length, character};
}

char32_t UpperCase(char32_t character) {
    const auto* const end = std::end(upperCaseTable);
    const auto* const found = std::lower_bound(std::begin(upperCaseTable), end, character,
                                               [](const UpperCaseRow& row, char32_t wanted) {
                                                   return row.last < wanted;
                                               });
    if (found == end || character < found->first) return character;
    if ((character - found->first) % found->step != 0) return character;
    return static_cast<char32_t>(static_cast<std::int32_t>(character) + found->distance);
}

}  // namespace

std::size_t CharacterLength(std::string_view text) {
    const std::size_t length = Decode(text, 0).length;
    return length == 0 ? 1 : length;
}

char32_t TakeCharacter(std::string_view text, std::size_t& position) {
    const Decoded decoded = Decode(text, position);
    if (decoded.length == 0) {
        ++position;
        return replacementCharacter;
    }
    position += decoded.length;
    return decoded.character;
}

std::string ValidUtf8(std::string_view text) {
    return IsUtf8(text) ? std::string(text) : FromCharacters(ToCharacters(text));
}

bool IsUtf8(std::string_view text) {
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t length = Decode(text, position).length;
        if (length == 0) return false;
        position += length;
    }
    return true;
}

void AppendCharacter(std::string& text, char32_t character) {
    if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF))
        character = replacementCharacter;
    const auto append = [&text](char32_t byte) {
        text.push_back(static_cast<char>(byte));
    };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0U | (character >> 6U));
        append(0x80U | (character & 0x3FU));
    } else if (character < 0x10000) {
        append(0xE0U | (character >> 12U));
        append(0x80U | ((character >> 6U) & 0x3FU));
        append(0x80U | (character & 0x3FU));
    } else {
        append(0xF0U | (character >> 18U));
        append(0x80U | ((character >> 12U) & 0x3FU));
        append(0x80U | ((character >> 6U) & 0x3FU));
        append(0x80U | (character & 0x3FU));
    }
}

std::u32string ToCharacters(std::string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    for (std::size_t position = 0; position < text.size();)
        characters.push_back(TakeCharacter(text, position));
    return characters;
}

std::string FromCharacters(std::u32string_view characters) {
    std::string text;
    text.reserve(characters.size());
    for (const char32_t character : characters) AppendCharacter(text, character);
    return text;
}

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t position = 0; position < text.size(); ++count)
        position += CharacterLength(text.substr(position));
    return count;
}

std::string_view Left(std::string_view text, std::size_t count) {
    if (text.size() <= count) return text;
    std::size_t position = 0;
    for (; count > 0 && position < text.size(); --count) position += CharacterLength(text.substr(position));
    return text.substr(0, position);
}

std::string_view WithinBytes(std::string_view text, std::size_t bytes) {
    std::size_t end = 0;
    while (end < text.size()) {
        const std::size_t next = end + CharacterLength(text.substr(end));
        if (next > bytes) break;
        end = next;
    }
    return text.substr(0, end);
}

std::string_view WithoutLast(std::string_view text, std::size_t count) {
    const std::size_t characters = CharacterCount(text);
    if (characters < count) throw Failure(FailureKind::invalidCall);
    return Left(text, characters - count);
}

std::string_view TrimLeft(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view Trim(std::string_view text) {
    text = TrimLeft(text);
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? text : text.substr(0, last + 1);
}

std::string Replace(std::string_view text, std::string_view what, std::string_view by) {
    std::string result;
    if (what.empty()) return std::string(text);
    std::size_t from = 0;
    for (std::size_t found = text.find(what); found != std::string_view::npos;
         found = text.find(what, from)) {
        result.append(text.substr(from, found - from)).append(by);
        from = found + what.size();
    }
    return result.append(text.substr(from));
}

std::string InQuotes(std::string_view text) {
    return std::string(1, '"').append(text).append(1, '"');
}

std::string ShortInQuotes(std::string_view text) {
    constexpr std::size_t shown = 60;
    const std::string_view front = Left(text, shown);
    return InQuotes(std::string(front) + (front.size() < text.size() ? "..." : ""));
}

std::string CollapseBlanks(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char byte : text)
        if (byte != ' ' || result.empty() || result.back() != ' ') result.push_back(byte);
    return result;
}

std::string RemoveLineBreaks(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool carriageReturn = text[i] == '\r';
        if (carriageReturn && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        result.push_back(carriageReturn || text[i] == '\n' ? ' ' : text[i]);
    }
    return result;
}

std::string UpperCase(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const char byte = text[position];
        if (static_cast<unsigned char>(byte) < 0x80) {
            result.push_back(byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte);
            ++position;
            continue;
        }
        const Decoded decoded = Decode(text, position);
        if (decoded.length == 0) {
            result.push_back(byte);
            ++position;
            continue;
        }
        AppendCharacter(result, UpperCase(decoded.character));
        position += decoded.length;
    }
    return result;
}

}  // namespace wxbrg
