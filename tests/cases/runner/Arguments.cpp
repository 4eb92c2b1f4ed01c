#include "tests/cases/runner/Arguments.h"

#include <cstddef>
#include <stdexcept>

#include "tests/cases/runner/Case.h"

namespace wxbrg::cases {

namespace {

void CheckNames(const std::vector<std::string>& names) {
    for (const std::string& name : names)
        if (FindCase(name) == nullptr)
            throw std::invalid_argument("There is no case " + name + ". A case is a folder in " +
                                        CasesFolder().string() +
                                        " or its random/ with a file `command`; a new one is known after the "
                                        "next build.");
}

}  // namespace

Arguments& TheArguments() {
    static Arguments arguments;
    return arguments;
}

Arguments ParseArguments(const std::vector<std::string>& given) {
    Arguments arguments;
    for (std::size_t at = 0; at < given.size(); ++at) {
        const std::string& argument = given[at];
        if (argument == "--program" && at + 1 < given.size())
            arguments.program = std::filesystem::absolute(given[++at]);
        else if (argument == "--check")
            arguments.mode = Arguments::Mode::check;
        else if (argument == "--record")
            arguments.mode = Arguments::Mode::record;
        else if (arguments.mode == Arguments::Mode::test || argument.starts_with('-'))
            throw std::invalid_argument("Unknown argument " + argument +
                                        ". There are --program FILE, --check [CASE...] and --record CASE...");
        else
            arguments.cases.push_back(argument);
    }
    if (arguments.mode == Arguments::Mode::record && arguments.cases.empty())
        throw std::invalid_argument("Name the cases to record.");
    CheckNames(arguments.cases);
    return arguments;
}

}  // namespace wxbrg::cases
