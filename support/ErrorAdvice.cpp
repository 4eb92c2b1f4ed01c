#include "support/ErrorAdvice.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace wxbrg {

namespace {

struct Advice {
    std::errc error;
    std::string_view text;
};

constexpr std::array advices{
    Advice{std::errc::no_space_on_device, "Free some space or use another disk."},
    Advice{std::errc::file_too_large,
           "Files may not grow that large here: raise the limit or use another disk."},
    Advice{std::errc::read_only_file_system,
           "This disk can only be read: make it writable or use another one."},
    Advice{std::errc::io_error, "Check the disk and its connection."},
    Advice{std::errc::permission_denied,
           "Ask for the right to use the file and the folders on its way, or use another file."},
    Advice{std::errc::operation_not_permitted,
           "The file is protected: take the protection away or use another file."},
    Advice{std::errc::too_many_files_open,
           "The program may not open more files: close some, or raise the limit (ulimit -n)."},
    Advice{std::errc::too_many_files_open_in_system,
           "The system has no room for another open file: end other programs."},
    Advice{std::errc::not_enough_memory,
           "End other programs or raise the memory limit, or take fewer models."},
    Advice{std::errc::no_such_file_or_directory, "Check the name and the folders on its way."},
    Advice{std::errc::not_a_directory, "Correct the path: a name on its way is no folder."},
    Advice{std::errc::is_a_directory, "Name a file, not a folder."},
    Advice{std::errc::filename_too_long, "Use a shorter name or path."},
    Advice{std::errc::too_many_symbolic_link_levels, "Correct the links on its way: they lead in a circle."},
};

constexpr std::string_view quotaAdvice = "Delete files of yours or ask for a larger quota.";
constexpr std::string_view otherAdvice = "Remove the cause and try again.";

}  // namespace

std::string_view AdviceOn(const std::error_code& error) {
#ifdef EDQUOT
    // The standard has no name for a full quota.
    if (error.category() == std::generic_category() && error.value() == EDQUOT) return quotaAdvice;
#endif
    const auto* const found = std::find_if(advices.begin(), advices.end(), [&](const Advice& advice) {
        return error == advice.error;
    });
    return found == advices.end() ? otherAdvice : found->text;
}

}  // namespace wxbrg
