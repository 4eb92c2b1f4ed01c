#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/ToolEnvironment.h"

namespace wxbrg::cli {

/// A file that a run reads.
struct InputFile {
    std::string what;  ///< such as "the repository"
    std::string name;
};

/// The files that every run reads, whatever it is given: stored options and the library of a language (its
/// tag). `profile` is the mapping profile: nothing for the one beside the program, empty for none.
std::vector<InputFile> CommonInputFiles(const ToolEnvironment& environment, const std::string& language,
                                        const std::optional<std::string>& profile);

/// The input that a run would lose by writing to `name`: the file itself, or one that lies where the file is
/// staged or kept incomplete. Null for none.
const InputFile* InputLostBy(const std::string& name, const std::vector<InputFile>& inputs);

/// Whether a file is a pipe.
bool IsPipe(const std::string& name);

/// Whether a file is a pipe with a name of its own (mkfifo): not what a shell makes of <(command), which has
/// its writer already.
bool IsNamedPipe(const std::string& name);

}  // namespace wxbrg::cli
