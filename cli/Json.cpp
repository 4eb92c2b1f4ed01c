#include "cli/Json.h"

#include <cstddef>

#include "support/Text.h"

namespace wxbrg::cli {

namespace {

void AppendEscaped(std::string& json, char32_t character) {
    constexpr std::string_view hexadecimal = "0123456789abcdef";
    switch (character) {
        case U'"':
            json += "\\\"";
            return;
        case U'\\':
            json += "\\\\";
            return;
        case U'\n':
            json += "\\n";
            return;
        case U'\r':
            json += "\\r";
            return;
        case U'\t':
            json += "\\t";
            return;
        default:
            break;
    }
    if (character < U' ')
        json.append("\\u00").append({hexadecimal[character >> 4U], hexadecimal[character & 0xFU]});
    else
        AppendCharacter(json, character);
}

}  // namespace

std::string JsonString(std::string_view text) {
    std::string json = "\"";
    for (std::size_t position = 0; position < text.size();)
        AppendEscaped(json, TakeCharacter(text, position));
    return json += '"';
}

}  // namespace wxbrg::cli
