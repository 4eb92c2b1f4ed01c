#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ProfileStore.h"
#include "platform/posix/RegistryEntry.h"

namespace wxbrg {

/// Values in the text form of registry files:
///
///     REGEDIT4
///
///     [HKEY_CURRENT_USER\Software\Example]
///     "Name"="a \"text\" with a \\"
///     "Number"=dword:0000000a
///
/// The first line is "REGEDIT4", or "Windows Registry Editor Version 5.00" as today's registry editor writes
/// it. The text is UTF-8, with or without a byte order mark, or UTF-16 with one, low byte first. It keeps its
/// first line and its encoding.
///
/// A change touches the lines of the one value that it changes. Everything else stays as it stands, byte for
/// byte: foreign keys, values of other types, comments, the order, and lines that cannot be read. A line that
/// cannot be read holds no value, and a change writes its value beside it. Where a value stands more than
/// once, the last one counts.
///
/// Keys are full paths from the root on; a trailing backslash makes no difference. The name of a key's
/// default value is empty. Names compare without regard to case.
///
/// A string that is stored as its bytes ends in a zero character, which is not part of the text; where the
/// zero is missing, the last character is taken off in its place.
class RegistryText {
  public:
    /// An empty registry: the first line alone.
    RegistryText();

    /// Reads the bytes of a file. None are an empty registry; nothing for those of another form, which shows
    /// in the first line.
    static std::optional<RegistryText> Parse(std::string_view bytes);

    /// The value, or nothing where there is none, or one that is neither a string nor a 32-bit number.
    ProfileValue Get(std::string_view key, std::string_view name) const;

    /// Stores a string or a number, making the key if need be. Returns false, and changes nothing, for what
    /// has no place in the form: an empty value, a string that is no UTF-8 or holds a zero character, an
    /// empty key, names that are no UTF-8 or hold control characters.
    bool Set(std::string_view key, std::string_view name, const ProfileValue& value);

    /// Takes a value out, wherever it stands. Returns whether there was one.
    bool Remove(std::string_view key, std::string_view name);

    /// The bytes of the whole file.
    std::string Bytes() const;

  private:
    struct Line {
        RegistryEntry entry;
        std::string key;   ///< what it stands under, to compare
        std::string name;  ///< of a value, to compare

        bool IsValue(const std::string& wantedKey, const std::string& wantedName) const {
            return entry.kind == RegistryEntry::Kind::value && key == wantedKey && name == wantedName;
        }
    };

    static std::optional<RegistryText> ParseText(std::string_view text);
    Line TakeLine(std::string_view& rest, const std::string& keyAbove) const;
    const Line* Find(std::string_view key, std::string_view name) const;
    /// Behind what the last section of a key holds; nothing where the key has no section.
    std::optional<std::size_t> PlaceInKey(const std::string& foldedKey) const;
    void InsertLine(std::size_t place, const std::string& text);
    void AppendKey(std::string_view key);

    std::vector<Line> lines_;
    std::string lineBreak_ = "\n";
    RegistryBytes stringBytes_ = RegistryBytes::utf8;
    bool inUtf16_ = false;
};

}  // namespace wxbrg
