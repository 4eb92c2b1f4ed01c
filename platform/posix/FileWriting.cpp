#include "platform/posix/FileWriting.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <vector>

namespace wxbrg {

namespace {

/// Group rights are for the group of the earlier file alone; another group gets what everybody has.
mode_t WithoutForeignGroup(mode_t mode) {
    const mode_t everybody = (mode & S_IRWXO) << 3;
    return (mode & ~static_cast<mode_t>(S_IRWXG)) | (mode & everybody & S_IRWXG);
}

/// Gives an open file the access list of an earlier file, or none where that has none. Returns whether it has
/// it then; a file system without such lists has nothing to be kept.
bool KeepAccessList(int descriptor, const std::filesystem::path& earlier) {
    constexpr const char* name = "system.posix_acl_access";
    constexpr std::size_t largest = 65536;  // of any attribute
    std::vector<char> list(largest);
    const ssize_t size = getxattr(earlier.c_str(), name, list.data(), list.size());
    const int error = errno;
    if (size >= 0) return fsetxattr(descriptor, name, list.data(), static_cast<std::size_t>(size), 0) == 0;
    if (error == ENOTSUP) return true;
    // A list that the folder has given to the new file.
    return error == ENODATA && (fremovexattr(descriptor, name) == 0 || errno == ENODATA);
}

}  // namespace

int WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(descriptor, bytes.data(), bytes.size());
        const int error = errno;
        if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
        if (count < 0 && error != EINTR) return error;
    }
    return 0;
}

KeptRights KeepRights(int descriptor, const std::filesystem::path& file, const struct stat& earlier) {
    constexpr auto sameUser = static_cast<uid_t>(-1);
    constexpr auto sameGroup = static_cast<gid_t>(-1);
    struct stat own {};
    if (fstat(descriptor, &own) != 0) return {.error = errno};
    KeptRights kept;
    kept.group = own.st_gid == earlier.st_gid || fchown(descriptor, sameUser, earlier.st_gid) == 0;
    kept.owner = own.st_uid == earlier.st_uid || fchown(descriptor, earlier.st_uid, sameGroup) == 0;
    kept.accessList = KeepAccessList(descriptor, file);
    const mode_t mode = earlier.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    if (fchmod(descriptor, kept.group ? mode : WithoutForeignGroup(mode)) != 0) kept.error = errno;
    return kept;
}

}  // namespace wxbrg
