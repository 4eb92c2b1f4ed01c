#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace wxbrg::cli {

/// What a process is started with, beside its arguments.
struct ProcessSetting {
    std::string input;                               ///< for the standard input
    std::filesystem::path folder = ".";              ///< to work in
    std::map<std::string, std::string> environment;  ///< variables to set over those of the test
};

struct ProcessResult {
    int status = 0;  ///< exit status; 128 and the signal's number where a signal ended it
    std::string out;
    std::string err;
};

/// Runs a program, found on the path where its name holds no separator, to its end. The arguments start with
/// its name. Throws std::system_error where it cannot be started.
ProcessResult RunProcess(const std::vector<std::string>& arguments, const ProcessSetting& setting = {});

}  // namespace wxbrg::cli
