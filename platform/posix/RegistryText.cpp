#include "platform/posix/RegistryText.h"

#include <algorithm>
#include <utility>

#include "platform/ProfileStore.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::string_view firstLine = "REGEDIT4";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string FoldedKey(std::string_view key) {
    return UpperCase(PlainProfileKey(key));
}

bool IsFirstLine(std::string_view line) {
    if (line.starts_with(byteOrderMark)) line.remove_prefix(byteOrderMark.size());
    if (!line.starts_with(firstLine)) return false;
    return line.find_first_not_of(" \t\r\n", firstLine.size()) == std::string_view::npos;
}

}  // namespace

RegistryText::RegistryText() {
    const std::string line = std::string(firstLine) + lineBreak_;
    std::string_view rest = line;
    lines_.push_back(MakeLine(TakeRegistryEntry(rest), {}));
}

std::optional<RegistryText> RegistryText::Parse(std::string_view text) {
    RegistryText registry;
    if (text.empty()) return registry;
    registry.lines_.clear();
    std::string key;
    while (!text.empty()) {
        registry.lines_.push_back(MakeLine(TakeRegistryEntry(text), key));
        if (registry.lines_.size() == 1 && !IsFirstLine(registry.lines_[0].entry.text)) return std::nullopt;
        key = registry.lines_.back().key;
    }
    if (registry.lines_[0].entry.text.ends_with("\r\n")) registry.lineBreak_ = "\r\n";
    return registry;
}

RegistryText::Line RegistryText::MakeLine(RegistryEntry entry, const std::string& keyAbove) {
    using Kind = RegistryEntry::Kind;
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
    const std::optional<std::string> data = RegistryData(value);
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
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place),
                  MakeLine(TakeRegistryEntry(rest), above.key));
}

void RegistryText::AppendKey(std::string_view key) {
    if (lines_.back().entry.kind != RegistryEntry::Kind::filler) InsertLine(lines_.size(), "");
    InsertLine(lines_.size(), std::string("[").append(PlainProfileKey(key)).append("]"));
}

std::string RegistryText::Text() const {
    std::string text;
    for (const Line& line : lines_) text += line.entry.text;
    return text;
}

}  // namespace wxbrg
