#pragma once

#include <exception>
#include <iosfwd>
#include <string>

#include "run/RunExport.h"

namespace wxbrg::cli {

/// What lies behind a failure, in one printable line: the file, the system's words with their number, and
/// what to do. Empty where nothing is known beyond the failure itself.
std::string CauseText(const FailureCause& cause);

/// Prints the cause behind the failure that ended a run, which its box does not name; nothing where there is
/// none.
void ReportCause(const RunReport& report, std::ostream& err);

/// Prints an exception that ends the program: its text, and the cause of a `Failure` or of memory that ran
/// out.
void ReportException(const std::exception& error, std::ostream& err);

}  // namespace wxbrg::cli
