#include "platform/posix/LockedFileUpdate.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/FileIdentity.h"
#include "platform/Path.h"
#include "platform/posix/FileWriting.h"
#include "platform/posix/LockHolder.h"
#include "support/ErrorAdvice.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

namespace fs = std::filesystem;

/// Calls the system until no signal interrupts it.
template <class Call>
auto Retried(const Call& call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

/// An open file descriptor, or none.
class Descriptor {
  public:
    Descriptor(const fs::path& file, int flags, mode_t mode = 0)
        : number_(Retried([&] {
              return open(file.c_str(), flags | O_CLOEXEC, mode);
          })) {}
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

/// A file's name in a message: of one that is too long only the beginning.
std::string NameOf(const fs::path& file) {
    constexpr std::size_t longest = 300;
    const std::string name = TextOf(file);
    return name.size() <= longest ? name : std::string(WithinBytes(name, longest)) + "…";
}

[[noreturn]] void Fail(const fs::path& file, std::string_view what, int error) {
    const std::error_code cause(error, std::generic_category());
    throw FileUseError(NameOf(file) + ' ' + std::string(what) + ": " + cause.message() + ". " +
                       std::string(AdviceOn(cause)));
}

[[noreturn]] void FailAsUnfit(const fs::path& file, std::string_view cause) {
    throw FileUseError(NameOf(file).append(" ").append(cause).append(". Move it away."));
}

/// Makes a folder for the user's settings and those above it, readable for the user alone.
void MakeFolder(const fs::path& folder) {
    struct stat status {};
    const std::string& name = folder.native();
    if (name.empty() || stat(name.c_str(), &status) == 0) return;
    if (errno != ENOENT) Fail(folder, "cannot be used", errno);
    for (std::size_t end = name.find('/', 1);; end = name.find('/', end + 1)) {
        const std::string above = name.substr(0, end);
        if (mkdir(above.c_str(), S_IRWXU) != 0) {
            const int error = errno;
            if (stat(above.c_str(), &status) != 0) Fail(above, "cannot be made", error);
        }
        if (end == std::string::npos) return;
    }
}

fs::path Beside(const fs::path& file, std::string_view ending) {
    fs::path other = file;
    other += ending;
    return other;
}

/// Whether nothing is there under a name that could not be found: no link that leads nowhere stands on its
/// way or at its end.
bool IsAbsent(fs::path file) {
    for (struct stat status{}; lstat(file.c_str(), &status) != 0; file = file.parent_path()) {
        if (errno != ENOENT) return false;
        if (!file.has_relative_path() || !file.has_parent_path()) return true;
    }
    struct stat behind {};
    return stat(file.c_str(), &behind) == 0;
}

void RequireRegularFile(const Descriptor& opened, const fs::path& file) {
    struct stat status {};
    if (fstat(opened.Number(), &status) != 0) Fail(file, "cannot be read", errno);
    if (S_ISDIR(status.st_mode)) FailAsUnfit(file, "is a folder, not a file");
    if (!S_ISREG(status.st_mode)) FailAsUnfit(file, "is no regular file");
}

void RequireUsableSize(const fs::path& file, std::size_t size) {
    if (size > largestUsableFile) FailAsUnfit(file, "holds more than 16 MiB");
}

std::string HolderOf(const Descriptor& lock) {
    struct stat status {};
    return fstat(lock.Number(), &status) == 0 ? LockHolder(status) : "another process";
}

/// Takes the lock of a lock file that was just opened, and waits until others have released it. The system
/// has no call that waits for some time only.
void Lock(const Descriptor& lock, const fs::path& file, std::chrono::milliseconds patience) {
    if (!lock.IsOpen()) Fail(file, "cannot be opened as a lock file", errno);
    RequireRegularFile(lock, file);
    constexpr std::chrono::milliseconds pause(10);
    const auto end = std::chrono::steady_clock::now() + patience;
    while (Retried([&] {
               return flock(lock.Number(), LOCK_EX | LOCK_NB);
           }) != 0) {
        if (errno != EWOULDBLOCK) Fail(file, "cannot be locked", errno);
        if (std::chrono::steady_clock::now() >= end)
            throw FileLockedError("The lock file " + NameOf(file) + " is held by " + HolderOf(lock) +
                                  ", which has not released it in time. Wait for it or end it.");
        std::this_thread::sleep_for(pause);
    }
}

/// Gives a new file the rights of the one that it replaces, if there is one.
bool CopyRights(const fs::path& from, const Descriptor& to) {
    struct stat earlier {};
    if (stat(from.c_str(), &earlier) != 0) return errno == ENOENT;
    errno = KeepRights(to.Number(), from, earlier).error;
    return errno == 0;
}

bool WriteBytes(const Descriptor& file, std::string_view bytes) {
    errno = WriteAll(file.Number(), bytes);
    return errno == 0;
}

bool MakeDurable(const Descriptor& file) {
    return Retried([&] {
               return fsync(file.Number());
           }) == 0;
}

/// Puts a new file in the place of another in one step. The caller holds the lock, so that nobody else uses
/// the new file's name.
void PutInPlace(const fs::path& file, std::string_view bytes) {
    const fs::path fresh = Beside(file, ".new");
    if (unlink(fresh.c_str()) != 0 && errno != ENOENT) Fail(fresh, "cannot be taken away", errno);
    Descriptor written(fresh, O_WRONLY | O_CREAT | O_EXCL, 0666);
    if (!written.IsOpen()) Fail(fresh, "cannot be made", errno);
    const bool complete = CopyRights(file, written) && WriteBytes(written, bytes) && MakeDurable(written) &&
                          written.Close() && rename(fresh.c_str(), file.c_str()) == 0;
    if (complete) return;
    const int error = errno;
    unlink(fresh.c_str());
    Fail(file, "cannot be written", error);
}

}  // namespace

std::string ReadRegularFile(const fs::path& file) {
    const Descriptor opened(file, O_RDONLY | O_NONBLOCK);
    if (!opened.IsOpen()) {
        const int error = errno;
        if (error != ENOENT) Fail(file, "cannot be read", error);
        if (!IsAbsent(file)) Fail(file, "cannot be read, for a link on its way leads nowhere", error);
        return {};
    }
    RequireRegularFile(opened, file);
    std::string bytes;
    std::array<char, 65536> block;
    for (;;) {
        const ssize_t count = Retried([&] {
            return read(opened.Number(), block.data(), block.size());
        });
        if (count < 0) Fail(file, "cannot be read", errno);
        if (count == 0) return bytes;
        bytes.append(block.data(), static_cast<std::size_t>(count));
        RequireUsableSize(file, bytes.size());
    }
}

void ReplaceFile(const fs::path& name, const std::function<std::string(const std::string& bytes)>& change,
                 std::chrono::milliseconds patience) {
    const fs::path file = ResolvedFile(name);
    MakeFolder(file.parent_path());
    const fs::path lockFile = Beside(file, ".lock");
    const Descriptor lock(lockFile, O_RDONLY | O_CREAT | O_NONBLOCK, 0666);
    Lock(lock, lockFile, patience);
    const std::string before = ReadRegularFile(file);
    const std::string after = change(before);
    RequireUsableSize(file, after.size());
    if (after != before) PutInPlace(file, after);
}

}  // namespace wxbrg
