#include "platform/FileDialog.h"

#include <fstream>

namespace wxbrg {

bool IsPattern(std::string_view name) {
    return name.find_first_of("*?") != std::string_view::npos;
}

bool IsWritable(const std::filesystem::path& file) {
    return std::fstream(file, std::ios::in | std::ios::out | std::ios::binary).is_open();
}

std::string WithDefaultExtension(std::string name, const std::string& extension) {
    const std::size_t separator = name.find_last_of("/\\");
    const std::size_t lastPart = separator == std::string::npos ? 0 : separator + 1;
    if (name.find('.', lastPart) == std::string::npos) name.append(".").append(extension);
    return name;
}

}  // namespace wxbrg
