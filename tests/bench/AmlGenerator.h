#pragma once

#include <cstdint>
#include <ostream>

namespace wxbrg::bench {

/// What a generated export holds. The same plan gives the same bytes everywhere.
struct AmlPlan {
    std::uint32_t models = 10;
    std::uint32_t functions = 100;  ///< a model
};

/// Writes an export of process models: functions with events, rules, data, staff and programs around them, in
/// German and English, each model with sub-processes of its own as far as there are further models. Every
/// model exports without a failure.
void GenerateAml(const AmlPlan& plan, std::ostream& out);

/// The number of models with which an export becomes about `bytes` bytes large, and at least as large.
std::uint32_t ModelsForSize(std::uint64_t bytes, std::uint32_t functions);

}  // namespace wxbrg::bench
