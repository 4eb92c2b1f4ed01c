#include "platform/posix/RegistryEntry.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

#include "platform/posix/Utf16.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::string_view numberPrefix = "dword:";
constexpr std::string_view hexPrefix = "hex";
constexpr std::uint32_t stringType = 1;
constexpr std::uint32_t binaryType = 3;
constexpr std::uint32_t numberType = 4;

bool IsBlank(char byte) {
    return byte == ' ' || byte == '\t';
}

/// Reads the parts of an entry from the front of a text. What a reading operation does not find it leaves.
class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text) {}

    std::size_t Position() const { return position_; }
    std::string_view Rest() const { return text_.substr(position_); }

    void SkipBlanks() {
        while (position_ < text_.size() && IsBlank(text_[position_])) ++position_;
    }

    bool Skip(std::string_view what) {
        if (UpperCase(Rest().substr(0, what.size())) != UpperCase(what)) return false;
        position_ += what.size();
        return true;
    }

    /// Takes the end of the line, or finds the end of the text.
    bool SkipLineBreak() { return Rest().empty() || Skip("\n") || Skip("\r\n"); }

    /// Takes a backslash that is the last thing of a line, and the line break.
    bool SkipContinuation() {
        const std::size_t start = position_;
        if (!Rest().starts_with('\\')) return false;
        ++position_;
        SkipBlanks();
        if (!Rest().empty() && SkipLineBreak()) return true;
        position_ = start;
        return false;
    }

    /// Takes the rest of a line that holds nothing but a comment.
    bool SkipLineEnd() {
        SkipBlanks();
        if (Rest().starts_with(';')) position_ = std::min(text_.find('\n', position_), text_.size());
        return SkipLineBreak();
    }

    /// Takes a hexadecimal number of at most `digits` digits.
    std::optional<std::uint32_t> TakeHex(std::size_t digits) {
        const std::string_view allowed = Rest().substr(0, digits);
        std::uint32_t number = 0;
        const auto [end, error] =
            std::from_chars(allowed.data(), allowed.data() + allowed.size(), number, 16);
        if (error != std::errc()) return std::nullopt;
        position_ += static_cast<std::size_t>(end - allowed.data());
        return number;
    }

    /// Takes a text in quotes, on one line.
    std::optional<std::string> TakeQuoted() {
        if (!Skip("\"")) return std::nullopt;
        std::string result;
        while (position_ < text_.size()) {
            const char byte = text_[position_++];
            if (byte == '"') return result;
            if (byte == '\n' || byte == '\r' || byte == '\0') return std::nullopt;
            if (byte != '\\') {
                result.push_back(byte);
                continue;
            }
            if (!Rest().starts_with('\\') && !Rest().starts_with('"')) return std::nullopt;
            result.push_back(text_[position_++]);
        }
        return std::nullopt;
    }

  private:
    std::string_view text_;
    std::size_t position_ = 0;
};

/// What bytes of a type stand for: the value of a string or number, empty for everything else.
ProfileValue ValueOfBytes(std::uint32_t type, std::string_view bytes, RegistryBytes form) {
    if (type == numberType && bytes.size() == 4) {
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < 4; ++i)
            number |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
        return static_cast<std::int32_t>(number);
    }
    if (type != stringType) return {};
    const std::optional<std::string> whole =
        form == RegistryBytes::utf16 ? Utf8OfUtf16(bytes) : std::optional<std::string>(bytes);
    if (!whole || !IsUtf8(*whole)) return {};
    // The last character counts as the terminating zero, whatever it is.
    const std::string_view text = WithoutLast(*whole, std::min(CharacterCount(*whole), std::size_t{1}));
    if (text.find('\0') != std::string_view::npos) return {};
    return std::string(text);
}

/// Reads the type and bytes behind "hex". Nothing for what cannot be read.
std::optional<ProfileValue> TakeHexData(Reader& reader, RegistryBytes form) {
    std::uint32_t type = binaryType;
    if (reader.Skip("(")) {
        const std::optional<std::uint32_t> number = reader.TakeHex(8);
        if (!number || !reader.Skip(")")) return std::nullopt;
        type = *number;
    }
    if (!reader.Skip(":")) return std::nullopt;
    std::string bytes;
    for (bool more = true; more;) {
        reader.SkipBlanks();
        if (reader.SkipContinuation()) continue;
        const std::optional<std::uint32_t> byte = reader.TakeHex(2);
        if (!byte) break;
        bytes.push_back(static_cast<char>(*byte));
        reader.SkipBlanks();
        more = reader.Skip(",");
    }
    return ValueOfBytes(type, bytes, form);
}

