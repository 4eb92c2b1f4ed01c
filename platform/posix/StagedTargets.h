#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/StagedFiles.h"
#include "platform/StopRequests.h"

namespace wxbrg {

/// One staged file. Every operation throws `Failure`, which bears the target's name.
class StagedFile {
  public:
    virtual ~StagedFile() = default;
    virtual void Empty() = 0;
    virtual void Append(std::string_view bytes) = 0;
    /// Does all that can fail and that nobody sees yet.
    virtual void MakeReady() = 0;
    /// Whether the target gets bytes, which can fail half way, and not a file that is complete.
    virtual bool IsStream() const { return false; }
    /// Gives the file its name, or the target its bytes. Returns what could not be kept of an earlier file;
    /// empty where all was.
    virtual std::string PutInPlace() = 0;
    /// Keeps what was written, if the run has opened the file; returns its name. Nothing is kept of what has
    /// no name, or is in place.
    virtual std::optional<std::string> Abandon() = 0;
};

/// Makes the staged file of a target. Throws `TargetRefused`, `TargetBusy` or `Failure`.
std::unique_ptr<StagedFile> Stage(const StagedTarget& target, const StopRequests& stop);

}  // namespace wxbrg
