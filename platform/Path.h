#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace wxbrg {

// Between the text of a path, in UTF-8 as everywhere in the program, and the path that the system works with.
// Each turns the other's result back into what it was given. Where the system's paths are bytes, bytes that
// are no UTF-8 go through unchanged; elsewhere they throw std::system_error.

inline std::filesystem::path PathOf(std::string_view text) {
    return std::u8string(text.begin(), text.end());
}

inline std::string TextOf(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

/// The text of the path of a file that is named from a folder, with the system's separator between them. An
/// empty folder is the working directory. A name that is an absolute path counts from nowhere.
inline std::string FileInFolder(std::string_view folder, std::string_view name) {
    return TextOf(PathOf(folder) / PathOf(name));
}

}  // namespace wxbrg
