#include "platform/posix/PosixProfileStore.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>
#include <vector>

#include "platform/Path.h"
#include "platform/posix/LockedFileUpdate.h"

namespace wxbrg {

namespace {

constexpr std::string_view userRoot = "HKEY_CURRENT_USER\\";
constexpr std::string_view machineRoot = "HKEY_LOCAL_MACHINE\\";

std::string FullKey(std::string_view root, std::string_view key) {
    return std::string(root).append(key);
}

std::filesystem::path EnvironmentPath(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::filesystem::path() : PathOf(value);
}

/// The user's home folder: what the environment says, else what the system knows; empty for none.
std::filesystem::path HomeFolder() {
    if (std::filesystem::path home = EnvironmentPath("HOME"); !home.empty()) return home;
    passwd entry{};
    passwd* found = nullptr;
    std::vector<char> room(16384);
    if (getpwuid_r(getuid(), &entry, room.data(), room.size(), &found) != 0 || found == nullptr) return {};
    return PathOf(found->pw_dir);
}

/// The folder of the user's settings; empty for none. A relative one is ignored, as the environment's
/// convention has it.
std::filesystem::path ConfigurationFolder() {
    if (std::filesystem::path folder = EnvironmentPath("XDG_CONFIG_HOME"); folder.is_absolute())
        return folder;
    const std::filesystem::path home = HomeFolder();
    return home.empty() ? home : home / ".config";
}

/// The values in the bytes of a file. Throws `FileUseError` for a file of another form.
RegistryText Parsed(const std::string& bytes, const std::filesystem::path& file) {
    if (std::optional<RegistryText> values = RegistryText::Parse(bytes)) return *std::move(values);
    throw FileUseError(
        TextOf(file) +
        " is no registry file: its first line is neither \"REGEDIT4\" nor \"Windows Registry "
        "Editor Version 5.00\", in UTF-8 or in UTF-16 with a byte order mark. Save it as such a "
        "file or move it away.");
}

}  // namespace

ProfileStoreFiles DefaultProfileStoreFiles() {
    const std::filesystem::path folder = ConfigurationFolder();
    return {folder.empty() ? folder : folder / "wxbrg" / "registry.reg", "/etc/xdg/wxbrg/registry.reg"};
}

PosixProfileStore::PosixProfileStore(ProfileStoreFiles files, std::chrono::milliseconds patience)
    : files_(std::move(files)), patience_(patience) {}

ProfileValue PosixProfileStore::Read(ProfileScope scope, std::string_view key, std::string_view name) const {
    const std::string_view root = scope == ProfileScope::user ? userRoot : machineRoot;
    return SnapshotOf(scope).values.Get(FullKey(root, key), name);
}

bool PosixProfileStore::Write(std::string_view key, std::string_view name, const ProfileValue& value) {
    return Change([&](RegistryText& values) {
        return values.Set(FullKey(userRoot, key), name, value);
    });
}

bool PosixProfileStore::Remove(std::string_view key, std::string_view name) {
    const auto removed = [&](RegistryText& values) {
        return values.Remove(FullKey(userRoot, key), name);
    };
    // Nothing is made or locked for a value that is not there.
    Snapshot now = ReadSnapshot(files_.user);
    if (now.problem.empty() && !removed(now.values)) {
        removed(SnapshotOf(ProfileScope::user).values);
        return true;
    }
    return Change([&](RegistryText& values) {
        removed(values);
        return true;
    });
}

std::vector<std::string> PosixProfileStore::ReadProblems() const {
    std::vector<std::string> problems;
    for (const ProfileScope scope : {ProfileScope::user, ProfileScope::machine})
        if (const Snapshot& read = SnapshotOf(scope); !read.problem.empty()) problems.push_back(read.problem);
    return problems;
}

std::string PosixProfileStore::TakeWriteProblem() {
    lockIsHeld_ = false;
    return std::exchange(writeProblem_, {});
}

PosixProfileStore::Snapshot PosixProfileStore::ReadSnapshot(const std::filesystem::path& file) {
    try {
        return {Parsed(ReadRegularFile(file), file), {}};
    } catch (const FileUseError& error) {
        return {RegistryText(), error.what()};
    }
}

PosixProfileStore::Snapshot& PosixProfileStore::SnapshotOf(ProfileScope scope) const {
    const bool user = scope == ProfileScope::user;
    std::optional<Snapshot>& read = user ? user_ : machine_;
    if (!read) read = ReadSnapshot(user ? files_.user : files_.machine);
    return *read;
}

bool PosixProfileStore::Change(const std::function<bool(RegistryText& values)>& change) {
    Snapshot& before = SnapshotOf(ProfileScope::user);
    try {
        ChangeFile(change);
    } catch (const FileUseError& error) {
        if (dynamic_cast<const FileLockedError*>(&error) != nullptr) lockIsHeld_ = true;
        if (writeProblem_.empty()) writeProblem_ = error.what();
        return false;
    }
    return change(before.values);
}

void PosixProfileStore::ChangeFile(const std::function<bool(RegistryText& values)>& change) {
    if (files_.user.empty())
        throw FileUseError("There is no folder for the user's settings. Set HOME or XDG_CONFIG_HOME.");
    const auto changed = [&](const std::string& bytes) {
        RegistryText values = Parsed(bytes, files_.user);
        if (!change(values)) throw FileUseError(TextOf(files_.user) + " cannot hold such a value.");
        return values.Bytes();
    };
    ReplaceFile(files_.user, changed, lockIsHeld_ ? std::chrono::milliseconds() : patience_);
}

}  // namespace wxbrg
