#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

namespace wxbrg {

/// What a box about a failure says.
enum class BoxForm {
    failure,   ///< header 1000, description, OK
    warning,   ///< header 1010, description, OK
    question,  ///< header 1010, the question whether to end, Yes and No
};

/// What to do about a failure with a number of the program's own. A number without a row is unknown.
struct FailurePolicy {
    std::int16_t number;
    BoxForm box;
    std::int16_t answer;     ///< action code after OK or Yes
    std::int16_t otherwise;  ///< action code after No; the same as `answer` where there is no question
};

// clang-format off
inline constexpr std::array failurePolicies{
    FailurePolicy{  999, BoxForm::question, 3, 2},
    FailurePolicy{ 2000, BoxForm::failure,  3, 3},
    FailurePolicy{ 2010, BoxForm::failure,  3, 3},
    FailurePolicy{ 2020, BoxForm::failure,  3, 3},
    FailurePolicy{ 2030, BoxForm::warning,  1, 1},
    FailurePolicy{ 2040, BoxForm::warning,  1, 1},
    FailurePolicy{ 2050, BoxForm::warning,  1, 1},
    FailurePolicy{ 2060, BoxForm::warning,  1, 1},
    FailurePolicy{ 2070, BoxForm::warning,  1, 1},
    FailurePolicy{ 2080, BoxForm::warning,  1, 1},
    FailurePolicy{ 2090, BoxForm::warning,  1, 1},
    FailurePolicy{ 2100, BoxForm::failure,  3, 3},
    FailurePolicy{ 2110, BoxForm::warning,  1, 1},
    FailurePolicy{ 2120, BoxForm::failure,  3, 3},
    FailurePolicy{ 2130, BoxForm::failure,  3, 3},
    FailurePolicy{ 2140, BoxForm::failure,  3, 3},
    FailurePolicy{ 2150, BoxForm::failure,  3, 3},
    FailurePolicy{ 2160, BoxForm::failure,  3, 3},
    FailurePolicy{ 2170, BoxForm::failure,  3, 3},
    FailurePolicy{ 2180, BoxForm::failure,  3, 3},
    FailurePolicy{ 2190, BoxForm::failure,  3, 3},
    FailurePolicy{ 2200, BoxForm::failure,  3, 3},
    FailurePolicy{ 2210, BoxForm::warning,  1, 1},
    FailurePolicy{ 2220, BoxForm::warning,  1, 1},
    FailurePolicy{ 2230, BoxForm::failure,  3, 3},
    FailurePolicy{32755, BoxForm::question, 3, 0},
};
// clang-format on

static_assert(std::is_sorted(failurePolicies.begin(), failurePolicies.end(),
                             [](const auto& a, const auto& b) {
                                 return a.number < b.number;
                             }));
static_assert(std::adjacent_find(failurePolicies.begin(), failurePolicies.end(),
                                 [](const auto& a, const auto& b) {
                                     return a.number == b.number;
                                 }) == failurePolicies.end());
static_assert(std::all_of(failurePolicies.begin(), failurePolicies.end(), [](const auto& row) {
    return row.answer == (row.box == BoxForm::warning ? 1 : 3) &&
           (row.box == BoxForm::question || row.otherwise == row.answer);
}));

/// The row of a number, or null.
constexpr const FailurePolicy* FindFailurePolicy(std::int16_t number) {
    const auto* const found = std::lower_bound(failurePolicies.begin(), failurePolicies.end(), number,
                                               [](const auto& row, auto wanted) {
                                                   return row.number < wanted;
                                               });
    return found != failurePolicies.end() && found->number == number ? found : nullptr;
}

}  // namespace wxbrg
