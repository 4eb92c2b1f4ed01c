#pragma once

#include <filesystem>

#include "platform/posix/StagedTargets.h"

namespace wxbrg {

/// A staged file that lies beside the name it is to get, as `StageOf` has it, open and locked.
class FileBeside : public StagedFile {
  public:
    /// Throws as `Stage` does.
    explicit FileBeside(const StagedTarget& target);
    ~FileBeside() override;
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    void Empty() override;
    void Append(std::string_view bytes) override;
    void MakeReady() override;
    std::string PutInPlace() override;
    std::optional<std::string> Abandon() override;

  private:
    /// What a try to get hold of the staged file came to.
    enum class Attempt { mine, again };

    Attempt Make();
    Attempt RemoveLeaving();
    /// Whether the open file is still the one that bears the name.
    bool HasItsName() const;
    /// Locks the open file; throws `TargetBusy` where another process has it.
    void Lock() const;
    /// Gives the open file the rights of the earlier one, if there is one. Returns what could not be kept.
    std::string KeepEarlierRights() const;
    void RequireWritable() const;
    void MoveToItsName() const;
    [[noreturn]] void Refuse(int error) const;
    [[noreturn]] void Fail(int error) const;
    void Close();

    std::string name_;
    bool mayReplace_;
    std::filesystem::path file_;   ///< what the name stands for
    std::filesystem::path stage_;  ///< where the file lies until it is put in place
    int descriptor_ = -1;
    bool opened_ = false;  ///< by the run
};

}  // namespace wxbrg
