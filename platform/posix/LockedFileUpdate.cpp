#include "platform/posix/LockedFileUpdate.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

namespace wxbrg {

namespace {

/// An open file descriptor, or none.
class Descriptor {
  public:
    Descriptor(const std::filesystem::path& file, int flags, mode_t mode = 0)
        : number_(open(file.c_str(), flags | O_CLOEXEC, mode)) {}
    ~Descriptor() {
        if (number_ >= 0) close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    /// Returns whether closing went well.
    bool Close() { return close(std::exchange(number_, -1)) == 0; }

  private:
    int number_;
};

/// Makes a folder for the user's settings and those above it, readable for the user alone.
bool MakeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    if (folder.empty() || std::filesystem::is_directory(folder, error)) return true;
    if (!MakeFolder(folder.parent_path())) return false;
    return mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST;
}

/// The file that a name stands for in the end, with symbolic links resolved.
std::filesystem::path ResolvedFile(const std::filesystem::path& file) {
    std::error_code error;
    std::filesystem::path resolved = std::filesystem::canonical(file, error);
    return error ? file : resolved;
}

std::filesystem::path Beside(const std::filesystem::path& file, std::string_view ending) {
    std::filesystem::path other = file;
    other += ending;
    return other;
}

bool Lock(const Descriptor& file) {
    while (flock(file.Number(), LOCK_EX) != 0)
        if (errno != EINTR) return false;
    return true;
}

bool WriteAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(file.Number(), bytes.data(), bytes.size());
        if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
        if (count < 0 && errno != EINTR) return false;
    }
    return true;
}

/// Gives a new file the permissions of the one that it replaces, if there is one. Only the superuser can hand
/// over the owner as well; where that fails the writer owns the file, as with every other file it makes.
bool CopyPermissions(const std::filesystem::path& from, const Descriptor& to) {
    struct stat status {};
    if (stat(from.c_str(), &status) != 0) return errno == ENOENT;
    const bool owned = fchown(to.Number(), status.st_uid, status.st_gid) == 0;
    constexpr mode_t permissions = S_IRWXU | S_IRWXG | S_IRWXO;
    constexpr mode_t own = S_IRWXU | S_IRGRP | S_IROTH;
    return fchmod(to.Number(), status.st_mode & (owned ? permissions : own)) == 0;
}

/// Puts a new file in the place of another in one step. The caller holds the lock, so that nobody else uses
/// the new file's name.
bool PutInPlace(const std::filesystem::path& file, std::string_view bytes) {
    const std::filesystem::path fresh = Beside(file, ".new");
    if (unlink(fresh.c_str()) != 0 && errno != ENOENT) return false;
    Descriptor written(fresh, O_WRONLY | O_CREAT | O_EXCL, 0666);
    if (!written.IsOpen()) return false;
    const bool complete = CopyPermissions(file, written) && WriteAll(written, bytes) &&
                          fsync(written.Number()) == 0 && written.Close();
    if (complete && rename(fresh.c_str(), file.c_str()) == 0) return true;
    unlink(fresh.c_str());
    return false;
}

}  // namespace

std::optional<std::string> ReadRegularFile(const std::filesystem::path& file) {
    const Descriptor opened(file, O_RDONLY | O_NONBLOCK);
    if (!opened.IsOpen()) {
        const bool missing = errno == ENOENT;
        return missing ? std::optional<std::string>("") : std::nullopt;
    }
    struct stat status {};
    if (fstat(opened.Number(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    std::string bytes;
    std::array<char, 65536> block;
    for (;;) {
        const ssize_t count = read(opened.Number(), block.data(), block.size());
        if (count > 0) bytes.append(block.data(), static_cast<std::size_t>(count));
        if (count == 0) return bytes;
        if (count < 0 && errno != EINTR) return std::nullopt;
    }
}

bool ReplaceFile(const std::filesystem::path& name,
                 const std::function<std::optional<std::string>(const std::string& bytes)>& change) {
    const std::filesystem::path file = ResolvedFile(name);
    if (!MakeFolder(file.parent_path())) return false;
    const Descriptor lock(Beside(file, ".lock"), O_RDONLY | O_CREAT, 0666);
    if (!lock.IsOpen() || !Lock(lock)) return false;
    const std::optional<std::string> before = ReadRegularFile(file);
    if (!before) return false;
    const std::optional<std::string> after = change(*before);
    if (!after) return false;
    return *after == *before || PutInPlace(file, *after);
}

}  // namespace wxbrg
