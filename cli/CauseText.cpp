#include "cli/CauseText.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <new>
#include <ostream>
#include <string_view>
#include <system_error>

#include "support/TerminalText.h"

namespace wxbrg::cli {

namespace {

/// What to do about an error of the system.
struct Advice {
    std::errc error;
    std::string_view text;
};

constexpr std::array advices{
    Advice{std::errc::no_space_on_device, "Free some space or write to another disk, then export again."},
    Advice{
        std::errc::file_too_large,
        "Files may not grow that large here: raise the limit or write to another disk, then export again."},
    Advice{std::errc::read_only_file_system,
           "This disk can only be read: name a file on another one, then export again."},
    Advice{std::errc::io_error, "The disk or its connection fails: check it, then try again."},
    Advice{std::errc::permission_denied,
           "Ask for the right to use this file and its folder, or name another file, then try again."},
    Advice{std::errc::operation_not_permitted,
           "The file is protected: take the protection away or name another file, then try again."},
    Advice{std::errc::too_many_files_open,
           "The program may not open more files: raise the limit (ulimit -n), then try again."},
    Advice{std::errc::too_many_files_open_in_system,
           "The system has no room for another open file: end other programs, then try again."},
    Advice{std::errc::not_enough_memory,
           "End other programs or raise the memory limit, or take fewer models, then try again."},
    Advice{std::errc::no_such_file_or_directory, "Check the name and its folders, then try again."},
    Advice{std::errc::not_a_directory, "Check the folders in the name, then try again."},
    Advice{std::errc::is_a_directory, "Name a file, then try again."},
    Advice{std::errc::filename_too_long, "Give a shorter name, then try again."},
    Advice{std::errc::too_many_symbolic_link_levels, "Correct the links that it leads to, then try again."},
};

constexpr std::string_view otherAdvice = "Remove the cause, then try again.";
constexpr std::string_view quotaAdvice =
    "Delete files of yours or ask for a larger quota, then export again.";

std::string_view AdviceOn(const std::error_code& error) {
    if (error.category() == std::generic_category() && error.value() == EDQUOT) return quotaAdvice;
    const auto* const found = std::find_if(advices.begin(), advices.end(), [&](const Advice& advice) {
        return error == advice.error;
    });
    return found == advices.end() ? otherAdvice : found->text;
}

std::string InFront(const std::string& file) {
    return file.empty() ? file : Printable(file) + ": ";
}

}  // namespace

std::string CauseText(const FailureCause& cause) {
    switch (cause.kind) {
        case FailureCause::Kind::nameTooShort:
            return InFront(cause.file) +
                   "The name is too short: the log is named by it without its last four characters. Give a "
                   "longer one, such as orders.wpx, then export again.";
        case FailureCause::Kind::system:
            if (!cause.error) break;
            return InFront(cause.file) + Printable(cause.error.message()) + " (" +
                   std::to_string(cause.error.value()) + "). " + std::string(AdviceOn(cause.error));
        case FailureCause::Kind::none:
            break;
    }
    return {};
}

void ReportCause(const RunReport& report, std::ostream& err) {
    if (report.ending == RunEnding::normal) return;
    const std::string text = CauseText(report.cause);
    if (!text.empty()) err << "wxbrg: " << text << '\n';
}

void ReportException(const std::exception& error, std::ostream& err) {
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) {
        // Nothing here may ask for memory.
        err << "wxbrg: not enough memory. End other programs or raise the memory limit, then try again.\n";
        return;
    }
    err << "wxbrg: " << Printable(error.what()) << '\n';
    const auto* const failure = dynamic_cast<const Failure*>(&error);
    const std::string cause = failure == nullptr ? std::string() : CauseText(failure->Cause);
    if (!cause.empty()) err << "wxbrg: " << cause << '\n';
}

}  // namespace wxbrg::cli
