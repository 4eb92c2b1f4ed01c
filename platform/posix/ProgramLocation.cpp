#include "platform/posix/ProgramLocation.h"

#include <filesystem>

#include "platform/Path.h"

namespace wxbrg {

ProgramLocation RunningProgram() {
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
    return {TextOf(program.parent_path()), TextOf(program.stem())};
}

}  // namespace wxbrg
