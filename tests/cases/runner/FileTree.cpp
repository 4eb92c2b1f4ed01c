#include "tests/cases/runner/FileTree.h"

#include <fstream>
#include <iterator>

namespace wxbrg::cases {

namespace fs = std::filesystem;

Files ReadFiles(const fs::path& folder) {
    Files files;
    if (!fs::exists(folder)) return files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            files[entry.path().lexically_relative(folder).generic_string()] = ReadFile(entry.path());
    return files;
}

std::string ReadFile(const fs::path& file) {
    std::ifstream stream;
    stream.exceptions(std::ios::failbit | std::ios::badbit);
    stream.open(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void WriteFile(const fs::path& file, const std::string& bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream stream;
    stream.exceptions(std::ios::failbit | std::ios::badbit);
    stream.open(file, std::ios::binary);
    stream << bytes << std::flush;
}

}  // namespace wxbrg::cases
