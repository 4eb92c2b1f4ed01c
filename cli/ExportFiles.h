#pragma once

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "cli/InputFiles.h"
#include "cli/ToolArguments.h"
#include "cli/ToolEnvironment.h"
#include "run/RunExport.h"

namespace wxbrg::cli {

/// The files that an export writes: the run's own until it has ended well.
class ExportFiles {
  public:
    /// Throws `UsageError` where a file that is to be written is one of the `inputs`, where it exists and
    /// must not be replaced, and where it cannot be made; `TargetBusy` where another process writes it; all
    /// before anything is emptied.
    ExportFiles(const ExportArguments& given, const std::vector<InputFile>& inputs,
                const ToolEnvironment& environment, const StopRequests& stop);

    /// The files as the run is to see them.
    FileSystem& Files() { return *staged_; }
    /// What the file dialog of the run is to give.
    static std::string NameForTheRun();

    /// Gives the files their names where the run ended well, keeps them as incomplete otherwise, and reports
    /// what is not as it should be. Returns whether the files are in place.
    bool Finish(const RunReport& report, std::ostream& err);

    /// The definition file.
    const StagedTarget& Definition() const { return definition_; }

  private:
    bool PutInPlace(std::ostream& err);
    void Abandon(std::ostream& err);

    StagedTarget definition_;
    std::unique_ptr<StagedFiles> staged_;
};

}  // namespace wxbrg::cli
