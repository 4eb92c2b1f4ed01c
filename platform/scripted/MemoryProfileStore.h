#pragma once

#include <map>

#include "platform/ProfileStore.h"
#include "platform/scripted/ProfilePlace.h"

namespace wxbrg {

/// A store that lives in memory and forgets all when it goes.
///
/// The values of a key can be read and written as lines "Name=number" and "Name=s:text", with the number in
/// decimal.
class MemoryProfileStore : public ProfileStore {
  public:
    ProfileValue Read(ProfileScope scope, std::string_view key, std::string_view name) const override;
    bool Write(std::string_view key, std::string_view name, const ProfileValue& value) override;
    bool Remove(std::string_view key, std::string_view name) override;

    /// Stores a value in either scope, as `Write` does in the user's.
    bool Put(ProfileScope scope, std::string_view key, std::string_view name, const ProfileValue& value);

    /// Stores the values of a text under a key. Lines end with LF or CR LF; empty ones count for nothing.
    /// Throws `ScriptError`, naming the line, for a line that is no value.
    void Load(ProfileScope scope, std::string_view key, std::string_view text);

    /// The lines of a key's values, sorted by name. Throws `ScriptError` for a text with a line break, which
    /// no line can hold.
    std::string Dump(ProfileScope scope, std::string_view key) const;

  private:
    struct Entry {
        std::string name;  ///< as it was first written
        ProfileValue value;
    };
    using Values = std::map<ProfilePlace, Entry>;

    Values& ValuesOf(ProfileScope scope) { return scope == ProfileScope::user ? user_ : machine_; }
    const Values& ValuesOf(ProfileScope scope) const {
        return scope == ProfileScope::user ? user_ : machine_;
    }

    Values user_;
    Values machine_;
};

}  // namespace wxbrg
