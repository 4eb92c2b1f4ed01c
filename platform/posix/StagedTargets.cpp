#include "platform/posix/StagedTargets.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include "platform/Path.h"
#include "platform/posix/FileBeside.h"
#include "platform/posix/FileErrors.h"
#include "platform/posix/FileWriting.h"
#include "support/Failure.h"

namespace wxbrg {

namespace {

/// Drops what is written.
class Dropped : public StagedFile {
  public:
    void Empty() override {}
    void Append(std::string_view) override {}
    void MakeReady() override {}
    std::string PutInPlace() override { return {}; }
    std::optional<std::string> Abandon() override { return std::nullopt; }
};

/// Keeps the bytes in a file without a name until a stream gets them.
class FileForStream : public StagedFile {
  public:
    /// `stream` is an open descriptor, -1 for the one that opens by the name.
    FileForStream(std::string name, int stream, const StopRequests& stop);
    ~FileForStream() override { close(descriptor_); }
    FileForStream(const FileForStream&) = delete;
    FileForStream& operator=(const FileForStream&) = delete;

    void Empty() override {
        if (ftruncate(descriptor_, 0) != 0 || lseek(descriptor_, 0, SEEK_SET) != 0) Fail(errno);
    }
    void Append(std::string_view bytes) override { Write(descriptor_, bytes); }
    void MakeReady() override {}
    bool IsStream() const override { return true; }
    std::string PutInPlace() override;
    std::optional<std::string> Abandon() override { return std::nullopt; }

  private:
    [[noreturn]] void Fail(int error) const { throw FileFailure(error, name_); }
    void Write(int descriptor, std::string_view bytes) const {
        if (const int error = WriteAll(descriptor, bytes); error != 0) Fail(error);
    }
    int OpenStream() const;
    void CopyTo(int stream) const;

    std::string name_;
    int stream_;
    const StopRequests& stop_;
    int descriptor_ = -1;
};

FileForStream::FileForStream(std::string name, int stream, const StopRequests& stop)
    : name_(std::move(name)), stream_(stream), stop_(stop) {
    std::string file = TextOf(std::filesystem::temp_directory_path() / "wxbrg-XXXXXX");
    descriptor_ = mkostemp(file.data(), O_CLOEXEC);
    if (descriptor_ < 0) Fail(errno);
    unlink(file.c_str());
}

/// A pipe can be opened once it has a reader. A call that waits for one would miss a request to stop that
/// comes just before it.
int FileForStream::OpenStream() const {
    constexpr int milliseconds = 20;
    for (;;) {
        const int stream = open(name_.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
        const int error = errno;
        if (stream >= 0) {
            fcntl(stream, F_SETFL, O_WRONLY);
            return stream;
        }
        const bool lacksReader = error == ENXIO && std::filesystem::is_fifo(PathOf(name_));
        if (!lacksReader && error != EINTR) Fail(error);
        stop_.Check();
        poll(nullptr, 0, milliseconds);
    }
}

void FileForStream::CopyTo(int stream) const {
    if (lseek(descriptor_, 0, SEEK_SET) != 0) Fail(errno);
    std::array<char, 65536> block;
    for (;;) {
        const ssize_t count = read(descriptor_, block.data(), block.size());
        const int error = errno;
        if (count == 0) return;
        if (count < 0 && error != EINTR) Fail(error);
        if (count > 0) Write(stream, {block.data(), static_cast<std::size_t>(count)});
        stop_.Check();
    }
}

std::string FileForStream::PutInPlace() {
    if (stream_ >= 0) {
        CopyTo(stream_);
        return {};
    }
    const int stream = OpenStream();
    try {
        CopyTo(stream);
    } catch (...) {
        close(stream);
        throw;
    }
    if (close(stream) != 0) Fail(errno);
    return {};
}

/// The standard stream that a file is, such as /dev/stdout; -1 for none.
int StandardStream(const struct stat& file) {
    for (const int number : {STDOUT_FILENO, STDERR_FILENO}) {
        struct stat stream {};
        if (fstat(number, &stream) == 0 && stream.st_dev == file.st_dev && stream.st_ino == file.st_ino)
            return number;
    }
    return -1;
}

}  // namespace

std::unique_ptr<StagedFile> Stage(const StagedTarget& target, const StopRequests& stop) {
    if (target.place == StagedPlace::nowhere) return std::make_unique<Dropped>();
    if (target.place == StagedPlace::standardOutput)
        return std::make_unique<FileForStream>(target.name, STDOUT_FILENO, stop);
    struct stat status {};
    if (stat(target.name.c_str(), &status) == 0 && !S_ISDIR(status.st_mode)) {
        const int stream = StandardStream(status);
        if (stream >= 0 || !S_ISREG(status.st_mode))
            return std::make_unique<FileForStream>(target.name, stream, stop);
    }
    return std::make_unique<FileBeside>(target);
}

}  // namespace wxbrg
