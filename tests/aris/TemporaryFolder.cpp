#include "tests/aris/TemporaryFolder.h"

#include <fstream>
#include <random>
#include <stdexcept>
#include <system_error>

namespace wxbrg::test {

TemporaryFolder::TemporaryFolder() {
    std::random_device chance;
    do path_ = std::filesystem::temp_directory_path() / ("wxbrg-test-" + std::to_string(chance()));
    while (!std::filesystem::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code left;
    std::filesystem::remove_all(path_, left);
}

std::string TemporaryFolder::Write(const std::string& file, std::string_view bytes) const {
    std::ofstream out(path_ / file, std::ios::binary);
    out << bytes;
    out.close();
    if (!out) throw std::runtime_error(file + " could not be written");
    return NameOf(file);
}

}  // namespace wxbrg::test
