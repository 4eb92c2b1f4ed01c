#include "cli/RunOutcome.h"

#include <algorithm>
#include <array>
#include <ostream>

#include "cli/ExitStatus.h"
#include "run/clsExceptionHandler.h"
#include "support/TerminalText.h"

namespace wxbrg::cli {

namespace {

/// Where one of these ends the run, the user said so.
constexpr std::array cancelNumbers{CancelNumber::optionsForm, CancelNumber::fileDialog};

}  // namespace

int ExitStatusOf(const RunReport& report, bool strict) {
    if (report.ending == RunEnding::normal) {
        const bool warned = report.boxes.exclamation + report.notes.exclamation > 0;
        return strict && warned ? ExitStatus::strict : ExitStatus::normal;
    }
    const bool cancelled =
        report.ending == RunEnding::endedByFailure &&
        std::find(cancelNumbers.begin(), cancelNumbers.end(), report.number) != cancelNumbers.end();
    return cancelled ? ExitStatus::cancelled : ExitStatus::failure;
}

void ReportProgramFailure(const RunReport& report, std::ostream& err) {
    if (report.ending == RunEnding::error) err << "wxbrg: " << Printable(report.error) << '\n';
}

void ReportLostCharacters(const CodePage& codePage, std::ostream& err) {
    const std::uint64_t lacking = codePage.LackingCharacters();
    if (lacking == 0) return;
    err << "wxbrg: The code page " << codePage.Number() << " lacks " << lacking
        << (lacking == 1 ? " character" : " characters")
        << " of the texts; in the files \"?\" stands instead.\n";
}

}  // namespace wxbrg::cli