/// Reads the data of a value. Nothing for what cannot be read.
std::optional<ProfileValue> TakeData(Reader& reader, RegistryBytes form) {
    if (reader.Skip("-")) return std::optional<ProfileValue>(std::in_place);
    if (reader.Skip(numberPrefix)) {
        const std::optional<std::uint32_t> number = reader.TakeHex(8);
        if (!number) return std::nullopt;
        return static_cast<std::int32_t>(*number);
    }
    if (reader.Skip(hexPrefix)) return TakeHexData(reader, form);
    std::optional<std::string> text = reader.TakeQuoted();
    if (!text || !IsUtf8(*text)) return std::nullopt;
    return std::move(*text);
}

/// Reads a value from the front of a text. Nothing where there is none that can be read.
std::optional<RegistryEntry> ReadValue(std::string_view text, RegistryBytes form) {
    RegistryEntry entry;
    entry.kind = RegistryEntry::Kind::value;
    Reader reader(text);
    reader.SkipBlanks();
    if (!reader.Skip("@")) {
        std::optional<std::string> name = reader.TakeQuoted();
        if (!name) return std::nullopt;
        entry.name = std::move(*name);
    }
    reader.SkipBlanks();
    if (!reader.Skip("=")) return std::nullopt;
    reader.SkipBlanks();
    entry.dataBegin = reader.Position();
    std::optional<ProfileValue> value = TakeData(reader, form);
    if (!value) return std::nullopt;
    entry.value = std::move(*value);
    entry.dataEnd = reader.Position();
    if (!reader.SkipLineEnd()) return std::nullopt;
    entry.text = text.substr(0, reader.Position());
    return entry;
}

std::string_view WithoutBlanksAround(std::string_view line) {
    constexpr std::string_view blanks = " \t\r\n";
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    return line.substr(0, line.find_last_not_of(blanks) + 1);
}

/// Reads a line that is no value.
RegistryEntry ReadLine(std::string_view line) {
    RegistryEntry entry;
    entry.text = line;
    const std::string_view content = WithoutBlanksAround(line);
    if (content.empty() || content.starts_with(';')) {
        entry.kind = RegistryEntry::Kind::filler;
    } else if (content.starts_with('[')) {
        entry.kind = RegistryEntry::Kind::key;
        if (content.ends_with(']')) entry.name = content.substr(1, content.size() - 2);
    }
    return entry;
}

std::string HexOfString(std::string text, RegistryBytes form) {
    constexpr std::string_view digits = "0123456789abcdef";
    text.push_back('\0');
    if (form == RegistryBytes::utf16) text = Utf16OfUtf8(text);
    std::string data(hexPrefix);
    data += "(1):";
    for (const char byte : text) {
        const auto value = static_cast<unsigned char>(byte);
        data.append({digits[value >> 4U], digits[value & 0xFU], ','});
    }
    data.pop_back();
    return data;
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char byte : text) {
        if (byte == '\\' || byte == '"') quoted.push_back('\\');
        quoted.push_back(byte);
    }
    return quoted + '"';
}

}  // namespace

RegistryEntry TakeRegistryEntry(std::string_view& rest, RegistryBytes bytes) {
    std::optional<RegistryEntry> entry = ReadValue(rest, bytes);
    if (!entry) entry = ReadLine(rest.substr(0, std::min(rest.find('\n'), rest.size() - 1) + 1));
    rest.remove_prefix(entry->text.size());
    return std::move(*entry);
}

bool HoldsControlCharacter(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char byte) {
        return static_cast<unsigned char>(byte) < 0x20;
    });
}

std::optional<std::string> RegistryName(std::string_view name) {
    if (name.empty()) return "@";
    if (!IsUtf8(name) || HoldsControlCharacter(name)) return std::nullopt;
    return Quoted(name);
}

std::optional<std::string> RegistryData(const ProfileValue& value, RegistryBytes bytes) {
    if (const auto* number = std::get_if<std::int32_t>(&value)) {
        std::array<char, 8> digits{};
        auto* const end =
            std::to_chars(digits.begin(), digits.end(), static_cast<std::uint32_t>(*number), 16).ptr;
        const std::string shortest(digits.begin(), end);
        return std::string(numberPrefix) + std::string(digits.size() - shortest.size(), '0') + shortest;
    }
    const auto* text = std::get_if<std::string>(&value);
    if (text == nullptr || !IsUtf8(*text) || text->find('\0') != std::string::npos) return std::nullopt;
    return HoldsControlCharacter(*text) ? HexOfString(*text, bytes) : Quoted(*text);
}

}  // namespace wxbrg
