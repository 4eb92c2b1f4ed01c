#include "platform/FileIdentity.h"

#include <system_error>

namespace wxbrg {

namespace {

namespace fs = std::filesystem;

/// As many links as a system follows.
constexpr int mostLinks = 40;

fs::path FolderOf(const fs::path& name) {
    const fs::path folder = name.has_parent_path() ? name.parent_path() : fs::path(".");
    std::error_code error;
    const fs::path resolved = fs::canonical(folder, error);
    return error ? folder : resolved;
}

}  // namespace

fs::path ResolvedFile(const fs::path& name) {
    fs::path file = name;
    for (int links = 0; links < mostLinks; ++links) {
        file = FolderOf(file) / file.filename();
        std::error_code error;
        const fs::path target = fs::read_symlink(file, error);
        if (error) return file;
        file = file.parent_path() / target;
    }
    return name;
}

bool IsSameFile(const fs::path& one, const fs::path& other) {
    std::error_code error;
    const fs::file_status first = fs::status(one, error);
    const fs::file_status second = fs::status(other, error);
    if (fs::is_other(first) || fs::is_other(second)) return false;
    if (fs::exists(first) && fs::exists(second)) return fs::equivalent(one, other, error);
    return ResolvedFile(one) == ResolvedFile(other);
}

}  // namespace wxbrg
