#pragma once

#include <iosfwd>

#include "run/RunExport.h"

namespace wxbrg::cli {

/// The exit status of a run that is over. With `strict`, a run that ended normally counts as one with a
/// warning where a box or a note of severity 48 is among what it reports.
int ExitStatusOf(const RunReport& report, bool strict);

/// Tells what no message box has told: that the program itself failed.
void TellProgramFailure(const RunReport& report, std::ostream& err);

/// Tells how many characters were lost because the files' code page lacks them, where there are any.
void TellLostCharacters(const CodePage& codePage, std::ostream& err);

}  // namespace wxbrg::cli
