#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>

namespace wxbrg::cli {

/// A folder of its own for a test; it goes with the object, and all that is in it.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() / ("wxbrg_cli_" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
    const std::filesystem::path& Path() const { return path_; }

    /// Writes a file, with the folders on its way, and returns its name.
    std::string Write(const std::string& name, const std::string& bytes) const {
        const std::filesystem::path file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream stream(file, std::ios::binary);
        stream << bytes;
        if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
        return file.string();
    }

    std::string Read(const std::string& name) const {
        std::ifstream stream(path_ / name, std::ios::binary);
        if (!stream) throw std::runtime_error("cannot read " + (path_ / name).string());
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

  private:
    std::filesystem::path path_;
};

}  // namespace wxbrg::cli
