#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "aris/Repository.h"
#include "run/RunExport.h"
#include "tests/fixture/MemoryPlatform.h"

namespace wxbrg::bench {

/// Runs of the export without a user: the options and rules are the default ones, files lie in memory unless
/// set otherwise, and the text of each message is "%1$s|%2$s|%3$s|%4$s".
class SilentRun {
  public:
    SilentRun();
    /// Writes the definition file `output`, and the log beside it, into a file system that outlives this.
    SilentRun(FileSystem& files, std::string output);
    ~SilentRun();
    SilentRun(const SilentRun&) = delete;
    SilentRun& operator=(const SilentRun&) = delete;

    /// One whole run on the models, in English.
    RunReport Export(aris::Automation& automation, std::vector<ARISModel> models,
                     std::size_t stackSize = runStackSize);

    /// Makes the global block anew, as a run has it when it begins to look for objects. Lasts until the next
    /// call or run.
    void Begin();

    /// The lines of the log, where it lies in memory.
    std::vector<std::string> LogLines() const;
    const std::vector<ShownBox>& Boxes() const { return memory_.messageBox.Boxes(); }

  private:
    /// Writes into `files`, or into memory where there are none.
    SilentRun(FileSystem* files, std::string output);

    MemoryPlatform memory_{65001, LocalTime{}, ""};
    std::string output_;
    Platform platform_;
};

}  // namespace wxbrg::bench
