#include "platform/posix/RegistryText.h"

#include <algorithm>
#include <utility>

#include "platform/ProfileStore.h"
#include "platform/posix/Utf16.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::string_view ownFirstLine = "REGEDIT4";
constexpr std::string_view editorsFirstLine = "Windows Registry Editor Version 5.00";
constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view utf16Mark = "\xFF\xFE";

std::string FoldedKey(std::string_view key) {
    return UpperCase(PlainProfileKey(key));
}

/// How the strings behind a first line are stored as bytes; nothing for a line that is none.
std::optional<RegistryBytes> BytesBehind(std::string_view line) {
    if (line.starts_with(utf8Mark)) line.remove_prefix(utf8Mark.size());
    line = line.substr(0, line.find_last_not_of(" \t\r\n") + 1);
    if (line == ownFirstLine) return RegistryBytes::utf8;
    if (line == editorsFirstLine) return RegistryBytes::utf16;
    return std::nullopt;
}

}  // namespace

RegistryText::RegistryText() {
    const std::string line = std::string(ownFirstLine) + lineBreak_;
    std::string_view rest = line;
    lines_.push_back(TakeLine(rest, {}));
}

std::optional<RegistryText> RegistryText::Parse(std::string_view bytes) {
    if (bytes.empty()) return RegistryText();
    if (!bytes.starts_with(utf16Mark)) return ParseText(bytes);
    const std::optional<std::string> text = Utf8OfUtf16(bytes);
    if (!text) return std::nullopt;
    std::optional<RegistryText> registry = ParseText(*text);
    if (registry) registry->inUtf16_ = true;
    return registry;
}

std::optional<RegistryText> RegistryText::ParseText(std::string_view text) {
    const std::string_view firstLine = text.substr(0, text.find('\n') + 1);
    const std::optional<RegistryBytes> stringBytes = BytesBehind(firstLine.empty() ? text : firstLine);
    if (!stringBytes) return std::nullopt;
    RegistryText registry;
    registry.lines_.clear();
    registry.stringBytes_ = *stringBytes;
    if (firstLine.ends_with("\r\n")) registry.lineBreak_ = "\r\n";
    std::string key;
    while (!text.empty()) {
        registry.lines_.push_back(registry.TakeLine(text, key));
        key = registry.lines_.back().key;
    }
    return registry;
}

RegistryText::Line RegistryText::TakeLine(std::string_view& rest, const std::string& keyAbove) const {
    using Kind = RegistryEntry::Kind;
    RegistryEntry entry = TakeRegistryEntry(rest, stringBytes_);
    std::string key = entry.kind == Kind::key ? FoldedKey(entry.name) : keyAbove;
    std::string name = entry.kind == Kind::value ? UpperCase(entry.name) : std::string();
    return {std::move(entry), std::move(key), std::move(name)};
}

const RegistryText::Line* RegistryText::Find(std::string_view key, std::string_view name) const {
    const std::string foldedKey = FoldedKey(key);
    const std::string foldedName = UpperCase(name);
    const auto found = std::find_if(lines_.rbegin(), lines_.rend(), [&](const Line& line) {
        return line.IsValue(foldedKey, foldedName);
    });
    return found == lines_.rend() ? nullptr : &*found;
}

ProfileValue RegistryText::Get(std::string_view key, std::string_view name) const {
    const Line* const line = Find(key, name);
    return line == nullptr ? ProfileValue() : line->entry.value;
}

bool RegistryText::Set(std::string_view key, std::string_view name, const ProfileValue& value) {
    const std::optional<std::string> data = RegistryData(value, stringBytes_);
    const std::optional<std::string> nameText = RegistryName(name);
    const std::string foldedKey = FoldedKey(key);
    if (!data || !nameText || foldedKey.empty() || !IsUtf8(key) || HoldsControlCharacter(key)) return false;
    if (const Line* const line = Find(key, name)) {
        RegistryEntry& entry = lines_[static_cast<std::size_t>(line - lines_.data())].entry;
        entry.text.replace(entry.dataBegin, entry.dataEnd - entry.dataBegin, *data);
        entry.dataEnd = entry.dataBegin + data->size();
        entry.value = value;
        return true;
    }
    if (!PlaceInKey(foldedKey)) AppendKey(key);
    InsertLine(PlaceInKey(foldedKey).value(), *nameText + "=" + *data);
    return true;
}

bool RegistryText::Remove(std::string_view key, std::string_view name) {
    const std::string foldedKey = FoldedKey(key);
    const std::string foldedName = UpperCase(name);
    return std::erase_if(lines_, [&](const Line& line) {
               return line.IsValue(foldedKey, foldedName);
           }) > 0;
}

std::optional<std::size_t> RegistryText::PlaceInKey(const std::string& foldedKey) const {
    const auto last = std::find_if(lines_.rbegin(), lines_.rend(), [&](const Line& line) {
        return line.key == foldedKey && line.entry.kind != RegistryEntry::Kind::filler;
    });
    if (last == lines_.rend()) return std::nullopt;
    return static_cast<std::size_t>(lines_.rend() - last);
}

void RegistryText::InsertLine(std::size_t place, const std::string& text) {
    Line& above = lines_[place - 1];
    if (!above.entry.text.ends_with('\n')) above.entry.text += lineBreak_;
    const std::string line = text + lineBreak_;
    std::string_view rest = line;
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place), TakeLine(rest, above.key));
}

void RegistryText::AppendKey(std::string_view key) {
    if (lines_.back().entry.kind != RegistryEntry::Kind::filler) InsertLine(lines_.size(), "");
    InsertLine(lines_.size(), std::string("[").append(PlainProfileKey(key)).append("]"));
}

std::string RegistryText::Bytes() const {
    std::string text;
    for (const Line& line : lines_) text += line.entry.text;
    return inUtf16_ ? Utf16OfUtf8(text) : text;
}

}  // namespace wxbrg
