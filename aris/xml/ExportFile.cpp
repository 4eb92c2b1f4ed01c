#include "aris/xml/ExportFile.h"

#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/Path.h"
#include "support/Failure.h"

namespace wxbrg::xml {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void FailToOpen(std::int32_t number, const std::string& name, std::string_view whatToDo) {
    throw Failure(number, name + ". " + std::string(whatToDo));
}

/// Fails unless there is something that can be opened as a file.
void RequireFile(const std::string& name) {
    const fs::path path = PathOf(name);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::is_directory(status))
        FailToOpen(FailureKind::pathNotFound, name, "This is a folder: name the file in it.");
    if (status.type() == fs::file_type::not_found) {
        const fs::path folder = path.parent_path();
        std::error_code ignored;
        if (!folder.empty() && !fs::is_directory(folder, ignored))
            FailToOpen(FailureKind::pathNotFound, name, "Check the folders in the name of the file.");
        FailToOpen(FailureKind::fileNotFound, name, "Check the name of the file.");
    }
    if (!fs::exists(status))
        FailToOpen(FailureKind::fileAccess, name, error.message() + ". Check the name of the file.");
}

}  // namespace

ExportFile::ExportFile(std::string name) : name_(std::move(name)) {
    RequireFile(name_);
    stream_.open(PathOf(name_), std::ios::binary);
    if (!stream_.is_open()) FailToOpen(FailureKind::fileAccess, name_, "Check that you may read this file.");
    std::error_code unknown;
    const std::uintmax_t size = fs::file_size(PathOf(name_), unknown);
    size_ = unknown ? 0 : size;
}

std::size_t ExportFile::Read(char* bytes, std::size_t size) {
    stream_.read(bytes, static_cast<std::streamsize>(size));
    if (stream_.bad())
        throw Failure(FailureKind::fileAccess, name_ + ". The file could not be read to its end.");
    return static_cast<std::size_t>(stream_.gcount());
}

std::string ExportFile::ReadAll() {
    constexpr std::size_t step = std::size_t{64} << 10U;
    std::string content;
    for (;;) {
        const std::size_t before = content.size();
        content.resize(before + step);
        const std::size_t got = Read(content.data() + before, step);
        content.resize(before + got);
        if (got < step) return content;
    }
}

std::string NameWithoutFolderAndExtension(const std::string& file) {
    return TextOf(PathOf(file).stem());
}

}  // namespace wxbrg::xml
