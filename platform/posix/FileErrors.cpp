#include "platform/posix/FileErrors.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstddef>

namespace wxbrg {

namespace {

bool IsFolder(const std::string& name) {
    struct stat status {};
    return stat(name.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// The folder that a file lies in.
std::string FolderOf(const std::string& name) {
    const std::size_t separator = name.rfind('/');
    if (separator == std::string::npos) return ".";
    return name.substr(0, separator + 1);
}

}  // namespace

std::int32_t FailureNumberOf(int error, const std::string& name) {
    switch (error) {
        case ENOENT:
            return IsFolder(FolderOf(name)) ? FailureKind::fileNotFound : FailureKind::pathNotFound;
        case ENOTDIR:
            return FailureKind::pathNotFound;
        case ENOSPC:
        case EDQUOT:
            return FailureKind::diskFull;
        default:
            return FailureKind::fileAccess;
    }
}

Failure FileFailure(int error, const std::string& name) {
    return Failure(FailureNumberOf(error, name), name).Because(FailureCause::OfSystem(error, name));
}

}  // namespace wxbrg
