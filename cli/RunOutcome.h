#pragma once

#include <iosfwd>

#include "run/RunExport.h"

namespace wxbrg::cli {

/// The exit status of a run that is over. With `strict`, a run that ended normally counts as one with a
/// warning where a box or a note of severity 48 is among what it reports.
int ExitStatusOf(const RunReport& report, bool strict);

/// Reports what no message box has shown: that the program itself failed.
void ReportProgramFailure(const RunReport& report, std::ostream& err);

/// Reports how many characters were lost because the files' code page lacks them, where there are any.
void ReportLostCharacters(const CodePage& codePage, std::ostream& err);

}  // namespace wxbrg::cli
