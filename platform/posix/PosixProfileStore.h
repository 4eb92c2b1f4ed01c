#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ProfileStore.h"
#include "platform/posix/RegistryText.h"

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
/// Each file is read once, when it is first asked for: a change by others in the meantime does not show, what
/// is written through this store does. Only a file that is not there counts as empty. Of one that cannot be
/// read no value is found, and `ReadProblems` says why.
///
/// Writing replaces the user's file as a whole, so that a reader sees the old or the new one. Writers wait
/// for each other at a lock file beside it, for some time only; the values of all of them are kept. What a
/// file holds besides stays as it is. Nothing is ever written over a file that is not in this form, or cannot
/// be read: `Write` and `Remove` return false then.
class PosixProfileStore : public ProfileStore {
  public:
    /// `patience`: how long a lock that others hold is waited for. Once it was not released, it is tried
    /// without waiting until `TakeWriteProblem` is asked for: a form stores many values at once.
    explicit PosixProfileStore(ProfileStoreFiles files,
                               std::chrono::milliseconds patience = std::chrono::seconds(10));

    ProfileValue Read(ProfileScope scope, std::string_view key, std::string_view name) const override;
    bool Write(std::string_view key, std::string_view name, const ProfileValue& value) override;
    bool Remove(std::string_view key, std::string_view name) override;
    std::vector<std::string> ReadProblems() const override;
    std::string TakeWriteProblem() override;

  private:
    /// What a file held when it was first asked for.
    struct Snapshot {
        RegistryText values;
        std::string problem;  ///< why it could not be read; empty where it could
    };

    static Snapshot ReadSnapshot(const std::filesystem::path& file);
    Snapshot& SnapshotOf(ProfileScope scope) const;
    /// Makes a change in the user's file, then in what was read of it. `change` returns false, and changes
    /// nothing, for what has no place in the file.
    bool Change(const std::function<bool(RegistryText& values)>& change);
    void ChangeFile(const std::function<bool(RegistryText& values)>& change);

    ProfileStoreFiles files_;
    std::chrono::milliseconds patience_;
    mutable std::optional<Snapshot> user_;
    mutable std::optional<Snapshot> machine_;
    bool lockIsHeld_ = false;
    std::string writeProblem_;
};

}  // namespace wxbrg
