#pragma once

#include <memory>

#include "platform/StopRequests.h"

namespace wxbrg {

/// Sets what signals do to the program:
///
/// - XFSZ, a file that meets the limit on its size, is ignored: the write fails, and the user gets a message.
/// - INT, TERM, HUP, QUIT and PIPE keep what the process was started with, which is the system's default
///   unless the caller has them ignored (nohup): the program ends at once, without a box or a last word, and
///   what was written until then stays as it is.
///
/// While the options form has the whole screen, `CursesSignals` and `ResizeSignal` have set more; while an
/// export runs that asks nobody, `CatchStopSignals` has.
void SetSignals();

/// From this call until the result goes, the first of INT, TERM and HUP is kept as a request, and waiting for
/// the system is interrupted by it; the next one ends the program at once. Those that the caller has ignored
/// stay ignored. There is at most one result at a time.
std::unique_ptr<StopRequests> CatchStopSignals();

}  // namespace wxbrg
