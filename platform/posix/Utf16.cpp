#include "platform/posix/Utf16.h"

#include <cstddef>
#include <cstdint>

namespace wxbrg {

namespace {

constexpr std::uint32_t highSurrogates = 0xD800;
constexpr std::uint32_t lowSurrogates = 0xDC00;
constexpr std::uint32_t behindSurrogates = 0xE000;
constexpr std::uint32_t firstInTwoUnits = 0x10000;

std::uint32_t ByteAt(std::string_view bytes, std::size_t place) {
    return static_cast<unsigned char>(bytes[place]);
}

std::uint32_t UnitAt(std::string_view bytes, std::size_t place) {
    return ByteAt(bytes, place) | ByteAt(bytes, place + 1) << 8U;
}

bool IsIn(std::uint32_t number, std::uint32_t first, std::uint32_t behind) {
    return number >= first && number < behind;
}

/// Whether the units at a place, the second one where there is one, are the two of one character.
bool IsPairAt(std::string_view bytes, std::size_t place) {
    return place + 4 <= bytes.size() && IsIn(UnitAt(bytes, place), highSurrogates, lowSurrogates) &&
           IsIn(UnitAt(bytes, place + 2), lowSurrogates, behindSurrogates);
}

void AppendFollowing(std::string& text, std::uint32_t character, unsigned shift) {
    text.push_back(static_cast<char>(0x80U | (character >> shift & 0x3FU)));
}

void AppendUtf8(std::string& text, std::uint32_t character) {
    if (character < 0x80) {
        text.push_back(static_cast<char>(character));
        return;
    }
    if (character < 0x800) {
        text.push_back(static_cast<char>(0xC0U | character >> 6U));
    } else {
        if (character < firstInTwoUnits) {
            text.push_back(static_cast<char>(0xE0U | character >> 12U));
        } else {
            text.push_back(static_cast<char>(0xF0U | character >> 18U));
            AppendFollowing(text, character, 12);
        }
        AppendFollowing(text, character, 6);
    }
    AppendFollowing(text, character, 0);
}

void AppendUnit(std::string& bytes, std::uint32_t unit) {
    bytes.push_back(static_cast<char>(unit & 0xFFU));
    bytes.push_back(static_cast<char>(unit >> 8U));
}

/// How many bytes follow the first byte of a character.
std::size_t FollowingBytes(std::uint32_t first) {
    if (first < 0xC0) return 0;
    if (first < 0xE0) return 1;
    return first < 0xF0 ? 2 : 3;
}

}  // namespace

std::optional<std::string> Utf8OfUtf16(std::string_view bytes) {
    if (bytes.size() % 2 != 0) return std::nullopt;
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t place = 0; place < bytes.size(); place += 2) {
        std::uint32_t character = UnitAt(bytes, place);
        if (IsPairAt(bytes, place)) {
            place += 2;
            character = firstInTwoUnits + ((character - highSurrogates) << 10U) +
                        (UnitAt(bytes, place) - lowSurrogates);
        }
        AppendUtf8(text, character);
    }
    return text;
}

std::string Utf16OfUtf8(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (std::size_t place = 0; place < text.size(); ++place) {
        std::uint32_t character = ByteAt(text, place);
        std::size_t following = FollowingBytes(character);
        if (following > 0) character &= 0x3FU >> following;
        for (; following > 0 && place + 1 < text.size(); --following)
            character = character << 6U | (ByteAt(text, ++place) & 0x3FU);
        if (character >= firstInTwoUnits) {
            const std::uint32_t beyond = character - firstInTwoUnits;
            AppendUnit(bytes, highSurrogates + (beyond >> 10U));
            AppendUnit(bytes, lowSurrogates + (beyond & 0x3FFU));
        } else {
            AppendUnit(bytes, character);
        }
    }
    return bytes;
}

}  // namespace wxbrg
