#pragma once

#include <optional>
#include <string>

#include "aris/Repository.h"
#include "mapping/PathCollection.h"
#include "model/clsPoint.h"
#include "run/Frame.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

class clsPROCESS;

/// The mean, in window units, of the places where objects first occur in the process's model; nothing for no
/// objects, and the centre of the window where none occurs. An object outside the window counts as at its
/// edge. The mean is worked out incrementally in whole 16-bit numbers, so that it differs from the true one
/// by some units. Fails with 6 for an object beyond 16 bits.
std::optional<clsPoint> CalculateGraphicalCenterOfARISObjects(const Collection<ARISObjDef>& ColARISObjDef,
                                                              const clsPROCESS& Process);

/// Adds a connector's one bend point to its layout: the mean of its ends and of the objects on the first of
/// its paths that holds any. A direct connection has none. In the frame of a connector's procedure: the
/// warning 2090 where the paths are not available, 2060 where the process has no layout yet.
void AddBendPoint(Frame& frame, std::string& layout, const PathCollection& paths, bool pathsAvailable,
                  const ARISObjDef& from, const ARISObjDef& to, const clsPROCESS& process);

}  // namespace wxbrg
