#include "platform/posix/FileWriting.h"

#include <unistd.h>

#include <cerrno>
#include <cstddef>

namespace wxbrg {

namespace {

/// Group rights are for the group of the earlier file alone; another group gets what everybody has.
mode_t WithoutForeignGroup(mode_t mode) {
    const mode_t everybody = (mode & S_IRWXO) << 3;
    return (mode & ~static_cast<mode_t>(S_IRWXG)) | (mode & everybody & S_IRWXG);
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

KeptRights KeepRights(int descriptor, const struct stat& earlier) {
    constexpr auto sameUser = static_cast<uid_t>(-1);
    constexpr auto sameGroup = static_cast<gid_t>(-1);
    struct stat own {};
    if (fstat(descriptor, &own) != 0) return {false, false, errno};
    KeptRights kept;
    kept.group = own.st_gid == earlier.st_gid || fchown(descriptor, sameUser, earlier.st_gid) == 0;
    kept.owner = own.st_uid == earlier.st_uid || fchown(descriptor, earlier.st_uid, sameGroup) == 0;
    const mode_t mode = earlier.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    if (fchmod(descriptor, kept.group ? mode : WithoutForeignGroup(mode)) != 0) kept.error = errno;
    return kept;
}

}  // namespace wxbrg
