#include "platform/StagedFiles.h"

namespace wxbrg {

std::filesystem::path StageOf(const std::filesystem::path& file) {
    std::filesystem::path name = ".";
    name += file.filename();
    name += ".wxbrg-new";
    return file.parent_path() / name;
}

std::filesystem::path PartialOf(const std::filesystem::path& file) {
    std::filesystem::path name = file;
    name += ".partial";
    return name;
}

}  // namespace wxbrg
