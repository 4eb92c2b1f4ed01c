#pragma once

#include "mapping/PathCollection.h"
#include "mapping/clsPath.h"
#include "support/Ref.h"

namespace wxbrg {

/// A path of one step.
Ref<clsPath> CreatePath(const ARISObjDef& fromObj, const ARISObjDef& toObj);

/// A new collection with the same paths.
PathCollection ClonePaths(const PathCollection& paths);

/// Every way of going on from a path of `first` with a path of `second` that starts where it ended, in the
/// order of `first`; pairs that do not meet give nothing. Where one of the two is empty: the same paths as in
/// the other. A walk that passes through one object twice ends the run with 457.
PathCollection ConcatenatePaths(const PathCollection& first, const PathCollection& second);

/// The same for one path and `tails` that all start where it ended: a single entry.
PathCollection::Entry ConcatenatePath(const Ref<clsPath>& head, const Ref<const PathCollection>& tails);

}  // namespace wxbrg
