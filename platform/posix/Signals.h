#pragma once

namespace wxbrg {

/// Sets what signals do to the program, an export included:
///
/// - XFSZ, a file that meets the limit on its size, is ignored: the write fails, and the user gets a message.
/// - INT, TERM, HUP, QUIT and PIPE keep what the process was started with, which is the system's default
///   unless the caller has them ignored (nohup): the program ends at once, without a box or a last word, and
///   what was written until then stays as it is.
///
/// While the options form has the whole screen, `CursesSignals` and `ResizeSignal` have set more.
void SetSignals();

}  // namespace wxbrg
