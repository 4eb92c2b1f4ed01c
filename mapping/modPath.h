#pragma once

#include "mapping/clsPath.h"
#include "support/Collection.h"
#include "support/Ref.h"

namespace wxbrg {

/// A path of one step.
Ref<clsPath> CreatePath(const ARISObjDef& fromObj, const ARISObjDef& toObj);

/// A new collection with the same paths.
Collection<Ref<clsPath>> ClonePaths(const Collection<Ref<clsPath>>& paths);

/// Every way of going on from a path of `first` with a path of `second` that starts where it ended, in the
/// order of `first`; pairs that do not meet give nothing. Where one of the two is empty: the same paths as in
/// the other. A walk that passes through one object twice ends the run with 457.
Collection<Ref<clsPath>> ConcatenatePaths(const Collection<Ref<clsPath>>& first,
                                          const Collection<Ref<clsPath>>& second);

}  // namespace wxbrg
