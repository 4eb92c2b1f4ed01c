#include "platform/scripted/MemoryFileSystem.h"

#include "support/Failure.h"

namespace wxbrg {

namespace {

/// The folder that a name lies in; empty for the root and the working folder.
std::string FolderOf(const std::string& name) {
    const std::size_t separator = name.rfind('/');
    return separator == std::string::npos ? std::string() : name.substr(0, separator);
}

}  // namespace

class MemoryFileSystem::OpenFile : public File {
  public:
    OpenFile(MemoryFileSystem& system, std::string name, FileAccess access)
        : system_(system), name_(std::move(name)), access_(access) {}

    std::string ReadAll() override {
        if (access_ != FileAccess::read) throw Failure(FailureKind::fileAccess, name_);
        system_.FailIfAsked(name_, Step::read);
        const std::string& bytes = system_.files_.at(name_);
        return bytes.substr(std::exchange(position_, bytes.size()));
    }

    void Write(std::string_view bytes) override {
        if (access_ == FileAccess::read) throw Failure(FailureKind::fileAccess, name_);
        system_.FailIfAsked(name_, Step::write);
        system_.files_.at(name_).append(bytes);
    }

    void Close() override { system_.FailIfAsked(name_, Step::close); }

  private:
    MemoryFileSystem& system_;
    std::string name_;
    FileAccess access_;
    std::size_t position_ = 0;
};

void MemoryFileSystem::MakeFolder(const std::string& name) {
    for (std::string folder = name; !folder.empty(); folder = FolderOf(folder)) folders_.insert(folder);
}

void MemoryFileSystem::Put(const std::string& name, std::string bytes) {
    MakeFolder(FolderOf(name));
    files_[name] = std::move(bytes);
}

std::optional<std::string> MemoryFileSystem::Bytes(const std::string& name) const {
    const auto found = files_.find(name);
    return found == files_.end() ? std::nullopt : std::optional(found->second);
}

void MemoryFileSystem::MakeFail(const std::string& name, Step step, std::int32_t number) {
    failures_[{name, step}] = number;
}

void MemoryFileSystem::FailIfAsked(const std::string& name, Step step) const {
    const auto found = failures_.find({name, step});
    if (found != failures_.end()) throw Failure(found->second, name);
}

bool MemoryFileSystem::HasFolder(const std::string& name) const {
    const std::string folder = FolderOf(name);
    return folder.empty() || folders_.contains(folder);
}

std::unique_ptr<File> MemoryFileSystem::Open(const std::string& name, FileAccess access) {
    FailIfAsked(name, Step::open);
    if (!HasFolder(name)) throw Failure(FailureKind::pathNotFound, name);
    if (folders_.contains(name)) throw Failure(FailureKind::fileAccess, name);
    const bool exists = files_.contains(name);
    if (access == FileAccess::read && !exists) throw Failure(FailureKind::fileNotFound, name);
    if (access == FileAccess::empty || !exists) files_[name].clear();
    return std::make_unique<OpenFile>(*this, name, access);
}

}  // namespace wxbrg
