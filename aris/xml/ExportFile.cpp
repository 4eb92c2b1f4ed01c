#include "aris/xml/ExportFile.h"

#include <cerrno>
#include <filesystem>
#include <ios>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/Path.h"
#include "support/Failure.h"

namespace wxbrg::xml {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void FailToOpen(std::int32_t number, const std::string& name, std::string_view whatToDo,
                             const std::error_code& error) {
    throw Failure(number, name + ". " + std::string(whatToDo))
        .Because(FailureCause::OfSystem(error.value(), name));
}

/// Opens a file, which shows in the stream; returns the system's error number where it cannot. A signal ends
/// the waiting for the writer of a pipe, which may never come.
int Open(std::ifstream& stream, const fs::path& path) {
    int error = 0;
    std::error_code ignored;
    do {
        stream.clear();
        errno = 0;
        stream.open(path, std::ios::binary);
        error = errno;
    } while (!stream.is_open() && error == EINTR && !fs::is_fifo(path, ignored));
    return error;
}

/// The error number of a read that failed; 0 where the stream does not tell it.
int ErrorOf(const std::ios_base::failure& failure) {
    return failure.code().category() == std::iostream_category() ? 0 : failure.code().value();
}

/// Fails unless there is something that can be opened as a file.
void RequireFile(const std::string& name) {
    const fs::path path = PathOf(name);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::is_directory(status))
        FailToOpen(FailureKind::pathNotFound, name, "This is a folder: name the file in it.",
                   std::make_error_code(std::errc::is_a_directory));
    if (status.type() == fs::file_type::not_found) {
        const std::error_code missing = std::make_error_code(std::errc::no_such_file_or_directory);
        const fs::path folder = path.parent_path();
        std::error_code ignored;
        if (!folder.empty() && !fs::is_directory(folder, ignored))
            FailToOpen(FailureKind::pathNotFound, name, "Check the folders in the name of the file.",
                       missing);
        FailToOpen(FailureKind::fileNotFound, name, "Check the name of the file.", missing);
    }
    if (!fs::exists(status))
        FailToOpen(FailureKind::fileAccess, name, error.message() + ". Check the name of the file.", error);
}

}  // namespace

ExportFile::ExportFile(std::string name) : name_(std::move(name)) {
    RequireFile(name_);
    if (const int error = Open(stream_, PathOf(name_)); !stream_.is_open())
        FailToOpen(FailureKind::fileAccess, name_, "Check that you may read this file.",
                   {error, std::generic_category()});
    stream_.exceptions(std::ios::badbit);  // alone they tell the system's error
    std::error_code unknown;
    const std::uintmax_t size = fs::file_size(PathOf(name_), unknown);
    size_ = unknown ? 0 : size;
}

std::size_t ExportFile::Read(char* bytes, std::size_t size) {
    try {
        stream_.read(bytes, static_cast<std::streamsize>(size));
    } catch (const std::ios_base::failure& failure) {
        throw Failure(FailureKind::fileAccess, name_ + ". The file could not be read to its end.")
            .Because(FailureCause::OfSystem(ErrorOf(failure), name_));
    }
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
