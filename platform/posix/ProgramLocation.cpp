#include "platform/posix/ProgramLocation.h"

#include <filesystem>

namespace wxbrg {

ProgramLocation RunningProgram() {
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
    return {program.parent_path().string(), program.stem().string()};
}

}  // namespace wxbrg
