#include "platform/scripted/MemoryProfileStore.h"

#include <charconv>
#include <system_error>

#include "platform/scripted/ScriptError.h"
#include "platform/scripted/ScriptLines.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

constexpr std::string_view textMark = "s:";

/// The value behind the "=" of a line. Nothing where it cannot be read.
ProfileValue ReadValue(std::string_view text) {
    if (text.starts_with(textMark)) return std::string(text.substr(textMark.size()));
    std::int32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [last, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || last != end) return {};
    return number;
}

std::string LineOf(const std::string& name, const ProfileValue& value) {
    if (const auto* number = std::get_if<std::int32_t>(&value))
        return name + "=" + std::to_string(*number) + "\n";
    const auto& text = std::get<std::string>(value);
    if (text.find_first_of("\r\n") != std::string::npos)
        throw ScriptError("the stored text \"" + name +
                          "\" holds a line break and cannot be written on one line");
    return name + "=" + std::string(textMark) + text + "\n";
}

}  // namespace

ProfileValue MemoryProfileStore::Read(ProfileScope scope, std::string_view key, std::string_view name) const {
    const Values& values = ValuesOf(scope);
    const auto found = values.find(ProfilePlace(key, name));
    return found == values.end() ? ProfileValue() : found->second.value;
}

bool MemoryProfileStore::Put(ProfileScope scope, std::string_view key, std::string_view name,
                             const ProfileValue& value) {
    if (std::holds_alternative<std::monostate>(value)) return false;
    Entry& entry =
        ValuesOf(scope).try_emplace(ProfilePlace(key, name), Entry{std::string(name), {}}).first->second;
    entry.value = value;
    return true;
}

bool MemoryProfileStore::Write(std::string_view key, std::string_view name, const ProfileValue& value) {
    return Put(ProfileScope::user, key, name, value);
}

bool MemoryProfileStore::Remove(std::string_view key, std::string_view name) {
    user_.erase(ProfilePlace(key, name));
    return true;
}

void MemoryProfileStore::Load(ProfileScope scope, std::string_view key, std::string_view text) {
    for (const ScriptLine& line : ScriptLines(text)) {
        const std::size_t equals = line.text.find('=');
        const bool named = equals != std::string_view::npos && equals > 0;
        if (!named || !Put(scope, key, line.text.substr(0, equals), ReadValue(line.text.substr(equals + 1))))
            throw ScriptError("line " + std::to_string(line.number) + ": \"" + std::string(line.text) +
                              "\" is neither Name=number nor Name=s:text");
    }
}

std::string MemoryProfileStore::Dump(ProfileScope scope, std::string_view key) const {
    const ProfilePlace wanted(key, {});
    std::map<std::string, std::string> lines;
    for (const auto& [place, entry] : ValuesOf(scope))
        if (place.key == wanted.key) lines.emplace(entry.name, LineOf(entry.name, entry.value));
    std::string text;
    for (const auto& [name, line] : lines) text += line;
    return text;
}

}  // namespace wxbrg
