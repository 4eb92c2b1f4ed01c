#include "platform/posix/StagedFileSystem.h"

#include <string>
#include <utility>

#include "platform/posix/StagedTargets.h"

namespace wxbrg {

namespace {

/// A staged file as the run opens it: closing leaves it open for the next time.
class OpenedFile : public File {
  public:
    OpenedFile(StagedFile& file, const StopRequests& stop) : file_(file), stop_(stop) {}
    std::string ReadAll() override { return {}; }
    void Write(std::string_view bytes) override {
        stop_.Check();
        file_.Append(bytes);
    }
    void Close() override {}

  private:
    StagedFile& file_;
    const StopRequests& stop_;
};

class StagedFileSystem : public StagedFiles {
  public:
    StagedFileSystem(FileSystem& files, const StopRequests& stop) : files_(files), stop_(stop) {}

    void Add(const StagedTarget& target) { staged_.emplace_back(target.openedAs, Stage(target, stop_)); }

    std::unique_ptr<File> Open(const std::string& name, FileAccess access) override {
        if (access == FileAccess::read) return files_.Open(name, access);
        for (const auto& [openedAs, file] : staged_) {
            if (openedAs != name) continue;
            if (access == FileAccess::empty) file->Empty();
            return std::make_unique<OpenedFile>(*file, stop_);
        }
        return files_.Open(name, access);
    }

    std::vector<std::string> PutInPlace() override {
        for (const auto& [name, file] : staged_) file->MakeReady();
        stop_.Check();
        std::vector<std::string> remarks;
        for (const bool streams : {true, false})
            for (auto staged = staged_.rbegin(); staged != staged_.rend(); ++staged)
                if (staged->second->IsStream() == streams)
                    if (std::string remark = staged->second->PutInPlace(); !remark.empty())
                        remarks.push_back(std::move(remark));
        return remarks;
    }

    std::vector<std::string> Abandon() override {
        std::vector<std::string> names;
        for (const auto& [name, file] : staged_)
            if (std::optional<std::string> kept = file->Abandon()) names.push_back(*std::move(kept));
        return names;
    }

  private:
    FileSystem& files_;
    const StopRequests& stop_;
    std::vector<std::pair<std::string, std::unique_ptr<StagedFile>>> staged_;
};

}  // namespace

std::unique_ptr<StagedFiles> StageFiles(FileSystem& files, const std::vector<StagedTarget>& targets,
                                        const StopRequests& stop) {
    auto staged = std::make_unique<StagedFileSystem>(files, stop);
    for (const StagedTarget& target : targets) staged->Add(target);
    return staged;
}

}  // namespace wxbrg
