#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/FileSystem.h"

namespace wxbrg {

/// Where a staged file goes.
enum class StagedPlace {
    file,            ///< to its name
    standardOutput,  ///< to the standard output of the program
    nowhere,         ///< what is written to it is dropped
};

/// A file that a run writes.
struct StagedTarget {
    std::string openedAs;  ///< the name under which the run opens it
    std::string name;      ///< the name that it gets in the end, and that failures bear
    StagedPlace place = StagedPlace::file;
    bool mayReplace = true;  ///< whether a file of this name may be there
};

/// A file cannot get its name: the text says why, and begins with the name.
struct TargetRefused : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Another process is writing the file: the text names the file, and the process where the system knows it.
struct TargetBusy : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The files of a run, which are its own until it has ended well:
///
///     made -> opened, emptied, appended to by the run -> PutInPlace: complete, under their names
///                                                     -> Abandon: incomplete, as NAME.partial
///     made -> gone: no trace
///
/// Until then a file lies beside its name as `StageOf` has it, locked; such a file that a killed run has left
/// is removed. A link is followed to what it leads to. A name that is no regular file (a pipe, a device), and
/// the standard output, get the complete file at the good end, and nothing otherwise.
///
/// Files that the run opens under other names, and files to read, are those of the file system below.
/// Writing also fails with `StopRequested`.
class StagedFiles : public FileSystem {
  public:
    /// Makes the files durable and moves them to their names, the last target first and the first target
    /// last; a stream among the targets gets its bytes before any file is moved, for it can fail half way.
    /// Access rights of an earlier file are kept, and its owner where the system lets the user set it.
    /// Returns a text on each thing that could not be kept. Throws `Failure` where a file cannot be put in
    /// place; `Abandon` is to follow.
    virtual std::vector<std::string> PutInPlace() = 0;

    /// Keeps what the run has written, in the place of what an earlier run left so. Returns the names.
    virtual std::vector<std::string> Abandon() = 0;
};

/// Where a file lies until it gets its name.
std::filesystem::path StageOf(const std::filesystem::path& file);

/// Where a file lies that could not be completed.
std::filesystem::path PartialOf(const std::filesystem::path& file);

}  // namespace wxbrg
