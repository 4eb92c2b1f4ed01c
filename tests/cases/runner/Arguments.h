#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace wxbrg::cases {

/// What this test program is to do, beside what GoogleTest's own arguments say.
struct Arguments {
    enum class Mode {
        test,    ///< runs all tests
        check,   ///< `--check [CASE...]`: runs the cases of these names, or all
        record,  ///< `--record CASE...`: makes what these cases do now their expected result
    };

    Mode mode = Mode::test;
    std::vector<std::string> cases = {};
    std::filesystem::path program = WXBRG_PROGRAM;  ///< `--program FILE`: the wxbrg to run
};

/// The arguments of this process; its defaults until `main` has set them.
Arguments& TheArguments();

/// Reads the arguments behind the program's name. Throws std::invalid_argument, with a text for the user, for
/// unknown ones, for names that no case has, and for nothing to record.
Arguments ParseArguments(const std::vector<std::string>& given);

}  // namespace wxbrg::cases
