#include "platform/posix/IconvCodePage.h"

#include <algorithm>
#include <stdexcept>

#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::uint32_t utf8 = 65001;
constexpr char utf8Name[] = "UTF-8";

/// Sizes of the pieces that are converted in one go. Behind a character that could not be converted another
/// one is likely, and iconv looks far ahead before it says so: start small there.
constexpr std::size_t largestPiece = std::size_t{1} << 16U;
constexpr std::size_t smallestPiece = 16;

/// What iconv calls a code page.
std::string IconvName(std::uint32_t number) {
    constexpr std::uint32_t firstIso8859 = 28591;
    constexpr std::uint32_t lastIso8859 = 28606;
    if (number >= firstIso8859 && number <= lastIso8859)
        return "ISO-8859-" + std::to_string(number - firstIso8859 + 1);
    switch (number) {
        case utf8:
            return utf8Name;
        case 10000:
            return "MACINTOSH";
        case 20127:
            return "ASCII";
        case 20866:
            return "KOI8-R";
        case 20932:
            return "EUC-JP";
        case 21866:
            return "KOI8-U";
        case 51932:
            return "EUC-JP";
        case 51936:
            return "GB2312";
        case 51949:
            return "EUC-KR";
        case 54936:
            return "GB18030";
        default:
            return "CP" + std::to_string(number);
    }
}

bool HoldsAscii(Iconv& encoder) {
    constexpr std::string_view needed = "\r\n 0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    std::string bytes;
    const bool converted = encoder.Convert(needed, bytes).converted == needed.size();
    encoder.Finish(bytes);
    return converted && bytes == needed;
}

/// The place of the first tag character, U+E0000 to U+E007F, from `position` on; the text's size for none.
std::size_t FindTag(std::string_view text, std::size_t position) {
    constexpr std::string_view firstBytes = "\xF3\xA0";
    for (; (position = text.find(firstBytes, position)) != std::string_view::npos; ++position) {
        const std::string_view third = text.substr(position + firstBytes.size(), 1);
        if ((third == "\x80" || third == "\x81") && CharacterLength(text.substr(position)) == 4)
            return position;
    }
    return text.size();
}

}  // namespace

IconvCodePage::IconvCodePage(std::uint32_t number) : number_(number) {
    if (!IsSupported(number))
        throw std::invalid_argument("code page " + std::to_string(number) + " is not known on this system");
    if (number == utf8) return;
    const std::string name = IconvName(number);
    encoder_.emplace(name.c_str(), utf8Name);
    decoder_.emplace(utf8Name, name.c_str());
}

bool IconvCodePage::IsSupported(std::uint32_t number) {
    try {
        const std::string name = IconvName(number);
        Iconv decoder(utf8Name, name.c_str());
        Iconv encoder(name.c_str(), utf8Name);
        return HoldsAscii(encoder);
    } catch (const std::invalid_argument&) {
        return false;
    }
}

void IconvCodePage::Convert(Iconv& conversion, std::string_view from, std::string& result,
                            const Unconvertible& unconvertible) {
    std::size_t size = largestPiece;
    while (!from.empty()) {
        const std::string_view piece = from.substr(0, size);
        const Iconv::Outcome outcome = conversion.Convert(piece, result);
        from.remove_prefix(outcome.converted);
        const bool cutByPiece = outcome.incomplete && outcome.converted + from.size() > piece.size();
        if (outcome.converted == piece.size() || cutByPiece) {
            size = std::min(size * 2, largestPiece);
            continue;
        }
        conversion.Finish(result);
        from.remove_prefix(unconvertible(from));
        size = smallestPiece;
    }
    conversion.Finish(result);
}

void IconvCodePage::AppendLacking(std::string& result) {
    result.push_back('?');
    ++lacking_;
}

void IconvCodePage::AppendUntagged(std::string_view text, std::string& result) {
    Convert(*encoder_, text, result, [&](std::string_view rest) {
        AppendLacking(result);
        return CharacterLength(rest);
    });
}

void IconvCodePage::AppendTag(std::string_view tag, std::string& result) {
    // iconv takes a tag character that the code page lacks for done without writing anything.
    const std::size_t before = result.size();
    const bool converted = encoder_->Convert(tag, result).converted == tag.size();
    encoder_->Finish(result);
    if (!converted || result.size() == before) AppendLacking(result);
}

std::string IconvCodePage::ToBytes(std::string_view text) {
    if (!encoder_) return ValidUtf8(text);
    std::string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t tag = FindTag(text, position);
        AppendUntagged(text.substr(position, tag - position), result);
        if (tag == text.size()) break;
        const std::string_view character = text.substr(tag, CharacterLength(text.substr(tag)));
        AppendTag(character, result);
        position = tag + character.size();
    }
    return result;
}

std::string IconvCodePage::ToText(std::string_view bytes) {
    if (!decoder_) return ValidUtf8(bytes);
    std::string result;
    result.reserve(bytes.size());
    Convert(*decoder_, bytes, result, [&](std::string_view) {
        AppendCharacter(result, U'�');
        return std::size_t{1};
    });
    return result;
}

}  // namespace wxbrg
