#pragma once

namespace wxbrg {

/// The run from its first step to its last, on the global block that `RunExport` made ready.
void Main();
/// Loads the texts, makes the global objects, reads the command line and finds the selected models. Ends the
/// run when there is no language library.
void Setup();
/// Drops all that the run made.
void Shutdown();

}  // namespace wxbrg
