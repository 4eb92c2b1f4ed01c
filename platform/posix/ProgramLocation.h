#pragma once

#include <string>

namespace wxbrg {

/// Where the running program lies.
struct ProgramLocation {
    std::string directory;  ///< its folder, without a separator at its end (but for the root)
    std::string name;       ///< its file name without extension
};

/// The location of the running program, with symbolic links on the way to it resolved: what belongs to the
/// program lies beside the program itself. Throws `std::filesystem::filesystem_error` where the system does
/// not say.
ProgramLocation RunningProgram();

}  // namespace wxbrg
