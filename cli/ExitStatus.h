#pragma once

/// What the program reports to its caller when it ends.
namespace wxbrg::cli::ExitStatus {
inline constexpr int normal = 0;
inline constexpr int failure = 1;      ///< a failure ended the run, or it could not begin
inline constexpr int usage = 2;        ///< the arguments, or the case, are wrong
inline constexpr int strict = 3;       ///< there was a warning, with `--strict` or in a check
inline constexpr int signalled = 128;  ///< to which the number of the signal that ended the run is added
inline constexpr int cancelled = 130;  ///< the user cancelled a dialog and said to end
}  // namespace wxbrg::cli::ExitStatus
