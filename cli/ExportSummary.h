#pragma once

#include <chrono>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "aris/Catalogue.h"
#include "run/RunExport.h"

namespace wxbrg::cli {

/// What the summary of an export is made of.
struct ExportSummary {
    std::string output;
    const RunReport& report;
    const aris::Catalogue& catalogue;
    std::uint32_t codePage = 0;
    std::uint64_t lackingCharacters = 0;  ///< characters that the code page lacks
    std::chrono::duration<double> time{};
};

/// Prints what was exported, the notes by severity, and what was odd about the repository where there is any.
void WriteSummary(const ExportSummary& summary, std::ostream& out);

}  // namespace wxbrg::cli
