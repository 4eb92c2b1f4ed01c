#include "tests/cases/runner/Case.h"

#include <gtest/gtest.h>

#include "tests/cases/runner/Difference.h"
#include "tests/cases/runner/Lists.h"
#include "tests/cases/runner/Replay.h"

namespace wxbrg::cases {

// Outside an unnamed namespace, for GoogleTest prints a parameter through it.
void PrintTo(const Case& printed, std::ostream* stream) {
    *stream << printed.name;
}

namespace {

class EndToEnd : public testing::TestWithParam<Case> {};

TEST_P(EndToEnd, Case) {
    const Files expected = ExpectedFiles(GetParam());
    ASSERT_TRUE(expected.contains(transcriptName))
        << "The case has no expected result yet. Record one and read it:\n"
        << RecordCommand(GetParam());
    const std::string difference = Difference(expected, Replay(GetParam().folder));
    if (IsPending(GetParam().name)) {
        if (difference.empty())
            FAIL() << GetParam().name << " is no longer pending: take it off tests/cases/pending.";
    } else if (!difference.empty()) {
        FAIL() << GetParam().name << " does not end as it should.\n"
               << difference << "If the new result is right, accept it with\n"
               << RecordCommand(GetParam());
    }
}

INSTANTIATE_TEST_SUITE_P(, EndToEnd, testing::ValuesIn(AllCases()), [](const auto& test) {
    return test.param.name;
});

}  // namespace
}  // namespace wxbrg::cases
