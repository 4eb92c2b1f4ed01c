#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace wxbrg {

/// A stored value: nothing, a string or a 32-bit number.
using ProfileValue = std::variant<std::monostate, std::string, std::int32_t>;

/// Where a value is stored: what the user has shadows what the machine has.
enum class ProfileScope { user, machine };

/// The store of named values under named keys (on Windows the registry). Keys are paths with backslashes, a
/// trailing one makes no difference; names of keys and values compare without regard to case.
///
/// What goes wrong is a value that is not there, or a false result. Who wants to report it asks for the
/// problems: texts for the user, in whole sentences, that name the place, the cause and what to do.
class ProfileStore {
  public:
    virtual ~ProfileStore() = default;

    /// The value, or nothing where the key or the value is not there, cannot be read or is of another type.
    virtual ProfileValue Read(ProfileScope scope, std::string_view key, std::string_view name) const = 0;

    /// Stores a string or a number in the user's scope, making the key if need be. Returns whether it is
    /// stored; nothing to store (an empty variant) is not.
    virtual bool Write(std::string_view key, std::string_view name, const ProfileValue& value) = 0;

    /// Takes a value out of the user's scope. Returns whether it is gone, also when it never was there.
    virtual bool Remove(std::string_view key, std::string_view name) = 0;

    /// Why stored values cannot be read, a text for each place; none where all can be.
    virtual std::vector<std::string> ReadProblems() const { return {}; }

    /// Why the first `Write` or `Remove` since the last call failed; empty where none did, and where the
    /// store knows no reason.
    virtual std::string TakeWriteProblem() { return {}; }
};

/// A key without backslashes at its end.
inline std::string_view PlainProfileKey(std::string_view key) {
    return key.substr(0, key.find_last_not_of('\\') + 1);
}

}  // namespace wxbrg
