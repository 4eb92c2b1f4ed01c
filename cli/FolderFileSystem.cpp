#include "cli/FolderFileSystem.h"

#include <utility>

#include "platform/Path.h"
#include "support/Failure.h"

namespace wxbrg::cli {

namespace {

/// Runs an operation on a file whose failures are to bear `name`.
template <class Operation>
auto Naming(const std::string& name, const Operation& operation) {
    try {
        return operation();
    } catch (const Failure& failure) {
        throw Failure(failure.Number, name).Because(failure.Cause);
    }
}

class NamedFile : public File {
  public:
    NamedFile(std::unique_ptr<File> file, std::string name)
        : file_(std::move(file)), name_(std::move(name)) {}
    std::string ReadAll() override {
        return Naming(name_, [&] {
            return file_->ReadAll();
        });
    }
    void Write(std::string_view bytes) override {
        Naming(name_, [&] {
            file_->Write(bytes);
        });
    }
    void Close() override {
        Naming(name_, [&] {
            file_->Close();
        });
    }

  private:
    std::unique_ptr<File> file_;
    std::string name_;
};

}  // namespace

FolderFileSystem::FolderFileSystem(FileSystem& files, std::filesystem::path folder)
    : files_(files), folder_(std::move(folder)) {}

std::unique_ptr<File> FolderFileSystem::Open(const std::string& name, FileAccess access) {
    return Naming(name, [&] {
        return std::make_unique<NamedFile>(files_.Open(TextOf(folder_ / PathOf(name)), access), name);
    });
}

}  // namespace wxbrg::cli
