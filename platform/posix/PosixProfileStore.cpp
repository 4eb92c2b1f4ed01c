#include "platform/posix/PosixProfileStore.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>
#include <vector>

#include "platform/Path.h"
#include "platform/posix/LockedFileUpdate.h"
#include "platform/posix/RegistryText.h"

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

}  // namespace

ProfileStoreFiles DefaultProfileStoreFiles() {
    const std::filesystem::path folder = ConfigurationFolder();
    return {folder.empty() ? folder : folder / "wxbrg" / "registry.reg", "/etc/xdg/wxbrg/registry.reg"};
}

PosixProfileStore::PosixProfileStore(ProfileStoreFiles files) : files_(std::move(files)) {}

ProfileValue PosixProfileStore::Read(ProfileScope scope, std::string_view key, std::string_view name) const {
    const bool user = scope == ProfileScope::user;
    const std::optional<std::string> bytes = ReadRegularFile(user ? files_.user : files_.machine);
    const std::optional<RegistryText> registry = RegistryText::Parse(bytes.value_or(""));
    return registry ? registry->Get(FullKey(user ? userRoot : machineRoot, key), name) : ProfileValue();
}

bool PosixProfileStore::Write(std::string_view key, std::string_view name, const ProfileValue& value) {
    if (files_.user.empty()) return false;
    return ReplaceFile(files_.user, [&](const std::string& bytes) -> std::optional<std::string> {
        std::optional<RegistryText> registry = RegistryText::Parse(bytes);
        if (!registry || !registry->Set(FullKey(userRoot, key), name, value)) return std::nullopt;
        return registry->Bytes();
    });
}

bool PosixProfileStore::Remove(std::string_view key, std::string_view name) {
    const auto without = [&](const std::string& bytes) -> std::optional<std::string> {
        std::optional<RegistryText> registry = RegistryText::Parse(bytes);
        if (!registry) return std::nullopt;
        return registry->Remove(FullKey(userRoot, key), name) ? registry->Bytes() : bytes;
    };
    // Nothing is made or locked for a value that is not there.
    const std::optional<std::string> bytes = ReadRegularFile(files_.user);
    if (!bytes) return false;
    return without(*bytes) == bytes || ReplaceFile(files_.user, without);
}

}  // namespace wxbrg
