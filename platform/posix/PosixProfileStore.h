#pragma once

#include <filesystem>

#include "platform/ProfileStore.h"

namespace wxbrg {

/// The files of a profile store.
struct ProfileStoreFiles {
    std::filesystem::path user;     ///< empty: the user has no store
    std::filesystem::path machine;  ///< only ever read
};

/// The usual files: the machine's is /etc/xdg/wxbrg/registry.reg, the user's wxbrg/registry.reg in
/// $XDG_CONFIG_HOME, else in ~/.config.
ProfileStoreFiles DefaultProfileStoreFiles();

/// A store in two files in the text form of registry files (`RegistryText`): the user's values stand under
/// HKEY_CURRENT_USER, the machine's under HKEY_LOCAL_MACHINE.
///
/// Writing replaces the user's file as a whole, so that a reader sees the old or the new one. Writers wait
/// for each other at a lock file beside it; the values of all of them are kept. What a file holds besides
/// stays as it is. Nothing is ever written over a file that is not in this form, or cannot be read: `Write`
/// and `Remove` return false then, and reading finds nothing.
class PosixProfileStore : public ProfileStore {
  public:
    explicit PosixProfileStore(ProfileStoreFiles files);

    ProfileValue Read(ProfileScope scope, std::string_view key, std::string_view name) const override;
    bool Write(std::string_view key, std::string_view name, const ProfileValue& value) override;
    bool Remove(std::string_view key, std::string_view name) override;

  private:
    ProfileStoreFiles files_;
};

}  // namespace wxbrg
