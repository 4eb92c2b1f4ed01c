#include <gtest/gtest.h>

#include <exception>
#include <iostream>

#include "tests/cases/runner/Arguments.h"
#include "tests/cases/runner/Recording.h"

namespace {

using wxbrg::cases::Arguments;

/// The filter for the tests of the cases of these names, or of all.
std::string FilterFor(const std::vector<std::string>& names) {
    if (names.empty()) return "EndToEnd.*";
    std::string filter;
    for (const std::string& name : names) filter += (filter.empty() ? "" : ":") + ("EndToEnd.Case/" + name);
    return filter;
}

int RecordAll(const std::vector<std::string>& names) {
    bool all = true;
    for (const std::string& name : names)
        all = wxbrg::cases::Record(*wxbrg::cases::FindCase(name), std::cout) && all;
    return all ? 0 : 1;
}

}  // namespace

int main(int count, char** values) {
    testing::InitGoogleTest(&count, values);
    try {
        Arguments& arguments = wxbrg::cases::TheArguments();
        arguments = wxbrg::cases::ParseArguments({values + 1, values + count});
        if (arguments.mode == Arguments::Mode::record) return RecordAll(arguments.cases);
        if (arguments.mode == Arguments::Mode::check) GTEST_FLAG_SET(filter, FilterFor(arguments.cases));
        return RUN_ALL_TESTS();
    } catch (const std::exception& error) {
        std::cerr << "wxbrg_test_cases: " << error.what() << "\n";
        return 2;
    }
}
