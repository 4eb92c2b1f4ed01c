#include "platform/posix/FileBeside.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

#include "platform/FileIdentity.h"
#include "platform/Path.h"
#include "platform/posix/FileErrors.h"
#include "platform/posix/FileWriting.h"
#include "platform/posix/LockHolder.h"
#include "support/Failure.h"

namespace wxbrg {

namespace {

/// A folder keeps its entries for good only once it is written out itself. Not every system can do that; the
/// files are in place all the same.
void MakeFolderDurable(const std::filesystem::path& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    fsync(descriptor);
    close(descriptor);
}

/// Errors of `fsync` that say that this kind of file has nothing to be written out.
bool CannotBeDurable(int error) {
    return error == EINVAL || error == ENOSYS || error == ENOTSUP || error == EROFS;
}

std::string Words(int error) {
    return std::generic_category().message(error);
}

/// What a system call on a file that was not opened came to.
bool IsRefusal(int error) {
    switch (error) {
        case EACCES:
        case EPERM:
        case EROFS:
        case ENOENT:
        case ENOTDIR:
        case EISDIR:
        case ELOOP:
        case ENAMETOOLONG:
            return true;
        default:
            return false;
    }
}

}  // namespace

FileBeside::FileBeside(const StagedTarget& target)
    : name_(target.name),
      mayReplace_(target.mayReplace),
      file_(ResolvedFile(PathOf(target.name))),
      stage_(StageOf(file_)) {
    std::error_code error;
    if (file_.filename().empty() || std::filesystem::is_directory(file_, error))
        throw TargetRefused(name_ + " is the name of a folder");
    RequireWritable();
    while (Make() == Attempt::again) {
    }
    KeepEarlierRights();
}

FileBeside::~FileBeside() {
    if (descriptor_ < 0) return;
    if (HasItsName()) unlink(stage_.c_str());
    Close();
}

void FileBeside::Close() {
    close(std::exchange(descriptor_, -1));
}

void FileBeside::Fail(int error) const {
    throw FileFailure(error, name_);
}

void FileBeside::Refuse(int error) const {
    const std::string folder = TextOf(file_.parent_path());
    if (error == ENOENT || error == ENOTDIR)
        throw TargetRefused(name_ + " cannot be written: there is no folder " + folder);
    if (error == ENAMETOOLONG || error == ELOOP)
        throw TargetRefused(name_ + " cannot be written: " + Words(error));
    throw TargetRefused(name_ + " cannot be written: no file can be made in the folder " + folder + " (" +
                        Words(error) + ')');
}

void FileBeside::RequireWritable() const {
    if (access(file_.c_str(), W_OK) == 0) return;
    const int error = errno;
    if (error != ENOENT && IsRefusal(error))
        throw TargetRefused(name_ + " cannot be written: " + Words(error));
}

FileBeside::Attempt FileBeside::Make() {
    descriptor_ = open(stage_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    const int error = errno;
    if (descriptor_ < 0) {
        if (error == EEXIST) return RemoveLeaving();
        if (error == EINTR) return Attempt::again;
        if (IsRefusal(error)) Refuse(error);
        Fail(error);
    }
    Lock();
    // Between making and locking it, another process can have taken it for a leaving.
    if (HasItsName()) return Attempt::mine;
    Close();
    return Attempt::again;
}

FileBeside::Attempt FileBeside::RemoveLeaving() {
    descriptor_ = open(stage_.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    const int error = errno;
    if (descriptor_ < 0) {
        if (error == ENOENT || error == EINTR) return Attempt::again;
        if (IsRefusal(error)) throw TargetRefused(TextOf(stage_) + " is in the way: " + Words(error));
        Fail(error);
    }
    struct stat status {};
    const bool isFile = fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode);
    if (!isFile) {
        Close();
        throw TargetRefused(TextOf(stage_) + " is in the way: it is no regular file");
    }
    Lock();
    const bool gone = !HasItsName() || unlink(stage_.c_str()) == 0;
    const int removal = errno;
    Close();
    if (!gone) throw TargetRefused(TextOf(stage_) + " cannot be removed: " + Words(removal));
    return Attempt::again;
}

void FileBeside::Lock() const {
    while (flock(descriptor_, LOCK_EX | LOCK_NB) != 0) {
        const int error = errno;
        if (error == EINTR) continue;
        struct stat status {};
        const bool known = error == EWOULDBLOCK && fstat(descriptor_, &status) == 0;
        close(descriptor_);
        if (!known) Fail(error);
        throw TargetBusy(name_ + " is being written by " + LockHolder(status) +
                         "; wait for its end, or give another name.");
    }
}

bool FileBeside::HasItsName() const {
    struct stat open {};
    struct stat named {};
    return fstat(descriptor_, &open) == 0 && lstat(stage_.c_str(), &named) == 0 &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

std::string FileBeside::KeepEarlierRights() const {
    struct stat earlier {};
    if (stat(file_.c_str(), &earlier) != 0) return {};
    const KeptRights kept = KeepRights(descriptor_, file_, earlier);
    if (kept.error != 0) return Words(kept.error);
    if (!kept.owner) return "its owner is now another one";
    if (!kept.group) return "its group is now another one";
    return kept.accessList ? "" : "its access list could not be kept";
}

void FileBeside::Empty() {
    opened_ = true;
    if (ftruncate(descriptor_, 0) != 0 || lseek(descriptor_, 0, SEEK_SET) != 0) Fail(errno);
}

void FileBeside::Append(std::string_view bytes) {
    opened_ = true;
    if (const int error = WriteAll(descriptor_, bytes); error != 0) Fail(error);
}

void FileBeside::MakeReady() {
    if (fsync(descriptor_) != 0) {
        const int error = errno;
        if (!CannotBeDurable(error)) Fail(error);
    }
    if (!HasItsName())
        throw Failure::WithDescription(FailureKind::fileNotFound,
                                       TextOf(stage_) + " was moved or removed during the run");
}

void FileBeside::MoveToItsName() const {
    int result = -1;
    if (!mayReplace_) {
        result = renameat2(AT_FDCWD, stage_.c_str(), AT_FDCWD, file_.c_str(), RENAME_NOREPLACE);
        if (result == 0) return;
        const int error = errno;
        // Not every file system can rename so; that there was no such file was seen before the run.
        if (error != EINVAL && error != ENOSYS) Fail(error);
    }
    result = rename(stage_.c_str(), file_.c_str());
    if (result != 0) Fail(errno);
}

std::string FileBeside::PutInPlace() {
    const std::string lost = KeepEarlierRights();
    // While the lock is held: behind the move, another run can keep a file of its own under this name.
    unlink(PartialOf(file_).c_str());
    MoveToItsName();
    MakeFolderDurable(file_.parent_path());
    Close();
    return lost.empty() ? lost : name_ + ": " + lost + '.';
}

std::optional<std::string> FileBeside::Abandon() {
    if (descriptor_ < 0 || !opened_ || !HasItsName()) return std::nullopt;
    const std::filesystem::path partial = PartialOf(file_);
    if (rename(stage_.c_str(), partial.c_str()) != 0) return std::nullopt;
    Close();
    return TextOf(PartialOf(PathOf(name_)));
}

}  // namespace wxbrg
