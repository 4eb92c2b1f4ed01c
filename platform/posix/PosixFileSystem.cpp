#include "platform/posix/PosixFileSystem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

#include "platform/posix/FileErrors.h"
#include "platform/posix/FileWriting.h"
#include "support/Failure.h"

namespace wxbrg {

namespace {

class PosixFile : public File {
  public:
    PosixFile(std::string name, int descriptor) : name_(std::move(name)), descriptor_(descriptor) {}
    ~PosixFile() override {
        if (descriptor_ >= 0) close(descriptor_);
    }
    PosixFile(const PosixFile&) = delete;
    PosixFile& operator=(const PosixFile&) = delete;

    std::string ReadAll() override;
    void Write(std::string_view bytes) override;
    void Close() override;

    bool IsFolder() const {
        struct stat status {};
        return fstat(descriptor_, &status) == 0 && S_ISDIR(status.st_mode);
    }

  private:
    /// Throws the failure that an `errno` value stands for. Making an exception allocates, and that sets
    /// `errno` where memory is tight: its value is taken by the caller.
    [[noreturn]] void Fail(int error) const { throw FileFailure(error, name_); }

    std::string name_;
    int descriptor_;
};

std::string PosixFile::ReadAll() {
    std::string bytes;
    std::array<char, 65536> block;
    for (;;) {
        const ssize_t count = read(descriptor_, block.data(), block.size());
        if (count > 0) bytes.append(block.data(), static_cast<std::size_t>(count));
        if (count == 0) return bytes;
        if (count < 0 && errno != EINTR) Fail(errno);
    }
}

void PosixFile::Write(std::string_view bytes) {
    if (const int error = WriteAll(descriptor_, bytes); error != 0) Fail(error);
}

void PosixFile::Close() {
    if (descriptor_ < 0) return;
    // The descriptor is gone in any case, also when a signal came in between.
    if (close(std::exchange(descriptor_, -1)) != 0 && errno != EINTR) Fail(errno);
}

int OpenFlags(FileAccess access) {
    switch (access) {
        case FileAccess::empty:
            return O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC;
        case FileAccess::append:
            return O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC;
        case FileAccess::read:
            break;
    }
    return O_RDONLY | O_CLOEXEC;
}

}  // namespace

std::unique_ptr<File> PosixFileSystem::Open(const std::string& name, FileAccess access) {
    if (name.find('\0') != std::string::npos) throw Failure(FailureKind::fileAccess, name);
    int descriptor = -1;
    int error = 0;
    do {
        descriptor = open(name.c_str(), OpenFlags(access), 0666);
        error = errno;
    } while (descriptor < 0 && error == EINTR);
    if (descriptor < 0) throw FileFailure(error, name);
    auto file = std::make_unique<PosixFile>(name, descriptor);
    if (file->IsFolder()) throw FileFailure(EISDIR, name);
    return file;
}

}  // namespace wxbrg
